#pragma once
#include <QString>

// The link that opens a page in a sized window of its own.
namespace ExternalWindowText {

struct Fields {
    QString Location;                                         // the page, written as it stands
    QString Text1 = QStringLiteral("400");                    // width
    QString Text2 = QStringLiteral("300");                    // height
    QString Text3 = QStringLiteral("Click Here For  New Page");  // the link text (two blanks)
};

// A script of seven lines joined by line ends, none after the last: a launch() function that
// opens {Location} as 'tipofday' at {Text1} by {Text2}, and a link written by the page that
// calls it, its text always followed by "!".
QString fragment(const Fields& f);
}
