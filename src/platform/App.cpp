#include "platform/App.h"

#include <QCoreApplication>
#include <QDir>

namespace {
QString& overridePath()
{
    static QString p;
    return p;
}
}

namespace App {

QString path()
{
    if (!overridePath().isEmpty())
        return overridePath();
    QString p = QCoreApplication::applicationDirPath();
    while (p.size() > 1 && p.endsWith(QLatin1Char('/')))
        p.chop(1);
    return p;
}

void setPathForTesting(const QString& folder)
{
    QString p = QDir::cleanPath(folder);
    while (p.size() > 1 && p.endsWith(QLatin1Char('/')))
        p.chop(1);
    overridePath() = p;
}

QString title() { return QStringLiteral("Velloro 2002"); }
int major() { return VELLORO_VERSION_MAJOR; }
int minor() { return VELLORO_VERSION_MINOR; }
int revision() { return VELLORO_VERSION_REVISION; }

QString versionNumber()
{
    return QStringLiteral("%1.%2.%3").arg(major()).arg(minor()).arg(revision());
}

QString versionLine() { return QStringLiteral("Velloro 2002 : Version ") + versionNumber(); }

} // namespace App
