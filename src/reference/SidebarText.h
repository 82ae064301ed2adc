#pragma once
#include <QString>
#include <QStringList>

// What the floating sidebar writes and shows, without a window: the tests check these texts
// letter for letter.
namespace SidebarText {

// A code of the tree (a double click, or its Insert with the chosen code): on a line of its own.
QString codeFragment(const QString& caption);

// The rows of the pattern box, the first one shown at start.
QStringList patternRows();

// The file chosen on the file page: the folder, a separator and the name, joined as they are.
// A file in the root folder therefore gets a doubled separator, which the open keeps.
QString chosenFilePath(const QString& folder, const QString& name);

// The always-on-top button works by its own caption: "Disable" turns the state off and shows
// "Enable", "Enable" turns it on and shows "Disable"; any other caption does nothing.
inline const QString disableCaption = QStringLiteral("Disable");
inline const QString enableCaption = QStringLiteral("Enable");
struct TopmostStep {
    bool changes = false;
    bool topmost = false;
    QString caption;  // the caption after the click
};
TopmostStep topmostStep(const QString& caption);

}
