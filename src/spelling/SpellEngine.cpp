#include "spelling/SpellEngine.h"

#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {
const QString engineSource = QStringLiteral("vbwSpellCheck");

inline char16_t upperUnit(char16_t c)
{
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') ? char16_t(c - 32) : c;
    return QChar::toUpper(c);
}

inline char32_t upperCharacter(char32_t c)
{
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') ? c - 32 : c;
    return QChar::toUpper(c);
}

// The digit of an upper-case letter, 0 for a letter (or anything) that writes nothing.
inline char16_t codeDigit(char32_t c)
{
    switch (c) {
    case 'B': case 'F': case 'P': case 'V': return '1';
    case 'C': case 'G': case 'J': case 'K': case 'Q': case 'S': case 'X': case 'Z': return '2';
    case 'D': case 'T': return '3';
    case 'L': return '4';
    case 'M': case 'N': return '5';
    case 'R': return '6';
    default: return 0;
    }
}

// A word's bytes as text: plain ASCII straight, anything else as the program's text files are
// read (UTF-8, else Windows-1252).
struct WordText {
    char16_t local[128];
    QString other;
    QStringView view;
    WordText(const char* p, qsizetype n)
    {
        bool ascii = n <= 128;
        for (qsizetype i = 0; ascii && i < n; ++i)
            ascii = static_cast<unsigned char>(p[i]) < 0x80;
        if (ascii) {
            for (qsizetype i = 0; i < n; ++i)
                local[i] = static_cast<unsigned char>(p[i]);
            view = QStringView(local, n);
        } else {
            other = TextFiles::decode(QByteArray::fromRawData(p, n));
            view = other;
        }
    }
};

// The piece-by-piece reading of the list: words end at CR LF; a piece's unended tail is carried
// into the next piece, except a single last character, which is dropped (so a CR on a piece's
// last byte vanishes and its LF starts the next word); the last word is added twice and a last
// line without CR LF is lost.
class ListReader {
public:
    explicit ListReader(clsWordTree& t) : tree(t) {}

    void piece(const char* data, qsizetype length)
    {
        qsizetype pos = 0;  // 0-based scan position
        const char* lastHere = nullptr;  // the last word read in this piece, if it lies here
        qsizetype lastLength = 0;
        for (;;) {
            const char* found = nullptr;
            for (const char* p = data + pos; p + 1 < data + length; ++p) {
                p = static_cast<const char*>(std::memchr(p, '\r', size_t(data + length - 1 - p)));
                if (!p)
                    break;
                if (p[1] == '\n') {
                    found = p;
                    break;
                }
            }
            if (!found)
                break;
            const qsizetype crlf = found - data;
            if (!remainder.isEmpty()) {
                remainder.append(data + pos, crlf - pos);
                add(remainder.constData(), remainder.size());
                last.swap(remainder);
                remainder.clear();
                lastHere = nullptr;
            } else {
                add(data + pos, crlf - pos);
                lastHere = data + pos;
                lastLength = crlf - pos;
            }
            pos = crlf + 2;
        }
        if (lastHere)
            last = QByteArray(lastHere, lastLength);  // the piece's buffer is reused
        if (pos < length - 1)
            remainder = QByteArray(data + pos, length - pos);
        // With one character left it is dropped; with none there is nothing to carry.
    }

    void finish() { add(last.constData(), last.size()); }

private:
    void add(const char* p, qsizetype n)
    {
        const WordText word(p, n);
        tree.addWord(word.view);
    }

    clsWordTree& tree;
    QByteArray remainder;
    QByteArray last;
};
}

