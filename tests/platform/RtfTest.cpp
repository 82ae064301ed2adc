// Rich text files: the exact words the writer uses, formatted documents through a write and a
// read, hand-written files, damaged and random files, and the control's LoadFile/SaveFile.
#include "common/TestSupport.h"

#include "platform/RichTextBox.h"
#include "platform/Rtf.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QWidget>

#include <memory>
#include <optional>
#include <random>

namespace {

// A document whose default font is known, whatever fonts the machine has.
std::unique_ptr<QTextDocument> newDocument()
{
    auto doc = std::make_unique<QTextDocument>();
    QFont f(QStringLiteral("Velloro Sans"));
    f.setPointSizeF(10);
    doc->setDefaultFont(f);
    return doc;
}

QByteArray rtf(const char* text) { return QByteArray(text); }

// The character format of the character at offset in block (not of the caret before it).
QTextCharFormat formatAt(const QTextDocument& doc, int block, int offset)
{
    QTextCursor c(const_cast<QTextDocument*>(&doc));
    c.setPosition(doc.findBlockByNumber(block).position() + offset + 1);
    return c.charFormat();
}

QString familyOf(const QTextCharFormat& f, const QTextDocument& doc)
{
    const QStringList families = f.fontFamilies().toStringList();
    return families.isEmpty() ? doc.defaultFont().family() : families.first();
}

struct Expected {
    QString family;
    double points;
    std::optional<QRgb> colour;  // none: the automatic colour
    bool bold, italic, underline;
};

void expectFormat(const QTextDocument& doc, int block, int offset, const Expected& e)
{
    SCOPED_TRACE(testing::Message() << "block " << block << " offset " << offset);
    const QTextCharFormat f = formatAt(doc, block, offset);
    EXPECT_EQ(familyOf(f, doc), e.family);
    EXPECT_DOUBLE_EQ(f.fontPointSize(), e.points);
    if (e.colour) {
        ASSERT_TRUE(f.hasProperty(QTextFormat::ForegroundBrush));
        EXPECT_EQ(f.foreground().color().rgb(), *e.colour);
    } else {
        EXPECT_FALSE(f.hasProperty(QTextFormat::ForegroundBrush) && f.foreground().style() != Qt::NoBrush);
    }
    EXPECT_EQ(f.fontWeight() >= QFont::Bold, e.bold);
    EXPECT_EQ(f.fontItalic(), e.italic);
    EXPECT_EQ(f.fontUnderline(), e.underline);
}

void expectBlock(const QTextDocument& doc, int block, Qt::Alignment align, double left, double right, double first)
{
    SCOPED_TRACE(testing::Message() << "block " << block);
    const QTextBlockFormat f = doc.findBlockByNumber(block).blockFormat();
    EXPECT_EQ(f.alignment() & Qt::AlignHorizontal_Mask, align);
    EXPECT_DOUBLE_EQ(f.leftMargin(), left);
    EXPECT_DOUBLE_EQ(f.rightMargin(), right);
    EXPECT_DOUBLE_EQ(f.textIndent(), first);
}

QString blockText(const QTextDocument& doc, int block) { return doc.findBlockByNumber(block).text(); }

bool isAscii(const QByteArray& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QTextCharFormat charFormat(const QString& family, double points, std::optional<QColor> colour, bool bold,
                           bool italic, bool underline)
{
    QTextCharFormat f;
    f.setFontFamilies(QStringList{family});
    f.setFontPointSize(points);
    if (colour)
        f.setForeground(*colour);
    f.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    f.setFontItalic(italic);
    f.setFontUnderline(underline);
    return f;
}

QTextBlockFormat blockFormat(Qt::Alignment align, double left, double right, double first)
{
    QTextBlockFormat f;
    f.setAlignment(align);
    f.setLeftMargin(left);
    f.setRightMargin(right);
    f.setTextIndent(first);
    return f;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Writing

TEST(RtfWrite, PlainParagraphsAndSpecialCharacters)
{
    auto doc = newDocument();
    doc->setPlainText(QStringLiteral("a{b}\\c\t\u00E9\u20AC\U0001F600\nsecond"));
    const QByteArray expected =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil\\fcharset0 Velloro Sans;}}\r\n"
        "{\\colortbl;}\r\n"
        "\\pard\\f0\\fs20 a\\{b\\}\\\\c\\tab \\u233?\\u8364?\\u-10179?\\u-8704?\\par\r\n"
        "\\pard second}\r\n";
    EXPECT_EQ(Rtf::write(*doc).toStdString(), expected.toStdString());
}

TEST(RtfWrite, StatesOnlyWhatChangesAndParagraphProperties)
{
    auto doc = newDocument();
    QTextCursor c(doc.get());
    c.insertText(QStringLiteral("plain "), QTextCharFormat());
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    c.insertText(QStringLiteral("bold"), bold);
    c.insertText(QStringLiteral(" after"), QTextCharFormat());
    // 48, 16 and -24 pixels are 720, 240 and -360 twips.
    c.insertBlock(blockFormat(Qt::AlignHCenter, 48, 16, -24));
    c.insertText(QStringLiteral("red"), charFormat(QStringLiteral("Other Face"), 14, QColor(255, 0, 0), false, true, true));
    c.insertBlock(blockFormat(Qt::AlignJustify, 0, 0, 0), QTextCharFormat());
    c.insertText(QStringLiteral("x"));
    c.insertBlock(blockFormat(Qt::AlignRight, 0, 0, 0), QTextCharFormat());

    const QByteArray expected =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil\\fcharset0 Velloro Sans;}"
        "{\\f1\\fnil\\fcharset0 Other Face;}}\r\n"
        "{\\colortbl;\\red255\\green0\\blue0;}\r\n"
        "\\pard\\f0\\fs20 plain \\b bold\\b0  after\\par\r\n"
        "\\pard\\qc\\li720\\ri240\\fi-360\\f1\\fs28\\cf1\\i\\ul red\\f0\\fs20\\cf0\\i0\\ulnone\\par\r\n"
        "\\pard\\qj x\\par\r\n"
        "\\pard\\qr}\r\n";
    const QByteArray written = Rtf::write(*doc);
    EXPECT_EQ(written.toStdString(), expected.toStdString());
    EXPECT_TRUE(isAscii(written));
}

