#include "wizards/DropMenuForm.h"

#include "platform/EventProcedure.h"
#include "platform/ListRows.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {
const QString linkStart = QStringLiteral("HTTP://");

}

DropMenuForm::DropMenuForm(const QString& caption, const QString& exampleText, const QString& workingText, QWidget* parent)
    : WizardDialog(caption, Refusal::None, parent)
{
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Menu Text :"));
    Text2 = WizardRows::field(this, QStringLiteral("Text2"), linkStart);
    Command2 = WizardRows::withButton(rows(), QStringLiteral("Hyperlink For Text : (Must include the HTTP://)"), Text2,
                                      QStringLiteral("Command2"), QStringLiteral("Add"));
    connect(Command2, &QPushButton::clicked, this, Event([this] { addEntry(); }));

    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    List2 = Look::named(new QListWidget(this), QStringLiteral("List2"));
    List1->hide();
    List2->hide();
    Combo1 = WizardRows::list(rows(), QStringLiteral("Combo1"), QStringLiteral("Example :"), {}, exampleText);
    // It starts without rows, which would leave it too narrow for its own text.
    Combo1->setMinimumContentsLength(16);
    Text4 = WizardRows::field(this, QStringLiteral("Text4"), workingText);
    Text4->hide();
}

void DropMenuForm::addSelectRows()
{
    Text3 = WizardRows::line(rows(), QStringLiteral("Text3"), QStringLiteral("Name :"), QStringLiteral("D1"));
    Combo2 = WizardRows::alignment(rows(), QStringLiteral("Combo2"));
    Text5 = WizardRows::line(rows(), QStringLiteral("Text5"), QStringLiteral("Height :"));
}

void DropMenuForm::addButtons()
{
    Command1 = addLoadButton(QStringLiteral("Command1"));
    addCloseButton(QStringLiteral("Command6"));
}

void DropMenuForm::addEntry()
{
    List1->addItem(Text1->text());
    List2->addItem(Text2->text());
    // The example list gains the row; the text it shows stays.
    const QString shown = Combo1->currentText();
    Combo1->addItem(Text1->text());
    Combo1->setCurrentText(shown);
    Text1->clear();
    Text2->setText(linkStart);
}

QStringList DropMenuForm::texts() const { return rowsOf(List1); }
QStringList DropMenuForm::links() const { return rowsOf(List2); }

bool DropMenuForm::checkFields()
{
    if (List1->count() > 0)
        return true;
    MsgBox(QStringLiteral("You need to add at least 1 entry!"), Style::OkOnly);
    return false;
}

void DropMenuForm::afterDelivery()
{
    Text4->clear();
    List1->clear();
    List2->clear();
    Combo1->clear();
    Combo1->clearEditText();
}
