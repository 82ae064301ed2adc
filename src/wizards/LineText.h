#pragma once
#include <QString>

// The horizontal rule of the line wizard.
namespace LineText {

struct Fields {
    QString Text1 = QStringLiteral("H00000000");  // colour: the stored default is no colour value
    QString align = QStringLiteral("Center");
    QString barwidth = QStringLiteral("100");
    QString barsize = QStringLiteral("2");
    bool pixels = false;  // Option1 "Pixels"; else Option2 "%"
};

// <hr color={Text1}align={align} width={barwidth}[%] size={barsize}>, no blank before align and
// no line end.
QString fragment(const Fields& f);
}
