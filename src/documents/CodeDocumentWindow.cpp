#include "documents/CodeDocumentWindow.h"

#include "documents/ContextCommands.h"
#include "documents/Insertion.h"
#include "documents/SourcePlace.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/PlatformColour.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/WebBrowser.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>
#include <QUrl>

namespace {

struct MenuItem {
    const char* parent;  // "" for the root menu
    const char* key;
    const char* caption;
    const char* icon;
    bool enabled;
    void (*branch)();  // the window's own branch, or null for the main menu's
};

const QString formFieldsTail =
    QStringLiteral(" name=T1 size=20><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2></p>");

// The context menu, in order. An item with a branch of its own runs it; the others run the
// main menu's branch of their key (or show the window the key names).
const MenuItem contextItems[] = {
    {"", "Page Properties", "Page Properties", "", true, nullptr},
    {"", "Editor Properties", "Editor Properties", "", true, ContextCommands::editorProperties},
    {"", "Format Text", "Format Text", "", true, nullptr},
    {"", "Undo", "Undo", "Undo", true, ContextCommands::undo},
    {"", "Redo", "Redo", "Redo", true, ContextCommands::redo},
    {"", "SelectAll", "Select All", "", true, ContextCommands::selectAll},
    {"", "Cut", "Cut", "Cut", true, ContextCommands::cut},
    {"", "Copy", "Copy", "Copy", true, ContextCommands::copy},
    {"", "Paste", "Paste", "Paste", true, ContextCommands::paste},
    {"", "Delete Selected", "Delete Selected", "Delete", true, ContextCommands::deleteSelected},
    {"", "InsertNow", "Insert >>", "In", true, nullptr},
    {"InsertNow", "Text", "Text", "", true, nullptr},
    {"InsertNow", "Tabbed Text", "Tabbed Text", "", true, nullptr},
    {"InsertNow", "Image", "Image", "Image1", true, nullptr},
    {"InsertNow", "Table", "Table", "Table", true, nullptr},
    {"InsertNow", "Hyperlink", "Hyperlink", "Hyperlink", true, nullptr},
    {"", "KeyForm", "Insert Form >>", "html", true, nullptr},
    {"KeyForm", "Form", "Form", "", true, nullptr},
    {"KeyForm", "ListForm", "List Form", "", false, nullptr},
    {"KeyForm", "ListField", "List Field", "", false, nullptr},
    {"KeyForm", "1 Line Text Box", "Text Box", "", true,
     [] { OnErrorExit([] { InsertAtCaret(QStringLiteral("<p><input type=text") + formFieldsTail); }); }},
    {"KeyForm", "Scrolling TextBox", "Text Area", "", true, nullptr},
    {"KeyForm", "Password Box", "Password Box", "", true,
     [] { OnErrorExit([] { InsertAtCaret(QStringLiteral("<p><input type=password") + formFieldsTail); }); }},
    {"KeyForm", "File Upload", "File Upload", "", false, nullptr},
    {"KeyForm", "Radio Button", "Radio Button", "", true, nullptr},
    {"KeyForm", "Check Button", "Check Button", "", true, nullptr},
    {"KeyForm", "Push Button", "Push Button", "", true, nullptr},
    {"KeyForm", "Drop Menu", "Drop Menu", "", true, nullptr},
    {"KeyForm", "Label", "Label", "", false, nullptr},
    {"", "Spell Checker", "Spell Checker", "", true, nullptr},
    {"", "About", "About", "", true, [] { showForm(QStringLiteral("AboutFORM")); }},
};

const MenuItem* contextItem(const QString& key)
{
    for (const MenuItem& item : contextItems)
        if (key == QLatin1String(item.key))
            return &item;
    return nullptr;
}
}


CodeDocumentWindow::CodeDocumentWindow(QWidget* parent) : DocumentWindow(parent)
{
    editor = new CodeMax(this);
    workCopy = new RichTextBox(RichTextBox::Kind::Hidden, this, this);
    changed = new QLabel(this);
    changed->setObjectName(QStringLiteral("Changedvalue"));
    changed->hide();
    browser = new WebBrowser(this);
    linkLabel = new QLabel(QStringLiteral("Smart Link Preview"), this);
    linkLabel->setObjectName(QStringLiteral("linkpreview"));

    // The editor's look: line numbers in white on the heading colour.
    editor->setLineNumbering(true);
    editor->setDisplayLeftMargin(true);
    editor->setColour(CodeMax::LineNumberBackColour, PlatformColour::fromQColor(Look::heading));
    editor->setColour(CodeMax::LineNumberColour, 0xFFFFFF);
    editor->setLanguage(QStringLiteral("HTML"));
    editor->setContextMenuPolicy(Qt::NoContextMenu);
    editor->viewport()->installEventFilter(this);

    connect(browser, &WebBrowser::StatusTextChange, this, [this](const QString& text) {
        linkLabel->setText(linkPreviewText(text));
    });
    connect(browser, &WebBrowser::sourcePicked, this, &CodeDocumentWindow::showSourceOf);
    buildContextMenu();
}

