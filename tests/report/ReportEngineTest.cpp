// The report's tokens, counts and rows, byte for byte against the texts the rows must show.
#include "report/ReportEngine.h"

#include <gtest/gtest.h>

using namespace Report;

namespace {
std::string s(const QString& q) { return q.toStdString(); }

QStringList tokensOf(const QString& text)
{
    const TokenString t = buildTokenString(text);
    const QStringList list = t.text.split(QLatin1Char(','));
    EXPECT_EQ(list.size(), t.separators + 1) << s(text);
    return list;
}

Counts countBothWays(const QString& text)
{
    const TokenString t = buildTokenString(text);
    const Counts viaString = countTokens(t.text, t.separators);
    const Counts direct = countPage(text);
    EXPECT_TRUE(viaString == direct) << "the direct walk disagrees with the token string for " << s(text);
    return direct;
}

const QString failedPair = QStringLiteral(
    "The search has failed to correctly find the same amount of %1 tags and %2 tags. The number should be the "
    "same, but you have %3 %1 and %4 %2 ends, check through the code and make sure you have the same amount.");
}

TEST(ReportTokens, SeparatorsAndDroppedCharacters)
{
    EXPECT_EQ(tokensOf(QStringLiteral("<b>bold</b> x")), (QStringList{"", "<b>bold", "</b>", "x"}));
    EXPECT_EQ(tokensOf(QStringLiteral("<html><head>")), (QStringList{"", "<html>", "<head>"}));
    EXPECT_EQ(tokensOf(QStringLiteral("<title>My page</title>")), (QStringList{"", "<title>My", "page", "</title>"}));
    // A "<" after blanks keeps the run going: the next blank adds no separator.
    EXPECT_EQ(tokensOf(QStringLiteral("a < b")), (QStringList{"a", "", "<b"}));
    // Runs of blanks give one separator; commas vanish and leave the rest of the word.
    EXPECT_EQ(tokensOf(QStringLiteral("x    y")), (QStringList{"x", "y"}));
    EXPECT_EQ(tokensOf(QStringLiteral("<img alt=a,b src=c>")), (QStringList{"", "<img", "alt=ab", "src=c>"}));
    EXPECT_EQ(tokensOf(QStringLiteral(",,,")), (QStringList{""}));
    EXPECT_EQ(tokensOf(QString()), (QStringList{""}));
    // Tabs are not blanks.
    EXPECT_EQ(tokensOf(QStringLiteral("a\tb")), (QStringList{"a\tb"}));
}

TEST(ReportTokens, LineBreaks)
{
    // A CR LF pair vanishes, so the lines join; a lone CR or LF stays inside the token.
    EXPECT_EQ(removeCrLf(QStringLiteral("a\r\nb\rc\nd")), QStringLiteral("ab\rc\nd"));
    EXPECT_EQ(removeCrLf(QStringLiteral("\r\r\n\n")), QStringLiteral("\r\n"));
    EXPECT_EQ(tokensOf(QStringLiteral("<b>\r\n</b>")), (QStringList{"", "<b>", "</b>"}));
    EXPECT_EQ(tokensOf(QStringLiteral("<p>\r\nx")), (QStringList{"", "<p>x"}));
    EXPECT_EQ(tokensOf(QStringLiteral("<p>\nx")), (QStringList{"", "<p>\nx"}));
    EXPECT_EQ(countBothWays(QStringLiteral("</p>\r\n<p>\r\n")).pOpen, 1);
    EXPECT_EQ(countBothWays(QStringLiteral("<p>\r\n")).pOpen, 1);
    EXPECT_EQ(countBothWays(QStringLiteral("<p>\n")).pOpen, 0);
}

