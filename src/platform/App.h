#pragma once
#include <QString>

// The application folder and the program's identity.
namespace App {
QString path();                                 // folder of the running executable, no trailing separator
void setPathForTesting(const QString& folder);  // before Main()

// Where the program keeps what its user makes and changes (settings, notes, FTP profiles,
// feedback, the spell checker's list): the application folder itself, unless that is an
// installation (it holds the file "installed", or cannot be written), whose files are shared
// and never written; then the user's own data folder.
QString userPath();
bool isInstallation();
// The file or folder of that name (relative, "/" between parts) under userPath(). Where the
// user has none yet, the application folder's copy, when it ships one, is copied there first:
// the user starts from the shipped defaults.
QString userFile(const QString& relative);
// Tests: the user's data folder for an installation (an empty text restores the system's).
void setUserPathForTesting(const QString& folder);
QString title();                                // the application title
int major();
int minor();
int revision();
QString versionNumber();                        // "Major.Minor.Revision"
// The about box's version label, also the head of the main window's caption.
QString versionLine();
}
