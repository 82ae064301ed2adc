// Where a Ctrl+click in the preview lands in the page's source.
#include "documents/SourcePlace.h"

#include <QString>
#include <gtest/gtest.h>

TEST(SourcePlace, TheNthStartTagOfAName)
{
    const QString page = QStringLiteral("<HTML><body>\r\n<p>one</p><!-- <p>not this</p> -->\r\n<P class=x>two</p>"
                                        "<pre>no</pre><p\r\n>three</p><p/>");
    auto at = [&](const char* marker) { return page.indexOf(QString::fromLatin1(marker)); };
    struct Case {
        const char* tag;
        int index;
        qsizetype at;
    };
    const Case cases[] = {
        {"html", 0, 0},
        {"body", 0, 6},
        {"p", 0, 14},
        {"p", 1, at("<P class")},  // past the comment, in capitals
        {"p", 2, at("<p\r\n>")},   // a line end after the name
        {"p", 3, at("<p/>")},
        {"p", 4, -1},
        {"pre", 0, at("<pre>")},
        {"b", 0, -1},   // "<body" and "<br" are other names
        {"", 0, -1},
        {"p", -1, -1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(SourcePlace::tagStart(page, QString::fromLatin1(c.tag), c.index), c.at) << c.tag << ' ' << c.index;
    EXPECT_EQ(SourcePlace::tagStart(QStringLiteral("<!-- <p> never closed"), QStringLiteral("p"), 0), -1);
}

TEST(SourcePlace, TheClickedTextAfterItsTag)
{
    const QString page = QStringLiteral("<p>Same words</p>\n<p>\n  Same words here &amp; there</p>\n<p>Tom &amp; Jerry</p>");
    // The second paragraph's text node starts with its line end; the click fell on "here".
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 1, QStringLiteral("\n  Same words here & there"), 14),
              page.indexOf(QStringLiteral("here")));
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 0, QStringLiteral("Same words"), 5), 8);
    // The text up to its first entity is found; an entity at its very start leaves the tag.
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 2, QStringLiteral("Tom & Jerry"), 1),
              page.indexOf(QStringLiteral("om &amp; Jerry")));
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 2, QStringLiteral("& Jerry"), 3),
              page.lastIndexOf(QStringLiteral("<p>")));
    // No text clicked (an image, a blank), or an element the source does not have.
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 1, QStringLiteral("  "), 1), 18);
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("tbody"), 0, QStringLiteral("x"), 0), -1);
    // An offset beyond the text stays within it.
    EXPECT_EQ(SourcePlace::offsetOf(page, QStringLiteral("p"), 0, QStringLiteral("Same words"), 99), 13);
}
