#include "colour/ColourMixing.h"

#include <algorithm>
#include <cmath>

namespace ColourMixing {

Channels split(double value)
{
    const auto part = [](double v) { return static_cast<long long>(std::floor(v)) & 255; };
    return {int(part(value)), int(part(value / 256.0)), int(part(value / 65536.0))};
}

int valueOf(const Channels& c) { return (c.red & 255) | ((c.green & 255) << 8) | ((c.blue & 255) << 16); }

int hexValue(const QString& digits)
{
    if (digits.isEmpty() || digits.size() > 8)
        return 0;
    for (QChar ch : digits) {
        const char16_t u = ch.unicode();
        if (!((u >= '0' && u <= '9') || (u >= 'a' && u <= 'f') || (u >= 'A' && u <= 'F')))
            return 0;
    }
    bool ok = false;
    const int v = static_cast<int>(digits.toUInt(&ok, 16));
    return ok ? v : 0;
}

QString hexOf(int value) { return QString::number(static_cast<unsigned>(value), 16).toUpper(); }

Channels channelsOfHex(const QString& hex)
{
    const QString h = hex.size() % 2 ? QLatin1Char('0') + hex : hex;
    switch (h.size()) {
    case 2: return {hexValue(h), 0, 0};
    case 4: return {hexValue(h.mid(2, 2)), hexValue(h.left(2)), 0};
    case 6: return {hexValue(h.mid(4, 2)), hexValue(h.mid(2, 2)), hexValue(h.left(2))};
    default: return {};
    }
}

std::array<Channels, bandCount> blenderBands(int slot0, int slot1, int slot2)
{
    const Channels c0 = channelsOfHex(hexOf(slot0)), c1 = channelsOfHex(hexOf(slot1)), c2 = channelsOfHex(hexOf(slot2));
    constexpr int half = bandCount / 2;
    // The products fit the 16-bit integers they were; the division is in floating point and the
    // result rounds to the nearest, ties to even (the default rounding mode).
    const auto step = [](int from, int to, int times, int over) {
        const auto product = static_cast<qint16>((to - from) * times);
        return static_cast<int>(std::nearbyint(from + double(product) / over));
    };
    std::array<Channels, bandCount> bands{};
    for (int i = 1; i <= half; ++i)
        bands[i - 1] = {step(c0.red, c1.red, i - 1, half + 1), step(c0.green, c1.green, i - 1, half + 1),
                        step(c0.blue, c1.blue, i - 1, half + 1)};
    for (int i = half + 1, k = 1; i <= bandCount; ++i, ++k)
        bands[i - 1] = {step(c1.red, c2.red, k, bandCount + 1 - half), step(c1.green, c2.green, k, bandCount + 1 - half),
                        step(c1.blue, c2.blue, k, bandCount + 1 - half)};
    for (Channels& b : bands)
        for (int* c : {&b.red, &b.green, &b.blue})
            *c = std::max(*c, 0);
    return bands;
}

int paletteColourAt(int x, int y, int width, int height)
{
    if (width <= 0 || height <= 1)
        return 0;
    x = std::clamp(x, 0, width - 1);
    y = std::clamp(y, 0, height - 1);
    // The pure hue of the column.
    const double hue = 6.0 * x / width;
    const int sector = static_cast<int>(hue);
    const double f = hue - sector;
    double r = 0, g = 0, b = 0;
    switch (sector) {
    case 0: r = 1; g = f; break;
    case 1: r = 1 - f; g = 1; break;
    case 2: g = 1; b = f; break;
    case 3: g = 1 - f; b = 1; break;
    case 4: r = f; b = 1; break;
    default: r = 1; b = 1 - f; break;
    }
    // White above the middle row, black below it.
    const double t = double(y) / (height - 1);
    const auto shade = [t](double pure) {
        const double v = t <= 0.5 ? 255.0 + (pure * 255.0 - 255.0) * (t * 2) : pure * 255.0 * (1 - (t - 0.5) * 2);
        return static_cast<int>(std::nearbyint(v));
    };
    return valueOf({shade(r), shade(g), shade(b)});
}

const std::array<NamedColour, 16> namedColours = {{
    {2, "#000000"}, {3, "#000080"}, {4, "#0000ff"}, {5, "#800000"}, {6, "#800080"}, {7, "#008000"},
    {8, "#ff0000"}, {9, "#008080"}, {10, "#ff00ff"}, {11, "#808000"}, {12, "#808080"}, {13, "#00ff00"},
    {14, "#00ffff"}, {15, "#c0c0c0"}, {16, "#ffff00"}, {17, "#ffffff"},
}};

const std::array<const char*, 56> quickColours = {
    "#FFFFFF", "#F3F3F3", "#E6E6E6", "#E0E0E0", "#D9D9D9", "#CCCCCC", "#C0C0C0", "#B3B3B3", "#A6A6A6", "#A0A0A0",
    "#999999", "#8C8C8C", "#808080", "#737373", "#666666", "#606060", "#595959", "#4C4C4C", "#404040", "#333333",
    "#262626", "#202020", "#191919", "#0C0C0C", "#000000", "#993300", "#333300", "#003300", "#003366", "#000080",
    "#333399", "#333333", "#800000", "#FF6600", "#808000", "#008000", "#008080", "#0000FF", "#666699", "#808080",
    "#FF0000", "#FF9900", "#99CC00", "#339966", "#33CCCC", "#3366FF", "#800080", "#999999", "#FF00FF", "#FFCC00",
    "#FFFF00", "#00FF00", "#00FFFF", "#00CCFF", "#993366", "#C0C0C0",
};

QString quickInsertion(int button)
{
    if (button < 1 || button > int(quickColours.size()))
        return {};
    return QLatin1Char('"') + QString::fromLatin1(quickColours[button - 1]) + QLatin1Char('"');
}

}
