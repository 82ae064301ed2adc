#include "wizards/TableText.h"

#include "platform/RuntimeError.h"
#include "wizards/Html.h"

#include <algorithm>
#include <cmath>

namespace TableText {
namespace {
// How often "For i = 1 To n" runs.
double timesFromOne(double n) { return n >= 1 ? std::floor(n) : 0; }
}

QString cellWidth(double columns) { return Html::number(100.0 / columns); }

Parts compose(const Fields& f)
{
    const double columns = Html::value(f.Text2);
    if (columns == 0)
        throw RuntimeError::divisionByZero();
    const double rows = Html::value(f.Text1);
    if (std::max(timesFromOne(columns), 1.0) * std::max(timesFromOne(rows), 1.0) > maxCells)
        throw RuntimeError::overflow();
    const auto cellCount = static_cast<qsizetype>(timesFromOne(columns));
    const auto rowCount = static_cast<qsizetype>(timesFromOne(rows));

    const QString& crlf = Html::crlf;
    Parts p;
    p.cell = QStringLiteral("          <td width=") + cellWidth(columns) + QStringLiteral("%>&nbsp;</td>");

    QString cells;
    cells.reserve(cellCount * (crlf.size() + p.cell.size()));
    for (qsizetype i = 0; i < cellCount; ++i)
        cells += crlf + p.cell;
    p.row = QStringLiteral("     <tr>") + crlf + cells + crlf + crlf + QStringLiteral("</tr>");

    p.grid.reserve(rowCount * (crlf.size() + p.row.size()));
    for (qsizetype i = 0; i < rowCount; ++i)
        p.grid += crlf + p.row;

    const QString unit = f.pixels ? QString() : QStringLiteral("%");
    p.whole = QStringLiteral("<table border=") + f.Text3 + QStringLiteral(" cellspacing=") + f.Text4 +
              QStringLiteral(" style=border-collapse: collapse; border-style: solid; border-width: 1  bordercolor=") +
              f.Text7 + QStringLiteral(" width=\"") + f.Text6 + unit + QStringLiteral("\" id=AutoNumber2 align=") +
              f.Combo1 + QStringLiteral(" bgcolor=") + f.Text10 + QStringLiteral(">") + crlf + p.grid + crlf +
              QStringLiteral("</table>") + crlf;
    return p;
}

}
