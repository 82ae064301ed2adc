#include "platform/App.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
QString& overridePath()
{
    static QString p;
    return p;
}
QString& overrideUserPath()
{
    static QString p;
    return p;
}

QString withoutTrailingSlash(QString p)
{
    p = QDir::cleanPath(p);
    while (p.size() > 1 && p.endsWith(QLatin1Char('/')))
        p.chop(1);
    return p;
}

// Copies a shipped file, or a shipped folder with everything in it, to where the user's copy
// goes. A file that cannot be copied is left to the step that reads it, which reports it.
void seed(const QString& from, const QString& to)
{
    const QFileInfo source(from);
    if (source.isDir()) {
        QDir().mkpath(to);
        QDirIterator it(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const QString target = to + path.mid(from.size());
            if (it.fileInfo().isDir())
                QDir().mkpath(target);
            else if (!QFileInfo::exists(target) && QFile::copy(path, target))
                QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        }
    } else if (source.isFile()) {
        QDir().mkpath(QFileInfo(to).absolutePath());
        // Shipped files are read-only; the user's copy is the user's to change.
        if (QFile::copy(from, to))
            QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
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

void setPathForTesting(const QString& folder) { overridePath() = withoutTrailingSlash(folder); }

bool isInstallation()
{
    const QString folder = path();
    return QFileInfo::exists(folder + QStringLiteral("/installed")) || !QFileInfo(folder).isWritable();
}

QString userPath()
{
    if (!isInstallation())
        return path();
    if (!overrideUserPath().isEmpty())
        return overrideUserPath();
    QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (own.isEmpty())
        own = QDir::homePath() + QStringLiteral("/.local/share");
    return withoutTrailingSlash(own + QStringLiteral("/velloro"));
}

QString userFile(const QString& relative)
{
    const QString mine = userPath() + QLatin1Char('/') + relative;
    if (userPath() != path() && !QFileInfo::exists(mine))
        seed(path() + QLatin1Char('/') + relative, mine);
    return mine;
}

void setUserPathForTesting(const QString& folder) { overrideUserPath() = folder.isEmpty() ? QString() : withoutTrailingSlash(folder); }

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
