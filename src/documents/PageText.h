#pragma once
#include <QString>

// The texts of new pages, assembled from literals and the start screen's fields.
namespace PageText {

struct Fields {
    QString title;
    QString Text3;  // body text colour, with its own quotes
    QString Text4;  // body background colour, with its own quotes
    QString Text1;  // the complete sound tag, or empty
    QString Text7, Text8, Text9, Text10;      // link colours
    QString Combo7, Combo8, Combo9, Combo10;  // link decorations
};

QString plainPage(const Fields& f);
QString styledPage(const Fields& f);
// The page made at start-up; it takes no fields.
QString startupPage();
// The sound tag for a music file and loop count; an empty location keeps the current tag.
QString soundTag(const QString& mlocation, const QString& mloop, const QString& current);
}
