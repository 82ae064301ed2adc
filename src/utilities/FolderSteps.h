#pragma once
#include <QString>

// The file operations of the folder tools, as the system's own commands do them: failures are
// the platform's run-time errors, which the windows do not trap.
namespace FolderSteps {
// A new folder `name` inside `parent` (error 75 when it exists or cannot be made).
void makeFolder(const QString& parent, const QString& name);
// Removes an empty folder; a folder with contents stays, with error 75.
void removeFolder(const QString& path);
// Renames the folder `path` to `newName`: a bare name stays in the same parent folder, a path is
// taken as it stands. Error 53 when the folder is missing, 58 when the new name is taken.
// Returns the folder's new path.
QString renameFolder(const QString& path, const QString& newName);
// Deletes a file (error 53 when there is none).
void deleteFile(const QString& path);
}
