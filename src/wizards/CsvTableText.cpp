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

// Walks the cells of the table: row(fields) at each line, cell(text) for each cell written.
template <class Row, class Cell>
void walk(QStringView text, QChar separator, Row row, Cell cell)
{
    const qsizetype maxCells = fieldCount(text, separator) + 1;
    for (qsizetype at = 0; at < text.size();) {
        const LineEnd e = lineEnd(text, at);
        const QStringView line = text.mid(at, e.end - at);
        row();
        qsizetype written = 0, start = 0;
        while (!line.isEmpty() && written < maxCells) {
            const qsizetype sep = line.indexOf(separator, start);
            cell(line.mid(start, (sep < 0 ? line.size() : sep) - start));
            ++written;
            if (sep < 0)
                break;
            start = sep + 1;
        }
        at = e.next;
    }
}
}

qsizetype fieldCount(QStringView text, QChar separator)
{
    const QStringView first = text.left(lineEnd(text, 0).end);
    return first.count(separator) + 1;
}

QString fragment(const CellTableText::Fields& f, QStringView text, QChar separator)
{
    using namespace CellTableText;
    const QString head = openingTag(f, 0);

    qsizetype size = head.size() + tableEnd.size() + Html::crlf.size();
    walk(
        text, separator, [&] { size += rowStart.size() + rowEnd.size(); },
        [&](QStringView c) { size += cellStart.size() + c.size() + cellEnd.size(); });

    QString out;
    out.reserve(size);
    out += head;
    bool inRow = false;
    walk(
        text, separator,
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
    if (inRow)
        out += rowEnd;
    out += tableEnd;
    out += Html::crlf;
    return out;
}

}
