#pragma once
#include <QByteArray>
#include <QImage>
#include <QList>

// The .ico container: a six-byte header, one sixteen-byte directory entry per picture, then the
// pictures. Each picture is stored PNG-compressed, which keeps the files small and is read by
// Qt's own icon reader; Qt's writer stores one size only, so the container is written here.
namespace IcoFile {
QByteArray encode(const QList<QImage>& images);
}