void CodeDocumentWindow::showSourceOf(const QString& tag, int index, const QString& text, int offset)
{
    const QString source = editor->text();
    const qsizetype at = SourcePlace::offsetOf(source, tag, index, text, offset);
    if (at < 0)
        return;
    const qsizetype lineStart = source.lastIndexOf(QLatin1Char('\n'), at - 1) + 1;
    const int line = int(QStringView(source).left(lineStart).count(QLatin1Char('\n')));
    showSource();
    editor->setCursorPosition(line, int(at - lineStart));
    editor->ensureLineVisible(line);
    editor->setFocus();
}

void CodeDocumentWindow::buildContextMenu()
{
    SmartMenuXP1 = new QMenu(QStringLiteral("&File"), this);
    SmartMenuXP1->setObjectName(QStringLiteral("SmartMenuXP1"));
    SmartMenuXP1->setStyleSheet(QStringLiteral("QMenu::item:selected { background: %1; color: black; }").arg(Look::face.name()));
    QHash<QString, QMenu*> submenus;
    for (const MenuItem& item : contextItems) {
        const QString key = QString::fromLatin1(item.key);
        QMenu* parentMenu = *item.parent ? submenus.value(QString::fromLatin1(item.parent)) : SmartMenuXP1;
        const QIcon icon = *item.icon ? Look::menuIcon(QString::fromLatin1(item.icon)) : QIcon();
        if (key == QLatin1String("InsertNow") || key == QLatin1String("KeyForm")) {
            QMenu* sub = parentMenu->addMenu(icon, QString::fromLatin1(item.caption));
            sub->setObjectName(key);
            submenus.insert(key, sub);
            continue;
        }
        QAction* a = parentMenu->addAction(icon, QString::fromLatin1(item.caption));
        a->setObjectName(key);
        a->setData(key);
        // An item is live when the window has a branch for it and the build has that branch.
        a->setEnabled(item.enabled && (item.branch || Commands::available(key)));
        connect(a, &QAction::triggered, this, Event([this, key] { ContextMenuClick(key); }));
        contextActions.insert(key, a);
    }
}

QAction* CodeDocumentWindow::contextAction(const QString& key) const { return contextActions.value(key); }

void CodeDocumentWindow::ContextMenuClick(const QString& key)
{
    const MenuItem* item = contextItem(key);
    if (item && item->branch)
        item->branch();
    else
        Commands::click(key);
}

