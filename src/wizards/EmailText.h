#pragma once
#include <QString>

// The mail link of the e-mail wizard.
namespace EmailText {

struct Fields {
    QString Text1;    // the text to display
    QString address;
    QString subject;
    QString align = QStringLiteral("Center");
};

// The link target: mailto:{address}?subject={subject}, the subject part also when it is empty.
QString target(const Fields& f);
// <p align={align}><a href={target}>{Text1}</a></p>, no quotes, no escaping, no line end.
QString fragment(const Fields& f);
}
