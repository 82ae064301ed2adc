#include "platform/Rtf.h"

#include "platform/Twips.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

// ---------------------------------------------------------------------------------------------
// Writing

// The character properties a file carries, resolved against the document's default font.
struct RunFormat {
    QString family;
    int halfPoints = 24;
    QColor colour;  // invalid: the automatic colour
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
};

RunFormat resolve(const QTextCharFormat& f, const QFont& base)
{
    RunFormat r;
    r.family = base.family();
    if (f.hasProperty(QTextFormat::FontFamilies)) {
        const QStringList families = f.fontFamilies().toStringList();
        if (!families.isEmpty() && !families.first().isEmpty())
            r.family = families.first();
    } else if (f.hasProperty(QTextFormat::FontFamily) && !f.stringProperty(QTextFormat::FontFamily).isEmpty()) {
        r.family = f.stringProperty(QTextFormat::FontFamily);
    }
    double points = base.pointSizeF() > 0 ? base.pointSizeF() : 12.0;
    if (f.hasProperty(QTextFormat::FontPointSize) && f.fontPointSize() > 0)
        points = f.fontPointSize();
    r.halfPoints = std::max(1, qRound(points * 2));
    if (f.hasProperty(QTextFormat::ForegroundBrush) && f.foreground().style() != Qt::NoBrush)
        r.colour = f.foreground().color();
    r.bold = f.hasProperty(QTextFormat::FontWeight) ? f.fontWeight() >= QFont::Bold : base.bold();
    r.italic = f.hasProperty(QTextFormat::FontItalic) ? f.fontItalic() : base.italic();
    r.underline = f.hasProperty(QTextFormat::FontUnderline) || f.hasProperty(QTextFormat::TextUnderlineStyle)
        ? f.fontUnderline()
        : base.underline();
    r.strike = f.hasProperty(QTextFormat::FontStrikeOut) ? f.fontStrikeOut() : base.strikeOut();
    return r;
}

// Text as 7-bit ASCII: the three special characters escaped, everything past ASCII as \uN with
// a '?' for readers that do not know Unicode (N is a signed 16-bit number, and characters past
// the first 65536 go as their two UTF-16 halves).
// In a table (font names) anything past ASCII is \uN: a table holds no tabs or breaks.
void appendText(QByteArray& out, const QString& text, bool table = false)
{
    for (const QChar ch : text) {
        const char16_t u = ch.unicode();
        if (table && (u < 0x20 || u == ';'))  // ';' ends a name
            continue;
        if (table && u >= 0x7F) {
            out += "\\u" + QByteArray::number(u > 32767 ? int(u) - 65536 : int(u)) + '?';
            continue;
        }
        switch (u) {
        case '\\': out += "\\\\"; continue;
        case '{': out += "\\{"; continue;
        case '}': out += "\\}"; continue;
        case '\t': out += "\\tab "; continue;
        case 0x2028: out += "\\line "; continue;  // a line break inside a paragraph
        case 0x00A0: out += "\\~"; continue;
        case 0xFDD0: case 0xFDD1: case 0xFFFC: continue;  // frame marks and objects: not text
        default: break;
        }
        if (u < 0x20)
            continue;
        if (u < 0x7F) {
            out += static_cast<char>(u);
            continue;
        }
        out += "\\u";
        out += QByteArray::number(u > 32767 ? int(u) - 65536 : int(u));
        out += '?';
    }
}

class Writer {
public:
    explicit Writer(const QTextDocument& d) : doc(d), base(d.defaultFont()) {}

    QByteArray run()
    {
        fonts.append(base.family());
        for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
            note(resolve(b.charFormat(), base));
            for (auto it = b.begin(); !it.atEnd(); ++it)
                if (it.fragment().isValid())
                    note(resolve(it.fragment().charFormat(), base));
        }

        QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1";
        out += "{\\fonttbl";
        for (int i = 0; i < fonts.size(); ++i) {
            out += "{\\f" + QByteArray::number(i) + "\\fnil\\fcharset0 ";
            appendText(out, fonts[i], true);
            out += ";}";
        }
        out += "}\r\n{\\colortbl;";
        for (const QColor c : colours)
            out += "\\red" + QByteArray::number(c.red()) + "\\green" + QByteArray::number(c.green()) + "\\blue"
                + QByteArray::number(c.blue()) + ';';
        out += "}\r\n";

        bool first = true;
        for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
            if (!first) {
                // The format in force at \par is the new paragraph's own (an empty line keeps
                // its font and size by it).
                out += changeTo(resolve(b.charFormat(), base));
                out += "\\par\r\n";
            }
            first = false;
            paragraph(out, b);
        }
        out += "}\r\n";
        return out;
    }

private:
    void note(const RunFormat& r)
    {
        if (!fonts.contains(r.family))
            fonts.append(r.family);
        if (r.colour.isValid() && !colours.contains(r.colour.rgb()))
            colours.append(r.colour.rgb());
    }

    void paragraph(QByteArray& out, const QTextBlock& b)
    {
        const QTextBlockFormat f = b.blockFormat();
        out += "\\pard";
        const Qt::Alignment a = f.alignment() & Qt::AlignHorizontal_Mask;
        if (a & Qt::AlignHCenter)
            out += "\\qc";
        else if (a & Qt::AlignJustify)
            out += "\\qj";
        else if (a & (Qt::AlignRight | Qt::AlignTrailing))
            out += "\\qr";
        const double left = f.leftMargin() + f.indent() * doc.indentWidth();
        const auto twips = [](double px) { return QByteArray::number(qRound(px * twipsPerPixel)); };
        if (qRound(left * twipsPerPixel) != 0)
            out += "\\li" + twips(left);
        if (qRound(f.rightMargin() * twipsPerPixel) != 0)
            out += "\\ri" + twips(f.rightMargin());
        if (qRound(f.textIndent() * twipsPerPixel) != 0)
            out += "\\fi" + twips(f.textIndent());

        bool any = false;
        bool afterWord = true;  // text right after a control word needs a space to end the word
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextFragment frag = it.fragment();
            if (!frag.isValid())
                continue;
            const QByteArray words = changeTo(resolve(frag.charFormat(), base));
            if (!words.isEmpty()) {
                out += words;
                afterWord = true;
            }
            if (afterWord) {
                out += ' ';
                afterWord = false;
            }
            appendText(out, frag.text());
            any = true;
        }
        if (!any)
            out += changeTo(resolve(b.charFormat(), base));
    }

    // The control words that take the current character state to r.
    QByteArray changeTo(const RunFormat& r)
    {
        QByteArray w;
        const int font = int(fonts.indexOf(r.family));
        if (font != cur.font)
            w += "\\f" + QByteArray::number(font);
        if (r.halfPoints != cur.halfPoints)
            w += "\\fs" + QByteArray::number(r.halfPoints);
        const int colour = r.colour.isValid() ? int(colours.indexOf(r.colour.rgb())) + 1 : 0;
        if (colour != cur.colour)
            w += "\\cf" + QByteArray::number(colour);
        if (r.bold != cur.bold)
            w += r.bold ? "\\b" : "\\b0";
        if (r.italic != cur.italic)
            w += r.italic ? "\\i" : "\\i0";
        if (r.underline != cur.underline)
            w += r.underline ? "\\ul" : "\\ulnone";
        if (r.strike != cur.strike)
            w += r.strike ? "\\strike" : "\\strike0";
        cur = {font, r.halfPoints, colour, r.bold, r.italic, r.underline, r.strike};
        return w;
    }

    struct State {
        int font = -1;  // nothing written yet: the first run states its font and size
        int halfPoints = -1;
        int colour = 0;  // the automatic colour, as a reader starts
        bool bold = false, italic = false, underline = false, strike = false;
    };

    const QTextDocument& doc;
    const QFont base;
    QStringList fonts;
    QList<QRgb> colours;
    State cur;
};

