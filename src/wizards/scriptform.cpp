#include "wizards/scriptform.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

scriptform::scriptform(QWidget* parent) : WizardDialog(QStringLiteral("Scripts ::"), Refusal::Notepad, parent)
{
    optJS = Look::named(new QRadioButton(QStringLiteral("JavaScript"), this), QStringLiteral("optJS"));
    optVBS = Look::named(new QRadioButton(QStringLiteral("VBScript"), this), QStringLiteral("optVBS"));
    optOther = Look::named(new QRadioButton(QStringLiteral("Other"), this), QStringLiteral("optOther"));
    auto* language = new QHBoxLayout;
    for (QRadioButton* option : {optJS, optVBS, optOther})
        language->addWidget(option);
    language->addStretch();
    rows()->addRow(QStringLiteral("Language :"), language);
    chkServer = Look::named(new QCheckBox(QStringLiteral("Run on Server"), this), QStringLiteral("chkServer"));
    rows()->addRow(QString(), chkServer);
    txtOther = WizardRows::line(rows(), QStringLiteral("txtOther"), QStringLiteral("Other :"));

    Frame1 = Look::named(new QGroupBox(QStringLiteral("Text Input ..."), this), QStringLiteral("Frame1"));
    txtScript = WizardRows::textBox(Frame1, QStringLiteral("txtScript"));
    txtScript->setMinimumHeight(140);
    // Script lines stay whole, as in an editor; a long one is not wrapped.
    txtScript->setLineWrapMode(QPlainTextEdit::NoWrap);
    (new QVBoxLayout(Frame1))->addWidget(txtScript);
    rows()->addRow(Frame1);

    // Each language enables what it uses; "Other" leaves the server box as it was.
    connect(optJS, &QRadioButton::toggled, this, Event([this](bool on) {
        if (!on)
            return;
        chkServer->setEnabled(false);
        txtOther->setEnabled(false);
    }));
    connect(optVBS, &QRadioButton::toggled, this, Event([this](bool on) {
        if (!on)
            return;
        chkServer->setEnabled(true);
        txtOther->setEnabled(false);
    }));
    connect(optOther, &QRadioButton::toggled, this, Event([this](bool on) {
        if (on)
            txtOther->setEnabled(true);
    }));
    optJS->setChecked(true);

    Command1 = addLoadButton(QStringLiteral("Command1"), QStringLiteral("LOAD"));
    Command2 = addCloseButton(QStringLiteral("Command2"), QStringLiteral("Cancel"));
}

ScriptText::Fields scriptform::fields() const
{
    ScriptText::Fields f;
    f.language = optVBS->isChecked()     ? ScriptText::Language::VBScript
                 : optOther->isChecked() ? ScriptText::Language::Other
                                         : ScriptText::Language::JavaScript;
    f.server = chkServer->isChecked();
    f.txtOther = txtOther->text();
    f.txtScript = WizardRows::pageText(txtScript);
    return f;
}
