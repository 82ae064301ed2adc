#include "documents/notepad.h"

#include "documents/ContextCommands.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Twips.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

QString lineNumberText(int line)
{
    return (QStringLiteral("0000") + QString::number(line).trimmed()).right(4);
}


namespace {
// The strip left of the text that shows the numbers of the visible lines.
class LineNumberStrip : public QWidget {
public:
    LineNumberStrip(notepad* owner, QWidget* parent) : QWidget(parent), pad(owner)
    {
        setObjectName(QStringLiteral("lineNumPanel"));
        setAutoFillBackground(true);
        QPalette p = palette();
        p.setColor(QPalette::Window, Look::heading);
        setPalette(p);
        setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 8);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(Qt::white);
        QTextEdit* edit = pad->RichTextBox1()->widget();
        const int scroll = edit->verticalScrollBar()->value();
        const int top = edit->viewport()->geometry().top();
        for (QTextBlock b = edit->document()->begin(); b.isValid(); b = b.next()) {
            const QRectF r = edit->document()->documentLayout()->blockBoundingRect(b);
            const int y = static_cast<int>(r.top()) - scroll + top;
            if (y > height())
                break;
            if (y + r.height() < 0)
                continue;
            const int rowHeight = QFontMetrics(b.charFormat().font()).height();
            painter.drawText(QRect(0, y, width() - 4, rowHeight), Qt::AlignRight | Qt::AlignVCenter,
                             lineNumberText(b.blockNumber() + 1));
        }
    }

private:
    notepad* pad;
};

// The twips the ruler's marker is drawn from, and the pointer's offset while it is dragged.
constexpr int markerOffsetTwips = 200;


struct MenuItem {
    const char* parent;   // "" for the root menu
    const char* key;
    const char* caption;
    void (*branch)(notepad*);  // the menu's own branch, or null: the key's window is shown
};

// The popup menu, in order. The show items open the windows that the one table of keys to
// windows names for their keys.
const MenuItem menuItems[] = {
    {"", "page", "Page Properties", nullptr},
    {"", "edproperties", "Editor Properties", [](notepad*) { ContextCommands::editorProperties(); }},
    {"", "formattext", "Format Text", nullptr},
    {"", "undo", "Undo", [](notepad*) { ContextCommands::undo(); }},
    {"", "redo", "Redo", [](notepad*) { ContextCommands::redo(); }},
    {"", "select", "Select All", [](notepad*) { ContextCommands::selectAll(); }},
    {"", "cut", "Cut", [](notepad*) { ContextCommands::cut(); }},
    {"", "copy", "Copy", [](notepad*) { ContextCommands::copy(); }},
    {"", "paste", "Paste", [](notepad*) { ContextCommands::paste(); }},
    {"", "delete", "Delete Selected", [](notepad*) { ContextCommands::deleteSelected(); }},
    {"", "insenow", "Insert Now", nullptr},
    {"insenow", "text", "Text", nullptr},
    {"insenow", "btext", "Bullet Text", nullptr},
    {"insenow", "image", "Image", nullptr},
    {"insenow", "table", "Table", nullptr},
    {"insenow", "hyperlink", "Hyperlink", nullptr},
    {"", "quickbar", "Quick Bar", nullptr},
    {"", "quickside", "Quick Side", [](notepad* pad) {
         workspace().setSideholderVisible(pad->mnu->findChild<QAction*>(QStringLiteral("quickside"))->isChecked());
     }},
    // The main menu's spell check: this notepad's check when it is the active window.
    {"", "spellchecker", "Spell Checker", [](notepad*) { Commands::click(QStringLiteral("Spell Checker")); }},
    {"", "about", "About", nullptr},
};
}

