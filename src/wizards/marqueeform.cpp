#include "wizards/marqueeform.h"

#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

marqueeform::marqueeform(QWidget* parent) : WizardDialog(QStringLiteral("Marquee Properties ::"), Refusal::None, parent)
{
    const MarqueeText::Fields defaults;
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Text to scroll :"), defaults.Text1);
    Text2 = WizardRows::line(rows(), QStringLiteral("Text2"), QStringLiteral("Amount :"), defaults.Text2);
    Text3 = WizardRows::line(rows(), QStringLiteral("Text3"), QStringLiteral("Delay :"), defaults.Text3);
    Text4 = WizardRows::line(rows(), QStringLiteral("Text4"), QStringLiteral("Width :"), defaults.Text4);
    Text5 = WizardRows::line(rows(), QStringLiteral("Text5"), QStringLiteral("Height :"), defaults.Text5);
    const auto colour = WizardRows::colour(rows(), QStringLiteral("mcolor"), QStringLiteral("Command1"),
                                           QStringLiteral("Shape1"), QStringLiteral("Background :"), defaults.mcolor);
    mcolor = colour.text;
    Shape1 = colour.swatch;
    Command1 = colour.choose;

    Option1 = Look::named(new QRadioButton(QStringLiteral("Left"), this), QStringLiteral("Option1"));
    Option2 = Look::named(new QRadioButton(QStringLiteral("Right "), this), QStringLiteral("Option2"));
    Option2->setChecked(defaults.right);
    auto* direction = new QHBoxLayout;
    direction->addWidget(Option1);
    direction->addWidget(Option2);
    direction->addStretch();
    rows()->addRow(QStringLiteral("Direction :"), direction);
    Combo1 = WizardRows::list(rows(), QStringLiteral("Combo1"), QStringLiteral("Behaviour :"),
                              {QStringLiteral("Scroll"), QStringLiteral("Slide"), QStringLiteral("Alternate")},
                              QStringLiteral("Scroll"));

    Check1 = Look::named(new QCheckBox(QStringLiteral("Continuously"), this), QStringLiteral("Check1"));
    Check1->setChecked(true);
    Text6 = Look::named(new QLineEdit(QStringLiteral("0"), this), QStringLiteral("Text6"));
    Text6->setMaximumWidth(60);
    auto* repeat = new QHBoxLayout;
    repeat->addWidget(Check1);
    repeat->addSpacing(12);
    repeat->addWidget(Text6);
    repeat->addWidget(new QLabel(QStringLiteral("time .."), this));
    repeat->addStretch();
    rows()->addRow(QStringLiteral("Repeat"), repeat);

    command2 = addLoadButton(QStringLiteral("command2"));
    addCloseButton(QStringLiteral("Command3"));
}

MarqueeText::Fields marqueeform::fields() const
{
    MarqueeText::Fields f;
    f.Text1 = Text1->text();
    f.Text2 = Text2->text();
    f.Text3 = Text3->text();
    f.Text4 = Text4->text();
    f.Text5 = Text5->text();
    f.mcolor = mcolor->text();
    f.right = Option2->isChecked();
    return f;
}

void marqueeform::afterDelivery() { Text1->clear(); }