// ---------------------------------------------------------------------------------------------
// Reading

// Windows-1252 differs from Latin-1 only in 0x80..0x9F.
constexpr char16_t cp1252High[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

char16_t fromCp1252(unsigned char b) { return (b >= 0x80 && b < 0xA0) ? cp1252High[b - 0x80] : char16_t(b); }

// Groups nested deeper than this are read past as a whole; it bounds the reader's memory.
constexpr int maxDepth = 200;
// Parameters are clamped here, far outside any meaningful value but safe to compute with.
constexpr long long maxParam = 1'000'000'000;
// Font sizes beyond this (half points) are taken as this: larger ones only stall the layout.
constexpr int maxHalfPoints = 3200;
constexpr int maxTwips = 31680;  // 22 inches

enum class Dest { Text, FontTable, ColourTable, Skip, Alternatives };

struct CharState {
    int font = -1;  // -1: the default font (\deff)
    int halfPoints = 24;
    int colour = 0;
    bool bold = false, italic = false, underline = false, strike = false, hidden = false;
    bool operator==(const CharState&) const = default;
};

struct ParaState {
    Qt::Alignment align = Qt::AlignLeft;
    int left = 0, right = 0, first = 0;  // twips
};

struct Group {
    Dest dest = Dest::Text;
    CharState ch;
    ParaState para;
    int uc = 1;
};

// Destinations whose text is not part of the document.
bool skippedDestination(std::string_view w)
{
    static constexpr std::string_view names[] = {
        "info", "stylesheet", "pict", "object", "header", "headerl", "headerr", "headerf", "footer",
        "footerl", "footerr", "footerf", "footnote", "annotation", "atnid", "atnauthor", "comment",
        "falt", "fldinst", "filetbl", "revtbl", "listtable", "listoverridetable", "rsidtbl",
        "generator", "xmlnstbl", "themedata", "colorschememapping", "latentstyles", "datastore",
        "pgdsctbl", "bkmkstart", "bkmkend", "template", "author", "operator", "title", "subject",
        "keywords", "doccomm", "buptim", "creatim", "revtim", "printim", "txe", "nonshppict",
        "xe", "tc", "tcn", "rxe"};
    return std::find(std::begin(names), std::end(names), w) != std::end(names);
}

class Reader {
public:
    Reader(const QByteArray& b, QTextDocument* d) : data(b), cursor(d) {}

    void run()
    {
        // One edit for the whole file: the document then lays itself out once, not per run.
        cursor.beginEditBlock();
        stack.reserve(32);
        const qsizetype n = data.size();
        while (i < n && !finished) {
            const unsigned char c = static_cast<unsigned char>(data[i]);
            if (c == '{') {
                ++i;
                ucSkip = 0;
                open();
            } else if (c == '}') {
                ++i;
                ucSkip = 0;
                close();
            } else if (c == '\\') {
                ++i;
                control();
            } else {
                ++i;
                if (c == '\r' || c == '\n' || c == 0)
                    continue;
                if (skipFallback())
                    continue;
                character(c == '\t' ? u'\t' : fromCp1252(c));
            }
        }
        finish();
        cursor.endEditBlock();
    }

private:
    Group& top() { return stack.back(); }

    void open()
    {
        starred = false;  // \* marks only the first word of its own group
        if (overflow > 0 || int(stack.size()) >= maxDepth) {
            ++overflow;
            return;
        }
        if (stack.empty()) {
            stack.push_back(Group{});
            return;
        }
        Group g = top();
        stack.push_back(g);
    }

    void close()
    {
        starred = false;
        if (overflow > 0) {
            --overflow;
            return;
        }
        if (stack.empty()) {
            finished = true;
            return;
        }
        if (top().dest == Dest::FontTable)
            commitFont();
        if (stack.size() == 1)
            endPara = top().para;
        stack.pop_back();
        if (stack.empty())
            finished = true;  // the file's outermost group is closed: anything after it is not ours
    }

    // After \uN, the next uc characters are the fallback for readers without Unicode.
    bool skipFallback()
    {
        if (ucSkip <= 0)
            return false;
        --ucSkip;
        return true;
    }

    void control()
    {
        const qsizetype n = data.size();
        if (i >= n)
            return;  // a lone backslash at the end
        const char c = data[i];
        if (isLetter(c)) {
            std::string name;
            while (i < n && isLetter(data[i])) {
                if (name.size() < 32)
                    name += data[i];
                ++i;
            }
            bool hasParam = false;
            bool negative = false;
            long long param = 0;
            if (i < n && data[i] == '-' && i + 1 < n && isDigit(data[i + 1])) {
                negative = true;
                ++i;
            }
            while (i < n && isDigit(data[i])) {
                hasParam = true;
                param = std::min(maxParam, param * 10 + (data[i] - '0'));
                ++i;
            }
            if (negative)
                param = -param;
            if (i < n && data[i] == ' ')
                ++i;
            if (name == "bin") {
                // Binary data: its bytes are not RTF, whatever they look like.
                const qsizetype count = hasParam && param > 0 ? qsizetype(param) : 0;
                i = std::min(n, i + count);
                return;
            }
            if (skipFallback())
                return;
            word(name, hasParam, int(param));
            return;
        }
        ++i;
        if (c == '\'') {
            int value = 0;
            int digits = 0;
            while (digits < 2 && i < n && hexValue(data[i]) >= 0) {
                value = value * 16 + hexValue(data[i]);
                ++i;
                ++digits;
            }
            if (skipFallback() || digits == 0)
                return;
            if (value >= 0x20 || value == '\t')
                character(fromCp1252(static_cast<unsigned char>(value)));
            return;
        }
        if (c == '*') {
            // A destination a reader may ignore: it is read past unless it is one we know.
            if (!stack.empty() && overflow == 0)
                starred = true;
            return;
        }
        if (skipFallback())
            return;
        switch (c) {
        case '\\': case '{': case '}': character(char16_t(c)); break;
        case '~': character(u'\u00A0'); break;
        case '_': character(u'\u2011'); break;
        case '\r': case '\n': word("par", false, 0); break;
        case '\t': character(u'\t'); break;
        default: break;  // \- optional hyphen, \: index entry, \| formula: nothing to show
        }
    }

    static bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }
    static int hexValue(char c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    }

    void word(std::string_view w, bool hasParam, int param)
    {
        if (stack.empty() || overflow > 0)
            return;
        Group& g = top();
        const bool wasStarred = starred;
        starred = false;

        if (g.dest == Dest::Skip)
            return;
        if (w == "ud" && wasStarred) {
            // The Unicode half of a pair whose other half is for older readers.
            g.dest = Dest::Text;
            return;
        }
        if (wasStarred || skippedDestination(w)) {
            g.dest = Dest::Skip;
            return;
        }
        if (w == "upr") {
            g.dest = Dest::Alternatives;
            return;
        }
        if (w == "fonttbl") {
            g.dest = Dest::FontTable;
            return;
        }
        if (w == "colortbl") {
            g.dest = Dest::ColourTable;
            colourSet = false;
            red = green = blue = 0;
            return;
        }
        // Unicode characters go wherever text goes, font names included.
        if (w == "uc") {
            g.uc = std::clamp(param, 0, 16);
            return;
        }
        if (w == "u") {
            int v = param;
            if (v < 0)
                v += 65536;
            if (v > 0 && v < 65536)
                character(char16_t(v));
            ucSkip = g.uc;
            return;
        }
        if (g.dest == Dest::FontTable) {
            if (w == "f") {
                commitFont();
                fontNumber = param;
                fontName.clear();
            }
            return;  // family kinds, character sets, pitches: the name is all we use
        }
        if (g.dest == Dest::ColourTable) {
            const int v = std::clamp(param, 0, 255);
            if (w == "red")
                red = v;
            else if (w == "green")
                green = v;
            else if (w == "blue")
                blue = v;
            else
                return;
            colourSet = true;
            return;
        }
        if (w == "deff") {
            defaultFont = param;
            return;
        }
        if (g.dest == Dest::Alternatives)
            return;
        textWord(g, w, hasParam, param);
    }

    // Formatting and special characters of the text itself.
    void textWord(Group& g, std::string_view w, bool hasParam, int param)
    {
        CharState& ch = g.ch;
        ParaState& p = g.para;
        const bool on = !hasParam || param != 0;
        if (w == "par" || w == "sect" || w == "page" || w == "row") {
            paragraphEnd();
        } else if (w == "line") {
            character(u'\u2028');
        } else if (w == "tab" || w == "cell") {
            character(u'\t');
        } else if (w == "plain") {
            ch = CharState{};
        } else if (w == "pard") {
            p = ParaState{};
        } else if (w == "f") {
            ch.font = param;
        } else if (w == "fs") {
            if (hasParam && param > 0)
                ch.halfPoints = std::min(param, maxHalfPoints);
        } else if (w == "cf") {
            ch.colour = std::max(0, param);
        } else if (w == "b") {
            ch.bold = on;
        } else if (w == "i") {
            ch.italic = on;
        } else if (w == "ul" || w == "uld" || w == "uldash" || w == "uldb" || w == "ulth" || w == "ulw"
                   || w == "ulwave" || w == "uldashd" || w == "uldashdd") {
            ch.underline = on;
        } else if (w == "ulnone") {
            ch.underline = false;
        } else if (w == "strike") {
            ch.strike = on;
        } else if (w == "v") {
            ch.hidden = on;
        } else if (w == "ql") {
            p.align = Qt::AlignLeft;
        } else if (w == "qc") {
            p.align = Qt::AlignHCenter;
        } else if (w == "qr") {
            p.align = Qt::AlignRight;
        } else if (w == "qj") {
            p.align = Qt::AlignJustify;
        } else if (w == "li") {
            p.left = std::clamp(param, -maxTwips, maxTwips);
        } else if (w == "ri") {
            p.right = std::clamp(param, -maxTwips, maxTwips);
        } else if (w == "fi") {
            p.first = std::clamp(param, -maxTwips, maxTwips);
        } else if (w == "emdash") {
            character(u'\u2014');
        } else if (w == "endash") {
            character(u'\u2013');
        } else if (w == "bullet") {
            character(u'\u2022');
        } else if (w == "lquote") {
            character(u'\u2018');
        } else if (w == "rquote") {
            character(u'\u2019');
        } else if (w == "ldblquote") {
            character(u'\u201C');
        } else if (w == "rdblquote") {
            character(u'\u201D');
        } else if (w == "emspace" || w == "enspace" || w == "qmspace") {
            character(u' ');
        }
    }

    // One character, to wherever the current group's text goes.
    void character(char16_t u)
    {
        if (stack.empty() || overflow > 0)
            return;
        starred = false;
        // Control characters, paragraph marks and object marks are the document's own structure,
        // never text.
        if ((u < 0x20 && u != '\t') || u == 0x2029 || u == 0xFDD0 || u == 0xFDD1 || u == 0xFFFC)
            return;
        Group& g = top();
        switch (g.dest) {
        case Dest::Skip:
        case Dest::Alternatives:
            return;
        case Dest::FontTable:
            if (u == ';')
                commitFont();
            else if (u >= 0x20 && fontName.size() < 256)
                fontName += QChar(u);
            return;
        case Dest::ColourTable:
            if (u == ';') {
                // An entry with no components is the automatic colour.
                if (colours.size() < 4096)
                    colours.append(colourSet ? QColor(red, green, blue) : QColor());
                red = green = blue = 0;
                colourSet = false;
            }
            return;
        case Dest::Text:
            break;
        }
        if (g.ch.hidden)
            return;
        // UTF-16 halves only pair up with each other; a lone half is dropped.
        if (QChar::isHighSurrogate(u)) {
            highHalf = u;
            return;
        }
        if (QChar::isLowSurrogate(u)) {
            if (highHalf == 0)
                return;
            append(g, highHalf);
            highHalf = 0;
        }
        highHalf = 0;
        append(g, u);
    }

    void append(const Group& g, char16_t u)
    {
        if (!pending.isEmpty() && !(pendingFormat == g.ch))
            flush();
        pendingFormat = g.ch;
        pending += QChar(u);
        textPara = g.para;
        paraHasText = true;
    }

    void flush()
    {
        if (pending.isEmpty())
            return;
        cursor.insertText(pending, charFormat(pendingFormat));
        pending.clear();
    }

    void commitFont()
    {
        const QString name = fontName.trimmed();
        if (fontNumber >= 0 && !name.isEmpty() && !fonts.contains(fontNumber) && fonts.size() < 4096)
            fonts.insert(fontNumber, name);
        fontName.clear();
    }

    QTextCharFormat charFormat(const CharState& ch) const
    {
        QTextCharFormat f;
        const QString family = fonts.value(ch.font >= 0 ? ch.font : defaultFont);
        if (!family.isEmpty())
            f.setFontFamilies(QStringList{family});
        f.setFontPointSize(ch.halfPoints / 2.0);
        if (ch.colour < colours.size() && colours[ch.colour].isValid())
            f.setForeground(colours[ch.colour]);
        f.setFontWeight(ch.bold ? QFont::Bold : QFont::Normal);
        f.setFontItalic(ch.italic);
        f.setFontUnderline(ch.underline);
        f.setFontStrikeOut(ch.strike);
        return f;
    }

    QTextBlockFormat blockFormat(const ParaState& p) const
    {
        QTextBlockFormat f;
        f.setAlignment(p.align);
        f.setLeftMargin(p.left / double(twipsPerPixel));
        f.setRightMargin(p.right / double(twipsPerPixel));
        f.setTextIndent(p.first / double(twipsPerPixel));
        return f;
    }

    // A paragraph takes the paragraph properties in force where it ends.
    void paragraphEnd()
    {
        if (stack.empty() || top().dest != Dest::Text)
            return;
        flush();
        highHalf = 0;
        cursor.setBlockFormat(blockFormat(top().para));
        cursor.insertBlock(QTextBlockFormat(), charFormat(top().ch));
        paraHasText = false;
    }

    // The last paragraph often has no \par: it takes the properties its text was written with,
    // or, when it has none, those in force at the end (a truncated file ends inside its groups).
    void finish()
    {
        flush();
        ParaState p = stack.empty() ? endPara : top().para;
        if (paraHasText)
            p = textPara;
        cursor.setBlockFormat(blockFormat(p));
    }

    const QByteArray& data;
    QTextCursor cursor;
    qsizetype i = 0;
    bool finished = false;
    std::vector<Group> stack;
    int overflow = 0;  // groups opened beyond maxDepth
    bool starred = false;
    int ucSkip = 0;
    char16_t highHalf = 0;

    QHash<int, QString> fonts;
    int defaultFont = 0;
    int fontNumber = -1;
    QString fontName;
    QList<QColor> colours;
    int red = 0, green = 0, blue = 0;
    bool colourSet = false;

    QString pending;
    CharState pendingFormat;
    ParaState textPara;  // where the current paragraph's last character was read
    bool paraHasText = false;
    ParaState endPara;   // in force when the outermost group closed
};

} // namespace

namespace Rtf {

bool looksLikeRtf(const QByteArray& bytes) { return bytes.startsWith("{\\rtf"); }

QByteArray write(const QTextDocument& doc) { return Writer(doc).run(); }

bool read(const QByteArray& bytes, QTextDocument* doc)
{
    if (!doc || !looksLikeRtf(bytes))
        return false;
    // Loading a file is not an edit the user can undo piece by piece.
    const bool undo = doc->isUndoRedoEnabled();
    doc->setUndoRedoEnabled(false);
    doc->clear();
    Reader(bytes, doc).run();
    doc->setUndoRedoEnabled(undo);
    return true;
}

} // namespace Rtf