notepad::notepad(QWidget* parent) : DocumentWindow(parent)
{
    setObjectName(QStringLiteral("notepad"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    // The tab ruler.
    Frame1 = Look::named(new QFrame(this), QStringLiteral("Frame1"));
    Frame1->setFixedHeight(18);
    Frame1->setStyleSheet(QStringLiteral("QFrame#Frame1 { background: %1; border-bottom: 1px solid %2; }").arg(Look::tabFace.name()).arg(Look::face.name()));
    Shape1 = Look::named(new QFrame(Frame1), QStringLiteral("Shape1"));
    Shape2 = Look::named(new QFrame(Frame1), QStringLiteral("Shape2"));
    for (QFrame* s : {Shape1, Shape2}) {
        s->setFixedSize(8, 12);
        s->setStyleSheet(QStringLiteral("background: %1;").arg(Look::heading.name()));
        s->setCursor(Qt::SizeHorCursor);
        s->installEventFilter(this);
    }
    tabnumber = Look::named(new QLineEdit(this), QStringLiteral("tabnumber"));
    tabnumber->hide();
    layout->addWidget(Frame1);

    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    box = new RichTextBox(RichTextBox::Kind::Visible, this, this);
    lineNumPanel = new LineNumberStrip(this, this);
    row->addWidget(lineNumPanel);
    row->addWidget(box->widget(), 1);
    layout->addLayout(row, 1);
    box->widget()->setContextMenuPolicy(Qt::NoContextMenu);
    box->widget()->viewport()->installEventFilter(this);
    QFont f = box->widget()->font();
    f.setFamily(QStringLiteral("Arial"));
    f.setPointSize(10);
    box->widget()->document()->setDefaultFont(f);

    staging = Look::named(new QPlainTextEdit(this), QStringLiteral("tempbox"));
    staging->hide();

    // Load: the ruler's number takes the marker's place.
    Shape1->move(twipsToPixels(600), 3);
    Shape2->move(2, 3);
    tabLeft = pixelsToTwips(Shape1->x());
    tabnumber->setText(QString::number(tabLeft));

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(500);
    connect(Timer1, &QTimer::timeout, lineNumPanel, qOverload<>(&QWidget::update));
    Timer1->start();
    connect(box->widget()->verticalScrollBar(), &QScrollBar::valueChanged, lineNumPanel, qOverload<>(&QWidget::update));
    connect(box, &RichTextBox::Change, this, &notepad::textChanged);
    connect(tabnumber, &QLineEdit::textChanged, this, Event([this] { tabnumberChanged(); }));
    buildMenu();
}

void notepad::buildMenu()
{
    mnu = new QMenu(QStringLiteral("Menu"), this);
    mnu->setObjectName(QStringLiteral("mnu"));
    mnu->setStyleSheet(QStringLiteral("QMenu::item:selected { background: %1; color: black; }").arg(Look::face.name()));
    QMenu* insert = nullptr;
    for (const MenuItem& item : menuItems) {
        const QString key = QString::fromLatin1(item.key);
        if (key == QLatin1String("insenow")) {
            insert = mnu->addMenu(QString::fromLatin1(item.caption));
            insert->setObjectName(key);
            continue;
        }
        QMenu* parentMenu = *item.parent ? insert : mnu;
        QAction* a = parentMenu->addAction(QString::fromLatin1(item.caption));
        a->setObjectName(key);
        if (!item.branch)
            a->setEnabled(Commands::available(key));
        if (key == QLatin1String("quickside")) {
            a->setCheckable(true);
            a->setChecked(true);
        }
        connect(a, &QAction::triggered, this, Event([this, key] { MenuClick(key); }));
    }
}

void notepad::MenuClick(const QString& key)
{
    for (const MenuItem& item : menuItems) {
        if (key != QLatin1String(item.key))
            continue;
        if (item.branch)
            item.branch(this);
        else
            Commands::run(key);
        return;
    }
}

void notepad::startspell() { Q_EMIT spellCheckRequested(); }

void notepad::textChanged()
{
    if (Workspace* main = loadedWorkspace()) {
        const QString text = box->text();
        main->setStatusText(3, QStringLiteral("Chr: ") + QString::number(text.size()));
        main->setStatusText(2, QStringLiteral("Lines: ") + QString::number(box->GetLineFromChar(text.size()) + 1));
    }
    lineNumPanel->update();
}

QStringList notepad::visibleLineNumbers() const
{
    QStringList numbers;
    QTextEdit* edit = box->widget();
    const int scroll = edit->verticalScrollBar()->value();
    const int height = edit->viewport()->height();
    for (QTextBlock b = edit->document()->begin(); b.isValid(); b = b.next()) {
        const QRectF r = edit->document()->documentLayout()->blockBoundingRect(b);
        if (r.top() - scroll > height)
            break;
        if (r.bottom() - scroll >= 0)
            numbers << lineNumberText(b.blockNumber() + 1);
    }
    return numbers;
}

void notepad::moveTabMarker(int leftTwips)
{
    Shape1->move(twipsToPixels(qMax(0, leftTwips)), Shape1->y());
    tabnumber->setText(QString::number(qMax(0, leftTwips)));
}

void notepad::tabnumberChanged()
{
    bool ok = false;
    const int now = tabnumber->text().toInt(&ok);
    if (!ok)
        return;
    const int delta = now - tabLeft;
    tabLeft = now;
    box->setSelIndent(qMax(0, box->SelIndent() + delta));
}

bool notepad::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == box->widget()->viewport() && event->type() == QEvent::ContextMenu) {
        mnu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (watched == Shape1) {
        if (event->type() == QEvent::MouseButtonPress) {
            dragging = true;
            return true;
        }
        if (event->type() == QEvent::MouseMove && dragging) {
            const QPoint inRuler = Frame1->mapFromGlobal(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
            moveTabMarker(pixelsToTwips(inRuler.x()) - markerOffsetTwips + pixelsToTwips(Shape1->width()) * 2);
            return true;
        }
        if (event->type() == QEvent::MouseButtonRelease) {
            dragging = false;
            return true;
        }
    }
    if (watched == Shape2 && event->type() == QEvent::MouseButtonPress) {
        // The second marker puts the ruler back at its own place.
        moveTabMarker(pixelsToTwips(Shape2->x()));
        return true;
    }
    return DocumentWindow::eventFilter(watched, event);
}

void notepad::saveForClose(const QString& path)
{
    // The plain text goes through the staging box and out with a closing line end.
    const QString text = box->text();
    staging->setPlainText(text);
    if (!TextFiles::writeText(path, text + QStringLiteral("\r\n")))
        throw RuntimeError::pathFileAccess(QStringLiteral("notepad"));
}
