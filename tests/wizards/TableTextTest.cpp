// The three table builders, byte for byte, from the field texts (and the file's text) alone.
#include "common/Utf8.h"
#include "platform/RuntimeError.h"
#include "wizards/CellTableText.h"
#include "wizards/CsvTableText.h"
#include "wizards/TableText.h"

#include <QList>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

const char* const defaultTag =
    "<table border=1 cellspacing=0 style=border-collapse: collapse; border-style: solid; border-width: 1  "
    "bordercolor=\"#000000\" width=\"100%\" id=AutoNumber2 align=Center bgcolor=\"#FFFFFF\">";

// The blank table's template, written out: `rows` rows of `cells` cells of this width.
QString blankTable(const QString& tag, int rows, int cells, const char* width)
{
    QString row = u("     <tr>\r\n");
    for (int c = 0; c < cells; ++c)
        row += u("\r\n          <td width=") + u(width) + u("%>&nbsp;</td>");
    row += u("\r\n\r\n</tr>");
    QString grid;
    for (int r = 0; r < rows; ++r)
        grid += u("\r\n") + row;
    return tag + u("\r\n") + grid + u("\r\n</table>\r\n");
}

TableText::Fields table(const char* rows, const char* columns)
{
    TableText::Fields f;
    f.Text1 = u(rows);
    f.Text2 = u(columns);
    return f;
}
}

TEST(TableText, Fragments)
{
    TableText::Fields pixels = table("1", "1");
    pixels.pixels = true;
    pixels.Text6 = u("400");
    TableText::Fields unwritten;  // the fields that are read but never written
    unwritten.Text5 = u("12");
    unwritten.Text8 = u("\"#123456\"");
    unwritten.Text9 = u("\"#654321\"");
    TableText::Fields typed = table(" 1 ", "2");
    typed.Text3 = u("");
    typed.Text4 = u("3");
    typed.Text7 = u("red");
    typed.Text10 = u("");
    typed.Combo1 = u("middle");
    typed.Text6 = u("");

    const struct {
        const char* name;
        TableText::Fields fields;
        QString expected;
    } cases[] = {
        {"the defaults, two by two", TableText::Fields{},
         u(defaultTag) + u("\r\n"
                           "\r\n     <tr>\r\n"
                           "\r\n          <td width=50%>&nbsp;</td>"
                           "\r\n          <td width=50%>&nbsp;</td>\r\n\r\n</tr>"
                           "\r\n     <tr>\r\n"
                           "\r\n          <td width=50%>&nbsp;</td>"
                           "\r\n          <td width=50%>&nbsp;</td>\r\n\r\n</tr>"
                           "\r\n</table>\r\n")},
        // Line by line: the tag, an empty line, <tr>, an empty line, the cell, an empty line,
        // </tr>, </table>.
        {"one by one", table("1", "1"),
         u(defaultTag) + u("\r\n\r\n     <tr>\r\n\r\n          <td width=100%>&nbsp;</td>\r\n\r\n</tr>\r\n</table>\r\n")},
        {"zero rows: the tag, two line ends, the closing tag", table("0", "3"), u(defaultTag) + u("\r\n\r\n</table>\r\n")},
        {"negative rows run no row", table("-2", "3"), u(defaultTag) + u("\r\n\r\n</table>\r\n")},
        {"three columns", table("1", "3"), blankTable(u(defaultTag), 1, 3, "33.3333333333333")},
        {"seven columns, four rows", table("4", "7"), blankTable(u(defaultTag), 4, 7, "14.2857142857143")},
        {"negative columns: a width, but no cells", table("2", "-4"), blankTable(u(defaultTag), 2, 0, "-25")},
        {"fractions count whole times", table("2.9", "2.5"), blankTable(u(defaultTag), 2, 2, "40")},
        {"less than one column: no cells", table("1", "0.5"), blankTable(u(defaultTag), 1, 0, "200")},
        {"pixels and a width of 400", pixels,
         u("<table border=1 cellspacing=0 style=border-collapse: collapse; border-style: solid; border-width: 1  "
           "bordercolor=\"#000000\" width=\"400\" id=AutoNumber2 align=Center bgcolor=\"#FFFFFF\">"
           "\r\n\r\n     <tr>\r\n\r\n          <td width=100%>&nbsp;</td>\r\n\r\n</tr>\r\n</table>\r\n")},
        {"padding, light and dark border change nothing", unwritten, blankTable(u(defaultTag), 2, 2, "50")},
        {"typed and empty texts go in as they stand", typed,
         blankTable(u("<table border= cellspacing=3 style=border-collapse: collapse; border-style: solid; border-width: 1  "
                      "bordercolor=red width=\"%\" id=AutoNumber2 align=middle bgcolor=>"),
                    1, 2, "50")},
        {"a hundred by a hundred is the largest", table("100", "100"), blankTable(u(defaultTag), 100, 100, "1")},
        {"no rows of ten thousand cells", table("0", "10000"), u(defaultTag) + u("\r\n\r\n</table>\r\n")},
    };
    for (const auto& c : cases) {
        const QString got = TableText::fragment(c.fields);
        EXPECT_EQ(got, c.expected) << c.name;
        EXPECT_FALSE(got.contains(u("cellpadding"))) << c.name;
    }
}

