#include "wizards/Tableform.h"

#include "platform/Look.h"
#include "wizards/Html.h"
#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRadioButton>

#include <limits>

Tableform::Tableform(QWidget* parent) : WizardDialog(QStringLiteral("Table Properties ::"), Refusal::Notepad, parent)
{
    const TableText::Fields defaults;
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Rows :"), defaults.Text1);
    Text2 = WizardRows::line(rows(), QStringLiteral("Text2"), QStringLiteral("Columns :"), defaults.Text2);
    Text6 = Look::named(new QLineEdit(defaults.Text6, this), QStringLiteral("Text6"));
    const auto unit = WizardRows::unit(rows(), QStringLiteral("Width :"), Text6);
    Option1 = unit.pixels;
    Option2 = unit.percent;
    Combo1 = WizardRows::alignment(rows(), QStringLiteral("Combo1"), QStringLiteral("Alignment :"));
    // Kept as it always was: typing in the box adds the three rows once more each time.
    connect(Combo1->lineEdit(), &QLineEdit::textEdited, this, [this] { Combo1->addItems(Html::alignments()); });
    Text3 = WizardRows::line(rows(), QStringLiteral("Text3"), QStringLiteral("Border :"), defaults.Text3);
    Text4 = WizardRows::line(rows(), QStringLiteral("Text4"), QStringLiteral("Cell Spacing :"), defaults.Text4);
    Text5 = WizardRows::line(rows(), QStringLiteral("Text5"), QStringLiteral("CellPadding :"), defaults.Text5);

    const struct {
        const char* text;
        const char* button;
        const char* swatch;
        const char* label;
        QString value;
        QLineEdit** field;
        ColourSwatch** shape;
        QPushButton** choose;
    } colours[] = {
        {"Text7", "Command1", "Shape1", "Color :", defaults.Text7, &Text7, &Shape1, &Command1},
        {"Text8", "Command2", "Shape2", "Light Border :", defaults.Text8, &Text8, &Shape2, &Command2},
        {"Text9", "Command3", "Shape3", "Dark Border :", defaults.Text9, &Text9, &Shape3, &Command3},
        {"Text10", "Command4", "Shape4", "Background :", defaults.Text10, &Text10, &Shape4, &Command4},
    };
    for (const auto& c : colours) {
        const auto row = WizardRows::colour(rows(), QString::fromLatin1(c.text), QString::fromLatin1(c.button),
                                            QString::fromLatin1(c.swatch), QString::fromLatin1(c.label), c.value);
        *c.field = row.text;
        *c.shape = row.swatch;
        *c.choose = row.choose;
    }

    for (auto [field, name] : {std::pair{&Text11, "Text11"}, {&Text12, "Text12"}, {&Text13, "Text13"}}) {
        *field = Look::named(new QLineEdit(this), QString::fromLatin1(name));
        (*field)->setMaxLength(std::numeric_limits<int>::max());
        (*field)->hide();
    }

    Command5 = addLoadButton(QStringLiteral("Command5"), QStringLiteral("Insert"));
    Command6 = addCloseButton(QStringLiteral("Command6"), QStringLiteral("Cancel"));
}

TableText::Fields Tableform::fields() const
{
    TableText::Fields f;
    f.Text1 = Text1->text();
    f.Text2 = Text2->text();
    f.Text6 = Text6->text();
    f.pixels = Option1->isChecked();
    f.Combo1 = Combo1->currentText();
    f.Text3 = Text3->text();
    f.Text4 = Text4->text();
    f.Text5 = Text5->text();
    f.Text7 = Text7->text();
    f.Text8 = Text8->text();
    f.Text9 = Text9->text();
    f.Text10 = Text10->text();
    return f;
}

void Tableform::beforeDelivery()
{
    TableText::Parts parts = TableText::compose(fields());
    Text11->setText(parts.cell);
    Text12->setText(parts.row);
    Text13->setText(parts.grid);
    whole = std::move(parts.whole);
}

void Tableform::afterDelivery()
{
    Text11->clear();
    Text12->clear();
    Text13->clear();
    whole.clear();
}
