#include "wizards/lineform.h"

#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
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
    Option1 = Look::named(new QRadioButton(QStringLiteral("Pixels"), this), QStringLiteral("Option1"));
    Option2 = Look::named(new QRadioButton(QStringLiteral("%"), this), QStringLiteral("Option2"));
    Option2->setChecked(!defaults.pixels);
    auto* unit = new QHBoxLayout;
    unit->addWidget(Option1);
    unit->addWidget(Option2);
    unit->addStretch();
    rows()->addRow(QStringLiteral("Width in :"), unit);
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
