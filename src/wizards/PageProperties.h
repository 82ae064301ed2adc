#pragma once
#include <QString>

// The page properties window edits a page by text search in a work copy, not by parsing it:
// it finds a marker, selects a span around it by counting characters and overwrites the span.
// These are those steps on the work copy's text and selection, Qt Core only. Positions are
// indexes into the text as it stands, whatever its line ends; the find step gives a 0-based
// position and the forward string search a 1-based one, and the arithmetic mixes the two on
// purpose: the spans below are the ones that mixture selects, odd ends included.
namespace PageProperties {

// The text and the selection of a work copy (0-based start, length).
struct WorkCopy {
    QString text;
    int selStart = 0;
    int selLength = 0;
};

// What a command's steps came to.
enum class Outcome {
    Changed,          // the steps ran to their end
    NoData,           // the work copy was empty: " No data to change!!", nothing else ran
    InvalidProperty,  // a negative start or length was given to the selection (run-time error 380);
                      // the steps before it ran, the span was not replaced
};

struct Result {
    Outcome outcome = Outcome::Changed;
    WorkCopy copy;           // the work copy after the steps that ran
    int replacedStart = -1;  // where the selection was replaced (-1: nothing was replaced)
    int replacedLength = 0;  // the length of what was replaced there
    QString inserted;        // and the text put in its place
};

// The box's search: without regard to case, from the start; selects the match and gives its
// 0-based position, or -1 and leaves the selection as it was.
int find(WorkCopy& w, const QString& what);
// The forward string search: the 1-based position of `what` in `text` from the 1-based `start`,
// 0 when it is not there (also when start lies behind the text); case counts.
int inStr(int start, const QString& text, const QString& what);

// The fields of the style block: colour texts (with their quotes) and decorations, in the order
// link, visited, active, hover.
struct LinkStyles {
    QString Text7 = QStringLiteral("\"#0000FF\""), Combo7 = QStringLiteral("Underlined");
    QString Text8 = QStringLiteral("\"#0000FF\""), Combo8 = QStringLiteral("Underlined");
    QString Text9 = QStringLiteral("\"#0000FF\""), Combo9 = QStringLiteral("Underlined");
    QString Text10 = QStringLiteral("\"#0000FF\""), Combo10 = QStringLiteral("Underlined");
};
// The six lines of the style block, each ending in CR LF.
QString styleBlock(const LinkStyles& s);

// Margins: "<body" becomes "<body topmargin={top} leftmargin={left}"; without the marker the
// text goes in at the work copy's selection. It adds and never replaces.
Result margins(const WorkCopy& w, const QString& top, const QString& left);
// Background: the span from the blank before "bgColor" to the next double quote behind the
// value's first character becomes " bgcolor={colour}".
Result background(const WorkCopy& w, const QString& colour);
// Text colour: the same around the first "text" anywhere in the page, " text={colour}".
Result textColour(const WorkCopy& w, const QString& colour);
// Selects the existing style block as the update does, without changing it (the window's load).
Result selectStyle(const WorkCopy& w);
// Update: the selected style block, through "</style>" and one character more, becomes the
// new block.
Result updateStyle(const WorkCopy& w, const LinkStyles& s);
// Add: "</title>" becomes "</title>", two line ends and the new block; without the marker the
// block goes in at the work copy's selection.
Result addStyle(const WorkCopy& w, const LinkStyles& s);
}
