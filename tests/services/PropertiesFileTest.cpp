// \Options\Properties.dat: the dialogs' last folders and the two panel widths.
#include "common/QtPrinters.h"
#include "services/PropertiesFile.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {
PropertiesRecord paths()
{
    PropertiesRecord r;
    r.openDir = QStringLiteral("/home/me/pages");
    r.openDrive = QStringLiteral("/");
    r.openFileDir = QStringLiteral("/home/me/pages/site");
    r.saveDir = QStringLiteral("/home/me/out");
    r.saveDrive = QStringLiteral("/media/usb");
    r.saveFileDir = QStringLiteral("/home/me/out/new");
    return r;
}
}

// --- Parse -----------------------------------------------------------------------------------

// Field by field: eight lines; a comma in a path, which ends the field and shifts every later
// one (the slipped widths are not the folded values, so both panels come up open); missing
// lines, which stay empty without an error.
TEST(PropertiesParse, FieldByField)
{
    const struct {
        const char* text;
        int read;
        QStringList fields;  // open dir, drive, file dir; save dir, drive, file dir; the two widths
    } cases[] = {
        {"c:\\web\r\nc:\r\nc:\\web\\files\r\nd:\\out\r\nd:\r\nd:\\out\\x\r\n 3470 \r\n 720 \r\n", 8,
         {"c:\\web", "c:", "c:\\web\\files", "d:\\out", "d:", "d:\\out\\x", "3470", "720"}},
        {"/home/me/a,b\r\n/\r\n/home/me/a,b\r\n/out\r\n/\r\n/out\r\n 475 \r\n 140 \r\n", 8,
         {"/home/me/a", "b", "/", "/home/me/a", "b", "/out", "/", "/out"}},
        {"/a\r\n/\r\n/a/b\r\n", 3, {"/a", "/", "/a/b", "", "", "", "", ""}},
        {"", 0, {"", "", "", "", "", "", "", ""}},
    };
    for (const auto& c : cases) {
        PropertiesRecord r;
        EXPECT_NO_THROW(r = PropertiesFile::parse(QString::fromLatin1(c.text)));
        EXPECT_EQ(r.fieldsRead, c.read) << c.text;
        EXPECT_EQ((QStringList{r.openDir, r.openDrive, r.openFileDir, r.saveDir, r.saveDrive, r.saveFileDir, r.sideWidth,
                               r.rightWidth}),
                  c.fields)
            << c.text;
        EXPECT_FALSE(PropertiesFile::sideFolded(r.sideWidth)) << c.text;
        EXPECT_FALSE(PropertiesFile::rightFolded(r.rightWidth)) << c.text;
    }
}

// --- Panel states ----------------------------------------------------------------------------

TEST(PropertiesPanels, OnlyTheFoldedWidthsFold)
{
    EXPECT_TRUE(PropertiesFile::sideFolded(QStringLiteral("475")));
    for (const char* width : {"476", "3470", "140", "", "abc"})
        EXPECT_FALSE(PropertiesFile::sideFolded(QString::fromLatin1(width))) << width;
    EXPECT_TRUE(PropertiesFile::rightFolded(QStringLiteral("140")));
    for (const char* width : {"141", "720", "475", ""})
        EXPECT_FALSE(PropertiesFile::rightFolded(QString::fromLatin1(width))) << width;
}

// --- Text ------------------------------------------------------------------------------------

TEST(PropertiesText, PlainFormByteForByte)
{
    EXPECT_EQ(PropertiesFile::text(paths(), 3470, 720),
              QStringLiteral("/home/me/pages\r\n/\r\n/home/me/pages/site\r\n/home/me/out\r\n/media/usb\r\n"
                             "/home/me/out/new\r\n 3470 \r\n 720 \r\n"));
    EXPECT_EQ(PropertiesFile::text(PropertiesRecord{}, 475, 140),
              QStringLiteral("\r\n\r\n\r\n\r\n\r\n\r\n 475 \r\n 140 \r\n"));
}

TEST(PropertiesText, FoldedStateSurvivesSaveAndLoad)
{
    const PropertiesRecord folded = PropertiesFile::parse(PropertiesFile::text(paths(), 475, 140));
    EXPECT_EQ(folded.fieldsRead, 8);
    EXPECT_EQ(folded.openDir, QStringLiteral("/home/me/pages"));
    EXPECT_EQ(folded.saveFileDir, QStringLiteral("/home/me/out/new"));
    EXPECT_TRUE(PropertiesFile::sideFolded(folded.sideWidth));
    EXPECT_TRUE(PropertiesFile::rightFolded(folded.rightWidth));

    const PropertiesRecord open = PropertiesFile::parse(PropertiesFile::text(paths(), 3470, 720));
    EXPECT_FALSE(PropertiesFile::sideFolded(open.sideWidth));
    EXPECT_FALSE(PropertiesFile::rightFolded(open.rightWidth));
}

TEST(PropertiesText, PathWithACommaIsWrittenUnquoted)
{
    PropertiesRecord r = paths();
    r.openDir = QStringLiteral("/home/me/a,b");
    EXPECT_TRUE(PropertiesFile::text(r, 3470, 720).startsWith(QStringLiteral("/home/me/a,b\r\n/\r\n")));
}
