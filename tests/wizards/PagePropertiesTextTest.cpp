// The page properties steps on the work copy, byte for byte: the spans the character counting
// selects, the markers missing, doubled and in other case, CR LF and LF-only pages.
#include "wizards/PageProperties.h"

#include <gtest/gtest.h>

using PageProperties::Outcome;
using PageProperties::WorkCopy;

namespace {
QString s(const char* text) { return QString::fromUtf8(text); }
WorkCopy page(const char* text, int selStart = 0, int selLength = 0) { return {s(text), selStart, selLength}; }

// The block with the stored defaults, written out line by line.
const char* const defaultBlock =
    "<style>\r\n"
    "<!-- A:link  {color:\"#0000FF\"; text-decoration:Underlined }\r\n"
    "A:visited {color:\"#0000FF\"; text-decoration:Underlined }\r\n"
    "A:active {color:\"#0000FF\"; text-decoration:Underlined}\r\n"
    "A:hover {color:\"#0000FF\";text-decoration:Underlined} -->\r\n"
    "</style>\r\n";
QString withBlock(const char* before, const char* after) { return s(before) + s(defaultBlock) + s(after); }

struct Case {
    const char* name;
    WorkCopy before;
    Outcome outcome;
    QString expected;
    int selStart = -1;  // where the work copy's selection ends up, when the case checks it
    int selLength = 0;
};

void check(const Case& c, const PageProperties::Result& r)
{
    EXPECT_EQ(r.outcome, c.outcome) << c.name;
    EXPECT_EQ(r.copy.text, c.expected) << c.name;
    if (c.selStart >= 0) {
        EXPECT_EQ(r.copy.selStart, c.selStart) << c.name;
        EXPECT_EQ(r.copy.selLength, c.selLength) << c.name;
    }
}
}

TEST(PageProperties, SearchSteps)
{
    WorkCopy w = page("<HTML><Body BGCOLOR=x>", 2, 1);
    EXPECT_EQ(PageProperties::find(w, s("bgColor")), 12) << "without regard to case";
    EXPECT_EQ(w.selStart, 12);
    EXPECT_EQ(w.selLength, 7);
    EXPECT_EQ(PageProperties::find(w, s("<table")), -1);
    EXPECT_EQ(w.selStart, 12) << "a miss leaves the selection";
    EXPECT_EQ(w.selLength, 7);

    const QString t = s("a\"b\"c");
    const std::tuple<int, const char*, int> searches[] = {
        {1, "\"", 2}, {3, "\"", 4}, {4, "\"", 4}, {5, "\"", 0}, {6, "\"", 0}, {99, "\"", 0}, {1, "B", 0}, {1, "c", 5},
    };
    for (const auto& [start, what, expected] : searches)
        EXPECT_EQ(PageProperties::inStr(start, t, s(what)), expected) << start << what;
}

TEST(PageProperties, Margins)
{
    const Case cases[] = {
        {"the tag keeps its rest", page("<body bgcolor=\"#FFFFFF\">"), Outcome::Changed,
         s("<body topmargin=5 leftmargin=7 bgcolor=\"#FFFFFF\">"), 30, 0},
        {"a second press adds again", page("<body topmargin=5 leftmargin=7 bgcolor=\"#FFFFFF\">"), Outcome::Changed,
         s("<body topmargin=5 leftmargin=7 topmargin=5 leftmargin=7 bgcolor=\"#FFFFFF\">")},
        {"upper case marker", page("<HTML><BODY>"), Outcome::Changed, s("<HTML><body topmargin=5 leftmargin=7>")},
        {"only the first of two", page("<body><body>"), Outcome::Changed, s("<body topmargin=5 leftmargin=7><body>")},
        {"CR LF page", page("<html>\r\n<body>\r\n</body>\r\n"), Outcome::Changed,
         s("<html>\r\n<body topmargin=5 leftmargin=7>\r\n</body>\r\n")},
        {"LF page", page("<html>\n<body>\n</body>\n"), Outcome::Changed, s("<html>\n<body topmargin=5 leftmargin=7>\n</body>\n")},
        {"no marker: over the selection", page("<p>hi</p>", 3, 2), Outcome::Changed,
         s("<p><body topmargin=5 leftmargin=7</p>"), 33, 0},
        {"no marker: at the caret", page("<p>", 0, 0), Outcome::Changed, s("<body topmargin=5 leftmargin=7<p>")},
        {"empty page", page(""), Outcome::NoData, s("")},
    };
    for (const Case& c : cases)
        check(c, PageProperties::margins(c.before, s("5"), s("7")));
    // Empty fields leave their places empty.
    EXPECT_EQ(PageProperties::margins(page("<body>"), {}, {}).copy.text, s("<body topmargin= leftmargin=>"));
}

