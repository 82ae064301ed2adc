#include "utilities/ModBFF.h"

#include "platform/Prompts.h"

#include <QDir>
#include <QStandardPaths>

namespace ModBFF {
QString specialFolderPath(int specialFolder)
{
    const auto kind = specialFolder == documents ? QStandardPaths::DocumentsLocation : QStandardPaths::DesktopLocation;
    const QString path = QStandardPaths::writableLocation(kind);
    // A desktop without the folder (a plain account, a server) starts at home instead.
    return QDir(path).exists() ? path : QDir::homePath();
}

QString BrowseForFolder(int specialFolder, const QString& title)
{
    const QString chosen = prompts().folder(title, specialFolderPath(specialFolder));
    const qsizetype nul = chosen.indexOf(QChar(0));
    return nul < 0 ? chosen : chosen.left(nul);
}
}
