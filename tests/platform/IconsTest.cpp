// The pictures of Options/Images: the .ico container the generator writes, that every picture
// reads with its three sizes, that the list and the folder agree, and that every name the menus
// and windows load has its file.
#include "../../tools/icons/IcoFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSet>
#include <gtest/gtest.h>

namespace {
const QString kImages = QStringLiteral(VELLORO_SOURCE_DATA "/Options/Images");
const QString kManifest = QStringLiteral(VELLORO_SOURCE_DIR "/tools/icons/icons.txt");

// File name to description, in the manifest's order; an unreadable or malformed list fails.
QList<QPair<QString, QString>> manifest()
{
    QList<QPair<QString, QString>> rows;
    QFile f(kManifest);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << kManifest.toStdString();
    const QStringList lines = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList parts = line.split(QLatin1Char('\t'));
        EXPECT_EQ(parts.size(), 2) << "malformed line: " << line.toStdString();
        if (parts.size() == 2)
            rows.append({parts[0], parts[1]});
    }
    return rows;
}

QByteArray bytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QImage solid(int size, QColor c)
{
    QImage img(size, size, QImage::Format_ARGB32);
    img.fill(c);
    return img;
}

// Reads every picture of an .ico, keyed by width.
QMap<int, QImage> readAll(QIODevice* device)
{
    QMap<int, QImage> out;
    QImageReader reader(device, "ico");
    const int n = reader.imageCount();
    for (int i = 0; i < n; ++i) {
        if (!reader.jumpToImage(i))
            break;
        const QImage img = reader.read();
        if (!img.isNull())
            out.insert(img.width(), img);
    }
    return out;
}
}

TEST(IcoFile, WrittenPicturesReadBackWithTheirSizesAndPixels)
{
    const QColor a(200, 30, 40), b(10, 150, 60), c(20, 40, 220, 128);
    QByteArray ico = IcoFile::encode({solid(16, a), solid(24, b), solid(32, c)});
    // Header: reserved 0, type 1 (icon), three entries; the first entry says 16 by 16, 32 bits.
    ASSERT_GE(ico.size(), 6 + 3 * 16);
    EXPECT_EQ(ico.left(6), QByteArray("\0\0\1\0\3\0", 6));
    EXPECT_EQ(quint8(ico[6]), 16);
    EXPECT_EQ(quint8(ico[7]), 16);
    // The first picture starts right after the directory.
    EXPECT_EQ(quint8(ico[6 + 12]) | quint8(ico[6 + 13]) << 8, 6 + 3 * 16);

    QBuffer buffer(&ico);
    buffer.open(QIODevice::ReadOnly);
    const QMap<int, QImage> images = readAll(&buffer);
    ASSERT_EQ(images.keys(), QList<int>({16, 24, 32}));
    EXPECT_EQ(images[16].height(), 16);
    EXPECT_EQ(images[16].pixelColor(5, 5), a);
    EXPECT_EQ(images[24].pixelColor(23, 23), b);
    EXPECT_EQ(images[32].pixelColor(0, 31).alpha(), 128);
}

TEST(IcoFile, AnEmptyListIsAHeaderOnly)
{
    EXPECT_EQ(IcoFile::encode({}), QByteArray("\0\0\1\0\0\0", 6));
}

TEST(IconSet, TheListAndTheFolderHoldTheSameFiles)
{
    QSet<QString> listed;
    for (const auto& [file, shows] : manifest()) {
        EXPECT_TRUE(file.endsWith(QLatin1String(".ico"))) << file.toStdString();
        EXPECT_FALSE(shows.trimmed().isEmpty()) << file.toStdString();
        EXPECT_FALSE(listed.contains(file)) << "listed twice: " << file.toStdString();
        listed.insert(file);
        EXPECT_TRUE(QFile::exists(kImages + QLatin1Char('/') + file)) << "missing: " << file.toStdString();
    }
    EXPECT_GT(listed.size(), 200);
    for (const QString& file : QDir(kImages).entryList(QDir::Files))
        EXPECT_TRUE(listed.contains(file)) << "not in the list: " << file.toStdString();
}

TEST(IconSet, EveryPictureReadsAt16And32AndShowsSomething)
{
    const auto rows = manifest();
    ASSERT_FALSE(rows.isEmpty());
    for (const auto& [file, shows] : rows) {
        QFile f(kImages + QLatin1Char('/') + file);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << file.toStdString();
        const QMap<int, QImage> images = readAll(&f);
        for (int size : {16, 24, 32}) {
            ASSERT_TRUE(images.contains(size)) << file.toStdString() << " lacks " << size;
            const QImage& img = images[size];
            EXPECT_EQ(img.height(), size) << file.toStdString();
            // Drawn, not blank, and not a filled square: some pixels are ink, some transparent
            // or light.
            int inked = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    inked += img.pixelColor(x, y).alpha() > 128;
            EXPECT_GT(inked, size * size / 10) << file.toStdString() << " at " << size;
        }
    }
}

// The picture names the program loads besides the menu keys (the menu's test checks those
// against the table): the page windows' context menus, the report rows, the style grid, and the
// main window's panels and bars.
TEST(IconSet, EveryNameBesidesTheMenuKeysHasItsFile)
{
    const QStringList names = {
        "Delete", "In", "html", "Image1", "SelectAll", "Editor Properties", "Format Text", "InsertNow", "Tabbed Text",
        "Info", "Ok", "minus", "plus",
        "Open Files", "Show the Library", "Character List", "Javascript examples", "Project window",
        "Refresh Directory Structure", "Close Bar", "Close Tool Tip Window",
        "Check Box", "Button", "Submit", "Text Box Area", "Hidden Box", "Marquee Text", "Drop Down Menu",
        "Ordered List", "Outdent", "Indent",
        "Branch", "Branch Open", "Leaf", "Web Link", "Script Leaf",
    };
    for (const QString& name : names)
        EXPECT_TRUE(QFile::exists(kImages + QLatin1Char('/') + name + QStringLiteral(".ico"))) << name.toStdString();
}

#ifdef VELLORO_APP_DIR
// The build folder is an application folder: names with blanks, apostrophes, dots and plus
// signs must survive the copy next to the executable.
TEST(IconSet, TheBuildFolderHoldsTheSamePictures)
{
    const QString copied = QStringLiteral(VELLORO_APP_DIR "/Options/Images/");
    for (const auto& [file, shows] : manifest())
        EXPECT_EQ(bytes(copied + file), bytes(kImages + QLatin1Char('/') + file)) << file.toStdString();
}
#endif
