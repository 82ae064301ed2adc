#include "utilities/SourceFetch.h"

#include "platform/TextFiles.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QStringDecoder>

namespace SourceFetch {

QUrl webAddress(const QString& typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty() || text.contains(QRegularExpression(QStringLiteral("\\s"))))
        return {};
    const bool hasScheme = text.contains(QStringLiteral("://"));
    const QUrl url(hasScheme ? text : QStringLiteral("http://") + text, QUrl::StrictMode);
    const QString scheme = url.scheme().toLower();
    if (!url.isValid() || url.host().isEmpty() || (scheme != QLatin1String("http") && scheme != QLatin1String("https")))
        return {};
    return url;
}

namespace {
QByteArray charsetIn(const QByteArray& text)
{
    static const QRegularExpression pattern(QStringLiteral("charset\\s*=\\s*[\"']?\\s*([A-Za-z0-9_.:-]+)"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto m = pattern.match(QString::fromLatin1(text));
    return m.hasMatch() ? m.captured(1).toLatin1().toLower() : QByteArray();
}

// Only the start of a page is searched for its meta tag, as browsers do.
constexpr qsizetype metaWindow = 4096;
}

QByteArray charsetOf(const QByteArray& contentType, const QByteArray& body)
{
    if (const QByteArray fromHeader = charsetIn(contentType); !fromHeader.isEmpty())
        return fromHeader;
    static const QRegularExpression meta(QStringLiteral("<meta\\b[^>]*>"), QRegularExpression::CaseInsensitiveOption);
    const QString head = QString::fromLatin1(body.left(metaWindow));
    for (auto it = meta.globalMatch(head); it.hasNext();) {
        const QString tag = it.next().captured();
        if (const QByteArray found = charsetIn(tag.toLatin1()); !found.isEmpty())
            return found;
    }
    return {};
}

QByteArray editorBytes(const QByteArray& body, const QByteArray& contentType)
{
    // UTF-8 (declared or not) stays as it came: the editor reads it so, a stray byte included,
    // and a large page is not held twice.
    const QByteArray charset = charsetOf(contentType, body);
    if (!charset.isEmpty() && charset != "utf-8" && charset != "utf8") {
        QStringDecoder decoder(charset.constData());
        if (decoder.isValid()) {
            const QString text = decoder.decode(body);
            if (!decoder.hasError())
                return text.toUtf8();
        }
    }
    return body;
}

QString decodePage(const QByteArray& body, const QByteArray& contentType)
{
    return TextFiles::decode(editorBytes(body, contentType));
}

QString failureReason(QNetworkReply::NetworkError error, int httpStatus, const QString& httpPhrase)
{
    if (httpStatus >= 400)
        return (QStringLiteral("HTTP ") + QString::number(httpStatus) + QLatin1Char(' ') + httpPhrase).trimmed();
    switch (error) {
    case QNetworkReply::NoError: return {};
    case QNetworkReply::HostNotFoundError: return QStringLiteral("host not found");
    case QNetworkReply::ConnectionRefusedError: return QStringLiteral("connection refused");
    case QNetworkReply::RemoteHostClosedError: return QStringLiteral("the server closed the connection");
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError: return QStringLiteral("no answer from the server");
    case QNetworkReply::SslHandshakeFailedError: return QStringLiteral("TLS error");
    case QNetworkReply::TooManyRedirectsError: return QStringLiteral("too many redirects");
    case QNetworkReply::InsecureRedirectError: return QStringLiteral("redirect from https to http refused");
    case QNetworkReply::ProtocolUnknownError: return QStringLiteral("not a web address");
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyNotFoundError:
    case QNetworkReply::ProxyTimeoutError: return QStringLiteral("proxy error");
    default: return QStringLiteral("network error");
    }
}

QString failureMessage(const QString& reason) { return QStringLiteral("The page could not be fetched: ") + reason; }

} // namespace SourceFetch

PageFetch::PageFetch(QObject* parent) : QObject(parent), manager(new QNetworkAccessManager(this)) {}

PageFetch::~PageFetch()
{
    if (reply) {
        reply->disconnect(this);
        reply->abort();
    }
}

void PageFetch::start(const QUrl& url)
{
    cancel();
    body.clear();
    refusal.clear();
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(20);
    request.setTransferTimeout(idleTimeout);
    reply = manager->get(request);
    connect(reply, &QNetworkReply::readyRead, this, &PageFetch::readMore);
    connect(reply, &QNetworkReply::finished, this, &PageFetch::finish);
}

void PageFetch::cancel()
{
    if (!reply)
        return;
    QNetworkReply* r = reply;
    reply = nullptr;
    r->disconnect(this);
    r->abort();
    r->deleteLater();
    body.clear();
    Q_EMIT failed(QStringLiteral("cancelled"));
}

void PageFetch::readMore()
{
    // The reply's own buffer is emptied as it fills, so the page is held once; a stated length
    // is room made at once rather than by doubling.
    if (body.isEmpty()) {
        const qint64 stated = reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
        if (stated > 0 && stated <= maxBytes)
            body.reserve(stated);
    }
    body += reply->readAll();
    if (body.size() > maxBytes) {
        refusal = QStringLiteral("the page is larger than %1 MB").arg(maxBytes / (1024 * 1024));
        reply->abort();
    }
}

void PageFetch::finish()
{
    QNetworkReply* r = reply;
    reply = nullptr;
    r->deleteLater();
    if (refusal.isEmpty())
        body += r->readAll();
    const int status = r->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    QString reason = refusal;
    if (reason.isEmpty() && (r->error() != QNetworkReply::NoError || status >= 400))
        reason = SourceFetch::failureReason(r->error(), status,
                                            r->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
    if (!reason.isEmpty()) {
        body.clear();
        Q_EMIT failed(reason);
        return;
    }
    const QByteArray type = r->rawHeader("Content-Type");
    QByteArray page;
    page.swap(body);
    Q_EMIT done(page, type);
}
