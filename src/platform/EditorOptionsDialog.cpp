#include "platform/EditorOptionsDialog.h"

#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/PlatformColour.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <Qsci/qscilexer.h>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
QColor colourOf(const QPushButton* b) { return b->property("colour").value<QColor>(); }

void setColourOf(QPushButton* b, const QColor& c)
{
    b->setProperty("colour", c);
    b->setText(c.name().toUpper());
    b->setStyleSheet(QStringLiteral("QPushButton { background-color: %1; color: %2; }")
                         .arg(c.name(), c.lightness() > 128 ? QStringLiteral("black") : QStringLiteral("white")));
}

QPushButton* colourButton(const QString& name, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setObjectName(name);
    b->setMinimumWidth(90);
    return b;
}

QCheckBox* check(const QString& name, const QString& caption, QWidget* parent)
{
    auto* c = new QCheckBox(caption, parent);
    c->setObjectName(name);
    return c;
}
}

EditorOptionsDialog* EditorOptionsDialog::of(CodeMax* editor)
{
    if (auto* d = editor->findChild<EditorOptionsDialog*>(QString(), Qt::FindDirectChildrenOnly))
        return d;
    return new EditorOptionsDialog(editor);
}

EditorOptionsDialog* EditorOptionsDialog::open(CodeMax* editor)
{
    EditorOptionsDialog* d = of(editor);
    d->setValues(read(editor));
    d->show();
    d->raise();
    d->activateWindow();
    return d;
}