namespace modMain {

SpellState& state()
{
    static SpellState s;
    return s;
}

void resetForTesting() { state() = SpellState(); }

CodeUnits wordCodeUnits(QStringView word)
{
    if (word.isEmpty())
        return {{u'0', u'0', u'0', u' ', 0}, 4};
    // Character by character: an emoji or a letter outside the first plane is one character of
    // the code (two units), and it is compared whole with the one before it.
    const Spelling::Character head = Spelling::characterAt(word, 0);
    const char32_t first = upperCharacter(head.code);
    char16_t digits[3] = {u'0', u'0', u'0'};
    int found = 0;
    char32_t previous = first;
    const char16_t* p = reinterpret_cast<const char16_t*>(word.data());
    for (qsizetype i = head.units; i < word.size() && found < 3;) {
        char32_t c = p[i];
        if (c < 0x80) {
            c = (c >= 'a' && c <= 'z') ? c - 32 : c;
            ++i;
        } else if (!QChar::isSurrogate(c)) {
            c = QChar::toUpper(c);
            ++i;
        } else {
            const Spelling::Character next = Spelling::characterAt(word, i);
            i += next.units;
            c = QChar::toUpper(next.code);
        }
        if (c != previous) {
            if (const char16_t d = codeDigit(c))
                digits[found++] = d;
            previous = c;
        }
    }
    CodeUnits code;
    const int width = Spelling::putCharacter(code.units.data(), first);
    std::copy_n(digits, 3, code.units.data() + width);
    code.size = width + 3;
    return code;
}

QString WordCode(QStringView word) { return wordCodeUnits(word).view().toString(); }

void loadWordBytes(const QByteArray& bytes)
{
    state().WordTree = std::make_unique<clsWordTree>();
    state().WordTree->reserveForBytes(bytes.size());
    state().WordTree->beginLoad();
    ListReader reader(*state().WordTree);
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
        reader.piece(bytes.constData() + at, std::min(pieceSize, bytes.size() - at));
    reader.finish();
    state().WordTree->endLoad();
}

void LoadWordList(const QString& path)
{
    state().DictionaryMissing = false;
    state().WordTree = std::make_unique<clsWordTree>();
    QFile file(path);
    if (!QFileInfo::exists(path) || QFileInfo(path).isDir()) {
        if (!QFileInfo(path).isDir()) {
            state().DictionaryMissing = true;
            throw RuntimeError::fileNotFound(engineSource);
        }
        throw RuntimeError::pathFileAccess(engineSource);
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw RuntimeError::pathFileAccess(engineSource);
    clsWordTree& tree = *state().WordTree;
    tree.reserveForBytes(file.size());
    // A failing read leaves the words read so far, and they answer the word test.
    struct Indexing {
        clsWordTree& t;
        ~Indexing() { t.endLoad(); }
    } indexing{tree};
    tree.beginLoad();
    ListReader reader(tree);
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (qint64 left = file.size(); left > 0;) {
        const qint64 want = std::min<qint64>(pieceSize, left);
        const qint64 got = file.read(piece.data(), want);
        if (got != want)
            throw RuntimeError::pastEndOfFile(engineSource);
        reader.piece(piece.constData(), got);
        left -= got;
    }
    reader.finish();
}

void SaveCustomWords(const QString& path)
{
    if (state().DictionaryMissing)
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    QByteArray out;
    const QStringList& words = state().CustomWords;
    for (qsizetype i = 1; i < words.size(); ++i)
        out += TextFiles::encode(words[i]) + "\r\n";
    file.write(out);
}

} // namespace modMain

namespace Spelling {

QStringView trimBlanks(QStringView text)
{
    qsizetype a = 0, b = text.size();
    while (a < b && text[a] == u' ')
        ++a;
    while (b > a && text[b - 1] == u' ')
        --b;
    return text.mid(a, b - a);
}

namespace {
inline bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// The length of a number at the text's start (sign, digits with one point, exponent), 0 when
// there is none. With exponentLetters "eEdD" the platform's value rule is followed.
qsizetype numberLength(QStringView t, bool valueRule)
{
    qsizetype i = 0;
    const qsizetype n = t.size();
    if (i < n && (t[i] == u'+' || t[i] == u'-'))
        ++i;
    qsizetype digits = 0;
    while (i < n && isDigit(t[i]))
        ++i, ++digits;
    if (i < n && t[i] == u'.') {
        ++i;
        while (i < n && isDigit(t[i]))
            ++i, ++digits;
    }
    if (digits == 0)
        return 0;
    if (i < n && (t[i] == u'e' || t[i] == u'E' || (valueRule && (t[i] == u'd' || t[i] == u'D')))) {
        qsizetype j = i + 1;
        if (j < n && (t[j] == u'+' || t[j] == u'-'))
            ++j;
        qsizetype expDigits = 0;
        while (j < n && isDigit(t[j]))
            ++j, ++expDigits;
        if (expDigits > 0)
            i = j;
    }
    return i;
}

double toDouble(QStringView number)
{
    char buf[64];
    std::string big;
    char* p = buf;
    if (number.size() >= qsizetype(sizeof buf)) {
        big.resize(size_t(number.size()) + 1);
        p = big.data();
    }
    qsizetype k = 0;
    for (QChar c : number)
        p[k++] = (c == u'd' || c == u'D') ? 'e' : char(c.unicode());
    p[k] = 0;
    return std::strtod(p, nullptr);
}
}

bool isNumeric(QStringView text)
{
    if (text.isEmpty())
        return false;
    const QChar c = text.front();
    if (!isDigit(c) && c != u'+' && c != u'-' && c != u'.')
        return false;
    return numberLength(text, false) == text.size();
}

double leadingValue(QStringView text)
{
    // Fast answer for the usual word, which begins with a letter.
    if (text.isEmpty())
        return 0;
    const QChar c = text.front();
    if (!isDigit(c) && c != u'+' && c != u'-' && c != u'.' && c != u' ' && c != u'\t' && c != u'\n')
        return 0;
    QString squeezed;
    squeezed.reserve(text.size());
    for (QChar ch : text)
        if (ch != u' ' && ch != u'\t' && ch != u'\n')
            squeezed.append(ch);
    const qsizetype n = numberLength(squeezed, true);
    return n ? toDouble(QStringView(squeezed).left(n)) : 0.0;
}

QString properCase(const QString& text)
{
    // The platform's rule: a letter after a blank, tab, line end, form feed or NUL is a capital,
    // every other letter is small.
    QString out = lowerCase(text);
    bool atStart = true;
    for (QChar& c : out) {
        if (atStart)
            c = QChar(upperUnit(c.unicode()));
        const char16_t u = c.unicode();
        atStart = u == u' ' || u == 0 || (u >= 9 && u <= 13);
    }
    return out;
}

void lowerCharacters(QStringView text, char16_t* out)
{
    const char16_t* in = reinterpret_cast<const char16_t*>(text.data());
    for (qsizetype i = 0; i < text.size();) {
        const char16_t c = in[i];
        if (c < 0x80) {
            out[i++] = (c >= 'A' && c <= 'Z') ? char16_t(c + 32) : c;
            continue;
        }
        const Character ch = characterAt(text, i);
        const char32_t low = QChar::toLower(ch.code);
        if (QChar::requiresSurrogates(low) == (ch.units == 2))
            putCharacter(out + i, low);
        else
            std::copy_n(in + i, ch.units, out + i);
        i += ch.units;
    }
}

QString lowerCase(QStringView text)
{
    QString out(text.size(), Qt::Uninitialized);
    lowerCharacters(text, reinterpret_cast<char16_t*>(out.data()));
    return out;
}

bool isCorrectWord(const clsWordTree& tree, QStringView word)
{
    word = trimBlanks(word);
    if (word.isEmpty())
        return false;
    if (isNumeric(word))
        return true;
    return tree.accepts(word);
}

Alternates listAlternates(const clsWordTree& tree, const QString& lowerWord, bool dictionaryMissing)
{
    Alternates a;
    if (lowerWord.isEmpty())
        return a;
    if (dictionaryMissing) {
        a.status = Alternates::DictionaryNotFound;
        a.rows << QStringLiteral("Dictionary not found");
        return a;
    }
    const WordBucket* bucket = tree.GetCodeNode(modMain::WordCode(lowerWord));
    if (!bucket) {
        a.status = Alternates::NoSuggestions;
        a.rows << QStringLiteral("No Suggestions");
        return a;
    }
    a.status = Alternates::Listed;
    int bestLength = 0, bestRow = 0, row = 0;
    bucket->forEach([&](QStringView entry) {
        ++row;
        a.rows << entry.toString();
        if (lowerCase(entry) == lowerWord) {
            a.rows = QStringList{entry.toString()};
            bestRow = 1;
            return false;
        }
        // Counted in characters: sharing the first half of a character is sharing nothing.
        const qsizetype n = std::min(entry.size(), lowerWord.size());
        int j = 0;
        for (qsizetype at = 0; at < n;) {
            const Character e = characterAt(entry, at);
            if (e.code != characterAt(lowerWord, at).code)
                break;
            at += e.units;
            if (++j > bestLength) {
                bestLength = j;
                bestRow = row;
            }
        }
        return true;
    });
    a.selected = bestRow - 1;
    return a;
}

} // namespace Spelling
