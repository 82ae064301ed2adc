#pragma once
#include <QColor>

// The platform colour value: a 24-bit integer with red in the low byte, blue in the high one.
// The one place that turns it into the toolkit's colour and back (its text forms are the colour
// library's).
namespace PlatformColour {
inline QColor toQColor(int value) { return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF); }
inline int fromQColor(const QColor& c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }
}
