// Any bytes as a word list: the loader must agree with a plain reading of the piece rules, every
// bucket must hold its words in order, the indexed word test must answer as the walk along the
// bucket does, and the word walk over the same bytes must end. An input can ask for filler in
// front of it, so that its bytes meet the 64 KiB piece edge.
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "spelling/SpellEngine.h"
#include "spelling/WordWalker.h"

#include <QChar>
#include <QMap>
#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what, const QString& word = {})
{
    std::fprintf(stderr, "fuzz_wordlist: %s [%s]\n", what, word.toUtf8().constData());
    std::abort();
}

QString decode(const QByteArray& b)
{
    bool ascii = true;
    for (char c : b)
        ascii = ascii && static_cast<unsigned char>(c) < 0x80;
    return ascii ? QString::fromLatin1(b) : TextFiles::decode(b);
}

// Letter case folded character by character (a character outside the first plane is one).
QString foldedKey(const QString& code)
{
    QList<uint> k = code.toUcs4();
    for (uint& c : k)
        c = QChar::toCaseFolded(char32_t(c));
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(k.constData()), k.size());
}

// The loader's rules read plainly from their description, piece by piece.
QMap<QString, QStringList> referenceLoad(const QByteArray& bytes)
{
    QMap<QString, QStringList> buckets;
    QByteArray remainder, last;
    auto add = [&](const QByteArray& word) {
        buckets[foldedKey(modMain::WordCode(decode(word)))].append(decode(word));
        last = word;
    };
    for (qsizetype at = 0; at < bytes.size(); at += modMain::pieceSize) {
        const QByteArray piece = bytes.mid(at, modMain::pieceSize);
        qsizetype pos = 1;  // 1-based, as the description counts
        for (;;) {
            const qsizetype crlf = piece.indexOf("\r\n", pos - 1) + 1;
            if (crlf == 0) {
                if (pos < piece.size())
                    remainder = piece.mid(pos - 1);
                break;
            }
            QByteArray word = piece.mid(pos - 1, crlf - pos);
            if (!remainder.isEmpty()) {
                word = remainder + word;
                remainder.clear();
            }
            add(word);
            pos = crlf + 2;
        }
    }
    add(last);
    return buckets;
}

// The first character of a word, whole.
char32_t firstCharacter(QStringView word) { return char32_t(word.toUcs4().constFirst()); }

// The word test as the walk along the bucket describes it.
bool walkedTest(const clsWordTree& tree, const QString& word)
{
    const WordBucket* b = tree.GetCodeNode(modMain::WordCode(word));
    if (!b)
        return false;
    bool found = false;
    const QString lowWord = Spelling::lowerCase(word);
    b->forEach([&](QStringView entry) {
        const bool smallFirst = !entry.isEmpty() && firstCharacter(entry) != QChar::toUpper(firstCharacter(entry));
        found = smallFirst ? Spelling::lowerCase(entry) == lowWord : entry == word;
        return !found;
    });
    return found;
}

void probe(const clsWordTree& tree, const QString& word)
{
    // The filler line is compared as a bucket entry above; testing it would only cost time.
    if (word.isEmpty() || word.size() > 1024)
        return;
    if (tree.accepts(word) != walkedTest(tree, word))
        fail("indexed word test differs from the bucket walk", word);
    const bool expected = !Spelling::trimBlanks(word).isEmpty() &&
                          (Spelling::isNumeric(Spelling::trimBlanks(word)) ||
                           walkedTest(tree, Spelling::trimBlanks(word).toString()));
    if (Spelling::isCorrectWord(tree, word) != expected)
        fail("word test differs", word);
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    // First byte 0xFF: a filler line in front, ending k bytes before the first piece's end.
    if (size >= 2 && data[0] == 0xFF) {
        const qsizetype k = data[1] % 8;
        const qsizetype fill = modMain::pieceSize - k;
        bytes = QByteArray(fill - 2, 'f') + "\r\n" + bytes.mid(2);
    }

    modMain::loadWordBytes(bytes);
    const clsWordTree& tree = modMain::WordTree();
    const QMap<QString, QStringList> expected = referenceLoad(bytes);
    if (tree.Count() != expected.size())
        fail("bucket count differs");
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        const WordBucket* b = tree.GetCodeNode(it.key());
        if (!b)
            fail("bucket missing", it.key());
        if (b->toList() != it.value())
            fail("bucket content or order differs", it.key());
        for (const QString& w : it.value()) {
            probe(tree, w);
            probe(tree, Spelling::lowerCase(w));
            probe(tree, w.toUpper());
        }
    }

    // The same bytes as a text to walk: every step must move on, and the walk must end.
    const QString text = QString::fromUtf8(bytes.left(4096));
    WordWalker walker;
    int start = 0, end = -1;
    const int length = static_cast<int>(text.size());
    for (int steps = 0;; ++steps) {
        if (steps > length + 2)
            fail("the walk does not end");
        const Spelling::WordStop stop = Spelling::checkNextWord(
            walker, text, start, end, [&](int at) { return std::clamp(at, 0, length); },
            [&](QStringView w) {
                probe(tree, w.toString());
                return Spelling::isCorrectWord(tree, w);
            });
        if (stop.kind == Spelling::WordStop::None)
            break;
        if (stop.word.isEmpty() || stop.start < 0 || stop.start >= length)
            fail("a stop outside the text");
        start = stop.start + std::min(stop.length, length - stop.start);
    }
    return 0;
}
