// The colour value (red in the low byte) and its "#RRGGBB" text.
#include "colour/ColourText.h"
#include "common/QtPrinters.h"

#include <gtest/gtest.h>

// The pairs come out turned round, in capital digits; a short hex text is padded before they
// are turned.
TEST(ColourText, BareAndQuotedTexts)
{
    const struct { int value; const char* text; } cases[] = {
        {255, "#FF0000"}, {16711680, "#0000FF"}, {65280, "#00FF00"},  // the settings' presets
        {0, "#000000"}, {0xFFFFFF, "#FFFFFF"},
        {0x0A, "#0A0000"}, {0x01, "#010000"}, {0x0100, "#000100"}, {0x0F00, "#000F00"}, {0x010000, "#000001"},
        {0x00B0C0, "#C0B000"}, {0x123456, "#563412"}, {0xABCDEF, "#EFCDAB"},
        {52 + 129 * 256 + 211 * 65536, "#3481D3"},  // RGB 52, 129, 211: the bars' colour
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ColourText::bare(c.value), QString::fromLatin1(c.text)) << c.value;
        EXPECT_EQ(ColourText::quoted(c.value), QStringLiteral("\"%1\"").arg(QLatin1String(c.text))) << c.value;
    }
}

TEST(ColourText, DialogStepsGiveTheSameTextBothWays)
{
    EXPECT_EQ(ColourText::fromDialogValue(0x0000C0, true), QStringLiteral("\"#C00000\""));
    EXPECT_EQ(ColourText::fromDialogValue(0x0000C0, false), QStringLiteral("#C00000"));
    EXPECT_EQ(ColourText::fromDialogValue(193 + 210 * 256 + 238 * 65536, false), QStringLiteral("#C1D2EE"));
}