EditorOptionsDialog::EditorOptionsDialog(CodeMax* editor) : QDialog(editor, Qt::Dialog), ed(editor)
{
    setObjectName(QStringLiteral("EditorOptionsDialog"));
    setWindowTitle(QStringLiteral("Editor Properties"));

    auto* fontBox = new QGroupBox(QStringLiteral("Font"), this);
    auto* fontForm = new QFormLayout(fontBox);
    Font1 = new QFontComboBox(fontBox);
    Font1->setObjectName(QStringLiteral("Font1"));
    FontSize = new QSpinBox(fontBox);
    FontSize->setObjectName(QStringLiteral("FontSize"));
    FontSize->setRange(6, 72);
    fontForm->addRow(QStringLiteral("Face :"), Font1);
    fontForm->addRow(QStringLiteral("Size :"), FontSize);

    auto* tabBox = new QGroupBox(QStringLiteral("Tabs"), this);
    auto* tabForm = new QFormLayout(tabBox);
    TabWidth = new QSpinBox(tabBox);
    TabWidth->setObjectName(QStringLiteral("TabWidth"));
    TabWidth->setRange(1, 16);
    UseTabs = check(QStringLiteral("UseTabs"), QStringLiteral("Insert tab characters"), tabBox);
    tabForm->addRow(QStringLiteral("Tab width :"), TabWidth);
    tabForm->addRow(UseTabs);

    auto* colourBox = new QGroupBox(QStringLiteral("Colours"), this);
    auto* colourForm = new QFormLayout(colourBox);
    TextColour = colourButton(QStringLiteral("TextColour"), colourBox);
    PaperColour = colourButton(QStringLiteral("PaperColour"), colourBox);
    MarginColour = colourButton(QStringLiteral("MarginColour"), colourBox);
    colourForm->addRow(QStringLiteral("Plain text :"), TextColour);
    colourForm->addRow(QStringLiteral("Background :"), PaperColour);
    colourForm->addRow(QStringLiteral("Margin :"), MarginColour);

    auto* marginBox = new QGroupBox(QStringLiteral("Margins and view"), this);
    auto* marginLayout = new QVBoxLayout(marginBox);
    LineNumbers = check(QStringLiteral("LineNumbers"), QStringLiteral("Line numbers"), marginBox);
    LeftMargin = check(QStringLiteral("LeftMargin"), QStringLiteral("Left margin"), marginBox);
    Whitespace = check(QStringLiteral("Whitespace"), QStringLiteral("Show white space"), marginBox);
    WordWrap = check(QStringLiteral("WordWrap"), QStringLiteral("Wrap long lines"), marginBox);
    for (QCheckBox* c : {LineNumbers, LeftMargin, Whitespace, WordWrap})
        marginLayout->addWidget(c);

    auto* buttons = new QDialogButtonBox(this);
    OkButton = buttons->addButton(QDialogButtonBox::Ok);
    OkButton->setObjectName(QStringLiteral("OkButton"));
    ApplyButton = buttons->addButton(QDialogButtonBox::Apply);
    ApplyButton->setObjectName(QStringLiteral("ApplyButton"));
    CancelButton = buttons->addButton(QDialogButtonBox::Cancel);
    CancelButton->setObjectName(QStringLiteral("CancelButton"));

    auto* grid = new QGridLayout;
    grid->addWidget(fontBox, 0, 0);
    grid->addWidget(tabBox, 0, 1);
    grid->addWidget(colourBox, 1, 0);
    grid->addWidget(marginBox, 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(buttons);

    for (QPushButton* b : {TextColour, PaperColour, MarginColour})
        connect(b, &QPushButton::clicked, this, Event([this, b] { chooseColour(b); }));
    connect(ApplyButton, &QPushButton::clicked, this, Event([this] { apply(ed, values()); }));
    connect(OkButton, &QPushButton::clicked, this, Event([this] {
        apply(ed, values());
        hide();
    }));
    connect(CancelButton, &QPushButton::clicked, this, &QWidget::hide);
}

void EditorOptionsDialog::chooseColour(QPushButton* button)
{
    const QColor c = colourOf(button);
    const std::optional<int> chosen = prompts().colour(PlatformColour::fromQColor(c));
    if (chosen)
        setColourOf(button, PlatformColour::toQColor(*chosen));
}

EditorOptionsDialog::Values EditorOptionsDialog::read(const CodeMax* editor)
{
    Values v;
    QsciLexer* lexer = editor->lexer();
    const QFont f = editor->editorFont();
    v.fontFamily = f.family();
    v.fontSize = f.pointSize() > 0 ? f.pointSize() : 10;
    v.tabWidth = editor->tabWidth();
    v.useTabs = editor->indentationsUseTabs();
    v.text = lexer ? lexer->defaultColor() : editor->palette().color(QPalette::Text);
    v.paper = lexer ? lexer->defaultPaper() : editor->palette().color(QPalette::Base);
    v.margin = editor->property("marginColour").isValid() ? editor->property("marginColour").value<QColor>()
                                                          : Look::heading;
    v.lineNumbers = editor->LineNumbering();
    v.leftMargin = editor->DisplayLeftMargin();
    v.whitespace = editor->DisplayWhitespace();
    v.wrap = editor->wrapMode() != QsciScintilla::WrapNone;
    return v;
}

void EditorOptionsDialog::apply(CodeMax* editor, const Values& v)
{
    const QFont f(v.fontFamily, v.fontSize);
    editor->setEditorFont(f);
    if (QsciLexer* lexer = editor->lexer()) {
        lexer->setDefaultColor(v.text);
        lexer->setColor(v.text, 0);
        lexer->setPaper(v.paper, -1);
        lexer->setDefaultPaper(v.paper);
    } else {
        editor->setColor(v.text);
        editor->setPaper(v.paper);
    }
    editor->setMarginsFont(f);
    editor->setTabWidth(v.tabWidth);
    editor->setIndentationsUseTabs(v.useTabs);
    editor->setProperty("marginColour", v.margin);
    editor->setMarginsBackgroundColor(v.margin);
    editor->setFoldMarginColors(v.margin, v.margin);
    editor->setLineNumbering(v.lineNumbers);
    editor->setDisplayLeftMargin(v.leftMargin);
    editor->setDisplayWhitespace(v.whitespace);
    editor->setWrapMode(v.wrap ? QsciScintilla::WrapWord : QsciScintilla::WrapNone);
}

EditorOptionsDialog::Values EditorOptionsDialog::values() const
{
    Values v;
    v.fontFamily = Font1->currentFont().family();
    v.fontSize = FontSize->value();
    v.tabWidth = TabWidth->value();
    v.useTabs = UseTabs->isChecked();
    v.text = colourOf(TextColour);
    v.paper = colourOf(PaperColour);
    v.margin = colourOf(MarginColour);
    v.lineNumbers = LineNumbers->isChecked();
    v.leftMargin = LeftMargin->isChecked();
    v.whitespace = Whitespace->isChecked();
    v.wrap = WordWrap->isChecked();
    return v;
}

void EditorOptionsDialog::setValues(const Values& v)
{
    Font1->setCurrentFont(QFont(v.fontFamily));
    FontSize->setValue(v.fontSize);
    TabWidth->setValue(v.tabWidth);
    UseTabs->setChecked(v.useTabs);
    setColourOf(TextColour, v.text);
    setColourOf(PaperColour, v.paper);
    setColourOf(MarginColour, v.margin);
    LineNumbers->setChecked(v.lineNumbers);
    LeftMargin->setChecked(v.leftMargin);
    Whitespace->setChecked(v.whitespace);
    WordWrap->setChecked(v.wrap);
}
