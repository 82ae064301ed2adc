#pragma once
#include <QString>

// The one-item list of the bullet wizard.
namespace BulletText {

struct Fields {
    QString Text1;  // the item
    QString Text2 = QStringLiteral("Arial");
    QString Text3 = QStringLiteral("\"#000000\"");
    QString Combo2 = QStringLiteral("3  (12pt)");
    bool bullets = true;  // Check1 alone decides: bullets, else numbers
};

// <p><font color={Text3} face="{Text2}" size={size}><ul> CRLF <li>{Text1}</li> CRLF
// </ul></font></p> CRLF, or the same with <ol>: one item whatever the text holds.
QString fragment(const Fields& f);
}
