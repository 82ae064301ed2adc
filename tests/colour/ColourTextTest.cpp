// The colour value (red in the low byte) and its "#RRGGBB" text.
#include "colour/ColourText.h"
#include "common/QtPrinters.h"

#include <gtest/gtest.h>

TEST(ColourText, PresetColoursOfTheSettings)
{
    EXPECT_EQ(ColourText::quoted(255), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(ColourText::quoted(16711680), QStringLiteral("\"#0000FF\""));
    EXPECT_EQ(ColourText::quoted(65280), QStringLiteral("\"#00FF00\""));
    EXPECT_EQ(ColourText::bare(255), QStringLiteral("#FF0000"));
    EXPECT_EQ(ColourText::bare(16711680), QStringLiteral("#0000FF"));
    EXPECT_EQ(ColourText::bare(65280), QStringLiteral("#00FF00"));
}

TEST(ColourText, BlackAndWhite)
{
    EXPECT_EQ(ColourText::bare(0), QStringLiteral("#000000"));
    EXPECT_EQ(ColourText::quoted(0), QStringLiteral("\"#000000\""));
    EXPECT_EQ(ColourText::bare(0xFFFFFF), QStringLiteral("#FFFFFF"));
    EXPECT_EQ(ColourText::quoted(0xFFFFFF), QStringLiteral("\"#FFFFFF\""));
}

TEST(ColourText, ShortHexIsPaddedBeforeThePairsAreSwapped)
{
    EXPECT_EQ(ColourText::bare(0x0A), QStringLiteral("#0A0000"));
    EXPECT_EQ(ColourText::bare(0x01), QStringLiteral("#010000"));
    EXPECT_EQ(ColourText::bare(0x0100), QStringLiteral("#000100"));
    EXPECT_EQ(ColourText::bare(0x0F00), QStringLiteral("#000F00"));
    EXPECT_EQ(ColourText::bare(0x010000), QStringLiteral("#000001"));
    EXPECT_EQ(ColourText::bare(0x00B0C0), QStringLiteral("#C0B000"));
}

TEST(ColourText, ChannelsInRedGreenBlueOrderWithCapitalDigits)
{
    // red 0x56, green 0x34, blue 0x12
    EXPECT_EQ(ColourText::bare(0x123456), QStringLiteral("#563412"));
    // red 0xef, green 0xcd, blue 0xab
    EXPECT_EQ(ColourText::quoted(0xABCDEF), QStringLiteral("\"#EFCDAB\""));
    // RGB 52, 129, 211: the bars' colour
    EXPECT_EQ(ColourText::bare(52 + 129 * 256 + 211 * 65536), QStringLiteral("#3481D3"));
}

TEST(ColourText, DialogStepsGiveTheSameTextBothWays)
{
    EXPECT_EQ(ColourText::fromDialogValue(0x0000C0, true), QStringLiteral("\"#C00000\""));
    EXPECT_EQ(ColourText::fromDialogValue(0x0000C0, false), QStringLiteral("#C00000"));
    EXPECT_EQ(ColourText::fromDialogValue(193 + 210 * 256 + 238 * 65536, false), QStringLiteral("#C1D2EE"));
}
