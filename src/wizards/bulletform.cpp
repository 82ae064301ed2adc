#include "wizards/bulletform.h"

#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

bulletform::bulletform(QWidget* parent) : WizardDialog(QStringLiteral("Bullets ::"), Refusal::None, parent)
{
    const BulletText::Fields defaults;
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Text :"));
    const auto font = WizardRows::font(rows(), QStringLiteral("Text2"), QStringLiteral("Command4"));
    Text2 = font.text;
    Command4 = font.choose;
    const auto colour = WizardRows::colour(rows(), QStringLiteral("Text3"), QStringLiteral("Command5"),
                                           QStringLiteral("Shape1"), QStringLiteral("Colour :"), defaults.Text3);
    Text3 = colour.text;
    Shape1 = colour.swatch;
    Command5 = colour.choose;
    Combo2 = WizardRows::fontSize(rows(), QStringLiteral("Combo2"));

    // The two list boxes have their captions in labels beside them; they do not exclude each other.
    Check1 = Look::named(new QCheckBox(this), QStringLiteral("Check1"));
    Check1->setChecked(defaults.bullets);
    Label2 = Look::named(new QLabel(QStringLiteral("Bullets"), this), QStringLiteral("Label2"));
    Check2 = Look::named(new QCheckBox(this), QStringLiteral("Check2"));
    Label3 = Look::named(new QLabel(QStringLiteral("1) Numbered"), this), QStringLiteral("Label3"));
    Label2->setBuddy(Check1);
    Label3->setBuddy(Check2);
    auto* kind = new QHBoxLayout;
    for (QWidget* w : {static_cast<QWidget*>(Check1), static_cast<QWidget*>(Label2), static_cast<QWidget*>(Check2),
                       static_cast<QWidget*>(Label3)})
        kind->addWidget(w);
    kind->addStretch();
    rows()->addRow(QStringLiteral("List :"), kind);
    Check3 = Look::named(new QCheckBox(QStringLiteral("Italic"), this), QStringLiteral("Check3"));
    Check4 = Look::named(new QCheckBox(QStringLiteral("Bold"), this), QStringLiteral("Check4"));
    auto* style = new QHBoxLayout;
    style->addWidget(Check3);
    style->addWidget(Check4);
    style->addStretch();
    rows()->addRow(QStringLiteral("Style :"), style);
    Command1 = addLoadButton(QStringLiteral("Command1"));
    addCloseButton(QStringLiteral("Command2"));
}

BulletText::Fields bulletform::fields() const
{
    BulletText::Fields f;
    f.Text1 = Text1->text();
    f.Text2 = Text2->text();
    f.Text3 = Text3->text();
    f.Combo2 = Combo2->currentText();
    f.bullets = Check1->isChecked();
    return f;
}
