#pragma once
#include <QString>
#include <array>

// The colour tools' arithmetic: channels of a colour value, the shade bar, the palette picture
// and the fixed colour tables. Qt Core only, so it is tested without a window.
namespace ColourMixing {
struct Channels {
    int red = 0, green = 0, blue = 0;
    bool operator==(const Channels&) const = default;
};

// The splitting routine: red is the value AND 255, green and blue the integer part of the value
// divided (in floating point) by 256 and 65536, each AND 255.
Channels split(double value);
// The platform value of three channels (red in the low byte).
int valueOf(const Channels& c);

// The "&H" conversion: the text read as hexadecimal digits; anything that does not convert is 0.
int hexValue(const QString& digits);
// The channels read from a value's hexadecimal text (upper case, unpadded), whose length tells
// the layout: 2 digits red, 4 green and red, 6 blue, green and red. An odd length is read as if
// it had its leading "0" (a value below 16 is red only).
Channels channelsOfHex(const QString& hex);
// The unpadded, upper-case hexadecimal text of a value.
QString hexOf(int value);

// The shade bar: 20 bands from three slot colours. Band 1 (index 0) runs from the first slot
// towards the second, band 11 on from the second towards the third; each run divides by 11, so
// neither the second nor the third slot colour is itself a band.
constexpr int bandCount = 20;
std::array<Channels, bandCount> blenderBands(int slot0, int slot1, int slot2);
// The slots as the window loads them: black, RGB 143, 143, 143 and white.
constexpr std::array<int, 3> loadSlots = {0, 143 | (143 << 8) | (143 << 16), 0xFFFFFF};
// The slots after a colour was picked from the palette: black, the colour, white.
inline std::array<int, 3> slotsAround(int colour) { return {0, colour, 0xFFFFFF}; }

// The palette picture of a width by height: the hues from left to right (red, yellow, green,
// cyan, blue, magenta), white at the top row, the pure hue at the middle row, black at the
// bottom row. The platform value of the point.
int paletteColourAt(int x, int y, int width, int height);

// The sixteen named colours of the finder: the button number and its (lower-case) text.
struct NamedColour {
    int button;
    const char* text;
};
extern const std::array<NamedColour, 16> namedColours;

// The quick palette's 56 button texts, button 1 first: a grey ramp (1 to 25), then colours.
extern const std::array<const char*, 56> quickColours;
// What a quick palette button drops at the caret: its text between double quotes.
QString quickInsertion(int button);
}
