#pragma once
#include <QString>

// The system's folder browser, started in one of the system's special folders. Only the two
// roots the windows use are known: 0 the desktop, 5 the user's documents.
namespace ModBFF {
constexpr int desktop = 0, documents = 5;
// The chosen folder, cut at a NUL character; "" when the browser was cancelled.
QString BrowseForFolder(int specialFolder, const QString& title = QStringLiteral("Browse for Folder"));
// The folder a special folder number stands for.
QString specialFolderPath(int specialFolder);
}
