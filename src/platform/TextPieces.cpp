#include "platform/TextPieces.h"

#include <algorithm>

namespace {
// The fastest packing: a piece is packed once and unpacked once or twice, and a tenth of its
// size is small enough.
constexpr int packingLevel = 1;
// Packing costs a fixed setting-up; a short piece is kept as it is.
constexpr qsizetype packedFrom = 4096;
}

TextPieces::TextPieces(std::initializer_list<QByteArrayView> pieces)
{
    for (QByteArrayView p : pieces)
        push_back(p);
}

TextPieces TextPieces::of(QByteArrayView text)
{
    TextPieces out;
    for (qsizetype at = 0; at < text.size(); at += aimedSize)
        out.push_back(text.sliced(at, std::min(aimedSize, text.size() - at)));
    return out;
}

void TextPieces::push_back(QByteArrayView piece)
{
    if (piece.isEmpty())
        return;
    if (piece.size() < packedFrom)
        pieces.push_back({piece.toByteArray(), false});
    else
        pieces.push_back({qCompress(reinterpret_cast<const uchar*>(piece.data()), piece.size(), packingLevel), true});
    total += piece.size();
}

QByteArray TextPieces::piece(qsizetype i) const
{
    const Piece& p = pieces.at(static_cast<size_t>(i));
    return p.packed ? qUncompress(p.bytes) : p.bytes;
}

QByteArray TextPieces::joined() const
{
    QByteArray out;
    out.reserve(total);
    for (qsizetype i = 0; i < size(); ++i)
        out += piece(i);
    return out;
}
