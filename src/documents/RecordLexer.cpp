#include "documents/RecordLexer.h"

#include "documents/SyntaxLanguages.h"

#include <Qsci/qsciscintilla.h>

#include <QColor>
#include <QFont>

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace {
inline bool isDigit(unsigned char c) { return c >= '0' && c <= '9'; }
// Bytes of UTF-8 sequences count as letters, so a word with an accent is never cut into a
// keyword and a rest.
inline bool isWordByte(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' || c >= 0x80;
}
inline unsigned char fold(unsigned char c) { return (c >= 'A' && c <= 'Z') ? c + ('a' - 'A') : c; }

constexpr std::size_t longestWordKey = 255;   // longer entries are matched as phrases
constexpr long flushSize = 64 * 1024;          // styles handed to the editor at a time
}

struct RecordLexer::Tables {
    // A text to recognise where a token may start: comment introducer, delimiter, or a list
    // entry that is not a plain word ("<?php", "!==", "Action support").
    struct Marker {
        std::string text;            // folded when the language ignores case
        unsigned char style = Default;
        bool wordStart = false;      // starts with a letter: must not follow one
        bool wordEnd = false;        // ends with a letter: must not be followed by one
    };

    QByteArray name;
    bool caseSensitive = false;
    std::deque<std::string> keys;                            // backs the views in words
    std::unordered_map<std::string_view, unsigned char> words;
    std::size_t longestWord = 0;
    std::array<bool, 256> prefix{};                          // '$' of "$this", '@' of "@if"
    std::array<std::vector<Marker>, 256> phrases;            // by first byte, longest first
    std::array<bool, 256> special{};                         // may start a marker
    std::vector<Marker> lineComments;
    std::vector<Marker> openers;
    std::vector<Marker> closers;                             // closers[i] ends openers[i]
    std::vector<Marker> delimiters;
    bool hasEscape = false;
    char escape = 0;

    bool matchAt(const char* p, const char* lineBegin, const char* lineEnd, const Marker& m) const
    {
        const std::size_t n = m.text.size();
        if (n == 0 || static_cast<std::size_t>(lineEnd - p) < n)
            return false;
        if (caseSensitive) {
            if (std::memcmp(p, m.text.data(), n) != 0)
                return false;
        } else {
            for (std::size_t i = 0; i < n; ++i)
                if (fold(static_cast<unsigned char>(p[i])) != static_cast<unsigned char>(m.text[i]))
                    return false;
        }
        if (m.wordStart && p > lineBegin && isWordByte(static_cast<unsigned char>(p[-1])))
            return false;
        if (m.wordEnd && p + n < lineEnd && isWordByte(static_cast<unsigned char>(p[n])))
            return false;
        return true;
    }

    unsigned char lookup(const char* p, std::size_t n) const
    {
        if (n > longestWord)
            return Default;
        std::string_view key(p, n);
        char folded[longestWordKey];
        if (!caseSensitive) {
            for (std::size_t i = 0; i < n; ++i)
                folded[i] = static_cast<char>(fold(static_cast<unsigned char>(p[i])));
            key = std::string_view(folded, n);
        }
        const auto it = words.find(key);
        return it == words.end() ? static_cast<unsigned char>(Default) : it->second;
    }

    int styleLine(const char* begin, const char* end, char* out, int state) const;
};

