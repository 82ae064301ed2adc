#include "documents/frmgoto.h"

#include "documents/DocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmgoto::frmgoto(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("GoTo Line"));
    auto* row = new QHBoxLayout(this);
    auto* label = new QLabel(QStringLiteral("Line Number:"), this);
    Text1 = Look::named(new QLineEdit(this), QStringLiteral("Text1"));
    Text1->setMinimumWidth(90);
    label->setBuddy(Text1);
    Command1 = Look::named(new QPushButton(QStringLiteral("Go"), this), QStringLiteral("Command1"));
    Command1->setDefault(true);
    Command1->setMinimumWidth(70);
    row->addWidget(label);
    row->addWidget(Text1, 1);
    row->addWidget(Command1);
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    adjustSize();
    setFixedSize(sizeHint());
}

void frmgoto::Form_Load()
{
    Command1->setStyleSheet(QStringLiteral("background-color: %1;").arg(Look::face.name()));
}

void frmgoto::Command1_Click()
{
    OnErrorExit([this] {
        DocumentWindow* doc = ActiveDocument();
        CodeMax* editor = doc->CodeMax1();
        // What is not a whole number cannot be compared with the line count.
        bool ok = false;
        const int line = Text1->text().trimmed().toInt(&ok);
        if (!ok)
            throw RuntimeError::typeMismatch(QStringLiteral("frmgoto"));
        // The user counts lines from 1, as the margin shows them; the editor from 0.
        if (line >= 1 && editor->LineCount() >= line)
            editor->setHighlightedLine(line - 1);
    });
}
