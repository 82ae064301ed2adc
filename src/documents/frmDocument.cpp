#include "documents/frmDocument.h"

#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "platform/WebBrowser.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr int heading = 52 | (129 << 8) | (211 << 16);  // RGB 52, 129, 211 as a platform value
}

frmDocument::frmDocument(QWidget* parent) : DocumentWindow(parent)
{
    setObjectName(QStringLiteral("frmDocument"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);

    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setTabPosition(QTabWidget::South);
    SSTab1->setStyleSheet(QStringLiteral("QTabBar::tab { background: rgb(255, 255, 240); padding: 4px 14px; }"
                                         "QTabBar::tab:selected { background: rgb(193, 210, 238); }"));
    layout->addWidget(SSTab1);

    // The code tab: the language bar above the editor.
    auto* codeTab = new QWidget(SSTab1);
    auto* codeLayout = new QVBoxLayout(codeTab);
    codeLayout->setContentsMargins(0, 0, 0, 0);
    codeLayout->setSpacing(2);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(4, 2, 4, 0);
    Label1 = new QLabel(QStringLiteral("Syntax :"), codeTab);
    Label1->setObjectName(QStringLiteral("Label1"));
    syntax = new QComboBox(codeTab);
    syntax->setObjectName(QStringLiteral("SYNTAXTYPE"));
    syntax->addItems({QStringLiteral("HTML"), QStringLiteral("SQL"), QStringLiteral("C/C++"), QStringLiteral("Pascal"),
                      QStringLiteral("XML"), QStringLiteral("Basic"), QStringLiteral("Java"), QStringLiteral("PHP"),
                      QStringLiteral("Delphi"), QStringLiteral("JavaScript"), QStringLiteral("<none>")});
    bar->addWidget(Label1);
    bar->addWidget(syntax);
    bar->addStretch();
    codeLayout->addLayout(bar);
    editor = new CodeMax(codeTab);
    codeLayout->addWidget(editor, 1);
    SSTab1->addTab(codeTab, QStringLiteral("HTML Code"));

    // The preview tab: the link preview above the browser, which is created when first shown.
    auto* previewTab = new QWidget(SSTab1);
    auto* previewLayout = new QVBoxLayout(previewTab);
    previewLayout->setContentsMargins(0, 0, 0, 0);
    linkLabel = new QLabel(QStringLiteral("Smart Link Preview"), previewTab);
    linkLabel->setObjectName(QStringLiteral("linkpreview"));
    previewLayout->addWidget(linkLabel);
    browser = new WebBrowser(previewTab);
    previewLayout->addWidget(browser, 1);
    SSTab1->addTab(previewTab, QStringLiteral("Preview"));

    workCopy = new RichTextBox(RichTextBox::Kind::Hidden, this, this);
    changed = new QLabel(this);
    changed->setObjectName(QStringLiteral("Changedvalue"));
    changed->hide();

    // Load: the editor's margins in the heading colour with white line numbers.
    editor->setLineNumbering(true);
    editor->setDisplayLeftMargin(true);
    editor->setColour(CodeMax::LineNumberBackColour, heading);
    editor->setColour(CodeMax::LeftMarginColour, heading);
    editor->setColour(CodeMax::LineNumberColour, 0xFFFFFF);
    editor->setLanguage(QStringLiteral("HTML"));
    showTextStatus();

    connect(editor, &CodeMax::Change, this, &frmDocument::editorChanged);
    connect(syntax, &QComboBox::textActivated, this, [this](const QString& text) {
        editor->setLanguage(text == QLatin1String("<none>") ? QString() : text);
    });
}

WebBrowser* frmDocument::WebBrowser1() { return browser; }

void frmDocument::showTextStatus()
{
    frmMain* main = frmMain::loaded();
    if (!main)
        return;
    main->setStatusText(3, QStringLiteral("Chr: ") + QString::number(editor->TextLength()));
    main->setStatusText(2, QStringLiteral("Lines: ") + QString::number(editor->LineCount()));
}

void frmDocument::editorChanged()
{
    showTextStatus();
    changed->setText(QStringLiteral("Changed"));
}

void frmDocument::Form_Activate()
{
    DocumentWindow::Form_Activate();
    const QString name = documentName();
    frmMain::instance()->setStatusText(1, QStringLiteral("Page Loaded ::  ") + name);
    showTextStatus();
    editor->setFocus();
}
