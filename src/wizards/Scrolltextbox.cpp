#include "wizards/Scrolltextbox.h"

#include "platform/Look.h"
#include "platform/Prompts.h"
#include "services/Workspace.h"
#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

Scrolltextbox::Scrolltextbox(QWidget* parent)
    : WizardDialog(QStringLiteral("Scrolling Text Box ::"), Refusal::Notepad, parent)
{
    const TextAreaText::Fields defaults;
    Text1 = WizardRows::textBox(this, QStringLiteral("Text1"));
    Text1->setMaximumHeight(90);
    rows()->addRow(QStringLiteral("Box Contents :"), Text1);
    Text2 = WizardRows::line(rows(), QStringLiteral("Text2"), QStringLiteral("Name"), defaults.Text2);
    Text3 = WizardRows::line(rows(), QStringLiteral("Text3"), QStringLiteral("Width in CHR"), defaults.Text3);
    Text4 = WizardRows::line(rows(), QStringLiteral("Text4"), QStringLiteral("Height in lines"), defaults.Text4);
    Combo1 = WizardRows::alignment(rows(), QStringLiteral("Combo1"), QStringLiteral("Position"));
    Label5 = Look::named(new QLabel(QStringLiteral("This is inteneded to be used inside of the Form Boundaries, it gives the "
                                                   "text box multiple rows and scrollbars, unlike the one line text box."),
                                    this),
                         QStringLiteral("Label5"));
    Label5->setWordWrap(true);
    rows()->addRow(Label5);
    Command1 = addLoadButton(QStringLiteral("Command1"), QStringLiteral("LOAD"));
    addCloseButton(QStringLiteral("Command2"));
}

TextAreaText::Fields Scrolltextbox::fields() const
{
    TextAreaText::Fields f;
    f.Text1 = WizardRows::pageText(Text1);
    f.Text2 = Text2->text();
    f.Text3 = Text3->text();
    f.Text4 = Text4->text();
    f.Combo1 = Combo1->currentText();
    return f;
}

void Scrolltextbox::failed(const RuntimeError&)
{
    if (!ActiveForm())
        MsgBox(QStringLiteral("There needs to be an active web page to use this feature."), Style::Critical);
}
