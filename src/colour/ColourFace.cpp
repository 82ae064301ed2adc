#include "colour/ColourFace.h"

#include "colour/ColourMixing.h"
#include "colour/ColourText.h"
#include "platform/Look.h"

#include <QPushButton>

void setColourFace(QPushButton* button, int platformColour)
{
    const ColourMixing::Channels c = ColourMixing::split(platformColour);
    const bool dark = c.red * 299 + c.green * 587 + c.blue * 114 < 128000;
    button->setStyleSheet(QStringLiteral("QPushButton { background-color: %1; color: %2; border: 1px solid #808080; padding: 1px; }"
                                         "QPushButton:hover { border: 2px solid %3; }")
                              .arg(ColourText::bare(platformColour), dark ? QStringLiteral("white") : QStringLiteral("black"),
                                   Look::face.name()));
}