std::shared_ptr<const RecordLexer::Tables> RecordLexer::compile(const LanguageRecord& record)
{
    auto t = std::make_shared<Tables>();
    t->name = record.name.toUtf8();
    t->caseSensitive = record.CaseSensitive;

    auto key = [&](const QString& entry) {
        const QByteArray b = entry.toUtf8();
        std::string s(b.constData(), static_cast<std::size_t>(b.size()));
        if (!t->caseSensitive)
            for (char& ch : s)
                ch = static_cast<char>(fold(static_cast<unsigned char>(ch)));
        return s;
    };
    auto marker = [&](const QString& entry, Style style) {
        Tables::Marker m;
        m.text = key(entry);
        m.style = static_cast<unsigned char>(style);
        if (!m.text.empty()) {
            m.wordStart = isWordByte(static_cast<unsigned char>(m.text.front()));
            m.wordEnd = isWordByte(static_cast<unsigned char>(m.text.back()));
            t->special[static_cast<unsigned char>(m.text.front())] = true;
        }
        return m;
    };
    // A plain word, or one non-letter followed by a word: these go to the hash.
    auto isWordEntry = [](const std::string& s) {
        const std::size_t first = isWordByte(static_cast<unsigned char>(s[0])) ? 0 : 1;
        if (s.size() <= first || s.size() > longestWordKey || isDigit(static_cast<unsigned char>(s[first])))
            return false;
        if (first == 1 && static_cast<unsigned char>(s[0]) <= ' ')
            return false;
        return std::all_of(s.begin() + static_cast<long>(first), s.end(),
                           [](char ch) { return isWordByte(static_cast<unsigned char>(ch)); });
    };
    // The first list that names an entry decides its style.
    auto addList = [&](const QString& list, Style style) {
        for (const QString& entry : listEntries(list)) {
            if (entry.isEmpty())
                continue;
            const std::string s = key(entry);
            if (isWordEntry(s)) {
                if (t->words.count(s))
                    continue;
                t->keys.push_back(s);
                t->words.emplace(t->keys.back(), static_cast<unsigned char>(style));
                t->longestWord = std::max(t->longestWord, s.size());
                if (!isWordByte(static_cast<unsigned char>(s[0])))
                    t->prefix[static_cast<unsigned char>(s[0])] = true;
            } else {
                auto& bucket = t->phrases[static_cast<unsigned char>(s[0])];
                if (std::none_of(bucket.begin(), bucket.end(), [&](const Tables::Marker& m) { return m.text == s; }))
                    bucket.push_back(marker(entry, style));
            }
        }
    };
    addList(record.Keywords, Keyword);
    addList(record.Operators, Operator);
    addList(record.TagElementNames, ElementName);
    addList(record.TagAttributeNames, AttributeName);
    addList(record.TagEntities, Entity);
    addList(record.TerminatorChar, Operator);
    for (auto& bucket : t->phrases)
        std::stable_sort(bucket.begin(), bucket.end(),
                         [](const Tables::Marker& a, const Tables::Marker& b) { return a.text.size() > b.text.size(); });

    for (const QString& entry : listEntries(record.SingleLineComments))
        if (!entry.isEmpty())
            t->lineComments.push_back(marker(entry, LineComment));
    const QStringList openers = listEntries(record.MultiLineComments1);
    const QStringList closers = listEntries(record.MultiLineComments2);
    for (qsizetype i = 0; i < std::min(openers.size(), closers.size()); ++i) {
        if (openers[i].isEmpty() || closers[i].isEmpty())
            continue;
        t->openers.push_back(marker(openers[i], BlockComment));
        t->closers.push_back(marker(closers[i], BlockComment));
    }
    for (const QString& entry : listEntries(record.StringDelims))
        if (!entry.isEmpty())
            t->delimiters.push_back(marker(entry, String));
    const QByteArray escape = record.EscapeChar.toUtf8();
    t->hasEscape = !escape.isEmpty();
    t->escape = t->hasEscape ? escape[0] : 0;
    return t;
}

