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

// The walk reads UTF-16 (QStringView) or UTF-8 (QByteArrayView) alike.
template <class View>
LineEnd lineEnd(View text, qsizetype from)
{
    for (qsizetype i = from; i < text.size(); ++i) {
        const auto c = text[i];
        if (c == '\n')
            return {i, i + 1};
        if (c == '\r')
            return {i, i + 1 < text.size() && text[i + 1] == '\n' ? i + 2 : i + 1};
    }
    return {text.size(), text.size()};
}

// Tells the progress step how far a pass has come, every so many steps of the walk, so that
// neither many short lines nor one long line go long without a word.
template <class View>
class Pacer {
public:
    Pacer(const Progress& step, View text, int pass) : step(step), text(text), pass(pass) {}
    // False once the step has asked to stop.
    bool at(const typename View::value_type* position)
    {
        if (!step || ++count % 16384 != 0)
            return true;
        const qsizetype done = text.isEmpty() ? 0 : (position - text.data()) * 50 / text.size();
        return step(static_cast<int>(pass * 50 + done));
    }

private:
    const Progress& step;
    View text;
    int pass;
    qsizetype count = 0;
};

// Walks the cells of the table: row() at each line, cell(text) for each cell written. False
// when the pacer stopped it.
template <class View, class Char, class Row, class Cell>
bool walk(View text, Char separator, Pacer<View>& pacer, Row row, Cell cell)
{
    const qsizetype maxCells = text.first(lineEnd(text, 0).end).count(separator) + 2;
    for (qsizetype at = 0; at < text.size();) {
        const LineEnd e = lineEnd(text, at);
        const View line = text.sliced(at, e.end - at);
        if (!pacer.at(line.data()))
            return false;
        row();
        qsizetype written = 0, start = 0;
        while (!line.isEmpty() && written < maxCells) {
            const qsizetype sep = line.indexOf(separator, start);
            const View c = line.sliced(start, (sep < 0 ? line.size() : sep) - start);
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

namespace {
// The table in Out (QString or QByteArray) from View: measured, then built in one piece.
template <class Out, class View, class Char>
Out build(const CellTableText::Fields& f, View text, Char separator, const Progress& progress,
          Out (*convert)(const QString&))
{
    using namespace CellTableText;
    const Out head = convert(openingTag(f, 0)), end = convert(tableEnd + Html::crlf);
    const Out rowOpen = convert(rowStart), rowClose = convert(rowEnd), cellOpen = convert(cellStart),
              cellClose = convert(cellEnd);

    qsizetype size = head.size() + end.size();
    Pacer<View> measuring(progress, text, 0);
    if (!walk(
            text, separator, measuring, [&] { size += rowOpen.size() + rowClose.size(); },
            [&](View c) { size += cellOpen.size() + c.size() + cellClose.size(); }))
        return {};

    Out out;
    out.reserve(size);
    out += head;
    bool inRow = false;
    Pacer<View> building(progress, text, 1);
    const bool built = walk(
        text, separator, building,
        [&] {
            if (inRow)
                out += rowClose;
            out += rowOpen;
            inRow = true;
        },
        [&](View c) {
            out += cellOpen;
            out.append(c);
            out += cellClose;
        });
    if (!built)
        return {};
    if (inRow)
        out += rowClose;
    out += end;
    return out;
}
}

QString fragment(const CellTableText::Fields& f, QStringView text, QChar separator, const Progress& progress)
{
    return build<QString>(f, text, separator, progress, [](const QString& s) { return s; });
}

QByteArray fragmentUtf8(const CellTableText::Fields& f, QByteArrayView text, char separator, const Progress& progress)
{
    return build<QByteArray>(f, text, separator, progress, [](const QString& s) { return s.toUtf8(); });
}

}
