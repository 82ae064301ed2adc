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

int toPlatformValue(const QString& text, int fallback)
{
    QString t = text;
    if (t.size() == 9 && t.startsWith(QLatin1Char('"')) && t.endsWith(QLatin1Char('"')))
        t = t.mid(1, 7);
    if (t.size() != 7 || !t.startsWith(QLatin1Char('#')))
        return fallback;
    bool ok = false;
    const int rgb = t.mid(1).toInt(&ok, 16);
    if (!ok || t.mid(1).contains(QLatin1Char('+')) || t.mid(1).contains(QLatin1Char('-')))
        return fallback;
    return ((rgb >> 16) & 0xFF) | (rgb & 0xFF00) | ((rgb & 0xFF) << 16);
}

QString bare(int platformColour) { return fromDialogValue(platformColour, false); }
QString quoted(int platformColour) { return fromDialogValue(platformColour, true); }

}