TEST(ReportCounts, TokenTable)
{
    const Counts c = countBothWays(QStringLiteral(
        "<html> <html> </html> <body bgcolor=x> </body> <head> </head> <title> t </title> "
        "<p> <p class=a> </p> <b> </b> </b> <i> <u> </u> </u> <a href=x> </a> <img src=a> <img src=b> <img src=c> "
        "<table> <table border=1> </table> <tr> </tr> </tr> <td> <td width=2> </td> <link rel=x> <meta a> <meta b>"));
    Counts e;
    e.htmlOpen = 1; e.htmlClose = 1; e.bodyOpen = 1; e.bodyClose = 1; e.headOpen = 1; e.headClose = 1;
    e.titleOpen = 1; e.titleClose = 1; e.pOpen = 2; e.pClose = 1; e.bOpen = 1; e.bClose = 2; e.iOpen = 1;
    e.uOpen = 1; e.uClose = 2; e.aOpen = 1; e.aClose = 1; e.images = 3; e.tableOpen = 2; e.tableClose = 1;
    e.trOpen = 1; e.trClose = 2; e.tdOpen = 2; e.tdClose = 1; e.links = 1; e.metas = 2;
    EXPECT_TRUE(c == e);
}

TEST(ReportCounts, TokensTheTableLeavesOut)
{
    // "<tr" with attributes, "<a>" alone, "<html" with attributes, capitals, and tags glued to text.
    const Counts c = countBothWays(QStringLiteral("<tr align=left> <a> <html lang=en> <B> </B> <b>x </b>y <img/> <meta>"));
    EXPECT_TRUE(c == Counts{});
    const Counts d = countBothWays(QStringLiteral("<tr align=left></tr>"));
    EXPECT_EQ(d.trOpen, 0);
    EXPECT_EQ(d.trClose, 1);
}

TEST(ReportCounts, TokenStringWithWrongSeparatorCount)
{
    // Tokens past the end of a short string are empty and count nothing.
    const Counts c = countTokens(QStringLiteral("<p>,</p>"), 5);
    EXPECT_EQ(c.pOpen, 1);
    EXPECT_EQ(c.pClose, 1);
    EXPECT_EQ(countTokens(QStringLiteral("<p>,<p>"), 0).pOpen, 1);
}

TEST(ReportCounts, ProgressSteps)
{
    QList<QPair<qsizetype, qsizetype>> seen;
    // Tokens "a", "b", "c", "" and "<p>": the blank before "<" separates too.
    countPage(QStringLiteral("a b c <p>"), [&](qsizetype v, qsizetype m) { seen.append({v, m}); });
    ASSERT_GE(seen.size(), 2);
    EXPECT_EQ(seen.first(), (QPair<qsizetype, qsizetype>{0, 5}));
    EXPECT_EQ(seen.last(), (QPair<qsizetype, qsizetype>{5, 5}));

    // Many tokens: the bar moves in between and ends at its maximum.
    QString many;
    for (int i = 0; i < 40000; ++i)
        many += QStringLiteral("x ");
    seen.clear();
    countPage(many, [&](qsizetype v, qsizetype m) { seen.append({v, m}); });
    ASSERT_GT(seen.size(), 2);
    EXPECT_EQ(seen.last(), (QPair<qsizetype, qsizetype>{40001, 40001}));
    for (int i = 1; i < seen.size(); ++i)
        EXPECT_LT(seen[i - 1].first, seen[i].first);
}