// Styles one line (without its line end) and returns the state at its end: 0, or 1 + the
// index of the block comment left open.
int RecordLexer::Tables::styleLine(const char* begin, const char* end, char* out, int state) const
{
    auto put = [&](const char* from, const char* to, unsigned char style) {
        std::memset(out + (from - begin), style, static_cast<std::size_t>(to - from));
    };
    const char* p = begin;
    while (p < end) {
        if (state > 0) {
            const Marker& close = closers[static_cast<std::size_t>(state - 1)];
            const char* q = p;
            while (q < end && !matchAt(q, begin, end, close))
                ++q;
            if (q == end) {
                put(p, end, BlockComment);
                return state;
            }
            put(p, q + close.text.size(), BlockComment);
            p = q + close.text.size();
            state = 0;
            continue;
        }

        const auto c = static_cast<unsigned char>(*p);
        const unsigned char fc = caseSensitive ? c : fold(c);
        if (special[fc]) {
            for (const Marker& m : lineComments)
                if (matchAt(p, begin, end, m)) {
                    put(p, end, LineComment);
                    return 0;
                }
            bool opened = false;
            for (std::size_t k = 0; k < openers.size() && !opened; ++k)
                if (matchAt(p, begin, end, openers[k])) {
                    put(p, p + openers[k].text.size(), BlockComment);
                    p += openers[k].text.size();
                    state = static_cast<int>(k) + 1;
                    opened = true;
                }
            if (opened)
                continue;
            const Marker* delim = nullptr;
            for (const Marker& m : delimiters)
                if (matchAt(p, begin, end, m)) {
                    delim = &m;
                    break;
                }
            if (delim) {
                // A string ends at its own delimiter or at the end of the line.
                const char* q = p + delim->text.size();
                while (q < end) {
                    if (hasEscape && *q == escape) {
                        q = std::min(q + 2, end);
                        continue;
                    }
                    if (matchAt(q, begin, end, *delim)) {
                        q += delim->text.size();
                        break;
                    }
                    ++q;
                }
                put(p, q, String);
                p = q;
                continue;
            }
        }
        if (prefix[c] && p + 1 < end && isWordByte(static_cast<unsigned char>(p[1]))) {
            const char* q = p + 1;
            while (q < end && isWordByte(static_cast<unsigned char>(*q)))
                ++q;
            if (const unsigned char style = lookup(p, static_cast<std::size_t>(q - p))) {
                put(p, q, style);
                p = q;
                continue;
            }
        }
        if (special[fc]) {
            const Marker* found = nullptr;
            for (const Marker& m : phrases[fc])
                if (matchAt(p, begin, end, m)) {
                    found = &m;
                    break;
                }
            if (found) {
                put(p, p + found->text.size(), found->style);
                p += found->text.size();
                continue;
            }
        }
        if (isDigit(c)) {
            const char* q = p + 1;
            while (q < end && (isWordByte(static_cast<unsigned char>(*q))
                               || (*q == '.' && q + 1 < end && isDigit(static_cast<unsigned char>(q[1])))))
                ++q;
            put(p, q, Number);
            p = q;
            continue;
        }
        if (isWordByte(c)) {
            const char* q = p + 1;
            while (q < end && isWordByte(static_cast<unsigned char>(*q)))
                ++q;
            put(p, q, lookup(p, static_cast<std::size_t>(q - p)));
            p = q;
            continue;
        }
        put(p, p + 1, Default);
        ++p;
    }
    return state;
}

RecordLexer::RecordLexer(std::shared_ptr<const Tables> compiled, QObject* parent)
    : QsciLexerCustom(parent), tables(std::move(compiled))
{
}

RecordLexer::RecordLexer(const LanguageRecord& record, QObject* parent) : RecordLexer(compile(record), parent) {}

RecordLexer::~RecordLexer() = default;

const char* RecordLexer::language() const { return tables->name.constData(); }

bool RecordLexer::caseSensitive() const { return tables->caseSensitive; }

QString RecordLexer::description(int style) const
{
    switch (style) {
    case Default: return QStringLiteral("Default");
    case LineComment: return QStringLiteral("Line comment");
    case BlockComment: return QStringLiteral("Block comment");
    case Keyword: return QStringLiteral("Keyword");
    case Operator: return QStringLiteral("Operator");
    case String: return QStringLiteral("String");
    case Number: return QStringLiteral("Number");
    case ElementName: return QStringLiteral("Constant");
    case AttributeName: return QStringLiteral("Reserved word");
    case Entity: return QStringLiteral("Further word");
    default: return QString();
    }
}