// ---------------------------------------------------------------------------------------------
// Round trips

TEST(RtfRoundTrip, FormattedDocumentKeepsEveryRunAndParagraph)
{
    auto doc = newDocument();
    QTextCursor c(doc.get());
    const QColor sky(0, 128, 255);
    const QColor red(255, 0, 0);
    c.setBlockFormat(blockFormat(Qt::AlignLeft, 0, 0, 0));
    c.insertText(QStringLiteral("Title \u00E9\u20AC "), charFormat(QStringLiteral("Velloro Serif"), 18, std::nullopt, true, false, false));
    c.insertText(QStringLiteral("\u4E2D\u6587 \U0001F600"), charFormat(QStringLiteral("Velloro Mono"), 11, sky, false, true, false));
    c.insertBlock(blockFormat(Qt::AlignRight, 48, 24, 0));
    c.insertText(QStringLiteral("a\tb\tc"), charFormat(QStringLiteral("Velloro Serif"), 12, red, false, false, true));
    c.insertText(QStringLiteral(" tail"), QTextCharFormat());
    c.insertBlock(blockFormat(Qt::AlignJustify, 0, 0, -20));
    c.insertText(QStringLiteral("line one\u2028line two"), charFormat(QStringLiteral("Velloro Mono"), 9.5, red, true, true, true));
    // An empty line keeps its size.
    c.insertBlock(blockFormat(Qt::AlignHCenter, 0, 0, 0), charFormat(QStringLiteral("Velloro Serif"), 24, std::nullopt, false, false, false));
    c.insertBlock(blockFormat(Qt::AlignLeft, 0, 0, 0), QTextCharFormat());
    c.insertText(QStringLiteral("{braces} \\ back"), QTextCharFormat());

    const QByteArray written = Rtf::write(*doc);
    ASSERT_TRUE(isAscii(written));
    auto back = newDocument();
    ASSERT_TRUE(Rtf::read(written, back.get()));

    ASSERT_EQ(back->blockCount(), 5);
    EXPECT_EQ(blockText(*back, 0), QStringLiteral("Title \u00E9\u20AC \u4E2D\u6587 \U0001F600"));
    EXPECT_EQ(blockText(*back, 1), QStringLiteral("a\tb\tc tail"));
    EXPECT_EQ(blockText(*back, 2), QStringLiteral("line one\u2028line two"));
    EXPECT_EQ(blockText(*back, 3), QString());
    EXPECT_EQ(blockText(*back, 4), QStringLiteral("{braces} \\ back"));

    const Expected title{QStringLiteral("Velloro Serif"), 18, std::nullopt, true, false, false};
    const Expected cjk{QStringLiteral("Velloro Mono"), 11, sky.rgb(), false, true, false};
    const Expected tabs{QStringLiteral("Velloro Serif"), 12, red.rgb(), false, false, true};
    const Expected plain{QStringLiteral("Velloro Sans"), 10, std::nullopt, false, false, false};
    const Expected lines{QStringLiteral("Velloro Mono"), 9.5, red.rgb(), true, true, true};
    expectFormat(*back, 0, 0, title);
    expectFormat(*back, 0, 8, title);   // the euro sign and the blank after it
    expectFormat(*back, 0, 9, cjk);
    expectFormat(*back, 0, 13, cjk);    // the second half of the emoji
    expectFormat(*back, 1, 0, tabs);
    expectFormat(*back, 1, 1, tabs);    // a tab
    expectFormat(*back, 1, 4, tabs);
    expectFormat(*back, 1, 5, plain);
    expectFormat(*back, 1, 9, plain);
    expectFormat(*back, 2, 0, lines);
    expectFormat(*back, 2, 8, lines);   // the line break
    expectFormat(*back, 2, 16, lines);
    expectFormat(*back, 4, 0, plain);
    EXPECT_DOUBLE_EQ(back->findBlockByNumber(3).charFormat().fontPointSize(), 24.0);

    expectBlock(*back, 0, Qt::AlignLeft, 0, 0, 0);
    expectBlock(*back, 1, Qt::AlignRight, 48, 24, 0);
    expectBlock(*back, 2, Qt::AlignJustify, 0, 0, -20);
    expectBlock(*back, 3, Qt::AlignHCenter, 0, 0, 0);
    expectBlock(*back, 4, Qt::AlignLeft, 0, 0, 0);

    // A second trip changes nothing more.
    EXPECT_EQ(Rtf::write(*back).toStdString(), written.toStdString());
}

