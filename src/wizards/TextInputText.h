#pragma once
#include <QString>

// The formatted paragraph of the text wizard.
namespace TextInputText {

struct Fields {
    QString CodeMax1;  // the text to insert
    QString Text2 = QStringLiteral("Arial");
    bool bold = false;    // Check1
    bool italic = false;  // Check2
    QString Combo1 = QStringLiteral("Center");
    QString Combo2 = QStringLiteral("3  (12pt)");
    QString Text3 = QStringLiteral("\"#000000\"");
};

// The text as the wizard leaves it in its field before the fragment is made: bold first
// ("<B>" ... "</b>"), italic around that ("<I>" ... "</I>").
QString styledText(const QString& text, bool bold, bool italic);
// <p align="{Combo1}"><font color={Text3} face="{Text2}" size={size}>{text}</a></font></p> and a
// line end, {text} being the styled text. The </a> has no opening tag: it belongs to the markup.
QString fragment(const Fields& f);
}
