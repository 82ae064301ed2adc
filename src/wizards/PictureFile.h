#pragma once
#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

// Pictures read from files for the wizards: the size from the file's header alone, so that a
// picture of any size costs nothing to measure, and a decoded copy no bigger than it is shown.
namespace PictureFile {

// The size in pixels; nothing for a file the picture readers do not know (not a picture, a
// folder, a device, a size the reader refuses).
std::optional<QSize> size(const QString& path);

// The picture scaled down to fit the box, keeping its shape (never enlarged), decoded at that
// size where the reader can; a null image when it cannot be read or would take more than a
// quarter of a gigabyte to decode.
QImage fitted(const QString& path, const QSize& box);
}