TEST(PageProperties, BackgroundAndTextColour)
{
    const Case background[] = {
        {"the value is replaced", page("<body bgcolor=\"#FFFFFF\">"), Outcome::Changed, s("<body bgcolor=\"#000000\">"), 23, 0},
        {"CR LF page", page("<html>\r\n<body bgColor=\"#FFFFFF\" text=\"#000000\">\r\n"), Outcome::Changed,
         s("<html>\r\n<body bgcolor=\"#000000\" text=\"#000000\">\r\n")},
        {"LF page", page("<html>\n<body bgColor=\"#FFFFFF\" text=\"#000000\">\n"), Outcome::Changed,
         s("<html>\n<body bgcolor=\"#000000\" text=\"#000000\">\n")},
        {"only the first of two", page("<body bgcolor=\"#FFFFFF\"><td bgcolor=\"#EEEEEE\">"), Outcome::Changed,
         s("<body bgcolor=\"#000000\"><td bgcolor=\"#EEEEEE\">")},
        {"an unquoted value runs on to the next quote", page("<body bgcolor=white text=\"#000000\">"), Outcome::Changed,
         s("<body bgcolor=\"#000000\"#000000\">")},
        {"a short value reaches the closing quote all the same", page("<body bgcolor=\"red\">"), Outcome::Changed,
         s("<body bgcolor=\"#000000\">")},
        {"no marker", page("<body>", 2, 1), Outcome::InvalidProperty, s("<body>"), 2, 1},
        {"marker at the very start", page("bgcolor=\"#FFFFFF\""), Outcome::InvalidProperty, s("bgcolor=\"#FFFFFF\""), 0, 7},
        {"no quote behind the value", page("<body bgcolor=\"#FFF>"), Outcome::InvalidProperty, s("<body bgcolor=\"#FFF>"), 5, 0},
        {"empty page", page(""), Outcome::NoData, s("")},
    };
    for (const Case& c : background)
        check(c, PageProperties::background(c.before, s("\"#000000\"")));

    const Case text[] = {
        {"the body's attribute", page("<body text=\"#000000\">"), Outcome::Changed, s("<body text=\"#00FF00\">")},
        {"the meta line comes first", page("<meta content=\"text/html\"><body text=\"#000000\">"), Outcome::Changed,
         s("<meta content= text=\"#00FF00\"><body text=\"#000000\">")},
        {"the title comes first", page("<title>My text</title><body text=\"#000000\">"), Outcome::Changed,
         s("<title>My text=\"#00FF00\"#000000\">")},
        {"CR LF page", page("<head>\r\n</head>\r\n<body TEXT=\"#000000\">"), Outcome::Changed,
         s("<head>\r\n</head>\r\n<body text=\"#00FF00\">")},
        {"no marker", page("<body>"), Outcome::InvalidProperty, s("<body>")},
        {"empty page", page(""), Outcome::NoData, s("")},
    };
    for (const Case& c : text)
        check(c, PageProperties::textColour(c.before, s("\"#00FF00\"")));
}

TEST(PageProperties, StyleBlock)
{
    EXPECT_EQ(PageProperties::styleBlock({}), s(defaultBlock));
    PageProperties::LinkStyles mine{s("red"), s("None"), s("\"#00FF00\""), s("Underline"), s(""), s(""),
                                    s("blue"), s("Underline + Upperline")};
    EXPECT_EQ(PageProperties::styleBlock(mine), s("<style>\r\n"
                                                  "<!-- A:link  {color:red; text-decoration:None }\r\n"
                                                  "A:visited {color:\"#00FF00\"; text-decoration:Underline }\r\n"
                                                  "A:active {color:; text-decoration:}\r\n"
                                                  "A:hover {color:blue;text-decoration:Underline + Upperline} -->\r\n"
                                                  "</style>\r\n"));
}

TEST(PageProperties, UpdateAndAddTheStyleBlock)
{
    const PageProperties::LinkStyles defaults;
    const Case update[] = {
        {"CR LF: one character more, the carriage return", page("<head>\r\n<style>\r\nold\r\n</style>\r\n<body>"),
         Outcome::Changed, withBlock("<head>\r\n", "\n<body>")},
        {"LF: the line end behind it", page("<head>\n<style>\nold\n</style>\n<body>"), Outcome::Changed,
         withBlock("<head>\n", "<body>")},
        {"the first of two blocks, with the character behind it", page("<style>abcd</style>x<style>b</style>"),
         Outcome::Changed, withBlock("", "<style>b</style>")},
        {"a block shorter than the skip runs on to the next closing tag", page("<style>a</style>x<style>b</style>"),
         Outcome::Changed, withBlock("", "")},
        {"the closing tag in other case is not found", page("<html><STYLE>\r\na{}\r\n</STYLE>\r\n"), Outcome::Changed,
         withBlock("<html>", "TYLE>\r\na{}\r\n</STYLE>\r\n")},
        {"no closing tag, opening one near the start", page("<style>abc"), Outcome::Changed, withBlock("", "bc")},
        {"no closing tag further in", page("<html><head><style>a{}"), Outcome::InvalidProperty, s("<html><head><style>a{}")},
        {"no marker", page("<html><head>"), Outcome::InvalidProperty, s("<html><head>")},
        {"empty page", page(""), Outcome::InvalidProperty, s("")},
    };
    for (const Case& c : update)
        check(c, PageProperties::updateStyle(c.before, defaults));

    // The load selects the same span and changes nothing.
    const PageProperties::Result sel = PageProperties::selectStyle(page("<head>\r\n<style>\r\nold\r\n</style>\r\n<body>"));
    EXPECT_EQ(sel.outcome, Outcome::Changed);
    EXPECT_EQ(sel.copy.selStart, 8);
    EXPECT_EQ(sel.copy.selLength, 23);
    EXPECT_EQ(sel.replacedStart, -1);

    const Case add[] = {
        {"behind the title", page("<title>T</title>\r\n<body>"), Outcome::Changed, withBlock("<title>T</title>\r\n\r\n", "\r\n<body>")},
        {"the first of two, other case", page("<TITLE>T</TITLE></title>"), Outcome::Changed,
         withBlock("<TITLE>T</title>\r\n\r\n", "</title>")},
        {"no marker: at the caret", page("<p></p>", 3, 0), Outcome::Changed, withBlock("<p></title>\r\n\r\n", "</p>")},
        {"no marker: over the selection", page("<p>x</p>", 3, 1), Outcome::Changed, withBlock("<p></title>\r\n\r\n", "</p>")},
        {"empty page", page(""), Outcome::Changed, withBlock("</title>\r\n\r\n", "")},
    };
    for (const Case& c : add)
        check(c, PageProperties::addStyle(c.before, defaults));
}
