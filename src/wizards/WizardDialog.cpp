#include "wizards/WizardDialog.h"

#include "documents/Insertion.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/RuntimeError.h"

#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

WizardDialog::WizardDialog(const QString& caption, Refusal refusal, QWidget* parent)
    : QDialog(parent), refusal(refusal)
{
    setWindowTitle(caption);
    setMinimumWidth(360);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 8);

    // The header shape, in the heading colour, with the caption in it.
    banner = Look::banner(QStringLiteral("Shape2"), caption, this);
    outer->addWidget(banner);

    rowLayout = new QFormLayout;
    rowLayout->setContentsMargins(12, 8, 12, 4);
    rowLayout->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    outer->addLayout(rowLayout);
    outer->addStretch();

    buttonRow = new QHBoxLayout;
    buttonRow->setContentsMargins(12, 0, 12, 0);
    buttonRow->addStretch();
    outer->addLayout(buttonRow);
}

void WizardDialog::Insert()
{
    bool stopped = false;
    try {
        if ((refusal == Refusal::Notepad && RefuseInNotepad()) || !checkFields()) {
            stopped = true;
        } else {
            beforeDelivery();
            const bool selected = delivery() == Delivery::Selected;
            if (std::optional<TextPieces> utf8 = takeUtf8Pieces())
                InsertAtCaret(std::move(*utf8));
            else
                for (const QString& piece : fragments())
                    selected ? InsertSelected(piece) : InsertAtCaret(piece);
            afterDelivery();
        }
    } catch (const RuntimeError& e) {
        failed(e);
        return;
    }
    // A refusal or a failed check inserts nothing and leaves the form on the screen.
    if (!stopped)
        closingStep();
}

void WizardDialog::failed(const RuntimeError&) { closingStep(); }

QPushButton* WizardDialog::addButton(const QString& name, const QString& caption)
{
    QPushButton* b = Look::faceButton(name, caption, this);
    b->setAutoDefault(false);
    if (buttonRow->count() == 1)
        b->setDefault(true);
    buttonRow->addWidget(b);
    return b;
}

QPushButton* WizardDialog::addLoadButton(const QString& name, const QString& caption)
{
    QPushButton* b = addButton(name, caption);
    connect(b, &QPushButton::clicked, this, Event([this] { Insert(); }));
    return b;
}

QPushButton* WizardDialog::addCloseButton(const QString& name, const QString& caption)
{
    QPushButton* b = addButton(name, caption);
    connect(b, &QPushButton::clicked, this, &QWidget::hide);
    return b;
}
