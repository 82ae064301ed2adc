// The sidebar's texts, written out as the program must produce them.
#include "reference/SidebarText.h"

#include <gtest/gtest.h>

using namespace SidebarText;

TEST(SidebarText, ATreeCodeStandsOnALineOfItsOwn)
{
    const struct {
        const char* caption;
        const char* fragment;
    } cases[] = {
        {"<p>", "<p>\r\n"},
        {"<HTML", "<HTML\r\n"},                  // the sidebar's open tag, as it stands
        {"<Frames>", "<Frames>\r\n"},            // a branch goes in like a leaf
        {"Language=\"\"", "Language=\"\"\r\n"},  // its quotes untouched
        {"", "\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(codeFragment(QString::fromUtf8(c.caption)), QString::fromUtf8(c.fragment)) << c.caption;
}

TEST(SidebarText, PatternRowsInTheirOrder)
{
    EXPECT_EQ(patternRows(), (QStringList{QStringLiteral("*.*"), QStringLiteral("*.html"), QStringLiteral("*.htm"),
                                          QStringLiteral("*.txt"), QStringLiteral("*.tmpl")}));
}

TEST(SidebarText, TheChosenFileIsJoinedWithoutLookingAtTheFolder)
{
    const struct {
        const char* folder;
        const char* name;
        const char* path;
    } cases[] = {
        {"/home/ann/site", "index.htm", "/home/ann/site/index.htm"},
        {"/", "index.htm", "//index.htm"},        // the root's separator is doubled
        {"/home/ann/site", "", "/home/ann/site/"},  // nothing chosen: the folder, which no window opens
        {"/home/ann/my site", "a b.html", "/home/ann/my site/a b.html"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(chosenFilePath(QString::fromUtf8(c.folder), QString::fromUtf8(c.name)), QString::fromUtf8(c.path)) << c.path;
}

TEST(SidebarText, TheOnTopButtonGoesByItsCaption)
{
    const struct {
        const char* before;
        bool changes;
        bool topmost;
        const char* after;
    } cases[] = {
        {"Disable", true, false, "Enable"},
        {"Enable", true, true, "Disable"},
        // Captions are compared exactly: anything else leaves the window and the caption alone.
        {"disable", false, false, "disable"},
        {"Enable ", false, false, "Enable "},
        {"", false, false, ""},
    };
    for (const auto& c : cases) {
        const TopmostStep step = topmostStep(QString::fromUtf8(c.before));
        EXPECT_EQ(step.changes, c.changes) << c.before;
        if (step.changes) {
            EXPECT_EQ(step.topmost, c.topmost) << c.before;
        }
        EXPECT_EQ(step.caption, QString::fromUtf8(c.after)) << c.before;
    }
}
