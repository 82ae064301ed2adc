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

// A field's text read back as a colour value (to start a swatch with its field's colour).
TEST(ColourText, FieldTextsBackToValues)
{
    const struct { const char* text; int value; } cases[] = {
        {"\"#FF0000\"", 255}, {"#0000FF", 16711680}, {"\"#000000\"", 0}, {"\"#FFFFFF\"", 0xFFFFFF},
        {"#3481D3", 52 + 129 * 256 + 211 * 65536}, {"#c1d2ee", 193 + 210 * 256 + 238 * 65536},
        // Anything else keeps the fallback: the stored "H00000000", short, long, not hex, signs.
        {"H00000000", -1}, {"", -1}, {"#FFF", -1}, {"#FF00000", -1}, {"\"#GG0000\"", -1}, {"#-10000", -1},
        {"#+10000", -1}, {"\"#FF0000", -1}, {"red", -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ColourText::toPlatformValue(QString::fromLatin1(c.text), -1), c.value) << c.text;
}
