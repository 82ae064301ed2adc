// Draws the program's pictures into Options/Images, one .ico per picture name with 16, 24 and
// 32 px images, writes the manifest of names, and on request contact sheets to look at them.
//
//   iconmaker <images folder> <manifest file> [--sheet <png prefix>]
#include "Glyphs.h"
#include "IcoFile.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QSaveFile>
#include <QSet>
#include <QTextStream>
#include <cstdio>

namespace {
const QList<int> kSizes = {16, 24, 32};

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    f.write(bytes);
    return f.commit();
}

// Sheets are drawn from the files as written, read back through Qt's icon reader.
void writeSheets(const QList<IconDef>& icons, const QString& folder, const QString& prefix)
{
    const int columns = 3, rows = 14, cellW = 340, cellH = 58;
    const int perPage = columns * rows;
    for (int first = 0, pageNo = 1; first < icons.size(); first += perPage, ++pageNo) {
        QImage sheet(columns * cellW, rows * cellH, QImage::Format_ARGB32);
        sheet.fill(Qt::white);
        QPainter p(&sheet);
        QFont f(QStringLiteral("DejaVu Sans"));
        f.setPixelSize(10);
        p.setFont(f);
        for (int i = first; i < qMin(first + perPage, int(icons.size())); ++i) {
            const int x = ((i - first) % columns) * cellW, y = ((i - first) / columns) * cellH;
            p.fillRect(x + 2, y + 2, 142, 54, QColor(0xF4, 0xF6, 0xF8));
            QImageReader reader(folder + QLatin1Char('/') + icons[i].name + QStringLiteral(".ico"));
            int ix = x + 6;
            for (int n = 0; n < reader.imageCount(); ++n) {
                reader.jumpToImage(n);
                const QImage img = reader.read();
                p.drawImage(ix, y + 6, img);
                ix += img.width() + 4;
                if (img.width() == 16) {
                    p.drawImage(QRect(x + 92, y + 5, 48, 48), img);  // magnified, pixel by pixel
                }
            }
            p.setPen(Qt::black);
            p.drawText(QRect(x + 148, y + 4, cellW - 150, cellH - 8), Qt::TextWordWrap, icons[i].name);
        }
        p.end();
        const QString out = prefix + QStringLiteral("-%1.png").arg(pageNo);
        sheet.save(out);
        std::printf("sheet %s\n", qPrintable(out));
    }
}
}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: iconmaker <images folder> <manifest file> [--sheet <png prefix>]\n");
        return 2;
    }
    const QString folder = args[1];
    const QString manifest = args[2];
    const int sheetAt = int(args.indexOf(QStringLiteral("--sheet")));
    QDir().mkpath(folder);

    const QList<IconDef> icons = allIcons();
    QSet<QString> names;
    QByteArray list = "# The pictures of Options/Images: file name, a tab, what the picture shows.\n"
                      "# Written by tools/icons/iconmaker (make icons); do not edit by hand.\n";
    for (const IconDef& icon : icons) {
        if (names.contains(icon.name)) {
            std::fprintf(stderr, "iconmaker: picture %s is drawn twice\n", qPrintable(icon.name));
            return 1;
        }
        names.insert(icon.name);
        QList<QImage> images;
        for (int size : kSizes)
            images.append(renderIcon(icon, size));
        const QString file = icon.name + QStringLiteral(".ico");
        if (!writeFile(folder + QLatin1Char('/') + file, IcoFile::encode(images))) {
            std::fprintf(stderr, "iconmaker: cannot write %s\n", qPrintable(file));
            return 1;
        }
        list += file.toUtf8() + '\t' + icon.shows.toUtf8() + '\n';
    }
    // Pictures no longer in the table would linger in the application folder.
    for (const QString& old : QDir(folder).entryList({QStringLiteral("*.ico")}, QDir::Files)) {
        if (!names.contains(old.chopped(4))) {
            QFile::remove(folder + QLatin1Char('/') + old);
            std::printf("removed %s\n", qPrintable(old));
        }
    }
    if (!writeFile(manifest, list)) {
        std::fprintf(stderr, "iconmaker: cannot write %s\n", qPrintable(manifest));
        return 1;
    }
    std::printf("%d pictures in %s\n", int(icons.size()), qPrintable(folder));
    if (sheetAt > 0 && sheetAt + 1 < args.size())
        writeSheets(icons, folder, args[sheetAt + 1]);
    return 0;
}