// Dark, saturated colours on white, in the family of the editor's own HTML colouring.
QColor RecordLexer::defaultColor(int style) const
{
    switch (style) {
    case LineComment:
    case BlockComment: return QColor(0x00, 0x7f, 0x00);
    case Keyword: return QColor(0x00, 0x00, 0x7f);
    case String: return QColor(0x7f, 0x00, 0x7f);
    case Number: return QColor(0x00, 0x7f, 0x7f);
    case ElementName: return QColor(0xa0, 0x50, 0x00);
    case AttributeName: return QColor(0x00, 0x00, 0xff);
    case Entity: return QColor(0x80, 0x00, 0x00);
    default: return QColor(0x00, 0x00, 0x00);
    }
}

QFont RecordLexer::defaultFont(int style) const
{
    QFont f = QsciLexerCustom::defaultFont(style);
    f.setBold(style == Keyword || style == AttributeName);
    return f;
}

QColor RecordLexer::defaultPaper(int) const { return QColor(0xff, 0xff, 0xff); }

void RecordLexer::setFont(const QFont& f, int style)
{
    if (style >= 0) {
        QsciLexerCustom::setFont(f, style);
        return;
    }
    for (int s = 0; s < StyleCount; ++s) {
        QFont styled = f;
        styled.setBold(defaultFont(s).bold());
        QsciLexerCustom::setFont(styled, s);
    }
}

void RecordLexer::styleText(int start, int end)
{
    QsciScintilla* ed = editor();
    if (!ed || !tables)
        return;
    const Tables& t = *tables;
    const long length = ed->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    long from = std::clamp<long>(start, 0, length);
    long to = std::clamp<long>(end, 0, length);
    if (from >= to)
        return;

    // Begin at a line start: the line before it holds the state to go on from. End at a line
    // end, so that every line styled also leaves its state.
    long line = ed->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, from);
    from = ed->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, line);
    const long lastLine = ed->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, to);
    if (to > ed->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, lastLine)) {
        const long next = ed->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, lastLine + 1);
        to = next < 0 ? length : std::min(next, length);
    }
    int state = line > 0 ? static_cast<int>(ed->SendScintilla(QsciScintillaBase::SCI_GETLINESTATE, line - 1)) : 0;
    if (state < 0 || state > static_cast<int>(t.openers.size()))
        state = 0;

    const long total = to - from;
    const auto* text = reinterpret_cast<const char*>(
        static_cast<intptr_t>(ed->SendScintilla(QsciScintillaBase::SCI_GETRANGEPOINTER, from, total)));
    if (!text)
        return;

    startStyling(static_cast<int>(from));
    long flushed = 0;
    long i = 0;
    while (i < total) {
        long e = i;
        while (e < total && text[e] != '\n' && text[e] != '\r')
            ++e;
        long next = e;
        if (next < total)
            next += (text[next] == '\r' && next + 1 < total && text[next + 1] == '\n') ? 2 : 1;
        if (static_cast<long>(styles.size()) < next - flushed)
            styles.resize(static_cast<std::size_t>(next - flushed));
        char* out = styles.data() + (i - flushed);
        state = t.styleLine(text + i, text + e, out, state);
        std::memset(out + (e - i), state > 0 ? BlockComment : Default, static_cast<std::size_t>(next - e));
        ed->SendScintilla(QsciScintillaBase::SCI_SETLINESTATE, line, static_cast<long>(state));
        ++line;
        i = next;
        if (i - flushed >= flushSize || i >= total) {
            ed->SendScintilla(QsciScintillaBase::SCI_SETSTYLINGEX, static_cast<unsigned long>(i - flushed), styles.data());
            flushed = i;
        }
    }
}