bool CodeDocumentWindow::eventFilter(QObject* watched, QEvent* event)
{
    // A right click in the editor pops up the window's own menu at the pointer.
    if (watched == editor->viewport() && event->type() == QEvent::ContextMenu) {
        SmartMenuXP1->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return DocumentWindow::eventFilter(watched, event);
}

void CodeDocumentWindow::mousePressEvent(QMouseEvent* event)
{
    // A right click on the window itself pops up the same menu.
    if (event->button() == Qt::RightButton) {
        SmartMenuXP1->popup(event->globalPosition().toPoint());
        return;
    }
    DocumentWindow::mousePressEvent(event);
}

QFrame* CodeDocumentWindow::buildPreviewBar(const QString& name, bool withZoom, const QString& reportTip)
{
    auto* bar = new QFrame(this);
    bar->setObjectName(name);
    bar->setStyleSheet(QStringLiteral("QFrame#%1 { background: %2; } QToolButton:hover { background: %3; }")
                           .arg(name, Look::tabFace.name(), Look::face.name()));
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(4, 1, 4, 1);
    row->setSpacing(2);
    struct Button { const char* tip; QStyle::StandardPixmap icon; std::function<void()> action; };
    QList<Button> list = {
        {"Refresh Preview", QStyle::SP_BrowserReload, [this] { refreshPreview(); }},
        {"Print Preview", QStyle::SP_FileDialogContentsView, [this] { browser->PrintPreview(); }},
        {"View Full Screen", QStyle::SP_TitleBarMaxButton, [this] { fullScreen(); }},
        {"Upload To The Interent", QStyle::SP_ArrowUp, [this] { uploadPage(); }},
        {"Email Page", QStyle::SP_DialogYesButton, [] { Commands::click(QStringLiteral("Email File")); }},
        {"Lauch File To Default Program", QStyle::SP_DialogOpenButton, [this] { launchPage(); }},
    };
    if (withZoom) {
        list.append({"Enlarge Browser Text", QStyle::SP_ArrowUp, [this] { browser->zoomIn(); }});
        list.append({"Decrease Browser Text", QStyle::SP_ArrowDown, [this] { browser->zoomOut(); }});
    }
    list.append({"", QStyle::SP_FileDialogDetailedView, [this] {
        Q_EMIT reportRequested(CodeMax1()->text());
    }});
    int n = 0;
    for (const Button& b : list) {
        auto* button = new QToolButton(bar);
        button->setObjectName(QStringLiteral("SmartNetButton%1").arg(++n));
        const QString tip = *b.tip ? QString::fromLatin1(b.tip) : reportTip;
        button->setToolTip(tip);
        button->setIcon(style()->standardIcon(b.icon));
        button->setAutoRaise(true);
        if (withZoom && (n == 7 || n == 8)) {
            button->setText(n == 7 ? QStringLiteral("A+") : QStringLiteral("A-"));
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        }
        row->addWidget(button);
        buttons.insert(button->objectName(), button);
        connect(button, &QToolButton::clicked, this, Event(b.action));
    }
    // Buttons that lead to windows or commands this build does not have stay disabled.
    const int last = n;
    buttons.value(QStringLiteral("SmartNetButton3"))->setEnabled(Forms::hasFactory(QStringLiteral("FullPreview")));
    buttons.value(QStringLiteral("SmartNetButton5"))->setEnabled(Commands::available(QStringLiteral("Email File")));
    buttons.value(QStringLiteral("SmartNetButton%1").arg(last))->setEnabled(Forms::hasFactory(QStringLiteral("frmReport")));
    row->addSpacing(12);
    auto* image = new QLabel(bar);
    image->setObjectName(QStringLiteral("Image1"));
    image->setPixmap(style()->standardIcon(QStyle::SP_FileLinkIcon).pixmap(16, 16));
    image->setToolTip(QStringLiteral("Link Preview"));
    row->addWidget(image);
    linkLabel->setParent(bar);
    row->addWidget(linkLabel, 1);
    return bar;
}

QToolButton* CodeDocumentWindow::previewButton(const QString& name) const { return buttons.value(name); }

QString CodeDocumentWindow::previewPath() const
{
    if (tempaddress()->text().isEmpty())
        return App::userPath() + QStringLiteral("/temp.html");
    return tempaddress()->text() + previewSuffix();
}

void CodeDocumentWindow::writeAndShowPreview(const QString& path)
{
    // A preview that cannot be written (a read-only folder) ends quietly.
    if (TextFiles::writeScratch(path, editor->utf8Text()))
        browser->Navigate(path);
}

void CodeDocumentWindow::showTextStatus()
{
    Workspace* main = loadedWorkspace();
    if (!main)
        return;
    main->setStatusText(3, QStringLiteral("Chr: ") + QString::number(editor->TextLength()));
    main->setStatusText(2, QStringLiteral("Lines: ") + QString::number(editor->LineCount()));
}

void CodeDocumentWindow::uploadPage()
{
    if (tempaddress()->text().isEmpty()) {
        MsgBox(QStringLiteral("You need to save this document before you can upload it."));
        return;
    }
    Q_EMIT uploadRequested(tempaddress()->text());
}

void CodeDocumentWindow::launchPage()
{
    if (tempaddress()->text().isEmpty()) {
        MsgBox(QStringLiteral("This is not a saved file, so Velloro cannot open to default program."));
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(tempaddress()->text()));
}

void CodeDocumentWindow::fullScreen()
{
    // The full-screen window is reached by its name: it lives in a library above this one.
    const QString path = previewPath();
    if (!TextFiles::writeScratch(path, editor->utf8Text()))
        return;
    if (auto* full = Forms::get(QStringLiteral("FullPreview"))->findChild<WebBrowser*>(QStringLiteral("WebBrowser1")))
        full->Navigate(path);
    showForm(QStringLiteral("FullPreview"));
}
