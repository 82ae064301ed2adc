#include "ftp/FtpTrust.h"

#include "ftp/FtpProfiles.h"
#include "platform/TextFiles.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringList>

namespace FtpTrust {
namespace {
const QString trustWord = QStringLiteral("trust");
const QString refuseWord = QStringLiteral("refuse");

QStringList lines()
{
    bool ok = false;
    const QString text = TextFiles::readText(path(), &ok);
    return ok ? text.split(QRegularExpression(QStringLiteral("\r\n|\r|\n")), Qt::SkipEmptyParts) : QStringList();
}

QString hostOf(const QString& line) { return line.section(QLatin1Char(' '), 0, 0); }
}

QString path() { return FtpProfiles::folder() + QStringLiteral("/Certificates.txt"); }

Entry lookUp(const QString& host)
{
    for (const QString& line : lines()) {
        const QStringList f = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (f.size() != 3 || f[0].compare(host, Qt::CaseInsensitive) != 0)
            continue;
        if (f[1] == trustWord)
            return {Answer::Trusted, f[2]};
        if (f[1] == refuseWord)
            return {Answer::Refused, f[2]};
    }
    return {};
}

bool remember(const QString& host, Answer answer, const QString& fingerprint)
{
    QString text;
    for (const QString& line : lines())
        if (hostOf(line).compare(host, Qt::CaseInsensitive) != 0)
            text += line + TextFiles::crlf;
    if (answer != Answer::None)
        text += host + QLatin1Char(' ') + (answer == Answer::Trusted ? trustWord : refuseWord) + QLatin1Char(' ') + fingerprint +
                TextFiles::crlf;
    QDir().mkpath(FtpProfiles::folder());
    return TextFiles::writeBytes(path(), TextFiles::encode(text));
}
}
