#include "wizards/Hyperlink1.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

Hyperlink1::Hyperlink1(QWidget* parent) : WizardDialog(QStringLiteral("Hyperlink ::"), Refusal::Notepad, parent)
{
    const HyperlinkText::Fields defaults;
    Link = WizardRows::field(this, QStringLiteral("Link"));
    Command1 = WizardRows::withButton(rows(), QStringLiteral("Link :"), Link, QStringLiteral("Command1"), QStringLiteral("Find"));
    connect(Command1, &QPushButton::clicked, this, Event([this] {
        const QString path = prompts().openFile(QString(), QStringLiteral("Web Files (*.htm*)"), QString());
        if (!path.isEmpty())
            Link->setText(path);
    }));

    text = WizardRows::line(rows(), QStringLiteral("text"), QStringLiteral("Hyperlink Text :"), defaults.text);
    target = WizardRows::line(rows(), QStringLiteral("target"), QStringLiteral("Target Setting :"), defaults.target);
    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    List1->addItems({QStringLiteral("_self"), QStringLiteral("_top"), QStringLiteral("_blank"), QStringLiteral("_parent")});
    List1->setMaximumHeight(List1->sizeHintForRow(0) * 4 + 2 * List1->frameWidth());
    rows()->addRow(QStringLiteral("Common Target :"), List1);
    // A row taken by mouse or by the arrow keys becomes the target.
    connect(List1, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { target->setText(item->text()); });
    connect(List1, &QListWidget::currentTextChanged, this, [this](const QString& row) {
        if (!row.isEmpty())
            target->setText(row);
    });

    textsize = WizardRows::line(rows(), QStringLiteral("textsize"), QStringLiteral("Text Size :"), defaults.textsize);
    const auto font = WizardRows::font(rows(), QStringLiteral("textfont"), QStringLiteral("Command3"), QStringLiteral("Font :"),
                                       QStringLiteral("Choose"));
    textfont = font.text;
    Command3 = font.choose;
    const auto colour = WizardRows::colour(rows(), QStringLiteral("Text1"), QStringLiteral("Command4"), QStringLiteral("Shape1"),
                                           QStringLiteral("Link Colour :"), defaults.Text1);
    Text1 = colour.text;
    Shape1 = colour.swatch;
    Command4 = colour.choose;

    Check1 = Look::named(new QCheckBox(this), QStringLiteral("Check1"));
    Label5 = Look::named(new QLabel(QStringLiteral("Tick the Box if you want the hyperlink to have its own colour, the Text "
                                                   "font and size can be set without this matter being ticked!!"),
                                    this),
                         QStringLiteral("Label5"));
    Label5->setWordWrap(true);
    Label5->setBuddy(Check1);
    auto* own = new QHBoxLayout;
    own->addWidget(Check1, 0, Qt::AlignTop);
    own->addWidget(Label5, 1);
    rows()->addRow(own);

    Command2 = addLoadButton(QStringLiteral("Command2"), QStringLiteral("LOAD"));
    addCloseButton(QStringLiteral("Command5"));
}

HyperlinkText::Fields Hyperlink1::fields() const
{
    HyperlinkText::Fields f;
    f.Link = Link->text();
    f.text = text->text();
    f.target = target->text();
    f.textsize = textsize->text();
    f.textfont = textfont->text();
    f.Text1 = Text1->text();
    f.ownColour = Check1->isChecked();
    return f;
}

bool Hyperlink1::checkFields()
{
    if (!Link->text().isEmpty())
        return true;
    MsgBox(QStringLiteral("A link is required ...."), Style::OkOnly);
    return false;
}

// The coloured link is written and left selected, without the caret step behind it.
WizardDialog::Delivery Hyperlink1::delivery() const { return Check1->isChecked() ? Delivery::Selected : Delivery::AtCaret; }

void Hyperlink1::afterDelivery()
{
    Link->clear();
    text->clear();
}
