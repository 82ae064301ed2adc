#pragma once
#include <QByteArray>
#include <QByteArrayView>
#include <initializer_list>
#include <vector>

// A long UTF-8 text in pieces, in order, each kept packed: a table of cells packs to a tenth of
// its size or less. The editor takes such a text piece by piece and keeps it packed as the step
// to undo and redo, so a big text is never held whole beside the editor's own copy.
class TextPieces {
public:
    // The size a maker of pieces aims at; a piece is bigger only when one indivisible part is.
    static constexpr qsizetype aimedSize = 1 << 20;

    TextPieces() = default;
    TextPieces(std::initializer_list<QByteArrayView> pieces);
    // A text cut into pieces of the aimed size (a character may be cut: the editor mends it).
    static TextPieces of(QByteArrayView text);

    // Packs a copy of the piece; an empty piece adds nothing.
    void push_back(QByteArrayView piece);
    qsizetype size() const { return static_cast<qsizetype>(pieces.size()); }
    bool empty() const { return pieces.empty(); }
    QByteArray piece(qsizetype i) const;
    // The bytes of the whole text.
    qsizetype totalSize() const { return total; }
    QByteArray joined() const;

private:
    struct Piece {
        QByteArray bytes;
        bool packed;
    };
    std::vector<Piece> pieces;
    qsizetype total = 0;
};
