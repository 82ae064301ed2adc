#include "utilities/FolderSteps.h"

#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace FolderSteps {
void makeFolder(const QString& parent, const QString& name)
{
    const QString path = QDir(parent).filePath(name);
    if (QFileInfo::exists(path) || !QDir().mkdir(path))
        throw RuntimeError::pathFileAccess(QStringLiteral("MkDir"));
}

void removeFolder(const QString& path)
{
    // The plain remove of a directory: never its contents.
    if (!QFileInfo(path).isDir() || !QDir().rmdir(path))
        throw RuntimeError::pathFileAccess(QStringLiteral("RmDir"));
}

QString renameFolder(const QString& path, const QString& newName)
{
    const QFileInfo folder(path);
    if (!folder.isDir())
        throw RuntimeError::fileNotFound(QStringLiteral("Name"));
    const QString target = newName.contains(QLatin1Char('/')) ? newName : folder.dir().filePath(newName);
    if (QFileInfo::exists(target))
        throw RuntimeError::fileAlreadyExists(QStringLiteral("Name"));
    if (!QDir().rename(path, target))
        throw RuntimeError::pathFileAccess(QStringLiteral("Name"));
    return QFileInfo(target).absoluteFilePath();
}

void deleteFile(const QString& path)
{
    if (!QFileInfo(path).isFile())
        throw RuntimeError::fileNotFound(QStringLiteral("Kill"));
    if (!QFile::remove(path))
        throw RuntimeError::pathFileAccess(QStringLiteral("Kill"));
}
}
