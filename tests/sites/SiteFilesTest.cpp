// The project file: its six header lines, reading it back whatever its line ends or contents,
// a path added to it, and the name a path shows in the project tree.
#include "common/Utf8.h"
#include "sites/SiteFiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(SiteFiles, HeaderLinesInTheirOrder)
{
    EXPECT_EQ(SiteFiles::header({u("My Site"), u("Ann Author"), u("01/02/2026"), u("ann@example.org")}),
              u("'''Start Project Details'''\r\nMy Site\r\nAnn Author\r\n01/02/2026\r\nann@example.org\r\n'''End Of Details'''\r\n"));
    EXPECT_EQ(SiteFiles::header({}), u("'''Start Project Details'''\r\n\r\n\r\n\r\n\r\n'''End Of Details'''\r\n"))
        << "empty fields still take their lines";
    EXPECT_EQ(SiteFiles::pathLine(u("/home/ann/site/Index.htm")), u("/home/ann/site/Index.htm\r\n"));
}

TEST(SiteFiles, ReadsHeaderByPositionAndPathsAfterIt)
{
    const struct {
        const char* what;
        QByteArray bytes;
        QStringList header;
        QStringList paths;
    } cases[] = {
        {"empty file", "", {}, {}},
        {"header only", "S\r\nT\r\nA\r\nD\r\nE\r\nX\r\n", {u("S"), u("T"), u("A"), u("D"), u("E"), u("X")}, {}},
        {"fewer than six lines", "S\r\nT\r\nA", {u("S"), u("T"), u("A")}, {}},
        {"the markers are not compared", "x\r\nT\r\nA\r\nD\r\nE\r\ny\r\n/p/a.htm\r\n",
         {u("x"), u("T"), u("A"), u("D"), u("E"), u("y")}, {u("/p/a.htm")}},
        {"LF only", "S\nT\nA\nD\nE\nX\n/p/a.htm\n/p/b.htm\n", {u("S"), u("T"), u("A"), u("D"), u("E"), u("X")},
         {u("/p/a.htm"), u("/p/b.htm")}},
        {"CR only, last line without its end", "S\rT\rA\rD\rE\rX\r/p/a.htm", {u("S"), u("T"), u("A"), u("D"), u("E"), u("X")},
         {u("/p/a.htm")}},
        {"a blank line is a line", "S\r\n\r\nA\r\nD\r\nE\r\nX\r\n\r\n/p/a.htm\r\n", {u("S"), u(""), u("A"), u("D"), u("E"), u("X")},
         {u(""), u("/p/a.htm")}},
        {"bytes that are no UTF-8 read as Windows-1252", "S\r\nCaf\xe9\r\n\x80\r\nD\r\nE\r\nX\r\n",
         {u("S"), u("Café"), u("€"), u("D"), u("E"), u("X")}, {}},
    };
    for (const auto& c : cases) {
        const SiteFiles::Project p = SiteFiles::parse(c.bytes);
        EXPECT_EQ(p.header, c.header) << c.what;
        EXPECT_EQ(p.paths, c.paths) << c.what;
    }
    const SiteFiles::Project shortFile = SiteFiles::parse("S\r\nT\r\n");
    EXPECT_EQ(shortFile.line(1), u("T"));
    EXPECT_EQ(shortFile.line(2), u("")) << "a missing line reads as nothing";
}

TEST(SiteFiles, BinaryAndLargeFilesRead)
{
    QByteArray binary;
    for (int i = 0; i < 4096; ++i)
        binary += static_cast<char>((i * 37) & 0xff);
    const SiteFiles::Project p = SiteFiles::parse(binary);
    EXPECT_LE(p.header.size(), 6);

    QByteArray big = "S\r\nT\r\nA\r\nD\r\nE\r\nX\r\n";
    for (int i = 0; i < 50000; ++i)
        big += "/nowhere/site/page" + QByteArray::number(i) + ".htm\r\n";
    const SiteFiles::Project many = SiteFiles::parse(big);
    ASSERT_EQ(many.paths.size(), 50000);
    EXPECT_EQ(many.paths.last(), u("/nowhere/site/page49999.htm"));
}

TEST(SiteFiles, AddingAPathKeepsEveryLineWhole)
{
    EXPECT_EQ(SiteFiles::withPath("S\r\nX\r\n", u("/p/a.htm")), QByteArray("S\r\nX\r\n/p/a.htm\r\n"));
    EXPECT_EQ(SiteFiles::withPath("S\r\nX", u("/p/a.htm")), QByteArray("S\r\nX\r\n/p/a.htm\r\n"))
        << "a last line without its end is not glued to the new path";
    EXPECT_EQ(SiteFiles::withPath("S\nX\n", u("/p/a.htm")), QByteArray("S\nX\n/p/a.htm\r\n"));
    EXPECT_EQ(SiteFiles::withPath("", u("/p/ä.htm")), QByteArray("/p/\xc3\xa4.htm\r\n"));
}

TEST(SiteFiles, NodeTextIsTheNameOfAFileThatIsThere)
{
    QTemporaryDir dir;
    QFile f(dir.filePath(u("page one.htm")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_EQ(SiteFiles::nodeText(dir.filePath(u("page one.htm"))), u("page one.htm"));
    EXPECT_EQ(SiteFiles::nodeText(dir.filePath(u("gone.htm"))), u(""));
    EXPECT_EQ(SiteFiles::nodeText(dir.path()), u("")) << "a folder is no file";
    EXPECT_EQ(SiteFiles::nodeText(u("")), u(""));
    EXPECT_EQ(SiteFiles::nodeText(u("\x01\x02")), u(""));
}
