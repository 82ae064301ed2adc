#include "wizards/lineform.h"

#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRadioButton>

lineform::lineform(QWidget* parent) : WizardDialog(QStringLiteral("Line Properties ::"), Refusal::Notepad, parent)
{
    const LineText::Fields defaults;
    const auto colour = WizardRows::colour(rows(), QStringLiteral("Text1"), QStringLiteral("Command2"),
                                           QStringLiteral("Shape1"), QStringLiteral("Colour :"), defaults.Text1);
    Text1 = colour.text;
    Shape1 = colour.swatch;
    Command2 = colour.choose;
    align = WizardRows::alignment(rows(), QStringLiteral("align"));
    barwidth = WizardRows::list(rows(), QStringLiteral("barwidth"), QStringLiteral("Width :"),
                                {QStringLiteral("100"), QStringLiteral("75"), QStringLiteral("50"), QStringLiteral("25")},
                                defaults.barwidth);
    const auto unit = WizardRows::unit(rows(), QStringLiteral("Width in :"));
    Option1 = unit.pixels;
    Option2 = unit.percent;
    barsize = WizardRows::line(rows(), QStringLiteral("barsize"), QStringLiteral("Size :"), defaults.barsize);

    Command1 = addLoadButton(QStringLiteral("Command1"));
    Command3 = addCloseButton(QStringLiteral("Command3"));
}

LineText::Fields lineform::fields() const
{
    LineText::Fields f;
    f.Text1 = Text1->text();
    f.align = align->currentText();
    f.barwidth = barwidth->currentText();
    f.barsize = barsize->text();
    f.pixels = Option1->isChecked();
    return f;
}
