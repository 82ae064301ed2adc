#pragma once
#include <QString>

// The application folder and the program's identity.
namespace App {
QString path();                                 // folder of the running executable, no trailing separator
void setPathForTesting(const QString& folder);  // before Main()
QString title();                                // the application title
int major();
int minor();
int revision();
QString versionNumber();                        // "Major.Minor.Revision"
// The about box's version label, also the head of the main window's caption.
QString versionLine();
}
