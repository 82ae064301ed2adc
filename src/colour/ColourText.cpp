#include "colour/ColourText.h"

namespace ColourText {

QString fromDialogValue(int platformColour, bool withQuotes)
{
    QString hex = QString::number(static_cast<unsigned>(platformColour) & 0xFFFFFFu, 16).toUpper();
    while (hex.size() < 6)
        hex.prepend(QLatin1Char('0'));
    const QString text = QLatin1Char('#') + hex.mid(4, 2) + hex.mid(2, 2) + hex.mid(0, 2);
    return withQuotes ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

QString bare(int platformColour) { return fromDialogValue(platformColour, false); }
QString quoted(int platformColour) { return fromDialogValue(platformColour, true); }

}
