#pragma once
#include <QString>

// The hyperlink of the link wizard.
namespace HyperlinkText {

struct Fields {
    QString Link;                               // the address, written as it stands
    QString text;                               // the link text
    QString target = QStringLiteral("_self");
    QString textsize;
    QString textfont = QStringLiteral("Arial");
    QString Text1 = QStringLiteral("\"#000000\"");  // the link's own colour
    bool ownColour = false;                     // Check1
};

// With its own colour the font tag stands inside the link, so that its colour reaches the link
// text: <a href="{Link}" target="{target}"><font size={textsize} face={textfont} color={Text1}>{text}</font></a>
// Without, the font tag stands around the link and the colour is not written:
// <font size={textsize} face={textfont}><a href="{Link}" target="{target}">{text}</a></font>
// Either ends in a line end.
QString fragment(const Fields& f);
}
