#include "wizards/Fontform.h"

#include "colour/ColourSwatch.h"
#include "documents/DocumentWindow.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace {
// The platform's conversion of a text to a size: what is no number is a type mismatch.
double fontSize(const QString& text)
{
    bool ok = false;
    const double size = text.trimmed().toDouble(&ok);
    if (!ok)
        throw RuntimeError::typeMismatch(QStringLiteral("SelFontSize"));
    return size;
}
}

Fontform::Fontform(QWidget* parent) : WizardDialog(QStringLiteral("Font ::"), Refusal::None, parent)
{
    // Every screen font in the system's order; the notepad's own font (as the system resolves
    // it) stands in the box at first.
    Combo1 = WizardRows::list(rows(), QStringLiteral("Combo1"), QStringLiteral("Font :"), QFontDatabase::families(),
                              QFontInfo(QFont(QStringLiteral("Arial"))).family());
    Combo3 = WizardRows::list(rows(), QStringLiteral("Combo3"), QStringLiteral("Size :"),
                              {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                               QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("7"), QStringLiteral("8"),
                               QStringLiteral("10"), QStringLiteral("12"), QStringLiteral("16"), QStringLiteral("20"),
                               QStringLiteral("35")},
                              QStringLiteral("10"));  // the notepad's own size
    Combo2 = WizardRows::list(rows(), QStringLiteral("Combo2"), QStringLiteral("Style :"),
                              {QStringLiteral("Regular"), QStringLiteral("Italic"), QStringLiteral("Bold"),
                               QStringLiteral("Bold Italic")},
                              QStringLiteral("Regular"));
    const auto colour = WizardRows::colour(rows(), QStringLiteral("colortext"), QStringLiteral("Command1"),
                                           QStringLiteral("Shape1"), QStringLiteral("Colour :"));
    colortext = colour.text;
    Shape1 = colour.swatch;
    Command1 = colour.choose;
    Check1 = Look::named(new QCheckBox(QStringLiteral("Apply to all text in Document"), this), QStringLiteral("Check1"));
    Check2 = Look::named(new QCheckBox(QStringLiteral("Apply to Forthcoming Text"), this), QStringLiteral("Check2"));
    rows()->addRow(Check1);
    rows()->addRow(Check2);
    PREVIEWTEXT = new RichTextBox(RichTextBox::Kind::Visible, this, this);
    PREVIEWTEXT->widget()->setObjectName(QStringLiteral("PREVIEWTEXT"));
    PREVIEWTEXT->widget()->setFixedHeight(70);
    PREVIEWTEXT->setText(QStringLiteral("PREVIEW"));
    PREVIEWTEXT->widget()->selectAll();
    PREVIEWTEXT->widget()->setAlignment(Qt::AlignCenter);
    PREVIEWTEXT->setSelLength(0);
    rows()->addRow(QStringLiteral("Preview :"), PREVIEWTEXT->widget());
    Command3 = addButton(QStringLiteral("Command3"), QStringLiteral("Apply"));
    Command2 = addCloseButton(QStringLiteral("Command2"), QStringLiteral("Cancel"));

    // Ticking one box clears the other; clearing one leaves the other as it is.
    connect(Check1, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            Check2->setChecked(false);
    });
    connect(Check2, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            Check1->setChecked(false);
    });
    // The preview shows the font and the size; the style list only selects it.
    connect(Combo1, &QComboBox::textActivated, this, Event([this](const QString& name) {
        selectPreview();
        PREVIEWTEXT->setSelFontName(name);
    }));
    connect(Combo3, &QComboBox::textActivated, this, Event([this](const QString& size) {
        selectPreview();
        PREVIEWTEXT->setSelFontSize(fontSize(size));
    }));
    connect(Combo2, &QComboBox::textActivated, this, [this] { selectPreview(); });
    // After the colour step of the field: the preview takes the colour too.
    connect(Command1, &QPushButton::clicked, this, [this] {
        selectPreview();
        PREVIEWTEXT->setSelColor(Shape1->BackColor());
    });
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
}

void Fontform::selectPreview()
{
    PREVIEWTEXT->setSelStart(0);
    PREVIEWTEXT->setSelLength(static_cast<int>(PREVIEWTEXT->text().size()));
}

void Fontform::Command3_Click()
{
    ResumeNext next;
    if (Check1->isChecked()) {
        next([] {
            if (QTextEdit* edit = ActiveDocument()->RichTextBox1()->widget())
                edit->setFocus();
        });
        next([] { ActiveDocument()->RichTextBox1()->setSelStart(0); });
        next([] {
            RichTextBox* box = ActiveDocument()->RichTextBox1();
            box->setSelLength(static_cast<int>(box->text().size()));
        });
    }
    next([this] { ActiveDocument()->RichTextBox1()->setSelFontName(Combo1->currentText()); });
    next([this] { ActiveDocument()->RichTextBox1()->setSelFontSize(fontSize(Combo3->currentText())); });
    next([this] { ActiveDocument()->RichTextBox1()->setSelColor(Shape1->BackColor()); });
    hide();
}