TEST(ReportRows, AllPassing)
{
    const QList<Row> r = report(QStringLiteral(
        "<html> <head> <title> page </title> <meta name=a> <link rel=s> </head> <body> <p> <b> x </b> </p> "
        "<img src=a> <img src=b> <table> <tr> <td> 1 </td> <td> 2 </td> </tr> </table> <a href=x> y </a> </body> </html>"));
    ASSERT_EQ(r.size(), 16);
    for (const Row& row : r)
        EXPECT_TRUE(row.passed) << s(row.caption);
    const std::pair<QString, QString> rows[] = {
        {QStringLiteral("Passed <html> tag Completion "), QStringLiteral("Search passed a simple test to see if both <html> and </html> tags were in the document.")},
        {QStringLiteral("Passed <body> tag Completion "), QStringLiteral("Search passed a simple test to see if both <body> and </body> tags were in the document.")},
        {QStringLiteral("Passed <head> tag Completion "), QStringLiteral("Search passed a simple test to see if both <head> and </head> tags were in the document.")},
        {QStringLiteral("Passed <title> tag Completion "), QStringLiteral("Search passed a simple test to see if both <title> and </title> tags were in the document.")},
        {QStringLiteral("Passed <p> tag Completion"), QStringLiteral("The search has found correct number of start and finishes for <p> (Paragraph). There are 1 start's and 1 ends.")},
        {QStringLiteral("Passed <b> tag Completion"), QStringLiteral("The search has found correct number of start and finishes for <i>. There are 1 start and 1 ends.")},
        {QStringLiteral("Passed <i> tag Completion"), QStringLiteral("The search has found correct number of start and finishes for <i>. There are 0 start and 0 ends.")},
        {QStringLiteral("Passed <u> tag Completion"), QStringLiteral("The search has found correct number of start and finishes for <u>. There are 0 starte and 0 ends.")},
        {QStringLiteral("Passed <a> tag Completion"), QStringLiteral("The search has found correct number of start and finishes for links. There are 1 starte and 1 ends.")},
        {QStringLiteral("Found 2 Images "), QStringLiteral("The Search has foune 2 images in the document.")},
        {QStringLiteral("Found 1 Tables."), QStringLiteral("The Search has found 1 tables in the document.")},
        {QStringLiteral("Found 1 Table Rows."), QStringLiteral("The Search has found 1 Rows within tables in the document.")},
        {QStringLiteral("Found 2 Table Cells."), QStringLiteral("The Search has found 2 Cells within tables in the document. The start and finish tags are correct.")},
        {QStringLiteral("Found 1 external links."), QStringLiteral("The search has found 1 external links, which start with <link . This may be pointing towards css or js pages.")},
        {QStringLiteral("Found 1 META tag groups."), QStringLiteral("The search has found 1 META tag groups, these are defined at the top of the html code and display details of the HTML Page, More data in next Beta")},
        {QStringLiteral("Check Completed Succesfully"), QStringLiteral("Check Completed Succesfully")},
    };
    for (qsizetype i = 0; i < qsizetype(std::size(rows)); ++i) {
        EXPECT_EQ(r[i].caption, rows[i].first) << i;
        EXPECT_EQ(r[i].explanation, rows[i].second) << i;
    }
}

