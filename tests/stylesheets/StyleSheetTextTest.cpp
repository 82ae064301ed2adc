#include "stylesheets/StyleSheetText.h"

#include <gtest/gtest.h>

namespace {

TEST(StyleSheetText, HeadLinkReplacesTheTagAndLinksTheSheet)
{
    EXPECT_EQ(StyleSheetText::headLink(QStringLiteral("styles/site.css")),
              QStringLiteral("<head>\r\n\r\n<link rel=\"STYLESHEET\" href=\"styles/site.css\" type=text/css>\r\n"));
    EXPECT_EQ(StyleSheetText::headLink(QString()),
              QStringLiteral("<head>\r\n\r\n<link rel=\"STYLESHEET\" href=\"\" type=text/css>\r\n"));
}

TEST(StyleSheetText, ListsOfTheSmallSheet)
{
    EXPECT_EQ(StyleSheetText::linkTypes(), (QStringList{"A:link", "A:visited", "A:active", "A:hover"}));
    EXPECT_EQ(StyleSheetText::effects(), (QStringList{"none", "underline"}));
}

TEST(StyleSheetText, RulesStartWithALineBreakAndKeepTheirOrder)
{
    struct Case {
        const char *type, *colour, *effect, *expected;
    } cases[] = {
        {"A:link", "", "none", "\r\nA:link   {color: ; text-decoration: none}"},
        {"A:hover", "#FF0000", "underline", "\r\nA:hover   {color: #FF0000; text-decoration: underline}"},
        {"H1.big", "red", "", "\r\nH1.big   {color: red; text-decoration: }"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(StyleSheetText::rule(QString::fromUtf8(c.type), QString::fromUtf8(c.colour), QString::fromUtf8(c.effect)),
                  QString::fromUtf8(c.expected))
            << c.type;

    QString sheet;
    for (const char* type : {"A:link", "A:visited", "A:active", "A:hover", "P"})
        sheet += StyleSheetText::rule(QString::fromLatin1(type), QStringLiteral("#000000"), QStringLiteral("none"));
    EXPECT_EQ(sheet, QStringLiteral("\r\nA:link   {color: #000000; text-decoration: none}"
                                    "\r\nA:visited   {color: #000000; text-decoration: none}"
                                    "\r\nA:active   {color: #000000; text-decoration: none}"
                                    "\r\nA:hover   {color: #000000; text-decoration: none}"
                                    "\r\nP   {color: #000000; text-decoration: none}"));
}

TEST(StyleSheetText, ScrollbarBlockIsOneLineInItsOrder)
{
    const QString block = StyleSheetText::scrollbarBlock(
        {"#111111", "#222222", "#333333", "#444444", "#555555", "#666666", "#777777"});
    EXPECT_EQ(block, QStringLiteral("<style><!-- BODY{SCROLLBAR-FACE-COLOR: #111111; SCROLLBAR-HIGHLIGHT-COLOR: #222222; "
                                    "SCROLLBAR-SHADOW-COLOR: #333333; SCROLLBAR-3DLIGHT-COLOR: #444444; "
                                    "SCROLLBAR-ARROW-COLOR: #555555; SCROLLBAR-TRACK-COLOR: #666666; "
                                    "SCROLLBAR-DARKSHADOW-COLOR: #777777}--></style>"));
    EXPECT_FALSE(block.contains(QLatin1Char('\n')) || block.contains(QLatin1Char('\r')));
    EXPECT_EQ(StyleSheetText::scrollbarBlock({}),
              QStringLiteral("<style><!-- BODY{SCROLLBAR-FACE-COLOR: ; SCROLLBAR-HIGHLIGHT-COLOR: ; "
                             "SCROLLBAR-SHADOW-COLOR: ; SCROLLBAR-3DLIGHT-COLOR: ; SCROLLBAR-ARROW-COLOR: ; "
                             "SCROLLBAR-TRACK-COLOR: ; SCROLLBAR-DARKSHADOW-COLOR: }--></style>"));
}

TEST(StyleSheetText, ScrollTestPage)
{
    EXPECT_EQ(StyleSheetText::scrollTestPage(QStringLiteral("<style>X</style>"), QStringLiteral("<body>a</body>\r\n</html>")),
              QStringLiteral("<html>\r\n<head>\r\n<meta name=GENERATOR content=Velloro 2002>\r\n"
                             "<meta name=AUTHOR content=Ansel Corby>\r\n<title>Tester</title>\r\n"
                             "<style>X</style>\r\n<body>a</body>\r\n</html>"));
    EXPECT_EQ(StyleSheetText::scrollTestPath(QStringLiteral("/opt/v")), QStringLiteral("/opt/v/Templates/General/Scroll Test.htm"));
}

TEST(StyleSheetText, LinkGoesBehindTheFirstClosingHeadOnly)
{
    struct Case {
        const char *page, *expected;
        bool found;
    } cases[] = {
        {"<html><head><title>t</title></head><body></body></html>",
         "<html><head><title>t</title></head>\r\n<link rel=stylesheet type=text/css href=/s/a.css><body></body></html>", true},
        {"a</head>b</head>c", "a</head>\r\n<link rel=stylesheet type=text/css href=/s/a.css>b</head>c", true},
        {"x</HEAD>y", "x</head>\r\n<link rel=stylesheet type=text/css href=/s/a.css>y", true},
        {"<html><body>no head</body></html>", "<html><body>no head</body></html>", false},
        {"", "", false},
    };
    for (const Case& c : cases) {
        bool found = !c.found;
        EXPECT_EQ(StyleSheetText::linkBehindHead(QString::fromUtf8(c.page), QStringLiteral("/s/a.css"), &found),
                  QString::fromUtf8(c.expected))
            << c.page;
        EXPECT_EQ(found, c.found) << c.page;
    }
}

}
