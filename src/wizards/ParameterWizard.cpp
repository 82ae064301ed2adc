#include "wizards/ParameterWizard.h"

#include "platform/EventProcedure.h"
#include "platform/ListRows.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/WizardRows.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ParameterWizard::ParameterWizard(const QString& caption, QWidget* parent)
    : WizardDialog(caption, Refusal::None, parent)
{
}

QLineEdit* ParameterWizard::field(const QString& name, const QString& label)
{
    QLineEdit* edit = WizardRows::line(rows(), name, label);
    textFields << edit;
    return edit;
}

QLineEdit* ParameterWizard::fileField(const QString& name, const QString& label)
{
    QLineEdit* edit = WizardRows::field(this, name);
    textFields << edit;
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Find"), this);
    Command1->setAutoDefault(false);
    auto* line = new QHBoxLayout;
    line->addWidget(edit, 1);
    line->addWidget(Command1);
    rows()->addRow(label, line);
    fileTarget = edit;
    connect(Command1, &QPushButton::clicked, this, Event([this] { chooseFile(); }));
    return edit;
}

void ParameterWizard::finishRows()
{
    const ParameterText::Common defaults;
    txtheight = WizardRows::field(this, QStringLiteral("txtheight"), defaults.txtheight);
    txtWidth = WizardRows::field(this, QStringLiteral("txtWidth"), defaults.txtWidth);
    WizardRows::pair(rows(), QStringLiteral("Height :"), txtheight, QStringLiteral("Width :"), txtWidth);

    txtnamenew = field(QStringLiteral("txtnamenew"), QStringLiteral("Parameter Name :"));
    txtvaluenew = field(QStringLiteral("txtvaluenew"), QStringLiteral("Parameter Value :"));
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Add"), this);
    Command2->setAutoDefault(false);
    auto* addRow = new QHBoxLayout;
    addRow->addStretch();
    addRow->addWidget(Command2);
    rows()->addRow(addRow);

    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    List1->setMinimumHeight(80);
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Delete"), this);
    Command3->setAutoDefault(false);
    auto* listRow = new QHBoxLayout;
    listRow->addWidget(List1, 1);
    auto* listButtons = new QVBoxLayout;
    listButtons->addWidget(Command3);
    listButtons->addStretch();
    listRow->addLayout(listButtons);
    rows()->addRow(QStringLiteral("Parameters :"), listRow);

    Command4 = addLoadButton(QStringLiteral("Command4"), QStringLiteral("Insert"));
    Command5 = addCloseButton(QStringLiteral("Command5"), QStringLiteral("Exit"));

    connect(Command2, &QPushButton::clicked, this, Event([this] { addParameter(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { deleteParameter(); }));
}

void ParameterWizard::fillCommon(ParameterText::Common& f) const
{
    f.txtheight = txtheight->text();
    f.txtWidth = txtWidth->text();
    f.List1 = parameterLines();
}

QStringList ParameterWizard::parameterLines() const
{
    return rowsOf(List1);
}

void ParameterWizard::chooseFile()
{
    const QString path = prompts().openFile(QString(), QStringLiteral("All Files (*)"), QString());
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Nof file selected"));
        return;
    }
    fileTarget->setText(path);
}

void ParameterWizard::addParameter()
{
    List1->addItem(ParameterText::parameter(txtnamenew->text(), txtvaluenew->text()));
}

void ParameterWizard::deleteParameter()
{
    // Nothing selected, nothing removed.
    if (QListWidgetItem* item = List1->currentItem(); item && item->isSelected())
        delete item;
}

void ParameterWizard::afterDelivery()
{
    for (QLineEdit* edit : textFields)
        edit->clear();
    const ParameterText::Common defaults;
    txtheight->setText(defaults.txtheight);
    txtWidth->setText(defaults.txtWidth);
}
