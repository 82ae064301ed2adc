#include "documents/frmDocument.h"

#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/WebBrowser.h"
#include "services/Workspace.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr int heading = 52 | (129 << 8) | (211 << 16);
}

frmDocument::frmDocument(QWidget* parent) : CodeDocumentWindow(parent)
{
    setObjectName(QStringLiteral("frmDocument"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);

    SSTab1 = Look::named(new QTabWidget(this), QStringLiteral("SSTab1"));
    SSTab1->setTabPosition(QTabWidget::South);
    SSTab1->setDocumentMode(true);
    SSTab1->setStyleSheet(QStringLiteral("QTabBar::tab { background: %1; padding: 4px 14px; border: 1px solid %2; }"
                                         "QTabBar::tab:selected { background: %2; }")
                              .arg(Look::tabFace.name(), Look::face.name()));
    layout->addWidget(SSTab1);

    // The code tab: the language bar above the editor.
    auto* codeTab = new QWidget(SSTab1);
    auto* codeLayout = new QVBoxLayout(codeTab);
    codeLayout->setContentsMargins(0, 0, 0, 0);
    codeLayout->setSpacing(2);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(4, 2, 4, 0);
    Label1 = Look::named(new QLabel(QStringLiteral("Syntax :"), codeTab), QStringLiteral("Label1"));
    syntax = Look::named(new QComboBox(codeTab), QStringLiteral("SYNTAXTYPE"));
    syntax->addItems({QStringLiteral("HTML"), QStringLiteral("SQL"), QStringLiteral("C/C++"), QStringLiteral("Pascal"),
                      QStringLiteral("XML"), QStringLiteral("Basic"), QStringLiteral("Java"), QStringLiteral("PHP"),
                      QStringLiteral("Delphi"), QStringLiteral("JavaScript"), QStringLiteral("<none>")});
    bar->addWidget(Label1);
    bar->addWidget(syntax);
    bar->addStretch();
    codeLayout->addLayout(bar);
    CodeMax1()->setParent(codeTab);
    codeLayout->addWidget(CodeMax1(), 1);
    SSTab1->addTab(codeTab, QStringLiteral("HTML Code"));

    // The preview tab: the preview bar above the browser.
    auto* previewTab = new QWidget(SSTab1);
    auto* previewLayout = new QVBoxLayout(previewTab);
    previewLayout->setContentsMargins(0, 0, 0, 0);
    previewLayout->setSpacing(0);
    previewLayout->addWidget(buildPreviewBar(QStringLiteral("PreviewBar"), true, QStringLiteral("Check HTML Report Tool")));
    WebBrowser1()->setParent(previewTab);
    previewLayout->addWidget(WebBrowser1(), 1);
    SSTab1->addTab(previewTab, QStringLiteral("Preview"));

    CodeMax1()->setColour(CodeMax::LeftMarginColour, heading);
    showTextStatus();

    connect(CodeMax1(), &CodeMax::Change, this, &frmDocument::editorChanged);
    connect(syntax, &QComboBox::textActivated, this, Event([this](const QString& text) {
        CodeMax1()->setLanguage(text == QLatin1String("<none>") ? QString() : text);
    }));
    // Either way the tab changes, the preview is written and shown again.
    connect(SSTab1, &QTabWidget::currentChanged, this, Event([this] { RefreshPreview(); }));
}

void frmDocument::RefreshPreview() { writeAndShowPreview(previewPath()); }

void frmDocument::showSource() { SSTab1->setCurrentIndex(0); }

void frmDocument::editorChanged()
{
    showTextStatus();
    Changedvalue()->setText(QStringLiteral("Changed"));
}

void frmDocument::Form_Activate()
{
    DocumentWindow::Form_Activate();
    workspace().setStatusText(1, QStringLiteral("Page Loaded ::  ") + documentName());
    showTextStatus();
    CodeMax1()->setFocus();
}
