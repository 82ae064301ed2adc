#include "documents/PProperties.h"

#include "documents/DocumentWindow.h"
#include "documents/FileFacts.h"
#include "platform/Look.h"
#include "services/Workspace.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PProperties::PProperties(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("PProperties"));
    setWindowTitle(QStringLiteral("Page Properties"));
    setMinimumWidth(420);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 8);
    outer->addWidget(Look::banner(QStringLiteral("Shape1"), windowTitle(), this));
    facts = new FileFacts(this);
    facts->setContentsMargins(12, 8, 12, 4);
    outer->addWidget(facts);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Close"), this);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 0, 12, 0);
    buttons->addStretch();
    buttons->addWidget(Command1);
    outer->addLayout(buttons);
    connect(Command1, &QPushButton::clicked, this, &QDialog::hide);
}

void PProperties::refresh()
{
    facts->clear();
    if (DocumentWindow* doc = ActiveForm()) {
        // A document never saved has no file: its caption is all there is to show.
        facts->Filenae->setText(doc->Caption());
        facts->fill(doc);
    }
}

void PProperties::showEvent(QShowEvent* e)
{
    refresh();
    QDialog::showEvent(e);
}
