// The texts of new pages: what each field puts where. The whole pages as the start screen
// makes them are checked byte for byte with the page generator.
#include "common/QtPrinters.h"
#include "documents/PageText.h"

#include <gtest/gtest.h>

namespace {

// The start screen's fields as the form is designed.
PageText::Fields formDefaults()
{
    PageText::Fields f;
    f.Text3 = QStringLiteral("\"#000000\"");
    f.Text4 = QStringLiteral("\"#FFFFFF\"");
    f.Text7 = f.Text8 = f.Text9 = f.Text10 = QStringLiteral("\"#0000FF\"");
    f.Combo7 = f.Combo8 = f.Combo9 = f.Combo10 = QStringLiteral("Underlined");
    return f;
}

} // namespace

// --- Plain page ------------------------------------------------------------------------------

TEST(PlainPage, ColourFieldsGoInAsTheyStand)
{
    PageText::Fields f = formDefaults();
    f.Text3 = QStringLiteral("\"#123456\"");
    f.Text4 = QStringLiteral("red");  // no quotes of its own: none are added
    const QString page = PageText::plainPage(f);
    EXPECT_NE(page.indexOf(QStringLiteral("\r\n<body text=\"#123456\" bgColor=red>\r\n")), -1) << page.toStdString();
}

TEST(PlainPage, StyleFieldsDoNotReachIt)
{
    PageText::Fields f = formDefaults();
    f.Text7 = QStringLiteral("\"#ABCDEF\"");
    f.Combo7 = QStringLiteral("None");
    EXPECT_EQ(PageText::plainPage(f), PageText::plainPage(formDefaults()));
}

// --- Styled page -----------------------------------------------------------------------------

TEST(StyledPage, EachLinkStateTakesItsOwnFieldsAndDecorationAsItStands)
{
    PageText::Fields f = formDefaults();
    f.Text1 = QStringLiteral("<bgsound src=\"b.mid\" loop=-1>");
    f.Text3 = QStringLiteral("\"#111111\"");
    f.Text4 = QStringLiteral("\"#222222\"");
    f.Text7 = QStringLiteral("\"#777777\"");
    f.Text8 = QStringLiteral("\"#888888\"");
    f.Text9 = QStringLiteral("\"#999999\"");
    f.Text10 = QStringLiteral("\"#101010\"");
    f.Combo7 = QStringLiteral("Underline");
    f.Combo8 = QStringLiteral("None");
    f.Combo9 = QStringLiteral("Underline + Upperline");
    f.Combo10 = QString();
    EXPECT_EQ(PageText::styledPage(f),
              QStringLiteral("<html>\r\n"
                             "\r\n"
                             "<head>\r\n"
                             "<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n"
                             "<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n"
                             "<title></title>\r\n"
                             "<bgsound src=\"b.mid\" loop=-1>\r\n"
                             "<style>\r\n"
                             "<!-- A:link  {color:\"#777777\"; text-decoration:Underline }\r\n"
                             "A:visited {color:\"#888888\"; text-decoration:None }\r\n"
                             "A:active {color:\"#999999\"; text-decoration:Underline + Upperline}\r\n"
                             "A:hover {color:\"#101010\";text-decoration:} -->\r\n"
                             "</style>\r\n"
                             "\r\n"
                             "</head>\r\n"
                             "\r\n"
                             "<body text=\"#111111\" bgColor=\"#222222\">\r\n"
                             "\r\n"
                             "\r\n"
                             "\r\n"
                             "\r\n"
                             "\r\n"
                             "</body>\r\n"
                             "\r\n"
                             "</html>"));
}

// --- Sound tag -------------------------------------------------------------------------------

TEST(SoundTag, EmptyLocationKeepsTheCurrentTag)
{
    EXPECT_EQ(PageText::soundTag(QString(), QStringLiteral("3"), QStringLiteral("<bgsound src=\"old.wav\" loop=2>")),
              QStringLiteral("<bgsound src=\"old.wav\" loop=2>"));
    EXPECT_EQ(PageText::soundTag(QString(), QStringLiteral("0"), QString()), QString());
}

TEST(SoundTag, OtherLoopCountsGoInAsTheyStand)
{
    EXPECT_EQ(PageText::soundTag(QStringLiteral("a.wav"), QStringLiteral("3"), QString()),
              QStringLiteral("<bgsound src=\"a.wav\" loop=3>"));
    EXPECT_EQ(PageText::soundTag(QStringLiteral("a.wav"), QStringLiteral("3"), QStringLiteral("<bgsound src=\"old.wav\" loop=-1>")),
              QStringLiteral("<bgsound src=\"a.wav\" loop=3>"));
    // Only the exact text "0" means forever.
    EXPECT_EQ(PageText::soundTag(QStringLiteral("a.wav"), QStringLiteral("00"), QString()),
              QStringLiteral("<bgsound src=\"a.wav\" loop=00>"));
    EXPECT_EQ(PageText::soundTag(QStringLiteral("a.wav"), QString(), QString()),
              QStringLiteral("<bgsound src=\"a.wav\" loop=>"));
}
