#include "wizards/CsvTableText.h"

#include "wizards/Html.h"

#include <algorithm>

namespace CsvTableText {
namespace {
// The end of the line that starts at `from`, and where the next one starts.
struct LineEnd {
    qsizetype end;
    qsizetype next;
};

LineEnd lineEnd(QStringView text, qsizetype from)
{
    for (qsizetype i = from; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\n'))
            return {i, i + 1};
        if (c == QLatin1Char('\r'))
            return {i, i + 1 < text.size() && text[i + 1] == QLatin1Char('\n') ? i + 2 : i + 1};
    }
    return {text.size(), text.size()};
}

// Tells the progress step how far a pass has come, every so many steps of the walk, so that
// neither many short lines nor one long line go long without a word.
class Pacer {
public:
    Pacer(const Progress& step, QStringView text, int pass) : step(step), text(text), pass(pass) {}
    // False once the step has asked to stop.
    bool at(const QChar* position)
    {
        if (!step || ++count % 16384 != 0)
            return true;
        const qsizetype done = text.isEmpty() ? 0 : (position - text.data()) * 50 / text.size();
        return step(static_cast<int>(pass * 50 + done));
    }

private:
    const Progress& step;
    QStringView text;
    int pass;
    qsizetype count = 0;
};

// Walks the cells of the table: row() at each line, cell(text) for each cell written. False
// when the pacer stopped it.
template <class Row, class Cell>
bool walk(QStringView text, QChar separator, Pacer& pacer, Row row, Cell cell)
{
    const qsizetype maxCells = fieldCount(text, separator) + 1;
    for (qsizetype at = 0; at < text.size();) {
        const LineEnd e = lineEnd(text, at);
        const QStringView line = text.mid(at, e.end - at);
        if (!pacer.at(line.data()))
            return false;
        row();
        qsizetype written = 0, start = 0;
        while (!line.isEmpty() && written < maxCells) {
            const qsizetype sep = line.indexOf(separator, start);
            const QStringView c = line.mid(start, (sep < 0 ? line.size() : sep) - start);
            if (!pacer.at(c.data()))
                return false;
            cell(c);
            ++written;
            if (sep < 0)
                break;
            start = sep + 1;
        }
        at = e.next;
    }
    return true;
}
}

qsizetype fieldCount(QStringView text, QChar separator)
{
    const QStringView first = text.left(lineEnd(text, 0).end);
    return first.count(separator) + 1;
}

QString fragment(const CellTableText::Fields& f, QStringView text, QChar separator, const Progress& progress)
{
    using namespace CellTableText;
    const QString head = openingTag(f, 0);

    qsizetype size = head.size() + tableEnd.size() + Html::crlf.size();
    Pacer measuring(progress, text, 0);
    if (!walk(
            text, separator, measuring, [&] { size += rowStart.size() + rowEnd.size(); },
            [&](QStringView c) { size += cellStart.size() + c.size() + cellEnd.size(); }))
        return {};

    QString out;
    out.reserve(size);
    out += head;
    bool inRow = false;
    Pacer building(progress, text, 1);
    const bool built = walk(
        text, separator, building,
        [&] {
            if (inRow)
                out += rowEnd;
            out += rowStart;
            inRow = true;
        },
        [&](QStringView c) {
            out += cellStart;
            out += c;
            out += cellEnd;
        });
    if (!built)
        return {};
    if (inRow)
        out += rowEnd;
    out += tableEnd;
    out += Html::crlf;
    return out;
}

}
