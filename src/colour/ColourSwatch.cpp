#include "colour/ColourSwatch.h"

#include "colour/ColourText.h"
#include "platform/PlatformColour.h"
#include "platform/Prompts.h"

#include <QLineEdit>

ColourSwatch::ColourSwatch(const QString& name, QWidget* parent) : QFrame(parent)
{
    setObjectName(name);
    setFrameShape(QFrame::Box);
    setFixedSize(22, 22);
    setAutoFillBackground(true);
    setBackColor(colour);
}

void ColourSwatch::setBackColor(int c)
{
    colour = c;
    QPalette p = palette();
    p.setColor(QPalette::Window, PlatformColour::toQColor(c));
    setPalette(p);
}

bool chooseColourInto(QLineEdit* field, ColourSwatch* swatch, bool withQuotes)
{
    const auto colour = prompts().colour(swatch ? swatch->BackColor() : 0);
    if (!colour)
        return false;
    if (swatch)
        swatch->setBackColor(*colour);
    field->setText(ColourText::fromDialogValue(*colour, withQuotes));
    return true;
}
