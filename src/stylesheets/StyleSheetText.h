#pragma once
#include <QString>
#include <QStringList>

#include <array>

// The texts the style sheet utilities write: each a pure function of the fields, so that every
// byte is checked without a window.
namespace StyleSheetText {

// The link into one page's head: "<head>" again (it replaces the found tag), the link, CR LF.
QString headLink(const QString& location);

// The effect lists of the small sheet's rows, and the default row's types.
QStringList linkTypes();
QStringList effects();
// One rule of the small sheet, with the CR LF that goes before it.
QString rule(const QString& type, const QString& colour, const QString& effect);

// The scroll bar block from the seven colours (face, highlight, shadow, 3D light, arrow, track,
// dark shadow), on one line.
QString scrollbarBlock(const std::array<QString, 7>& colours);
// The preview page around the block; `rest` is the page's body as the form holds it.
QString scrollTestPage(const QString& block, const QString& rest);
// The preview page's place under the application folder.
QString scrollTestPath(const QString& appPath);

// A page with the sheet linked behind its first "</head>"; nullopt-like: the text unchanged
// and `found` false when it has none.
QString linkBehindHead(const QString& page, const QString& sheetPath, bool* found = nullptr);

}
