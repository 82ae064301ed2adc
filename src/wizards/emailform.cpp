#include "wizards/emailform.h"

#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QLineEdit>

emailform::emailform(QWidget* parent) : WizardDialog(QStringLiteral("Email ::"), Refusal::Notepad, parent)
{
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Text to display :"));
    address = WizardRows::line(rows(), QStringLiteral("address"), QStringLiteral("E-mail Address :"));
    subject = WizardRows::line(rows(), QStringLiteral("subject"), QStringLiteral("Subject :"));
    align = WizardRows::alignment(rows(), QStringLiteral("align"));
    Command1 = addLoadButton(QStringLiteral("Command1"));
    Command2 = addCloseButton(QStringLiteral("Command2"));
}

EmailText::Fields emailform::fields() const
{
    EmailText::Fields f;
    f.Text1 = Text1->text();
    f.address = address->text();
    f.subject = subject->text();
    f.align = align->currentText();
    return f;
}

void emailform::afterDelivery()
{
    Text1->clear();
    subject->clear();
    address->clear();
}
