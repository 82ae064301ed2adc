#include "wizards/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>

namespace PictureFile {
namespace {
// The most a decode may allocate, in megabytes: past it the reader refuses the picture instead
// of taking the memory.
constexpr int allocationLimit = 256;

bool readable(const QString& path)
{
    const QFileInfo file(path);
    return !path.isEmpty() && file.isFile() && file.isReadable();
}
}

std::optional<QSize> size(const QString& path)
{
    if (!readable(path))
        return std::nullopt;
    QImageReader reader(path);
    const QSize s = reader.size();
    if (!s.isValid() || s.isEmpty())
        return std::nullopt;
    return s;
}

QImage fitted(const QString& path, const QSize& box)
{
    if (!readable(path) || box.isEmpty())
        return {};
    QImageReader reader(path);
    reader.setAllocationLimit(allocationLimit);
    const QSize natural = reader.size();
    if (!natural.isValid() || natural.isEmpty())
        return {};
    if (natural.width() > box.width() || natural.height() > box.height())
        reader.setScaledSize(natural.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

}
