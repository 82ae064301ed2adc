// \Options\Properties.dat: the dialogs' last folders and the two panel widths.
#include "common/QtPrinters.h"
#include "services/PropertiesFile.h"

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

TEST(PropertiesParse, EightLines)
{
    const PropertiesRecord r = PropertiesFile::parse(QStringLiteral(
        "c:\\web\r\nc:\r\nc:\\web\\files\r\nd:\\out\r\nd:\r\nd:\\out\\x\r\n 3470 \r\n 720 \r\n"));
    EXPECT_EQ(r.fieldsRead, 8);
    EXPECT_EQ(r.openDir, QStringLiteral("c:\\web"));
    EXPECT_EQ(r.openDrive, QStringLiteral("c:"));
    EXPECT_EQ(r.openFileDir, QStringLiteral("c:\\web\\files"));
    EXPECT_EQ(r.saveDir, QStringLiteral("d:\\out"));
    EXPECT_EQ(r.saveDrive, QStringLiteral("d:"));
    EXPECT_EQ(r.saveFileDir, QStringLiteral("d:\\out\\x"));
    EXPECT_EQ(r.sideWidth, QStringLiteral("3470"));
    EXPECT_EQ(r.rightWidth, QStringLiteral("720"));
}

TEST(PropertiesParse, PathWithACommaShiftsEveryLaterField)
{
    const PropertiesRecord r = PropertiesFile::parse(QStringLiteral(
        "/home/me/a,b\r\n/\r\n/home/me/a,b\r\n/out\r\n/\r\n/out\r\n 475 \r\n 140 \r\n"));
    EXPECT_EQ(r.fieldsRead, 8);
    EXPECT_EQ(r.openDir, QStringLiteral("/home/me/a"));
    EXPECT_EQ(r.openDrive, QStringLiteral("b"));
    EXPECT_EQ(r.openFileDir, QStringLiteral("/"));
    EXPECT_EQ(r.saveDir, QStringLiteral("/home/me/a"));
    EXPECT_EQ(r.saveDrive, QStringLiteral("b"));
    EXPECT_EQ(r.saveFileDir, QStringLiteral("/out"));
    EXPECT_EQ(r.sideWidth, QStringLiteral("/"));
    EXPECT_EQ(r.rightWidth, QStringLiteral("/out"));
    // The slipped widths are not the folded values, so both panels come up open.
    EXPECT_FALSE(PropertiesFile::sideFolded(r.sideWidth));
    EXPECT_FALSE(PropertiesFile::rightFolded(r.rightWidth));
}

TEST(PropertiesParse, MissingFieldsStayEmptyWithoutAnError)
{
    PropertiesRecord r;
    EXPECT_NO_THROW(r = PropertiesFile::parse(QStringLiteral("/a\r\n/\r\n/a/b\r\n")));
    EXPECT_EQ(r.fieldsRead, 3);
    EXPECT_EQ(r.openFileDir, QStringLiteral("/a/b"));
    EXPECT_EQ(r.saveDir, QString());
    EXPECT_EQ(r.sideWidth, QString());
    EXPECT_EQ(r.rightWidth, QString());
    EXPECT_FALSE(PropertiesFile::sideFolded(r.sideWidth));
    EXPECT_FALSE(PropertiesFile::rightFolded(r.rightWidth));

    EXPECT_EQ(PropertiesFile::parse(QString()).fieldsRead, 0);
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
