#include "documents/findform.h"

#include "documents/DocumentWindow.h"
#include "documents/frmgoto.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {
using Look::named;


// The active child, read anew for every use; none is the run-time error the trap swallows.
DocumentWindow* active() { return ActiveDocument(); }

QString foundOnLine(int pos)
{
    return QStringLiteral("Word found on line ") + QString::number(active()->RichTextBox1()->GetLineFromChar(pos) + 1);
}
}

findform::findform(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Find + Replace Velloro 2002"));

    auto* outer = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    outer->addLayout(grid);

    Text1 = named(new QLineEdit(this), QStringLiteral("Text1"));
    Text2 = named(new QLineEdit(this), QStringLiteral("Text2"));
    Text1->setMinimumWidth(230);
    auto* findLabel = new QLabel(QStringLiteral("Find:"), this);
    findLabel->setBuddy(Text1);
    auto* replaceLabel = new QLabel(QStringLiteral("Replace with:"), this);
    replaceLabel->setBuddy(Text2);

    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Find"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Replace"), this);
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Find Next"), this);
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("Close"), this);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Show Advanced"), this);
    Command5->setToolTip(QStringLiteral("Opens an advanced Find+Replace Dialog"));
    Check1 = named(new QCheckBox(QStringLiteral("Close after Replace"), this), QStringLiteral("Check1"));
    for (QPushButton* b : {Command1, Command2, Command3, Command4, Command5})
        b->setMinimumWidth(100);
    Command1->setDefault(true);

    grid->addWidget(findLabel, 0, 0);
    grid->addWidget(Text1, 0, 1);
    grid->addWidget(Command1, 0, 2);
    grid->addWidget(replaceLabel, 1, 0);
    grid->addWidget(Text2, 1, 1);
    grid->addWidget(Command2, 1, 2);
    grid->addWidget(Check1, 2, 1);
    grid->addWidget(Command3, 2, 2);
    grid->setColumnStretch(1, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(Command5);
    bottom->addStretch();
    bottom->addWidget(Command4);
    outer->addSpacing(6);
    outer->addLayout(bottom);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));

    adjustSize();
    setFixedSize(sizeHint());
}

void findform::Form_Load() { allowReplace(false); }

void findform::allowReplace(bool on)
{
    Text2->setEnabled(on);
    Command2->setEnabled(on);
}

void findform::say(const QString& text)
{
    ++promptDepth;
    struct Done {
        int& depth;
        ~Done() { --depth; }
    } done{promptDepth};
    MsgBox(text);
}

void findform::Form_Activate()
{
    // The older start window is loaded here, and stays hidden.
    if (Forms::hasFactory(QStringLiteral("Form2")))
        Forms::get(QStringLiteral("Form2"))->hide();
    refreshCopy(false);
}

void findform::refreshCopy(bool always)
{
    DocumentWindow* doc = ActiveForm();
    if (!doc)
        return;
    OnErrorExit([doc, always] {
        if (doc->isNotepad())
            return;
        RichTextBox* copy = doc->RichTextBox1();
        const QString code = doc->CodeMax1()->text();
        // On a mere return to the window, a copy that already holds the editor's text is left
        // alone: coming back from one of our own message boxes must keep the found selection
        // that Replace works on.
        if (!always && copy->text() == code)
            return;
        copy->setText(QString());
        copy->setText(code);
    });
}

void findform::Form_Deactivate() { allowReplace(false); }

void findform::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    refreshCopy(true);
}

void findform::hideEvent(QHideEvent* e)
{
    QDialog::hideEvent(e);
    Form_Deactivate();
}

void findform::changeEvent(QEvent* e)
{
    QDialog::changeEvent(e);
    if (e->type() != QEvent::ActivationChange || !isVisible())
        return;
    if (isActiveWindow())
        Form_Activate();
    else if (promptDepth == 0)
        Form_Deactivate();
}

void findform::Command1_Click()
{
    allowReplace(false);
    OnErrorExit([this] {
        const int pos = active()->RichTextBox1()->find(Text1->text());
        if (pos == -1) {
            say(QStringLiteral("Word not found."));
            return;
        }
        say(foundOnLine(pos));
        allowReplace(true);
    });
}

void findform::Command3_Click()
{
    OnErrorExit([this] {
        RichTextBox* box = active()->RichTextBox1();
        const int start = box->SelStart() + box->SelLength();
        // The same case-blind match as the first find, only from the end of the last one on.
        const QTextCursor found = box->document()->find(Text1->text(), start);
        if (found.isNull())
            return;
        box->setSelStart(found.selectionStart());
        box->setSelLength(found.selectionEnd() - found.selectionStart());
        say(foundOnLine(found.selectionStart()));
    });
}

void findform::Command2_Click()
{
    OnErrorExit([this] {
        active()->RichTextBox1()->setSelText(Text2->text());
        Text1->clear();
        Text2->clear();
        if (!active()->isNotepad())
            active()->CodeMax1()->setText(active()->RichTextBox1()->text());
        if (Check1->isChecked())
            hide();
    });
}

void findform::Command4_Click()
{
    OnErrorExit([] {
        if (!active()->isNotepad())
            active()->CodeMax1()->setText(active()->RichTextBox1()->text());
    });
    hide();
}

void findform::Command5_Click()
{
    OnErrorExit([] { active()->CodeMax1()->ExecuteCmd(CodeMax::FindReplace); });
}
