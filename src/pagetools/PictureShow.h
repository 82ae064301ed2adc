#pragma once
#include <QString>
#include <QStringList>

// The picture gallery page, "PictureShow.html": an index of the pictures found (a bullet list or
// a drop-down box with a Go button), then each picture under its anchor with a way back to the
// top. An item is a picture's full path.
namespace PictureShow {

enum class Layout { Bullets, DropDown };

// The two stored page heads: the bullet page's, and the same with the jump script behind it.
QString bulletHead();
QString dropDownHead();

// The whole page for the items, in their order (an item found twice stands twice).
QString page(const QStringList& items, Layout layout);

// An item as it goes into an unquoted name, href, value or src: the characters that would end
// the value or break the address (blanks, quotes, <, >, =, `, #, %, &, and letters beyond ASCII,
// as their UTF-8 bytes) are percent-encoded, so such a picture still shows and its anchor still
// answers; an ordinary path stays exactly as it stands.
QString address(const QString& item);
// An item as it is shown as text: only &, < and > are written as entities.
QString shown(const QString& item);
}
