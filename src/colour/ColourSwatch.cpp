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

bool chooseColourInto(QLineEdit* field, ColourSwatch* swatch, bool withQuotes, OnCancel onCancel)
{
    const int held = swatch ? swatch->BackColor() : 0;
    const auto chosen = prompts().colour(held);
    if (!chosen && onCancel == OnCancel::Keep)
        return false;
    const int colour = chosen.value_or(held);
    if (swatch)
        swatch->setBackColor(colour);
    field->setText(ColourText::fromDialogValue(colour, withQuotes));
    return chosen.has_value();
}
