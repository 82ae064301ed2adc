// The wizards' fragments, byte for byte, from the field texts alone.
#include "wizards/EmailText.h"
#include "wizards/Html.h"
#include "wizards/LineText.h"

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
