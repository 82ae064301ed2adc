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

LineEnd lineEnd(QByteArrayView text, qsizetype from)
{
    for (qsizetype i = from; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n')
            return {i, i + 1};
        if (c == '\r')
            return {i, i + 1 < text.size() && text[i + 1] == '\n' ? i + 2 : i + 1};
    }
    return {text.size(), text.size()};
}

// Tells the progress step how far the walk has come, every so many steps, so that neither
// many short lines nor one long line go long without a word.
class Pacer {
public:
    Pacer(const Progress& step, QByteArrayView text) : step(step), text(text) {}
    // False once the step has asked to stop.
    bool at(const char* position)
    {
        if (!step || ++count % 16384 != 0)
            return true;
        return step(text.isEmpty() ? 0 : static_cast<int>((position - text.data()) * 100 / text.size()));
    }

private:
    const Progress& step;
    QByteArrayView text;
    qsizetype count = 0;
};

// Collects the table in pieces of about the aimed size, each packed once it is full. A piece is
// cut before a part that would not fit; a part bigger than a piece (one huge cell) gets a piece
// of its own size.
class PieceWriter {
public:
    void add(QByteArrayView a, QByteArrayView b = {}, QByteArrayView c = {})
    {
        const qsizetype need = a.size() + b.size() + c.size();
        if (!piece.isEmpty() && piece.size() + need > TextPieces::aimedSize)
            flush();
        piece.reserve(std::max(need, TextPieces::aimedSize));
        piece.append(a).append(b).append(c);
    }
    TextPieces finish()
    {
        flush();
        return std::move(out);
    }

private:
    void flush()
    {
        out.push_back(piece);
        // The one buffer serves every piece, unless a huge cell grew it.
        if (piece.capacity() > 2 * TextPieces::aimedSize)
            piece = QByteArray();
        else
            piece.resize(0);
    }

    TextPieces out;
    QByteArray piece;
};

// Walks the cells of the table: row() at each line, cell(text) for each cell written. False
// when the pacer stopped it.
template <class Row, class Cell>
bool walk(QByteArrayView text, char separator, Pacer& pacer, Row row, Cell cell)
{
    const qsizetype maxCells = fieldCount(text, separator) + 1;
    for (qsizetype at = 0; at < text.size();) {
        const LineEnd e = lineEnd(text, at);
        const QByteArrayView line = text.sliced(at, e.end - at);
        if (!pacer.at(line.data()))
            return false;
        row();
        qsizetype written = 0, start = 0;
        while (!line.isEmpty() && written < maxCells) {
            const qsizetype sep = line.indexOf(separator, start);
            const QByteArrayView c = line.sliced(start, (sep < 0 ? line.size() : sep) - start);
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


qsizetype fieldCount(QByteArrayView text, char separator)
{
    return text.first(lineEnd(text, 0).end).count(separator) + 1;
}

TextPieces pieces(const CellTableText::Fields& f, QByteArrayView text, char separator, const Progress& progress)
{
    using namespace CellTableText;
    const QByteArray head = openingTag(f, 0).toUtf8(), end = (tableEnd + Html::crlf).toUtf8();
    const QByteArray rowOpen = rowStart.toUtf8(), rowClose = rowEnd.toUtf8(), cellOpen = cellStart.toUtf8(),
                     cellClose = cellEnd.toUtf8();
    PieceWriter out;
    out.add(head);
    bool inRow = false;
    Pacer pacer(progress, text);
    const bool built = walk(
        text, separator, pacer,
        [&] {
            out.add(inRow ? QByteArrayView(rowClose) : QByteArrayView(), rowOpen);
            inRow = true;
        },
        [&](QByteArrayView c) { out.add(cellOpen, c, cellClose); });
    if (!built)
        return {};
    out.add(inRow ? QByteArrayView(rowClose) : QByteArrayView(), end);
    return out.finish();
}

QByteArray fragment(const CellTableText::Fields& f, QByteArrayView text, char separator, const Progress& progress)
{
    return pieces(f, text, separator, progress).joined();
}

}