TEST(RtfRoundTrip, EmptyDocumentAndFontNamesWithSpecialCharacters)
{
    auto doc = newDocument();
    auto back = newDocument();
    back->setPlainText(QStringLiteral("old text"));
    ASSERT_TRUE(Rtf::read(Rtf::write(*doc), back.get()));
    EXPECT_EQ(back->toPlainText(), QString());
    EXPECT_EQ(back->blockCount(), 1);

    QTextCursor c(doc.get());
    c.insertText(QStringLiteral("x"), charFormat(QStringLiteral("Caf\u00E9 {Sans}"), 12, std::nullopt, false, false, false));
    const QByteArray written = Rtf::write(*doc);
    EXPECT_TRUE(written.contains("{\\f1\\fnil\\fcharset0 Caf\\u233? \\{Sans\\};}")) << written.constData();
    ASSERT_TRUE(Rtf::read(written, back.get()));
    EXPECT_EQ(familyOf(formatAt(*back, 0, 0), *back), QStringLiteral("Caf\u00E9 {Sans}"));
}

// ---------------------------------------------------------------------------------------------
// Reading files written by hand

TEST(RtfRead, HandWrittenFile)
{
    const QByteArray file = rtf(R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\froman\fcharset0 Velloro Serif;}{\f1\fswiss{\*\panose 020b0604020202020204} Velloro Sans;}}
{\colortbl;\red255\green0\blue0;\red0\green0\blue255;}
{\*\generator Some writer;}{\info{\title Ignored title}{\author Nobody}}
{\stylesheet{\s0 Normal;}}
\pard\qc\f1\fs28\cf1 Caf\'e9 {\b bold {\i both} \cf2 blue}\b0  plain\par
\pard\li720\ri360\fi-360\f0\fs20\cf0 \u8364? euro\line next\tab tabbed\ul  under\ulnone  over\par
\pard\qr\'93quoted\'94 \{x\} \\ {\*\unknown skipped {deeper} text}{\pict\wmetafile8\picw10 0a0b{}}done}
)");
    auto doc = newDocument();
    ASSERT_TRUE(Rtf::read(file, doc.get()));
    ASSERT_EQ(doc->blockCount(), 3);
    EXPECT_EQ(blockText(*doc, 0), QStringLiteral("Caf\u00E9 bold both blue plain"));
    EXPECT_EQ(blockText(*doc, 1), QStringLiteral("\u20AC euro\u2028next\ttabbed under over"));
    EXPECT_EQ(blockText(*doc, 2), QStringLiteral("\u201Cquoted\u201D {x} \\ done"));

    const QRgb red = qRgb(255, 0, 0);
    expectFormat(*doc, 0, 3, {QStringLiteral("Velloro Sans"), 14, red, false, false, false});
    expectFormat(*doc, 0, 5, {QStringLiteral("Velloro Sans"), 14, red, true, false, false});
    expectFormat(*doc, 0, 10, {QStringLiteral("Velloro Sans"), 14, red, true, true, false});
    expectFormat(*doc, 0, 15, {QStringLiteral("Velloro Sans"), 14, qRgb(0, 0, 255), true, false, false});
    // Leaving the groups restores colour and weight.
    expectFormat(*doc, 0, 20, {QStringLiteral("Velloro Sans"), 14, red, false, false, false});
    expectFormat(*doc, 1, 0, {QStringLiteral("Velloro Serif"), 10, std::nullopt, false, false, false});
    expectFormat(*doc, 1, 19, {QStringLiteral("Velloro Serif"), 10, std::nullopt, false, false, true});
    expectFormat(*doc, 1, 25, {QStringLiteral("Velloro Serif"), 10, std::nullopt, false, false, false});

    expectBlock(*doc, 0, Qt::AlignHCenter, 0, 0, 0);
    expectBlock(*doc, 1, Qt::AlignLeft, 48, 24, -24);
    expectBlock(*doc, 2, Qt::AlignRight, 0, 0, 0);
}

