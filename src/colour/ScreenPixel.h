#pragma once
#include <QPoint>
#include <QString>
#include <optional>

// The colour of the screen under a point, read from the real screen.
namespace ScreenPixel {
// Whether this platform lets a program read the screen: X11 does; the offscreen platform has
// no screen to read and Wayland refuses, so a colour from either would be a wrong one.
bool readable();
// The platform colour value (red in the low byte) at a point in screen coordinates, or nothing
// where the screen cannot be read or the point lies on no screen.
std::optional<int> at(const QPoint& global);
// The status line's words when the screen cannot be read.
QString refusedText();
}
