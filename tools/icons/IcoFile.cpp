#include "IcoFile.h"

#include <QBuffer>
#include <QtEndian>

namespace IcoFile {
namespace {
void put16(QByteArray& out, quint16 v)
{
    char b[2];
    qToLittleEndian(v, b);
    out.append(b, 2);
}
void put32(QByteArray& out, quint32 v)
{
    char b[4];
    qToLittleEndian(v, b);
    out.append(b, 4);
}
}

QByteArray encode(const QList<QImage>& images)
{
    QList<QByteArray> pngs;
    for (const QImage& image : images) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.convertToFormat(QImage::Format_ARGB32).save(&buffer, "PNG");
        pngs.append(png);
    }
    QByteArray out;
    put16(out, 0);  // reserved
    put16(out, 1);  // type: icon
    put16(out, quint16(images.size()));
    quint32 offset = 6 + 16 * quint32(images.size());
    for (qsizetype i = 0; i < images.size(); ++i) {
        // A width or height of 256 is written as 0.
        out.append(char(images[i].width() >= 256 ? 0 : images[i].width()));
        out.append(char(images[i].height() >= 256 ? 0 : images[i].height()));
        out.append(char(0));  // no palette
        out.append(char(0));  // reserved
        put16(out, 1);        // colour planes
        put16(out, 32);       // bits per pixel
        put32(out, quint32(pngs[i].size()));
        put32(out, offset);
        offset += quint32(pngs[i].size());
    }
    for (const QByteArray& png : pngs)
        out.append(png);
    return out;
}
}
