#include "colour/ScreenPixel.h"

#include "platform/PlatformColour.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

namespace ScreenPixel {

bool readable() { return QGuiApplication::platformName() == QLatin1String("xcb"); }

std::optional<int> at(const QPoint& global)
{
    if (!readable())
        return std::nullopt;
    QScreen* screen = QGuiApplication::screenAt(global);
    if (!screen)
        return std::nullopt;
    // The whole screen's window, one pixel of it; its coordinates are the screen's own.
    const QPoint local = global - screen->geometry().topLeft();
    const QImage pixel = screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage();
    if (pixel.isNull() || pixel.width() < 1 || pixel.height() < 1)
        return std::nullopt;
    return PlatformColour::fromQColor(pixel.pixelColor(0, 0));
}

QString refusedText()
{
    return QStringLiteral("Color Finder :: this display does not let a program read the screen, no colour was taken");
}

}
