// Text files: decoding, atomic replacement, creation of missing files.
#include "common/FileSizeLimit.h"
#include "common/QtPrinters.h"
#include "platform/TextFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<unreadable>");
    return f.readAll();
}

void putFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_EQ(f.write(bytes), bytes.size());
}

QStringList entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}
}

// --- Decoding --------------------------------------------------------------------------------

TEST(TextFilesDecode, Utf8)
{
    EXPECT_EQ(TextFiles::decode(QByteArray("caf\xC3\xA9 \xE2\x82\xAC\r\n")), QStringLiteral(u"café €\r\n"));
    EXPECT_EQ(TextFiles::decode(QByteArray("plain ascii")), QStringLiteral("plain ascii"));
    EXPECT_EQ(TextFiles::decode(QByteArray()), QString());
}

TEST(TextFilesDecode, InvalidUtf8FallsBackToWindows1252)
{
    EXPECT_EQ(TextFiles::decode(QByteArray("\x80")), QStringLiteral(u"\u20AC"));
    EXPECT_EQ(TextFiles::decode(QByteArray("caf\xE9")), QStringLiteral(u"café"));
    EXPECT_EQ(TextFiles::decode(QByteArray("\x93quoted\x94 \x85 \x99")), QStringLiteral(u"\u201Cquoted\u201D \u2026 \u2122"));
    EXPECT_EQ(TextFiles::decode(QByteArray("\xA0\xFF")), QStringLiteral(u"\u00A0\u00FF"));
}

TEST(TextFilesDecode, MixedFilesKeepTheirValidUtf8)
{
    // A valid é, a stray Windows-1252 euro sign and a lone Latin é in one file.
    EXPECT_EQ(TextFiles::decode(QByteArray("caf\xc3\xa9 \x80 \xe9")), QStringLiteral("caf\u00e9 \u20ac \u00e9"));
    // A sequence cut short by the end of the file, and an overlong form, are single bytes.
    EXPECT_EQ(TextFiles::decode(QByteArray("\xe2\x82")), QStringLiteral("\u00e2\u201a"));
    EXPECT_EQ(TextFiles::decode(QByteArray("\xc0\xaf")), QStringLiteral("\u00c0\u00af"));
    // Four-byte sequences stay whole.
    EXPECT_EQ(TextFiles::decode(QByteArray("\xf0\x9f\x98\x80\x9f")), QStringLiteral("\U0001F600\u0178"));
}

// The editor reads a file in pieces; cut anywhere, the pieces give what the whole file gives.
TEST(TextFilesDecode, PiecesOfAFileGiveTheTextOfTheWholeFile)
{
    const QByteArray files[] = {
        QByteArray("caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80 plain"),                 // UTF-8
        QByteArray("caf\xe9 \x80 \x93quoted\x94 \xe2\x82"),                              // Windows-1252
        QByteArray("\xc3\xa9\xe9\x80\xe2\x82\xac\xe2\x82x\xf0\x9f\x98\x80\x9f\xc0\xaf"),  // both, cut and overlong
    };
    for (const QByteArray& file : files) {
        const QByteArray whole = TextFiles::toEditorText(file);
        EXPECT_EQ(QString::fromUtf8(whole), TextFiles::decode(file)) << file.toHex().constData();
        for (qsizetype size = 1; size <= 5; ++size) {
            QByteArray text, held;
            for (qsizetype at = 0; at < file.size(); at += size)
                text += TextFiles::toEditorText(held + file.mid(at, size), &held);
            text += TextFiles::toEditorText(held);
            EXPECT_EQ(text, whole) << "pieces of " << size << " bytes of " << file.toHex().constData();
        }
    }
}

TEST(TextFilesDecode, APieceHoldsBackOnlyACharacterItCuts)
{
    QByteArray held;
    EXPECT_EQ(TextFiles::toEditorText(QByteArray("ab\xe2\x82"), &held), QByteArray("ab"));
    EXPECT_EQ(held, QByteArray("\xe2\x82"));
    EXPECT_EQ(TextFiles::toEditorText(QByteArray("ab\xe2\x82\xac"), &held), QByteArray("ab\xe2\x82\xac"));
    EXPECT_EQ(held, QByteArray());
    // Stray continuation bytes are no start of a character: Windows-1252 at once.
    EXPECT_EQ(TextFiles::toEditorText(QByteArray("a\x80\x80"), &held), QByteArray("a\xe2\x82\xac\xe2\x82\xac"));
    EXPECT_EQ(held, QByteArray());
}

TEST(TextFilesDecode, EncodeIsUtf8AndRoundTrips)
{
    const QString text = QStringLiteral(u"<p>é € \u4E2D</p>\r\n");
    EXPECT_EQ(TextFiles::encode(text), QByteArray("<p>\xC3\xA9 \xE2\x82\xAC \xE4\xB8\xAD</p>\r\n"));
    EXPECT_EQ(TextFiles::decode(TextFiles::encode(text)), text);
}

