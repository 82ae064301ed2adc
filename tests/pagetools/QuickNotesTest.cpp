// The quick notes' rules: the note's file, which names make one, and the search over the names.
#include "common/Utf8.h"
#include "pagetools/QuickNotes.h"

#include <gtest/gtest.h>

namespace {
const QStringList rows = {u("abc.dat"), u("ABCD table.dat"), u("form row.dat"), u("xabcx.dat")};
}

TEST(QuickNotes, Search)
{
    using QuickNotes::Match;
    const struct {
        const char* name;
        QString text;
        Match match;
        QStringList found;
    } cases[] = {
        {"partial, any letter case", u("abc"), Match::Partial, {u("abc.dat"), u("ABCD table.dat"), u("xabcx.dat")}},
        {"an empty text is in every row", u(""), Match::Partial, rows},
        {"the extension is part of the row", u(".DAT"), Match::Partial, rows},
        {"nothing found", u("zzz"), Match::Partial, {}},
        {"exact needs the whole row", u("abc"), Match::Exact, {}},
        {"exact with the extension", u("abc.dat"), Match::Exact, {u("abc.dat")}},
        {"exact minds letter case", u("ABC.DAT"), Match::Exact, {}},
        {"exact with an empty text finds no row", u(""), Match::Exact, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(QuickNotes::search(rows, c.text, c.match), c.found) << c.name;
}

TEST(QuickNotes, NamesAndFiles)
{
    EXPECT_EQ(QuickNotes::notePath(u("/app/Notes"), u("my note")), u("/app/Notes/my note.dat"));
    const struct {
        QString name;
        bool ok;
    } names[] = {
        {u("table"), true},       {u(".."), true},  // "...dat", inside the folder
        {u("a\\b"), true},        {u("ünïcödé, \"quoted\" <b>"), true},
        {u("../escape"), false},  {u("sub/note"), false},
        {u("/etc/passwd"), false}, {QString::fromUtf8("a\0b", 3), false},
        {QString(251, QLatin1Char('n')), true},   // 255 bytes with ".dat"
        {QString(252, QLatin1Char('n')), false},
        {QString(126, QChar(0x00E9)), false},     // two bytes each: 252 + 4
        {QString(125, QChar(0x00E9)), true},
    };
    for (const auto& n : names)
        EXPECT_EQ(QuickNotes::isFileName(n.name), n.ok) << n.name.toStdString();

    const QStringList files = {u("Table.dat"), u("other.txt")};
    EXPECT_TRUE(QuickNotes::isStored(files, u("table"))) << "letter case does not tell two notes apart";
    EXPECT_TRUE(QuickNotes::isStored(files, u("TABLE")));
    EXPECT_FALSE(QuickNotes::isStored(files, u("other")));
    EXPECT_FALSE(QuickNotes::isStored(files, u("Tab")));
}