TEST(RtfRead, UnicodeEscapesAndSkipCounts)
{
    struct Case {
        const char* input;
        QString text;
    };
    const Case cases[] = {
        {R"({\rtf1 \u233 x})", QStringLiteral("\u00E9")},                       // the x is the fallback
        {R"({\rtf1 \uc0\u233 x})", QStringLiteral("\u00E9x")},                  // nothing to skip
        {R"({\rtf1 \uc2\u8364\'80\'80z})", QStringLiteral("\u20ACz")},          // hex escapes count as one
        {R"({\rtf1 {\uc2\u233 ab}\u233 cd})", QStringLiteral("\u00E9\u00E9d")}, // the count ends with its group
        {R"({\rtf1 \u8364?\u-4064?})", QStringLiteral("\u20AC\uF020")},         // N past 32767 is negative
        {R"({\rtf1 \u-10179?\u-8704? ok})", QStringLiteral("\U0001F600 ok")},   // a surrogate pair
        {R"({\rtf1 a\u-10179?b})", QStringLiteral("ab")},                       // a lone half is dropped
        {R"({\rtf1 \'e9\'80\'93\'94})", QStringLiteral("\u00E9\u20AC\u201C\u201D")},
        {R"({\rtf1 {\upr{ansi text}{\*\ud{\u233?t}}}})", QStringLiteral("\u00E9t")},
        {R"({\rtf1 a\~b\emdash c\bullet\endash\lquote\rquote\ldblquote\rdblquote})", QStringLiteral("a\u00A0b\u2014c\u2022\u2013\u2018\u2019\u201C\u201D")},
        {R"({\rtf1 shown{\v hidden}\v0  too})", QStringLiteral("shown too")},
        {"{\\rtf1 raw \xE9 byte}", QStringLiteral("raw \u00E9 byte")},
    };
    for (const Case& c : cases) {
        auto doc = newDocument();
        ASSERT_TRUE(Rtf::read(rtf(c.input), doc.get())) << c.input;
        EXPECT_EQ(doc->begin().text(), c.text) << c.input;  // the document's own text: no space for \~
    }
}

