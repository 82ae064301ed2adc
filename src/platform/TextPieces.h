#pragma once
#include <QByteArray>
#include <vector>

// A long UTF-8 text in pieces, in order. The editor takes such a text piece by piece and frees
// each piece as soon as it holds it, so a big text is never held whole beside the editor's copy.
using TextPieces = std::vector<QByteArray>;

namespace Pieces {
// The size a maker of pieces aims at; a piece is bigger only when one indivisible part is.
constexpr qsizetype aimedSize = 1 << 20;

inline qsizetype totalSize(const TextPieces& pieces)
{
    qsizetype size = 0;
    for (const QByteArray& p : pieces)
        size += p.size();
    return size;
}

inline QByteArray joined(const TextPieces& pieces)
{
    QByteArray out;
    out.reserve(totalSize(pieces));
    for (const QByteArray& p : pieces)
        out += p;
    return out;
}
}
