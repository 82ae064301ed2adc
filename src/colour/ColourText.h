#pragma once
#include <QString>

// The platform colour value is a 24-bit integer with red in the low byte. Its text form is
// "#" and six hexadecimal digits in the order red, green, blue. This is the one place that
// turns the one into the other.
namespace ColourText {
// Bare form, for the colour finder and style sheets: #RRGGBB.
QString bare(int platformColour);
// Quoted form, for wizard fields whose value carries its own quotes: "#RRGGBB" with the quotes.
QString quoted(int platformColour);
// The same steps as the system takes on a colour dialog's value: its hexadecimal digits,
// padded with "0" in front to six (blue, green, red pairs), then the pairs reversed.
QString fromDialogValue(int platformColour, bool withQuotes);
// The other way: the value of a "#RRGGBB" text, with or without its double quotes; anything
// else (a field holds what the user typed) gives the fallback.
int toPlatformValue(const QString& text, int fallback);
}