TEST(RtfRead, FormattingWordsGroupsAndDefaults)
{
    auto doc = newDocument();
    ASSERT_TRUE(Rtf::read(rtf(R"({\rtf1\deff1{\fonttbl\f0 Zero;\f1 One;}{\colortbl\red1\green2\blue3;;}a{\b b{\i c}d}e\ul f\ul0 g\ul h\ulnone i\b\i\fs30\cf0 j\plain k})"),
                          doc.get()));
    EXPECT_EQ(doc->toPlainText(), QStringLiteral("abcdefghijk"));
    const QString one = QStringLiteral("One");  // \deff1 without \f
    const QRgb first = qRgb(1, 2, 3);           // a table may start with a real colour
    // Size, bold, italic and underline of a to k.
    const struct { double points; bool bold, italic, underline; } runs[] = {
        {12, false, false, false}, {12, true, false, false}, {12, true, true, false}, {12, true, false, false},
        {12, false, false, false}, {12, false, false, true}, {12, false, false, false}, {12, false, false, true},
        {12, false, false, false}, {15, true, true, false}, {12, false, false, false}};
    for (int k = 0; k < 11; ++k)
        expectFormat(*doc, 0, k, {one, runs[k].points, first, runs[k].bold, runs[k].italic, runs[k].underline});

    // The properties in force at \par make the paragraph; \pard returns to the defaults.
    ASSERT_TRUE(Rtf::read(rtf(R"({\rtf1 \qc\li300 one\par two\pard\par\qr three})"), doc.get()));
    ASSERT_EQ(doc->blockCount(), 3);
    expectBlock(*doc, 0, Qt::AlignHCenter, 20, 0, 0);
    expectBlock(*doc, 1, Qt::AlignLeft, 0, 0, 0);
    expectBlock(*doc, 2, Qt::AlignRight, 0, 0, 0);
}

TEST(RtfRead, NotRtfLeavesTheDocumentAlone)
{
    const QByteArray notRtf[] = {"", "hello", " {\\rtf1 x}", "{\\RTF1 x}", "{\\rt", "\xEF\xBB\xBF{\\rtf1 x}"};
    for (const QByteArray& bytes : notRtf) {
        EXPECT_FALSE(Rtf::looksLikeRtf(bytes)) << bytes.constData();
        auto doc = newDocument();
        doc->setPlainText(QStringLiteral("kept"));
        EXPECT_FALSE(Rtf::read(bytes, doc.get())) << bytes.constData();
        EXPECT_EQ(doc->toPlainText(), QStringLiteral("kept"));
    }
    EXPECT_TRUE(Rtf::looksLikeRtf("{\\rtf1"));
    EXPECT_FALSE(Rtf::read("{\\rtf1 x}", nullptr));
}

