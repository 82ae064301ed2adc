#include "platform/Look.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

// The main window's image list for its trees (the reference library, the script list, the
// project files), drawn here rather than shipped as files.
namespace {

QPixmap blankPicture()
{
    QPixmap pm(16, 16);
    pm.fill(Qt::transparent);
    return pm;
}

QPixmap folderPicture(bool open)
{
    QPixmap pm = blankPicture();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QColor(150, 110, 20));
    p.setBrush(QColor(240, 200, 80));
    p.drawRect(QRectF(1.5, 4.5, 12, 9));
    p.drawRect(QRectF(1.5, 2.5, 5, 2));
    if (open) {
        QPainterPath flap;
        flap.moveTo(3.5, 7.5);
        flap.lineTo(15.5, 7.5);
        flap.lineTo(13.5, 13.5);
        flap.lineTo(1.5, 13.5);
        flap.closeSubpath();
        p.setBrush(QColor(255, 225, 130));
        p.drawPath(flap);
    }
    return pm;
}

QPixmap pagePicture(const QColor& lines)
{
    QPixmap pm = blankPicture();
    QPainter p(&pm);
    p.setPen(QColor(90, 90, 90));
    p.setBrush(Qt::white);
    p.drawRect(3, 1, 10, 14);
    p.setPen(lines);
    for (int y = 4; y <= 12; y += 2)
        p.drawLine(5, y, y == 12 ? 8 : 11, y);
    return pm;
}

QPixmap globePicture()
{
    QPixmap pm = blankPicture();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Look::heading.darker(130), 1));
    p.setBrush(Look::face);
    p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(5, 1.5, 6, 13));
    p.drawLine(QPointF(1.5, 8), QPointF(14.5, 8));
    p.drawLine(QPointF(8, 1.5), QPointF(8, 14.5));
    return pm;
}

QPixmap scriptPicture()
{
    QPixmap pm = pagePicture(Look::face);
    QPainter p(&pm);
    QFont f = p.font();
    f.setPixelSize(9);
    f.setBold(true);
    p.setFont(f);
    p.setPen(Look::heading);
    p.drawText(QRect(3, 3, 10, 11), Qt::AlignCenter, QStringLiteral("{}"));
    return pm;
}

}  // namespace

namespace Look {
QIcon treeImage(int image)
{
    static QHash<int, QIcon> cache;
    auto it = cache.find(image);
    if (it != cache.end())
        return *it;
    QIcon icon;
    switch (image) {
    case 2:
        icon.addPixmap(folderPicture(false), QIcon::Normal);
        icon.addPixmap(folderPicture(true), QIcon::Selected);
        break;
    case 6: icon.addPixmap(folderPicture(true)); break;
    case 3: icon.addPixmap(pagePicture(Look::heading)); break;
    case 4: icon.addPixmap(globePicture()); break;
    case 7: icon.addPixmap(scriptPicture()); break;
    default: break;
    }
    cache.insert(image, icon);
    return icon;
}
}