TEST(TableText, WorkingStrings)
{
    const TableText::Parts p = TableText::compose(table("2", "3"));
    EXPECT_EQ(p.cell, u("          <td width=33.3333333333333%>&nbsp;</td>"));
    const QString row = u("     <tr>\r\n\r\n") + p.cell + u("\r\n") + p.cell + u("\r\n") + p.cell + u("\r\n\r\n</tr>");
    EXPECT_EQ(p.row, row);
    EXPECT_EQ(p.grid, u("\r\n") + row + u("\r\n") + row);
}

TEST(TableText, CellWidthIsTheShortestFormOfFifteenDigits)
{
    const std::pair<double, const char*> widths[] = {
        {1, "100"}, {2, "50"}, {3, "33.3333333333333"}, {6, "16.6666666666667"}, {7, "14.2857142857143"},
        {8, "12.5"}, {10000, "0.01"}, {0.5, "200"}, {-3, "-33.3333333333333"}, {1e-20, "1E+22"},
        {3e6, "3.33333333333333E-05"},
    };
    for (const auto& [columns, text] : widths)
        EXPECT_EQ(TableText::cellWidth(columns), u(text)) << columns;
}

// Counts the division or the loops cannot take raise the run-time error; nothing is built.
TEST(TableText, RefusedCounts)
{
    const struct {
        const char* rows;
        const char* columns;
        int error;
    } cases[] = {
        {"2", "", 13},       {"2", "abc", 13},    {"2", "2x", 13},      {"2", "inf", 13},     {"2", "nan", 13},
        {"2", "1e400", 13},  {"2", "0", 11},      {"2", "-0", 11},      {"2", "0.0", 11},     {"", "2", 13},
        {"two", "2", 13},    {"1e9", "1e9", 6},   {"101", "100", 6},    {"100", "101", 6},    {"0", "10001", 6},
        {"10001", "1", 6},   {"10001", "-1", 6},  {"1", "1e300", 6},    {"-5", "20000", 6},
    };
    for (const auto& c : cases) {
        try {
            TableText::fragment(table(c.rows, c.columns));
            ADD_FAILURE() << c.rows << " by " << c.columns << " was built";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, c.error) << c.rows << " by " << c.columns;
        }
    }
}

