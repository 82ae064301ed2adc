#pragma once
#include <QString>

// The blank table of the table properties wizard.
namespace TableText {

struct Fields {
    QString Text1 = QStringLiteral("2");    // rows
    QString Text2 = QStringLiteral("2");    // columns
    QString Text6 = QStringLiteral("100");  // table width
    bool pixels = false;                    // Option1 "Pixels"; else Option2 "%"
    QString Combo1 = QStringLiteral("Center");
    QString Text3 = QStringLiteral("1");    // border
    QString Text4 = QStringLiteral("0");    // cell spacing
    QString Text5 = QStringLiteral("0");    // cell padding: read, never written
    QString Text7 = QStringLiteral("\"#000000\"");  // border colour
    QString Text8;                          // light border: read, never written
    QString Text9;                          // dark border: read, never written
    QString Text10 = QStringLiteral("\"#FFFFFF\"");  // background
};

// The largest table built, counting a table without rows or columns as one row or column:
// 10,000 cells is some 450 KB of markup, a hundred rows of a hundred cells, already far more
// than anyone fills by hand; past it a typing slip ("1e9") would only stall the editor.
inline constexpr double maxCells = 10000;

// The cell width: 100 / columns in the shortest general form of at most fifteen significant
// digits (50, 33.3333333333333, 14.2857142857143).
QString cellWidth(double columns);

// The three working strings and the whole fragment.
struct Parts {
    QString cell;   // one cell
    QString row;    // one row
    QString grid;   // all rows
    QString whole;  // the fragment, with its line end
};

// Raises the run-time error the division or a count raises: "Type mismatch" for an empty or
// non-numeric count, "Division by zero" for no columns, "Overflow" past maxCells.
Parts compose(const Fields& f);
inline QString fragment(const Fields& f) { return compose(f).whole; }
}
