#pragma once
#include <QString>
#include <QStringList>

// The media wizard's two fragments: a background sound and a movie.
namespace MediaText {

struct Sound {
    QString mlocation;
    QString mloop = QStringLiteral("-1");
};
// <bgsound src="{mlocation}" loop={mloop}></bgsound>, no line end.
QString sound(const Sound& f);

struct Movie {
    QString vlocation;
    QString mwidth = QStringLiteral("400");
    QString mheight = QStringLiteral("400");
    QString mborder;
    QString Combo1 = QStringLiteral("top");
    bool loop = false;  // Check1 "Loop forever"
};
// The movie's embed tag, no line end. With the loop, "loop=true" touches the border value and two
// blanks follow it; without, a blank stands before the closing bracket.
QString movie(const Movie& f);

// The rows of the movie's alignment list.
QStringList alignments();
}
