// The colour tools' arithmetic: channels, the "&H" conversion, the shade bar's bands, the palette
// picture and the fixed colour tables.
#include "colour/ColourMixing.h"
#include "colour/ColourText.h"
#include "colour/PaletteTables.h"
#include "common/QtPrinters.h"

#include <gtest/gtest.h>

using ColourMixing::Channels;

TEST(ColourMixing, SplitAndHexTextGiveTheSameChannels)
{
    const struct { double value; Channels c; } cases[] = {
        {0, {0, 0, 0}}, {255, {255, 0, 0}}, {65280, {0, 255, 0}}, {16711680, {0, 0, 255}},
        {0xFFFFFF, {255, 255, 255}}, {0x123456, {0x56, 0x34, 0x12}}, {0x8F8F8F, {143, 143, 143}},
        {256, {0, 1, 0}}, {65536, {0, 0, 1}}, {15, {15, 0, 0}},
        // Above 24 bits each channel is still its own byte.
        {0x1FFFFFF, {255, 255, 255}}, {0x1000000, {0, 0, 0}},
        // The divisions are in floating point and the integer part is taken after them.
        {511.9, {255, 1, 0}}, {65535.5, {255, 255, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ColourMixing::split(c.value), c.c) << c.value;
        if (c.value == int(c.value) && c.value <= 0xFFFFFF) {
            EXPECT_EQ(ColourMixing::channelsOfHex(ColourMixing::hexOf(int(c.value))), c.c) << c.value;
            EXPECT_EQ(ColourMixing::valueOf(c.c), int(c.value)) << c.value;
        }
    }
}

TEST(ColourMixing, HexTextsByTheirLength)
{
    const struct { const char* hex; Channels c; } cases[] = {
        {"FF", {255, 0, 0}}, {"FF00", {0, 255, 0}}, {"FF0000", {0, 0, 255}}, {"8F8F8F", {143, 143, 143}},
        {"0", {0, 0, 0}}, {"A", {10, 0, 0}}, {"100", {0, 1, 0}}, {"ABCDE", {0xDE, 0xBC, 0x0A}}, {"abcdef", {0xEF, 0xCD, 0xAB}},
        {"", {0, 0, 0}}, {"1FFFFFF", {0, 0, 0}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ColourMixing::channelsOfHex(QString::fromLatin1(c.hex)), c.c) << c.hex;
    const struct { const char* digits; int value; } conversions[] = {
        {"FF", 255}, {"8f", 143}, {"0", 0}, {"00", 0}, {"7FFFFFFF", 0x7FFFFFFF},
        // A text that does not convert leaves 0.
        {"", 0}, {"G1", 0}, {" 1", 0}, {"+1", 0}, {"-1", 0}, {"1 ", 0}, {"123456789", 0}, {"&HFF", 0},
    };
    for (const auto& c : conversions)
        EXPECT_EQ(ColourMixing::hexValue(QString::fromLatin1(c.digits)), c.value) << c.digits;
    EXPECT_EQ(ColourMixing::hexOf(0), QStringLiteral("0"));
    EXPECT_EQ(ColourMixing::hexOf(0xFF0000), QStringLiteral("FF0000"));
}

TEST(ColourMixing, ShadeBarBands)
{
    using PaletteTables::fullSteps;
    // As the finder loads: greys.
    const auto load = ColourMixing::blenderBands(ColourMixing::loadSlots[0], ColourMixing::loadSlots[1],
                                                 ColourMixing::loadSlots[2]);
    for (int i = 0; i < 20; ++i) {
        const int g = PaletteTables::loadBands[i];
        EXPECT_EQ(load[i], (Channels{g, g, g})) << "band " << i + 1;
    }
    // Around pure red: red climbs to 209 (never 255) in the first run; in the second, red stays
    // full and green and blue climb to 232 (never white).
    const auto red = ColourMixing::blenderBands(0, 255, 0xFFFFFF);
    for (int j = 0; j < 10; ++j) {
        EXPECT_EQ(red[j], (Channels{fullSteps[j], 0, 0})) << "band " << j + 1;
        EXPECT_EQ(red[10 + j], (Channels{255, fullSteps[j + 1], fullSteps[j + 1]})) << "band " << j + 11;
    }
    // A run that falls: white, black, white.
    const auto falling = ColourMixing::blenderBands(0xFFFFFF, 0, 0xFFFFFF);
    for (int j = 0; j < 10; ++j) {
        const int down = 255 - fullSteps[j];
        EXPECT_EQ(falling[j], (Channels{down, down, down})) << "band " << j + 1;
        EXPECT_EQ(falling[10 + j], (Channels{fullSteps[j + 1], fullSteps[j + 1], fullSteps[j + 1]})) << "band " << j + 11;
    }
    // Each channel on its own: blue 0xFF0000 runs in blue only, 0x804020 in each of its own.
    const auto blue = ColourMixing::blenderBands(0, 0xFF0000, 0xFF0000);
    for (int j = 0; j < 10; ++j) {
        EXPECT_EQ(blue[j], (Channels{0, 0, fullSteps[j]}));
        EXPECT_EQ(blue[10 + j], (Channels{0, 0, 255}));
    }
    // 0x20, 0x40, 0x80 (32, 64, 128) over 11 steps: band 2 is 32/11, 64/11, 128/11 rounded.
    const auto mixed = ColourMixing::blenderBands(0, 0x804020, 0);
    EXPECT_EQ(mixed[1], (Channels{3, 6, 12}));
    EXPECT_EQ(mixed[9], (Channels{26, 52, 105}));   // 9 * 32 / 11 = 26.2, 52.4, 104.7
    EXPECT_EQ(mixed[10], (Channels{29, 58, 116}));  // 32 - 32/11 = 29.1, 58.2, 116.4
    EXPECT_EQ(mixed[19], (Channels{3, 6, 12}));     // 32 - 320/11 = 2.9, 5.8, 11.6
    // The picked colour itself is never a band.
    for (const auto& b : mixed)
        EXPECT_NE(b, (Channels{0x20, 0x40, 0x80}));
}

TEST(ColourMixing, PalettePicture)
{
    const struct { int x, y; int value; } cases[] = {
        // The middle row holds the pure hues at each sixth of the width.
        {0, 100, 0x0000FF}, {60, 100, 0x00FFFF}, {120, 100, 0x00FF00}, {180, 100, 0xFFFF00}, {240, 100, 0xFF0000},
        {300, 100, 0xFF00FF},
        // Half way between red and yellow: green at half (127.5 rounds to the even 128).
        {30, 100, 0x0080FF},
        // White on top, black at the bottom, halves between.
        {0, 0, 0xFFFFFF}, {200, 0, 0xFFFFFF}, {0, 200, 0}, {359, 200, 0}, {0, 50, 0x8080FF}, {0, 150, 0x000080},
        // A point outside counts as the nearest edge.
        {-5, 100, 0x0000FF}, {0, 400, 0}, {0, -1, 0xFFFFFF},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ColourMixing::paletteColourAt(c.x, c.y, 360, 201), c.value) << c.x << "," << c.y;
    EXPECT_EQ(ColourMixing::paletteColourAt(3, 3, 0, 0), 0);
}

TEST(ColourMixing, TheFixedTables)
{
    ASSERT_EQ(ColourMixing::namedColours.size(), std::size(PaletteTables::named));
    for (size_t i = 0; i < ColourMixing::namedColours.size(); ++i) {
        const auto& want = PaletteTables::named[i];
        EXPECT_EQ(ColourMixing::namedColours[i].button, want.button);
        EXPECT_STREQ(ColourMixing::namedColours[i].text, want.text) << want.button;
        EXPECT_EQ(ColourText::toPlatformValue(QString::fromLatin1(want.text), -1), want.value) << want.text;
    }
    for (int n = 1; n <= 56; ++n) {
        const auto& want = PaletteTables::quick[n - 1];
        EXPECT_STREQ(ColourMixing::quickColours[n - 1], want.text) << n;
        EXPECT_EQ(ColourMixing::quickInsertion(n), QStringLiteral("\"%1\"").arg(QLatin1String(want.text))) << n;
        // The face is the text read as red, green, blue, and its text form is the text again.
        const int value = want.red | (want.green << 8) | (want.blue << 16);
        EXPECT_EQ(ColourText::bare(value), QString::fromLatin1(want.text)) << n;
    }
    EXPECT_EQ(ColourMixing::quickInsertion(25), QStringLiteral("\"#000000\""));
    EXPECT_EQ(ColourMixing::quickInsertion(0), QString());
    EXPECT_EQ(ColourMixing::quickInsertion(57), QString());
}
