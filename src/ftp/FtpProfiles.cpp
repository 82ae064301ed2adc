#include "ftp/FtpProfiles.h"

#include "platform/App.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/FieldReader.h"

#include <QDir>
#include <QFile>

namespace FtpProfiles {
namespace {
// Reads lines as the line-input statement does: CR LF, CR or LF ends a line.
QStringList splitLines(const QString& text)
{
    QStringList lines;
    qsizetype start = 0;
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n) {
        const QChar c = text[i];
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            lines.append(text.mid(start, i - start));
            if (c == QLatin1Char('\r') && i + 1 < n && text[i + 1] == QLatin1Char('\n'))
                ++i;
            start = i + 1;
        }
        ++i;
    }
    if (start < n)
        lines.append(text.mid(start));
    return lines;
}
}

QString folder() { return App::userFile(QStringLiteral("Options/FTP")); }
QString indexPath() { return folder() + QStringLiteral("/Main.DAT"); }
QString profilePath(const QString& name) { return folder() + QLatin1Char('/') + name + QStringLiteral(".DAT"); }

QStringList readIndex()
{
    bool ok = false;
    const QString text = TextFiles::readText(indexPath(), &ok);
    return ok ? splitLines(text) : QStringList();
}

bool ensureIndex() { return TextFiles::createIfMissing(indexPath()); }

// The list and the profiles are replaced whole or not at all: a failed write leaves the old file.
bool appendIndex(const QString& name)
{
    QDir().mkpath(folder());
    return TextFiles::writeBytes(indexPath(), TextFiles::readBytes(indexPath()) + TextFiles::encode(name + QStringLiteral("\r\n")));
}

bool rewriteIndex(const QStringList& names)
{
    QString text;
    for (const QString& n : names)
        text += n + QStringLiteral("\r\n");
    QDir().mkpath(folder());
    return TextFiles::writeBytes(indexPath(), TextFiles::encode(text));
}

QByteArray profileText(const Profile& p)
{
    const QString text = QStringLiteral("##### FTP PROFILE START #####\r\n") + p.name + QStringLiteral("\r\n") + p.address +
                         QStringLiteral("\r\n") + p.username + QStringLiteral("\r\n") + p.password + QStringLiteral("\r\n") +
                         p.date + QStringLiteral("\r\n##### FTP PROFILE END #####\r\n");
    return TextFiles::encode(text);
}

bool writeProfile(const Profile& p)
{
    QDir().mkpath(folder());
    // Owner-only from the first byte: the password is never readable by others.
    return TextFiles::writePrivate(profilePath(p.name), profileText(p));
}

bool readProfile(const QString& name, Profile& p)
{
    bool ok = false;
    const QString text = TextFiles::readText(profilePath(name), &ok);
    if (!ok)
        return false;
    FieldReader reader(text);
    try {
        reader.next();  // the start marker
        Profile read;
        read.name = reader.next();
        read.address = reader.next();
        read.username = reader.next();
        read.password = reader.next();
        read.date = reader.next();
        p = read;
    } catch (const RuntimeError&) {
        return false;
    }
    return true;
}

namespace {
const QString securityWords[] = {QStringLiteral("plain"), QStringLiteral("if-offered"), QStringLiteral("required")};
}

QString securityPath(const QString& name) { return folder() + QLatin1Char('/') + name + QStringLiteral(".TLS"); }

FtpSecurity readSecurity(const QString& name)
{
    const QString word = TextFiles::readText(securityPath(name)).trimmed();
    for (int i = 0; i < 3; ++i)
        if (word == securityWords[i])
            return FtpSecurity(i);
    return FtpSecurity::Plain;
}

bool writeSecurity(const QString& name, FtpSecurity security)
{
    QDir().mkpath(folder());
    return TextFiles::writeBytes(securityPath(name), TextFiles::encode(securityWords[int(security)] + QStringLiteral("\r\n")));
}
}