TEST(CellTableText, GridFragments)
{
    const char* const tag =
        "<table border=1 cellspacing=1 bordercolor=\"#000000\" width=100% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n";
    CellTableText::Fields typed;
    typed.txtWidth = u("400");
    typed.coAlign = u("Left");
    typed.txtbo = u("\"#FF0000\"");
    typed.txtba = u("");
    const struct {
        const char* name;
        CellTableText::Fields fields;
        QList<QStringList> rows;
        QString expected;
    } cases[] = {
        {"an empty three by three grid, headings as ordinary cells", {}, {{u(""), u(""), u("")}, {u(""), u(""), u("")}, {u(""), u(""), u("")}},
         u(tag) + u("\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n"
                    "\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n"
                    "\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n</table>")},
        {"filled cells and typed fields", typed, {{u("Name"), u("Age")}, {u("<b>Ann</b>"), u("7 & 8")}},
         u("<table border=1 cellspacing=1 bordercolor=\"#FF0000\" width=400 id=AutoNumber1 align=Left bgcolor=>\r\n"
           "\r\n<tr>\r\n<td>Name</td>\r\n<td>Age</td>\r\n</tr>\r\n"
           "\r\n<tr>\r\n<td><b>Ann</b></td>\r\n<td>7 & 8</td>\r\n</tr>\r\n</table>")},
        {"one cell", {}, {{u("x")}}, u(tag) + u("\r\n<tr>\r\n<td>x</td>\r\n</tr>\r\n</table>")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CellTableText::grid(c.fields, c.rows), c.expected) << c.name;
}

TEST(CsvTableText, Fragments)
{
    const QString tag =
        u("<table border=1 cellspacing=0 bordercolor=\"#000000\" width=100% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n");
    const QString end = u("</table>\r\n");
    const struct {
        const char* name;
        QString text;
        char separator;
        QString rows;
    } cases[] = {
        {"three fields, then five: three cells and four", u("a,b,c\r\n1,2,3,4,5"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td>a</td>\r\n<td>b</td>\r\n<td>c</td>\r\n</tr>\r\n"
           "\r\n<tr>\r\n<td>1</td>\r\n<td>2</td>\r\n<td>3</td>\r\n<td>4</td>\r\n</tr>\r\n")},
        {"fewer fields: no padding", u("a,b,c\r\n1\r\n"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td>a</td>\r\n<td>b</td>\r\n<td>c</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>1</td>\r\n</tr>\r\n")},
        {"an empty line: a tr with no cells", u("a\r\n\r\nb\r\n"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td>a</td>\r\n</tr>\r\n\r\n<tr>\r\n</tr>\r\n\r\n<tr>\r\n<td>b</td>\r\n</tr>\r\n")},
        {"empty fields stay cells", u(",\r\n,,,"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n")},
        {"quotes mean nothing", u("\"a,b\",c,\"\"\r\n"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td>\"a</td>\r\n<td>b\"</td>\r\n<td>c</td>\r\n<td>\"\"</td>\r\n</tr>\r\n")},
        {"tabs split, commas stay", u("a,1\tb\r\nc\td\te"), CsvTableText::tab,
         u("\r\n<tr>\r\n<td>a,1</td>\r\n<td>b</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>c</td>\r\n<td>d</td>\r\n<td>e</td>\r\n</tr>\r\n")},
        {"a comma file read with tabs is one field a line", u("a,b\r\nc"), CsvTableText::tab,
         u("\r\n<tr>\r\n<td>a,b</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>c</td>\r\n</tr>\r\n")},
        {"CR LF, LF and CR each end a line", u("a\r\nb\nc\rd\n\re"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td>a</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>b</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>c</td>\r\n</tr>\r\n"
           "\r\n<tr>\r\n<td>d</td>\r\n</tr>\r\n\r\n<tr>\r\n</tr>\r\n\r\n<tr>\r\n<td>e</td>\r\n</tr>\r\n")},
        {"an empty first line: one field, so at most two cells", u("\n1,2,3"), CsvTableText::comma,
         u("\r\n<tr>\r\n</tr>\r\n\r\n<tr>\r\n<td>1</td>\r\n<td>2</td>\r\n</tr>\r\n")},
        {"an empty text: no rows", u(""), CsvTableText::comma, u("")},
        {"a lone line end: one empty row", u("\r\n"), CsvTableText::comma, u("\r\n<tr>\r\n</tr>\r\n")},
        {"markup, NUL and other letters go in as they stand", QString::fromUtf8("<b>é</b>,x\0y", 13) + u("\r\n"), CsvTableText::comma,
         u("\r\n<tr>\r\n<td><b>é</b></td>\r\n<td>") + QString::fromUtf8("x\0y", 3) + u("</td>\r\n</tr>\r\n")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CsvTableText::fragment({}, c.text.toUtf8(), c.separator), (tag + c.rows + end).toUtf8()) << c.name;

    CellTableText::Fields typed;
    typed.txtWidth = u("50%");
    typed.coAlign = u("Right");
    typed.txtbo = u("\"#00FF00\"");
    typed.txtba = u("blue");
    EXPECT_EQ(CsvTableText::fragment(typed, "x", CsvTableText::comma),
              QByteArray("<table border=1 cellspacing=0 bordercolor=\"#00FF00\" width=50% id=AutoNumber1 align=Right bgcolor=blue>\r\n"
                "\r\n<tr>\r\n<td>x</td>\r\n</tr>\r\n</table>\r\n"));
}

TEST(CsvTableText, FieldCountFromTheFirstLine)
{
    const struct {
        const char* text;
        char separator;
        qsizetype count;
    } cases[] = {
        {"a,b,c\r\n1,2,3,4,5", CsvTableText::comma, 3}, {"", CsvTableText::comma, 1}, {"\r\na,b", CsvTableText::comma, 1},
        {",,,", CsvTableText::comma, 4}, {"a\tb,c\nd", CsvTableText::tab, 2}, {"a,b\rc,d,e", CsvTableText::comma, 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CsvTableText::fieldCount(c.text, c.separator), c.count) << c.text;
}

TEST(CsvTableText, ProgressIsToldAndCanStopTheBuild)
{
    // Many short lines and one long line: both report as they go.
    const QByteArray manyLines = QByteArray("a,b,c\r\n").repeated(100000);
    const QByteArray oneLine = QByteArray("field,").repeated(100000);
    for (const QByteArray& text : {manyLines, oneLine}) {
        QList<int> told;
        const QByteArray table = CsvTableText::fragment({}, text, CsvTableText::comma, [&](int percent) {
            told << percent;
            return true;
        });
        EXPECT_EQ(table, CsvTableText::fragment({}, text, CsvTableText::comma)) << "the same table with progress";
        ASSERT_GE(told.size(), 4);
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
        EXPECT_GE(told.front(), 0);
        EXPECT_LE(told.back(), 100);
        EXPECT_GE(told.back(), 50) << "reports go on to the end";

        // A stop at the first report or a later one gives nothing.
        for (int stopAt : {1, 3}) {
            int calls = 0;
            EXPECT_EQ(CsvTableText::fragment({}, text, CsvTableText::comma, [&](int) { return ++calls < stopAt; }), QByteArray());
            EXPECT_EQ(calls, stopAt) << "no step after the stop";
        }
    }
}

// The table comes in pieces of at most the aimed size, each cut between parts; one cell bigger
// than a piece has a piece of its own. Joined, they are the table.
TEST(CsvTableText, PiecesAreCutBetweenPartsAndJoinToTheTable)
{
    const QByteArray huge((3 << 20) + 7, 'h');
    const QByteArray tag =
        "<table border=1 cellspacing=0 bordercolor=\"#000000\" width=100% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n";
    const QByteArray end = "</table>\r\n";
    const auto row = [](const QByteArray& cells) { return "\r\n<tr>\r\n" + cells + "</tr>\r\n"; };
    const struct {
        const char* name;
        QByteArray text;
        QByteArray table;
    } cases[] = {
        {"many short lines", QByteArray("a,b,c\r\n").repeated(100000),
         tag + row("<td>a</td>\r\n<td>b</td>\r\n<td>c</td>\r\n").repeated(100000) + end},
        {"one long line", QByteArray("field,").repeated(400000),
         tag + row(QByteArray("<td>field</td>\r\n").repeated(400000) + "<td></td>\r\n") + end},
        {"a cell bigger than a piece", "a,b\r\n" + huge + ",x\r\nc,d",
         tag + row("<td>a</td>\r\n<td>b</td>\r\n") + row("<td>" + huge + "</td>\r\n<td>x</td>\r\n")
             + row("<td>c</td>\r\n<td>d</td>\r\n") + end},
    };
    for (const auto& c : cases) {
        const TextPieces pieces = CsvTableText::pieces({}, c.text, CsvTableText::comma);
        ASSERT_GE(pieces.size(), 2u) << c.name;
        for (qsizetype i = 0; i < pieces.size(); ++i) {
            const QByteArray piece = pieces.piece(i);
            if (piece.size() > TextPieces::aimedSize) {
                EXPECT_TRUE(piece.contains(huge)) << c.name << ": only a huge cell goes beyond the aimed size";
                EXPECT_LE(piece.size(), huge.size() + 4 + 7) << c.name << ": the cell and its tags, nothing more";
            }
            EXPECT_TRUE(piece.endsWith("\r\n") || piece.endsWith(">")) << c.name << ": cut between parts";
        }
        EXPECT_EQ(pieces.joined(), c.table) << c.name;
    }
}
