#include "utilities/OutwardText.h"

#include "platform/TextFiles.h"
#include "utilities/SourceFetch.h"

#include <QRegularExpression>

namespace UpdateCheck {
QUrl listAddress(const QString& server) { return QUrl(server + QStringLiteral("/Update.DAT")); }
QUrl packageAddress(const QString& server) { return QUrl(server + QStringLiteral("/Velloro.zip")); }

QStringList fields(const QByteArray& body, const QByteArray& contentType)
{
    QString line = SourceFetch::decodePage(body, contentType);
    const qsizetype end = line.indexOf(QRegularExpression(QStringLiteral("[\r\n]")));
    if (end >= 0)
        line.truncate(end);
    return line.split(QLatin1Char(','));
}

QString newVersionMessage(const QString& version) { return QStringLiteral("A new version is available version ") + version; }
}

namespace Feedback {
namespace {
// A multi-line box's text with the line ends a file of this program has.
QString crlfLines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text.replace(QLatin1Char('\n'), TextFiles::crlf);
}
}

QByteArray fileText(const QString& productLine, const Form& f)
{
    const QStringList lines = {
        QStringLiteral("===START====="),
        QString(),
        QStringLiteral("Feedback For :: ") + productLine,
        QString(),
        QStringLiteral("Name         :: ") + f.name,
        QStringLiteral("Email        :: ") + f.email,
        QStringLiteral("Country      :: ") + f.country,
        QStringLiteral("Age          :: ") + f.age,
        QString(),
        QStringLiteral("Comments ::"),
        crlfLines(f.comment),
        QString(),
        QStringLiteral("Extra's-Future Features ::"),
        crlfLines(f.changes),
        QString(),
        QStringLiteral("Rate         :: ") + f.rate,
        QString(),
        QStringLiteral("=====END====="),
    };
    return TextFiles::encode(lines.join(TextFiles::crlf) + TextFiles::crlf);
}

QString mailBody(const QString& versionNumber) { return QStringLiteral("Feedback - Version ") + versionNumber; }

QString sendItYourself(const QString& path, const QString& address)
{
    return QStringLiteral("You will have to send the file yourself, it is located at : ") + path +
           QStringLiteral(" The email address to send the file to is: ") + address;
}
}
