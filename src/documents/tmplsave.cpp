#include "documents/tmplsave.h"

#include "documents/DocumentWindow.h"
#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using Look::named;

tmplsave::tmplsave(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Velloro 2002 Template"));
    auto* outer = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    Text1 = named(new QLineEdit(this), QStringLiteral("Text1"));
    Combo1 = named(new QComboBox(this), QStringLiteral("Combo1"));
    Combo1->addItems({QStringLiteral("tmpl"), QStringLiteral("html"), QStringLiteral("txt")});
    Combo1->setToolTip(QStringLiteral("The default extension is .tmpl for a template, but you can change it."));
    form->addRow(QStringLiteral("Filename :"), Text1);
    form->addRow(QStringLiteral("Extension :"), Combo1);
    auto* hint = new QLabel(QStringLiteral("The default extension is .tmpl for a template, but you can change it."), this);
    hint->setWordWrap(true);
    form->addRow(hint);
    Check1 = named(new QCheckBox(QStringLiteral("Unload HTML code after saved"), this), QStringLiteral("Check1"));
    Check2 = named(new QCheckBox(QStringLiteral("Show Template's after save"), this), QStringLiteral("Check2"));
    form->addRow(Check1);
    form->addRow(Check2);
    outer->addLayout(form);
    auto* buttons = new QHBoxLayout;
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Save"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Cancel"), this);
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    outer->addLayout(buttons);
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, &QWidget::hide);
}

void tmplsave::Command1_Click()
{
    OnErrorExit([this] {
        const QString folder = App::userFile(QStringLiteral("Templates")) + QLatin1Char('/');
        DocumentWindow* doc = ActiveForm();
        if (!doc)
            throw RuntimeError::objectRequired(QStringLiteral("tmplsave"));
        // Only a notepad has the staging box: elsewhere the save ends here.
        doc->tempbox()->setPlainText(doc->RichTextBox1()->text());
        if (Text1->text().isEmpty()) {
            MsgBox(QStringLiteral("Name is required"), Style::Critical);
            return;
        }
        const QString path = folder + Text1->text() + QLatin1Char('.') + Combo1->currentText();
        if (QFileInfo::exists(path)) {
            MsgBox(QStringLiteral("A file allready exists with that filename!!"));
            return;
        }
        QDir().mkpath(folder);
        if (!TextFiles::writeText(path, doc->RichTextBox1()->text() + QStringLiteral("\r\n")))
            throw RuntimeError::pathFileAccess(QStringLiteral("tmplsave"));
        MsgBox(QStringLiteral(" Page Saved ::  ") + path);
        if (Check1->isChecked()) {
            QWidget* w = doc->subWindow() ? static_cast<QWidget*>(doc->subWindow()) : doc;
            w->hide();
        }
        if (Check2->isChecked())
            showForm(QStringLiteral("Templates"));
    });
}