TEST(RtfRead, DamagedFilesGiveWhatCouldBeRead)
{
    struct Case {
        QByteArray input;
        QString text;
    };
    const QByteArray deep = QByteArray(100000, '{') + "lost" + QByteArray(100000, '}');
    const Case cases[] = {
        {"{\\rtf1", QString()},
        {"{\\rtf", QString()},
        {"{\\rtf1 abc", QStringLiteral("abc")},
        {"{\\rtf1 {\\b bold", QStringLiteral("bold")},
        {"{\\rtf1 a}}}} more", QStringLiteral("a")},
        {"{\\rtf1 a\\", QStringLiteral("a")},
        {"{\\rtf1 a\\'", QStringLiteral("a")},
        {"{\\rtf1 a\\'4", QStringLiteral("a")},  // a control character is never text
        {"{\\rtf1 a\\'4g}", QStringLiteral("ag")},
        {"{\\rtf1 a\\u", QStringLiteral("a")},
        {"{\\rtf1 \\u99999999999999999999999 xy}", QStringLiteral("y")},  // no character, but x is its fallback
        {"{\\rtf1 \\uc99999 \\u233 abc}", QStringLiteral("\u00E9")},
        {"{\\rtf1 \\bin999999999 abc}", QString()},
        {"{\\rtf1 \\bin3 {}}x}", QStringLiteral("x")},
        {"{\\rtf1 \\* x}", QStringLiteral(" x")},  // a control symbol takes no delimiter
        {"{\\rtf1 {\\fonttbl{\\f0 Arial", QString()},
        {"{\\rtf1 {\\colortbl;\\red300\\green-5;}\\cf1 c\\cf999 d}", QStringLiteral("cd")},
        {"{\\rtf1 " + deep + "after}", QStringLiteral("after")},
        {"{\\rtf1 " + QByteArray(100000, '}'), QString()},
        {"{\\rtf1 \\" + QByteArray(5000, 'a') + " x}", QStringLiteral("x")},
        {QByteArray("{\\rtf1 a\0b}", 11), QStringLiteral("ab")},
        // A star with nothing after it in its group does not hide the group around it.
        {"{\\rtf1 {\\*}\\b Hello}", QStringLiteral("Hello")},
        // Index entries and contents entries are no text of the page.
        {"{\\rtf1 a{\\xe {\\v entry}}b{\\tc Heading}c{\\*\\rxe r}}", QStringLiteral("abc")},
    };
    for (const Case& c : cases) {
        auto doc = newDocument();
        ASSERT_TRUE(Rtf::read(c.input, doc.get())) << c.input.left(60).constData();
        EXPECT_EQ(doc->toPlainText(), c.text) << c.input.left(60).constData();
    }

    // Out-of-range numbers are clamped to something a document can lay out.
    auto doc = newDocument();
    ASSERT_TRUE(Rtf::read("{\\rtf1 \\fs99999999999\\li-99999999999\\ri99999 big}", doc.get()));
    EXPECT_DOUBLE_EQ(formatAt(*doc, 0, 0).fontPointSize(), 1600.0);
    expectBlock(*doc, 0, Qt::AlignLeft, -2112, 2112, 0);
    // The colour table clamps its components.
    ASSERT_TRUE(Rtf::read("{\\rtf1 {\\colortbl;\\red300\\green-5\\blue7;}\\cf1 c}", doc.get()));
    EXPECT_EQ(formatAt(*doc, 0, 0).foreground().color().rgb(), qRgb(255, 0, 7));
}

