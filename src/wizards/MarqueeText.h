#pragma once
#include <QString>

// The scrolling text of the marquee wizard.
namespace MarqueeText {

struct Fields {
    QString Text1;  // the text to scroll
    QString Text2 = QStringLiteral("6");    // amount
    QString Text3 = QStringLiteral("90");   // delay
    QString Text4 = QStringLiteral("100");  // width
    QString Text5 = QStringLiteral("0");    // height
    QString mcolor = QStringLiteral("\"#FFFFFF\"");
    bool right = true;  // Option2 "Right "; else Option1 "Left"
};

// <marquee scrollamount={Text2} scrolldelay={Text3} bgcolor={mcolor} height={Text5}
// width={Text4}%direction={dir}>{Text1}</marquee></p>: no blank before direction=, and the </p>
// has no opening tag. The behaviour list, the repeat tick and count never reach it.
QString fragment(const Fields& f);
}
