#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

// The texts of the two small outward channels, the update check and the feedback mail, as pure
// functions so that they are tested byte for byte without a window or a server.
namespace UpdateCheck {
// Update.DAT and the package on the update server.
QUrl listAddress(const QString& server);
QUrl packageAddress(const QString& server);
// The fields of Update.DAT's one line, split at every "," (a comma inside a field shifts the
// later ones). Only the first line counts; its line end is no part of the last field.
QStringList fields(const QByteArray& body, const QByteArray& contentType = {});
// The number of fields the check needs: name, version, author, size, date.
constexpr int fieldCount = 5;
// The question and the status texts.
QString newVersionMessage(const QString& version);
inline const QString noUpdate = QStringLiteral("Status :: No update currently available.");
inline const QString newVersion = QStringLiteral("Status :: A new version is available.");
}

namespace Feedback {
struct Form {
    QString name, email, country, age, comment, changes, rate;
};
// \Options\FeedBack.dat: eighteen lines, each ended by CR LF; the two free texts keep their own
// lines, with CR LF between them.
QByteArray fileText(const QString& productLine, const Form& form);
inline const QString title = QStringLiteral(":: Velloro 2002 ::");
inline const QString mailQuestion =
    QStringLiteral("The feedback file has been created, Do you use Outlook for your emailing?");
inline const QString subject = QStringLiteral("Velloro 2002 Feedback");
QString mailBody(const QString& versionNumber);
QString sendItYourself(const QString& path, const QString& address);
}
