#pragma once
#include <QByteArray>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;

// The steps of pulling a page's source, kept apart from the window so that they can be tested
// without one.
namespace SourceFetch {
// The texts of the source grabber's state label.
inline const QString inactive = QStringLiteral("Inactive");
inline const QString downloading = QStringLiteral("Downloading...");
inline const QString complete = QStringLiteral("DownLoad Complete!");

// A page larger than this is refused: a page that never ends must not eat the memory.
constexpr qint64 maxPageBytes = 256LL * 1024 * 1024;

// The typed address as an http or https address (a bare host gets "http://"), or an empty URL
// when it is none.
QUrl webAddress(const QString& typed);
// The character set the page declares: the Content-Type header's, else a meta tag's near the top
// of the page, else empty. Lower case.
QByteArray charsetOf(const QByteArray& contentType, const QByteArray& body);
// The page's text: decoded by its character set; without one (or one this system cannot
// decode), as the editor reads files: UTF-8, any other byte as Windows-1252.
QString decodePage(const QByteArray& body, const QByteArray& contentType);
// The bytes the editor reads as decodePage's text: a page in another character set turned into
// UTF-8, any other page as it came.
QByteArray editorBytes(const QByteArray& body, const QByteArray& contentType);
// Why a fetch failed, for the status line. httpStatus is 0 when no answer came.
QString failureReason(QNetworkReply::NetworkError error, int httpStatus, const QString& httpPhrase = {});
// The status line's text for a failure.
QString failureMessage(const QString& reason);
}

// One fetch of a page's bytes at a time: redirects followed (never from https to http), an
// answer that stops coming ends it. Exactly one of done or failed follows each start, unless
// it is cancelled, which reports failed with the reason "cancelled".
class PageFetch : public QObject {
    Q_OBJECT
public:
    explicit PageFetch(QObject* parent = nullptr);
    ~PageFetch() override;

    void start(const QUrl& url);
    void cancel();
    bool running() const { return !reply.isNull(); }
    // Milliseconds without a byte before the fetch gives up.
    int idleTimeout = 30000;
    qint64 maxBytes = SourceFetch::maxPageBytes;

Q_SIGNALS:
    void done(const QByteArray& body, const QByteArray& contentType);
    void failed(const QString& reason);

private:
    void readMore();
    void finish();
    void fail(const QString& reason);

    QNetworkAccessManager* manager = nullptr;
    QPointer<QNetworkReply> reply;
    QByteArray body;
    QString refusal;
};
