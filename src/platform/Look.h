#pragma once
#include <QColor>
#include <QIcon>
#include <QString>

class QFrame;
class QLabel;
class QPushButton;
class QWidget;

// The program's look: the heading blue of bars and margins, the face colour of buttons, the
// face of tabs, and the few ways every window builds its controls with them.
namespace Look {
inline const QColor heading(52, 129, 211);
inline const QColor face(193, 210, 238);
inline const QColor tabFace(255, 255, 240);

// Gives a control its name, so that code and tests reach it by the system's name.
template <class W>
W* named(W* w, const QString& name)
{
    w->setObjectName(name);
    return w;
}

// A button in the face colour; a "...." button stays narrow.
QPushButton* faceButton(const QString& name, const QString& caption, QWidget* parent);
// The banner across the top of a tool window: the shape in the heading colour with the caption
// in white, bold and a little larger.
QFrame* banner(const QString& name, const QString& caption, QWidget* parent);
// A frame (one page of a window) with a heading bar; the heading label is handed out on request.
QFrame* headedFrame(const QString& name, const QString& heading, QWidget* parent, QLabel** headingLabel = nullptr);
}

class CodeMax;

namespace Look {
// The embedded editors' three colour slots: the margin and the numbers' ground in the heading
// blue, the numbers in white.
void editorColours(CodeMax* editor);

// A menu or button picture by name from the application folder's Options/Images; an empty
// icon when the file is not there.
QIcon menuIcon(const QString& name);
}

namespace Look {
// A picture of the main window's tree image list by its number: 2 a folder (open while
// selected), 3 a page, 4 a web link, 6 an open folder, 7 a script page. Other numbers have
// no picture.
QIcon treeImage(int image);
}