TEST(ReportRows, AllFailing)
{
    const QList<Row> r = report(QStringLiteral(
        "<html> <head> <title>x</title> <p> <p x> </p> <b> <b> </b> <i> <u> <a x> <a y> <a z> </a> "
        "<table> </table> </table> <tr> <td x> <td> <td>"));
    ASSERT_EQ(r.size(), 16);
    for (int i = 0; i < 15; ++i)
        EXPECT_FALSE(r[i].passed) << i;
    EXPECT_TRUE(r[15].passed);
    const std::pair<QString, QString> rows[] = {
        {QStringLiteral("Failed <html> tag Completion "), QStringLiteral("The search has failed to find either <html> or </html> tags, this can lead to untidy code.")},
        {QStringLiteral("Failed </body> tag Completion "), QStringLiteral("The search has failed to find either <body> or </body> tags, this can lead to untidy code.")},
        {QStringLiteral("Failed <head> tag Completion "), QStringLiteral("The search has failed to find either <head> or </head> tags, this can lead to untidy code.")},
        {QStringLiteral("Failed <title> tag Completion "), QStringLiteral("The search has failed to find either <title> or </title> tags, this may be beacuse you no space after the >and<, this can lead to untidy code.")},
        {QStringLiteral("Failed <p> tag Completion"), QStringLiteral("The search has failed to correctly find the same amount of (<p> + <p) tags and </p> tags. The number should be the same, but you have 2 (<p> + <p)  and 1 </p> ends, check through the code and make sure you have the same amount.")},
        {QStringLiteral("Failed <b> tag Completion"), failedPair.arg("<b>", "</b>", "2", "1")},
        {QStringLiteral("Failed <i> tag Completion"), failedPair.arg("<i>", "</i>", "1", "0")},
        {QStringLiteral("Failed <u> tag Completion"), failedPair.arg("<u>", "</u>", "1", "0")},
        {QStringLiteral("Failed <a> tag Completion"), failedPair.arg("<a", "</a>", "3", "1")},
        {QStringLiteral("No images where found"), QStringLiteral("No images where found in the doucment search.")},
        {QStringLiteral("Failed <table> tag completion"), failedPair.arg("<table>", "</table>", "1", "2")},
        {QStringLiteral("Failed <tr> tag completion"), failedPair.arg("<tr>", "</tr>", "1", "0")},
        {QStringLiteral("Failed <td> tag completion"), QStringLiteral("The search has failed to correctly find the same amount of <td> tags and </td> tags. The number should be the same, but you have 3 <td> or <td and 0 </td> ends, check through the code and make sure you have the same amount. If you dont have the same amount the html code will be untidy")},
        {QStringLiteral("No External Links Found"), QStringLiteral("The Search has found no external links, the kind that point to css or js files, this is different to hyperlinks.")},
        {QStringLiteral("No META tag group's Found"), QStringLiteral("The Search has found no META tag groupd like the author, or keywords. Adding these tags recieves better recognition in search engines")},
    };
    for (qsizetype i = 0; i < qsizetype(std::size(rows)); ++i) {
        EXPECT_EQ(r[i].caption, rows[i].first) << i;
        EXPECT_EQ(r[i].explanation, rows[i].second) << i;
    }
}

TEST(ReportRows, ExamplesOfTheCrudeModel)
{
    // A title glued to its text is not seen; with blanks around the text it is.
    EXPECT_FALSE(report(QStringLiteral("<title>My page</title>"))[3].passed);
    EXPECT_TRUE(report(QStringLiteral("<title> My page </title>"))[3].passed);
    // <b>bold</b> sees only the end tag.
    const QList<Row> bold = report(QStringLiteral("<b>bold</b>"));
    EXPECT_FALSE(bold[5].passed);
    EXPECT_EQ(bold[5].explanation, failedPair.arg("<b>", "</b>", "0", "1"));
    EXPECT_TRUE(report(QStringLiteral("<b> bold </b>"))[5].passed);
    EXPECT_FALSE(report(QStringLiteral("<table> <tr align=left> <td> x </td> </tr> </table>"))[11].passed);
    // Presence flags count once: two openings and one close still pass.
    EXPECT_TRUE(report(QStringLiteral("<html> <html> </html>"))[0].passed);
    // Only one side present fails.
    EXPECT_FALSE(report(QStringLiteral("<body>"))[1].passed);
    EXPECT_TRUE(report(QStringLiteral("<body bgcolor=red> </body>"))[1].passed);
}

TEST(ReportRows, BlanksAlone)
{
    const QList<Row> r = report(QStringLiteral("     "));
    ASSERT_EQ(r.size(), 16);
    for (int i : {0, 1, 2, 3, 9, 13, 14})
        EXPECT_FALSE(r[i].passed) << i;
    for (int i : {4, 5, 6, 7, 8, 10, 11, 12, 15})
        EXPECT_TRUE(r[i].passed) << i;
    EXPECT_EQ(r[4].explanation, QStringLiteral("The search has found correct number of start and finishes for <p> (Paragraph). There are 0 start's and 0 ends."));
    EXPECT_EQ(r[10].caption, QStringLiteral("Found 0 Tables."));
    EXPECT_EQ(r[12].caption, QStringLiteral("Found 0 Table Cells."));
    EXPECT_EQ(r[9].caption, QStringLiteral("No images where found"));
}
