#pragma once
#include <QString>

// The multi-line form field of the scrolling text box wizard.
namespace TextAreaText {

struct Fields {
    QString Text1;                          // the box's contents
    QString Text2 = QStringLiteral("S1");   // name
    QString Text3 = QStringLiteral("55");   // width in characters
    QString Text4 = QStringLiteral("6");    // height in lines
    QString Combo1 = QStringLiteral("Center");
};

// <p align={Combo1}><textarea rows={Text4} name={Text2} cols={Text3} >{Text1}</textarea></p> and a
// line end; note the blank before the start tag's >.
QString fragment(const Fields& f);
}
