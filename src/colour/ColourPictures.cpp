#include "colour/ColourPictures.h"

#include "platform/PlatformColour.h"

#include <QMouseEvent>
#include <QPainter>

PalettePicture::PalettePicture(const QString& name, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setMinimumSize(160, 120);
    setCursor(Qt::CrossCursor);
}

int PalettePicture::colourAt(const QPoint& p) const
{
    return ColourMixing::paletteColourAt(p.x(), p.y(), width(), height());
}

void PalettePicture::resizeEvent(QResizeEvent*)
{
    picture = QImage(size(), QImage::Format_RGB32);
    for (int y = 0; y < height(); ++y)
        for (int x = 0; x < width(); ++x)
            picture.setPixelColor(x, y, PlatformColour::toQColor(colourAt({x, y})));
}

void PalettePicture::paintEvent(QPaintEvent*)
{
    QPainter(this).drawImage(0, 0, picture);
}

void PalettePicture::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        Q_EMIT MouseDown(colourAt(e->position().toPoint()));
}

void PalettePicture::mouseMoveEvent(QMouseEvent* e) { Q_EMIT MouseMove(colourAt(e->position().toPoint())); }

void PalettePicture::mouseReleaseEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        Q_EMIT MouseUp(colourAt(e->position().toPoint()));
}

ShadeBar::ShadeBar(const QString& name, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setMinimumSize(24, 120);
    setCursor(Qt::PointingHandCursor);
}

void ShadeBar::setBands(const std::array<ColourMixing::Channels, ColourMixing::bandCount>& bands)
{
    shown = bands;
    repaint();
}

QRect ShadeBar::bandRect(int i) const
{
    // The bar's scale runs from 20 at the top to 0 at the bottom; band i fills i - 1 to i.
    const int n = ColourMixing::bandCount;
    const int top = height() * (n - i) / n, bottom = height() * (n - i + 1) / n;
    return {0, top, width(), bottom - top};
}

void ShadeBar::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    for (int i = 1; i <= ColourMixing::bandCount; ++i) {
        const ColourMixing::Channels& c = shown[i - 1];
        p.fillRect(bandRect(i), QColor(c.red, c.green, c.blue));
    }
}

void ShadeBar::mouseReleaseEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        Q_EMIT Click(e->globalPosition().toPoint());
}
