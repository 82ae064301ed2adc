#include "wizards/Textinput.h"

#include "platform/CodeMax.h"
#include "platform/Look.h"
#include "wizards/Html.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>

Textinput::Textinput(QWidget* parent) : WizardDialog(QStringLiteral("Text Input Section ::"), Refusal::None, parent)
{
    const TextInputText::Fields defaults;
    CodeMax1 = new CodeMax(this);
    CodeMax1->setObjectName(QStringLiteral("CodeMax1"));
    CodeMax1->setMinimumHeight(120);
    Look::editorColours(CodeMax1);
    rows()->addRow(QStringLiteral("Text :"), CodeMax1);

    const auto font = WizardRows::font(rows(), QStringLiteral("Text2"), QStringLiteral("Command2"));
    Text2 = font.text;
    Command2 = font.choose;
    Check1 = Look::named(new QCheckBox(QStringLiteral("Bold"), this), QStringLiteral("Check1"));
    Check2 = Look::named(new QCheckBox(QStringLiteral("Italic"), this), QStringLiteral("Check2"));
    auto* style = new QHBoxLayout;
    style->addWidget(Check1);
    style->addWidget(Check2);
    style->addStretch();
    rows()->addRow(QStringLiteral("Style :"), style);
    Combo1 = WizardRows::list(rows(), QStringLiteral("Combo1"), QStringLiteral("Position :"), Html::textAlignments(),
                              defaults.Combo1);
    Combo2 = WizardRows::fontSize(rows(), QStringLiteral("Combo2"));
    const auto colour = WizardRows::colour(rows(), QStringLiteral("Text3"), QStringLiteral("Command3"),
                                           QStringLiteral("Shape1"), QStringLiteral("Colour :"), defaults.Text3);
    Text3 = colour.text;
    Shape1 = colour.swatch;
    Command3 = colour.choose;
    Command1 = addLoadButton(QStringLiteral("Command1"));
    addCloseButton(QStringLiteral("Command4"));
}

TextInputText::Fields Textinput::fields() const
{
    TextInputText::Fields f;
    f.CodeMax1 = CodeMax1->text();
    f.Text2 = Text2->text();
    f.bold = Check1->isChecked();
    f.italic = Check2->isChecked();
    f.Combo1 = Combo1->currentText();
    f.Combo2 = Combo2->currentText();
    f.Text3 = Text3->text();
    return f;
}

void Textinput::beforeDelivery()
{
    CodeMax1->setText(TextInputText::styledText(CodeMax1->text(), Check1->isChecked(), Check2->isChecked()));
}

QString Textinput::fragment() const
{
    // The field already holds the bold and italic tags.
    TextInputText::Fields f = fields();
    f.bold = f.italic = false;
    return TextInputText::fragment(f);
}

void Textinput::closingStep()
{
    CodeMax1->setText(QString());
    hide();
}