// --- Writing ---------------------------------------------------------------------------------

TEST(TextFilesWrite, ReplacesTheWholeFileAndLeavesNoScratchFile)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    putFile(path, QByteArray("a much longer old content that must vanish entirely"));

    QString error;
    EXPECT_TRUE(TextFiles::writeBytes(path, QByteArray("new"), &error)) << error.toStdString();
    EXPECT_EQ(fileBytes(path), QByteArray("new"));
    EXPECT_EQ(entries(dir.path()), QStringList{QStringLiteral("page.htm")});

    EXPECT_TRUE(TextFiles::writeText(path, QStringLiteral(u"é\r\n")));
    EXPECT_EQ(fileBytes(path), QByteArray("\xC3\xA9\r\n"));

    EXPECT_TRUE(TextFiles::writeBytes(path, QByteArray()));
    EXPECT_EQ(fileBytes(path), QByteArray());
    EXPECT_TRUE(TextFiles::exists(path));
}

TEST(TextFilesWrite, AFullDiskLeavesTheOldFileWholeForShortAndLongTexts)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    ASSERT_TRUE(TextFiles::writeBytes(path, "old page"));
    // A short text is held in a buffer until the end, a long one is written at once: both
    // must fail whole.
    for (const qsizetype size : {qsizetype(100), qsizetype(200 * 1024)}) {
        QString error;
        bool wrote = true;
        {
            const FileSizeLimit fullDisk(64);
            ASSERT_TRUE(fullDisk.holds());
            wrote = TextFiles::writeBytes(path, QByteArray(size, 'n'), &error);
        }
        EXPECT_FALSE(wrote) << size << " bytes";
        EXPECT_FALSE(error.isEmpty());
        EXPECT_EQ(TextFiles::readBytes(path), QByteArray("old page")) << size << " bytes";
        EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("page.htm")});
    }
}

TEST(TextFilesWrite, MissingFolderFailsAndLeavesNothing)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("no/such/folder/page.htm"));
    QString error;
    EXPECT_FALSE(TextFiles::writeBytes(path, QByteArray("x"), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(TextFiles::exists(path));
    EXPECT_TRUE(entries(dir.path()).isEmpty()) << entries(dir.path()).join(QLatin1Char(' ')).toStdString();
}

TEST(TextFilesWrite, FolderInTheWayFailsAndIsLeftAlone)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("page.htm")));
    putFile(path + QStringLiteral("/inside.txt"), QByteArray("keep"));

    EXPECT_FALSE(TextFiles::writeBytes(path, QByteArray("x")));
    EXPECT_EQ(fileBytes(path + QStringLiteral("/inside.txt")), QByteArray("keep"));
    EXPECT_EQ(entries(dir.path()), QStringList{QStringLiteral("page.htm")});
}

// --- Reading and creating --------------------------------------------------------------------

TEST(TextFilesRead, AMissingFileGivesNothingAndNotOkAFileItsText)
{
    QTemporaryDir dir;
    bool ok = true;
    EXPECT_EQ(TextFiles::readBytes(dir.filePath(QStringLiteral("none.dat")), &ok), QByteArray());
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(TextFiles::readText(dir.filePath(QStringLiteral("none.dat")), &ok), QString());
    EXPECT_FALSE(ok);

    const QString path = dir.filePath(QStringLiteral("Details.dat"));
    putFile(path, QByteArray("\"Maximised\"\r\n\xE9\r\n"));
    EXPECT_EQ(TextFiles::readText(path, &ok), QStringLiteral(u"\"Maximised\"\r\né\r\n"));
    EXPECT_TRUE(ok);
}

TEST(TextFilesCreate, AMissingFileIsMadeEmptyWithItsFoldersAnExistingOneLeftAlone)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Options/FTP/Main.DAT"));
    EXPECT_FALSE(TextFiles::exists(path));
    EXPECT_TRUE(TextFiles::createIfMissing(path));
    EXPECT_TRUE(TextFiles::exists(path));
    EXPECT_EQ(fileBytes(path), QByteArray());

    const QString existing = dir.filePath(QStringLiteral("Details.dat"));
    putFile(existing, QByteArray("0\r\n1\r\n"));
    EXPECT_TRUE(TextFiles::createIfMissing(existing));
    EXPECT_EQ(fileBytes(existing), QByteArray("0\r\n1\r\n"));

    // A folder of that name is not a file.
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("Notes")));
    EXPECT_FALSE(TextFiles::exists(dir.filePath(QStringLiteral("Notes"))));
    EXPECT_FALSE(TextFiles::createIfMissing(dir.filePath(QStringLiteral("Notes"))));
}
