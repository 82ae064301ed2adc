#pragma once
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

// The tables of the grid wizard and of the file table wizard: the same four fields, the same
// opening tag (but for its cell spacing) and the same rows of cells.
namespace CellTableText {

struct Fields {
    QString txtWidth = QStringLiteral("100%");
    QString coAlign = QStringLiteral("Center");
    QString txtbo = QStringLiteral("\"#000000\"");  // border colour
    QString txtba = QStringLiteral("\"#FFFFFF\"");  // background colour
};

// <table border=1 cellspacing={spacing} bordercolor={txtbo} width={txtWidth} id=AutoNumber1
// align={coAlign} bgcolor={txtba}> and a line end.
QString openingTag(const Fields& f, int cellSpacing);

// The pieces of a row: CRLF <tr> CRLF, then <td>cell</td> CRLF for each cell, then </tr> CRLF.
inline const QString rowStart = QStringLiteral("\r\n<tr>\r\n");
inline const QString cellStart = QStringLiteral("<td>");
inline const QString cellEnd = QStringLiteral("</td>\r\n");
inline const QString rowEnd = QStringLiteral("</tr>\r\n");
inline const QString tableEnd = QStringLiteral("</table>");

// The grid wizard's working text: the opening tag (cell spacing 1), every row of the grid with
// every cell, headings included, and </table>, without a line end after it.
QString grid(const Fields& f, const QList<QStringList>& rows);
}