// Thousands of random and mutated files: each read returns, and what was read survives a write
// and a second read unchanged, character by character.
TEST(RtfRead, RandomAndMutatedFilesReturnAndRoundTrip)
{
    const char* tokens[] = {
        "{", "}", "\\", "\\b", "\\b0", "\\i", "\\ul", "\\ulnone", "\\par", "\\pard", "\\plain", "\\f1",
        "\\f0", "\\fs", "\\fs-5", "\\fs40", "\\cf1", "\\cf2", "\\u", "\\u-10179?", "\\u-8704?", "\\u8364",
        "\\uc0", "\\uc3", "\\'", "\\'e9", "\\'8", "\\*", "\\fonttbl", "{\\f1 Velloro Mono;}", "\\colortbl",
        "\\red255", "\\blue9", ";", "\\bin", "\\bin5 ", "\\pict", "\\info", "\\upr", "\\ud", "\\qc", "\\qr",
        "\\qj", "\\li99999999999999", "\\li720", "\\fi-360", "\\ri15", "\\line", "\\tab", "\\~", "\\v",
        "\\deff1", " ", "x", "word", "\xC3\xA9", "\x93", "999999999999999999999", "-", "\r\n", "\t"};
    const QByteArray sample = rtf(R"({\rtf1\ansi\deff0{\fonttbl{\f0 Velloro Serif;}{\f1 Velloro Mono;}}{\colortbl;\red255\green0\blue0;}
\pard\qc\f1\fs28\cf1 Caf\'e9 {\b bold {\i both}}\par\pard\li720\fi-360 \u8364? euro\line next\tab t\ul u\ulnone\par
{\*\x skipped}{\pict\bin4 {{{{}\uc0\u-10179\u-8704 done})");

    std::mt19937 random(20240611);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    int checked = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray input;
        if (round % 2 == 0) {
            input = "{\\rtf1 ";
            const int count = pick(60);
            for (int k = 0; k < count; ++k)
                input += pick(8) == 0 ? QByteArray(1, static_cast<char>(pick(256))) : QByteArray(tokens[pick(std::size(tokens))]);
        } else {
            input = sample;
            const int edits = 1 + pick(8);
            for (int k = 0; k < edits && input.size() > 6; ++k) {
                const int at = 5 + pick(int(input.size()) - 5);
                switch (pick(4)) {
                case 0: input[at] = static_cast<char>(pick(256)); break;
                case 1: input.insert(at, tokens[pick(std::size(tokens))]); break;
                case 2: input.remove(at, 1 + pick(10)); break;
                default: input.truncate(at); break;
                }
            }
        }
        SCOPED_TRACE(input.toPercentEncoding(" {}\\;?*'-").constData());
        auto first = newDocument();
        ASSERT_TRUE(Rtf::read(input, first.get()));
        ASSERT_LE(first->characterCount(), input.size() + 1);

        const QByteArray written = Rtf::write(*first);
        ASSERT_TRUE(isAscii(written));
        auto second = newDocument();
        ASSERT_TRUE(Rtf::read(written, second.get()));
        ASSERT_EQ(second->blockCount(), first->blockCount());
        for (int b = 0; b < first->blockCount(); ++b) {
            ASSERT_EQ(blockText(*second, b), blockText(*first, b));
            const QTextBlockFormat f1 = first->findBlockByNumber(b).blockFormat();
            const QTextBlockFormat f2 = second->findBlockByNumber(b).blockFormat();
            ASSERT_EQ(f2.alignment(), f1.alignment());
            ASSERT_DOUBLE_EQ(f2.leftMargin(), f1.leftMargin());
            ASSERT_DOUBLE_EQ(f2.rightMargin(), f1.rightMargin());
            ASSERT_DOUBLE_EQ(f2.textIndent(), f1.textIndent());
            for (int k = 0; k < blockText(*first, b).size(); ++k) {
                const QTextCharFormat c1 = formatAt(*first, b, k);
                const QTextCharFormat c2 = formatAt(*second, b, k);
                ASSERT_EQ(familyOf(c2, *second), familyOf(c1, *first)) << "block " << b << " at " << k;
                ASSERT_DOUBLE_EQ(c2.fontPointSize(), c1.fontPointSize());
                ASSERT_EQ(c2.foreground().style() != Qt::NoBrush, c1.foreground().style() != Qt::NoBrush);
                ASSERT_EQ(c2.foreground().color().rgb(), c1.foreground().color().rgb());
                ASSERT_EQ(c2.fontWeight(), c1.fontWeight());
                ASSERT_EQ(c2.fontItalic(), c1.fontItalic());
                ASSERT_EQ(c2.fontUnderline(), c1.fontUnderline());
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 10000) << "the inputs gave too little text to compare";
}

// ---------------------------------------------------------------------------------------------
// The control's files

namespace {
using Kind = RichTextBox::Kind;

class RtfBoxFiles : public ::testing::TestWithParam<Kind> {
protected:
    void SetUp() override { ASSERT_TRUE(dir.isValid()); }
    RichTextBox* box()
    {
        boxes.push_back(std::make_unique<RichTextBox>(GetParam(), &window, &window));
        return boxes.back().get();
    }
    void select(RichTextBox* b, int from, int length)
    {
        b->setSelStart(from);
        b->setSelLength(length);
    }
    QByteArray readFile(const QString& path) const
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }
    void writeFile(const QString& path, const QByteArray& bytes) const
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }

    ScriptedPrompts prompts;
    QTemporaryDir dir;
    QWidget window;
    std::vector<std::unique_ptr<RichTextBox>> boxes;
};

std::string kindName(const ::testing::TestParamInfo<Kind>& info)
{
    return info.param == Kind::Visible ? "Visible" : "Hidden";
}
} // namespace

INSTANTIATE_TEST_SUITE_P(Rtf, RtfBoxFiles, ::testing::Values(Kind::Visible, Kind::Hidden), kindName);

TEST_P(RtfBoxFiles, SaveWritesRichTextAndLoadRestoresIt)
{
    RichTextBox* b = box();
    b->setText(QStringLiteral("Hello world\r\nsecond caf\u00E9 line"));
    select(b, 6, 5);
    b->setSelFontName(QStringLiteral("Velloro Mono"));
    b->setSelFontSize(15);
    b->setSelColor(0x0000FF);  // red, in the platform's order
    b->setSelBold(true);
    b->setSelStart(14);
    b->setSelIndent(720);

    const QString path = dir.filePath(QStringLiteral("note.rtf"));
    b->SaveFile(path);
    const QByteArray bytes = readFile(path);
    EXPECT_TRUE(bytes.startsWith("{\\rtf1")) << bytes.constData();
    EXPECT_TRUE(isAscii(bytes));
    EXPECT_TRUE(bytes.contains("\\f1\\fs30\\cf1\\b world")) << bytes.constData();
    EXPECT_TRUE(bytes.contains("{\\colortbl;\\red255\\green0\\blue0;}")) << bytes.constData();
    EXPECT_TRUE(bytes.contains("\\pard\\li720")) << bytes.constData();
    EXPECT_TRUE(bytes.contains("caf\\u233? line")) << bytes.constData();

    RichTextBox* other = box();
    other->LoadFile(path);
    EXPECT_EQ(other->text(), QStringLiteral("Hello world\r\nsecond caf\u00E9 line"));
    EXPECT_EQ(other->SelStart(), 0);
    select(other, 6, 5);
    EXPECT_TRUE(other->SelBold());
    EXPECT_EQ(other->SelColor(), 0x0000FF);
    EXPECT_EQ(other->SelFontName(), QStringLiteral("Velloro Mono"));
    EXPECT_DOUBLE_EQ(other->SelFontSize(), 15.0);
    select(other, 0, 5);
    EXPECT_FALSE(other->SelBold());
    other->setSelStart(14);
    EXPECT_EQ(other->SelIndent(), 720);
    other->setSelStart(2);
    EXPECT_EQ(other->SelIndent(), 0);

    // Saving again replaces the whole file.
    b->setText(QStringLiteral("short"));
    b->SaveFile(path);
    other->LoadFile(path);
    EXPECT_EQ(other->text(), QStringLiteral("short"));
}

TEST_P(RtfBoxFiles, FilesThatAreNotRichTextLoadAsPlainText)
{
    const QString txt = dir.filePath(QStringLiteral("plain.txt"));
    writeFile(txt, "{not rtf} \\b x\r\ncaf\xC3\xA9");
    RichTextBox* b = box();
    b->LoadFile(txt);
    EXPECT_EQ(b->text(), QStringLiteral("{not rtf} \\b x\r\ncaf\u00E9"));

    // Windows-1252 bytes that are not UTF-8.
    writeFile(txt, "caf\xE9 \x80");
    b->LoadFile(txt);
    EXPECT_EQ(b->text(), QStringLiteral("caf\u00E9 \u20AC"));

    // Rich text needs no particular file name.
    writeFile(txt, R"({\rtf1 {\b Bold} plain\par second})");
    b->LoadFile(txt);
    EXPECT_EQ(b->text(), QStringLiteral("Bold plain\r\nsecond"));
    select(b, 0, 4);
    EXPECT_TRUE(b->SelBold());
    select(b, 5, 5);
    EXPECT_FALSE(b->SelBold());
}
