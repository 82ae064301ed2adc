// The wizards' fragments, byte for byte, from the field texts alone.
#include "wizards/BulletText.h"
#include "wizards/EmailText.h"
#include "wizards/Html.h"
#include "wizards/LineText.h"
#include "wizards/MarqueeText.h"
#include "wizards/TextAreaText.h"
#include "wizards/TextInputText.h"

#include <gtest/gtest.h>

namespace {
struct LineCase {
    const char* name;
    LineText::Fields fields;
    const char* expected;
};

LineText::Fields line(const char* colour, const char* align, const char* width, const char* size, bool pixels)
{
    return {QString::fromUtf8(colour), QString::fromUtf8(align), QString::fromUtf8(width), QString::fromUtf8(size), pixels};
}

struct EmailCase {
    const char* name;
    EmailText::Fields fields;
    const char* expected;
};

EmailText::Fields mail(const char* text, const char* address, const char* subject, const char* align)
{
    return {QString::fromUtf8(text), QString::fromUtf8(address), QString::fromUtf8(subject), QString::fromUtf8(align)};
}
}

TEST(LineText, Fragments)
{
    const LineCase cases[] = {
        {"the stored defaults", LineText::Fields{}, "<hr color=H00000000align=Center width=100% size=2>"},
        {"a chosen colour in pixels", line("\"#FF0000\"", "Left", "75", "4", true),
         "<hr color=\"#FF0000\"align=Left width=75 size=4>"},
        {"empty fields leave their places empty", line("", "", "", "", false), "<hr color=align= width=% size=>"},
        {"typed values are taken as they stand", line("red", "middle", "33.5", "x y", false),
         "<hr color=redalign=middle width=33.5% size=x y>"},
    };
    for (const LineCase& c : cases)
        EXPECT_EQ(LineText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
}

TEST(EmailText, Fragments)
{
    const EmailCase cases[] = {
        {"all fields", mail("Write to us", "a@b.example", "Hello", "Center"),
         "<p align=Center><a href=mailto:a@b.example?subject=Hello>Write to us</a></p>"},
        {"an empty subject still writes ?subject=", mail("Mail", "me@x.example", "", "Right"),
         "<p align=Right><a href=mailto:me@x.example?subject=>Mail</a></p>"},
        {"nothing is escaped or quoted", mail("<b>&</b>", "a b@c", "x&y=\"z\"", "left"),
         "<p align=left><a href=mailto:a b@c?subject=x&y=\"z\"><b>&</b></a></p>"},
        {"all empty", mail("", "", "", ""), "<p align=><a href=mailto:?subject=></a></p>"},
        {"non-ASCII letters stay as they are", mail("Grüße", "jürgen@bei.example", "Café", "Center"),
         "<p align=Center><a href=mailto:jürgen@bei.example?subject=Café>Grüße</a></p>"},
    };
    for (const EmailCase& c : cases)
        EXPECT_EQ(EmailText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
    EXPECT_EQ(EmailText::Fields{}.align, QStringLiteral("Center"));
}

TEST(Html, SharedLists)
{
    EXPECT_EQ(Html::alignments(), (QStringList{QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("Right")}));
    EXPECT_EQ(Html::fontSizes(),
              (QStringList{QStringLiteral("1  (8pt)"), QStringLiteral("2  (10pt)"), QStringLiteral("3  (12pt)"),
                           QStringLiteral("4  (14pt)"), QStringLiteral("5  (18pt)"), QStringLiteral("6  (24pt)"),
                           QStringLiteral("7  (36pt)")}));
    // {size} is the first character and nothing else.
    const std::pair<const char*, const char*> sizes[] = {{"3  (12pt)", "3"}, {"12", "1"}, {"", ""}, {"7  (36pt)", "7"}};
    for (const auto& [text, digit] : sizes)
        EXPECT_EQ(Html::sizeDigit(QString::fromUtf8(text)), QString::fromUtf8(digit)) << text;
    EXPECT_EQ(Html::crlf, QStringLiteral("\r\n"));
}

TEST(TextInputText, Fragments)
{
    auto fields = [](const char* text, bool bold, bool italic) {
        TextInputText::Fields f;
        f.CodeMax1 = QString::fromUtf8(text);
        f.bold = bold;
        f.italic = italic;
        return f;
    };
    TextInputText::Fields typed = fields("Hello\r\nworld", false, false);
    typed.Combo1 = QStringLiteral("right");
    typed.Combo2 = QStringLiteral("12");
    typed.Text2 = QStringLiteral("Times New Roman");
    typed.Text3 = QStringLiteral("\"#112233\"");
    TextInputText::Fields cleared = fields("", false, false);
    cleared.Combo2.clear();
    cleared.Text3.clear();
    const struct {
        const char* name;
        TextInputText::Fields fields;
        const char* expected;
    } cases[] = {
        {"bold and italic: italic lies outside bold", fields("x", true, true),
         "<p align=\"Center\"><font color=\"#000000\" face=\"Arial\" size=3><I><B>x</b></I></a></font></p>\r\n"},
        {"bold only", fields("x", true, false),
         "<p align=\"Center\"><font color=\"#000000\" face=\"Arial\" size=3><B>x</b></a></font></p>\r\n"},
        {"italic only", fields("x", false, true),
         "<p align=\"Center\"><font color=\"#000000\" face=\"Arial\" size=3><I>x</I></a></font></p>\r\n"},
        {"typed values, a line break kept, a typed 12 gives size=1", typed,
         "<p align=\"right\"><font color=\"#112233\" face=\"Times New Roman\" size=1>Hello\r\nworld</a></font></p>\r\n"},
        {"cleared size and colour leave their places empty", cleared,
         "<p align=\"Center\"><font color= face=\"Arial\" size=></a></font></p>\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TextInputText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
    EXPECT_EQ(TextInputText::styledText(QStringLiteral("x"), true, true), QStringLiteral("<I><B>x</b></I>"));
    EXPECT_EQ(Html::textAlignments(), (QStringList{QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("right")}));
}

TEST(BulletText, Fragments)
{
    BulletText::Fields numbers;
    numbers.bullets = false;
    numbers.Text1 = QStringLiteral("one\r\ntwo");
    numbers.Combo2 = QStringLiteral("7  (36pt)");
    BulletText::Fields bullets;
    bullets.Text1 = QStringLiteral("Item");
    bullets.Text2 = QStringLiteral("Verdana");
    bullets.Text3 = QStringLiteral("\"#FF0000\"");
    const struct {
        const char* name;
        BulletText::Fields fields;
        const char* expected;
    } cases[] = {
        {"bullets", bullets,
         "<p><font color=\"#FF0000\" face=\"Verdana\" size=3><ul>\r\n<li>Item</li>\r\n</ul></font></p>\r\n"},
        {"numbers: one item whatever the text holds", numbers,
         "<p><font color=\"#000000\" face=\"Arial\" size=7><ol>\r\n<li>one\r\ntwo</li>\r\n</ol></font></p>\r\n"},
        {"all defaults, empty item", BulletText::Fields{},
         "<p><font color=\"#000000\" face=\"Arial\" size=3><ul>\r\n<li></li>\r\n</ul></font></p>\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BulletText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
}

TEST(MarqueeText, Fragments)
{
    MarqueeText::Fields hi;
    hi.Text1 = QStringLiteral("Hi");
    MarqueeText::Fields left;
    left.Text1 = QStringLiteral("News");
    left.right = false;
    left.Text2 = QStringLiteral("2");
    left.Text3 = QStringLiteral("");
    left.Text4 = QStringLiteral("50");
    left.Text5 = QStringLiteral("20");
    left.mcolor = QStringLiteral("\"#C0C0C0\"");
    const struct {
        const char* name;
        MarqueeText::Fields fields;
        const char* expected;
    } cases[] = {
        {"the defaults with Hi", hi,
         "<marquee scrollamount=6 scrolldelay=90 bgcolor=\"#FFFFFF\" height=0 width=100%direction=Right>Hi</marquee></p>"},
        {"left, an empty delay", left,
         "<marquee scrollamount=2 scrolldelay= bgcolor=\"#C0C0C0\" height=20 width=50%direction=Left>News</marquee></p>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MarqueeText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
}

TEST(TextAreaText, Fragments)
{
    TextAreaText::Fields filled;
    filled.Text1 = QStringLiteral("line 1\r\nline 2");
    filled.Text2 = QStringLiteral("comments");
    filled.Text3 = QStringLiteral("40");
    filled.Text4 = QStringLiteral("10");
    filled.Combo1 = QStringLiteral("Left");
    const struct {
        const char* name;
        TextAreaText::Fields fields;
        const char* expected;
    } cases[] = {
        {"defaults with an empty box", TextAreaText::Fields{},
         "<p align=Center><textarea rows=6 name=S1 cols=55 ></textarea></p>\r\n"},
        {"filled", filled, "<p align=Left><textarea rows=10 name=comments cols=40 >line 1\r\nline 2</textarea></p>\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TextAreaText::fragment(c.fields), QString::fromUtf8(c.expected)) << c.name;
}
