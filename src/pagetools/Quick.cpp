#include "pagetools/Quick.h"

#include "documents/DocumentWindow.h"
#include "documents/Insertion.h"
#include "pagetools/IndexPanel.h"
#include "pagetools/QuickNotes.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/ListRows.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
CodeMax* noteEditor(const QString& name, QWidget* parent)
{
    auto* editor = Look::named(new CodeMax(parent), name);
    editor->setEditorFont(QFont(QStringLiteral("Courier New"), 10));
    return editor;
}

// A titled group around the widgets, one below the other.
QGroupBox* group(const QString& title, QWidget* parent, std::initializer_list<QWidget*> widgets)
{
    auto* box = new QGroupBox(title, parent);
    auto* column = new QVBoxLayout(box);
    for (QWidget* w : widgets)
        column->addWidget(w);
    return box;
}
}

Quick::Quick(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Quick"));
    setWindowTitle(QStringLiteral("View/Save Quick Note's"));
    resize(820, 600);

    // The index: every note file by its name, ".dat" and all.
    index = new IndexPanel(QStringLiteral("Stored Quick Notes ::"), [](const QString& file) { return file; }, this);
    auto* searchNote = new QLabel(QStringLiteral("Note you can search this blank to retrieve all Note's"), this);
    searchNote->setWordWrap(true);
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Help"), this);
    index->column()->insertWidget(2, searchNote);
    index->column()->addWidget(SmartNetButton3);
    index->setFixedWidth(290);

    CodeMax1 = noteEditor(QStringLiteral("CodeMax1"), this);
    count1 = Look::named(new QLabel(this), QStringLiteral("count1"));
    loadButton = Look::faceButton(QStringLiteral("loadButton"), QStringLiteral("Load Into Document"), this);
    auto* openedRow = new QWidget(this);
    auto* openedLayout = new QHBoxLayout(openedRow);
    openedLayout->setContentsMargins(0, 0, 0, 0);
    openedLayout->addWidget(count1, 1);
    openedLayout->addWidget(loadButton);
    auto* opened = group(QStringLiteral("Current Quick Note Opened ::"), this, {CodeMax1, openedRow});

    CodeMax2 = noteEditor(QStringLiteral("CodeMax2"), this);
    count2 = Look::named(new QLabel(this), QStringLiteral("count2"));
    txtname = Look::named(new QLineEdit(this), QStringLiteral("txtname"));
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Save Note"), this);
    auto* nameRow = new QWidget(this);
    auto* nameLayout = new QHBoxLayout(nameRow);
    nameLayout->setContentsMargins(0, 0, 0, 0);
    nameLayout->addWidget(new QLabel(QStringLiteral("Name :"), this));
    nameLayout->addWidget(txtname, 1);
    nameLayout->addWidget(SmartNetButton1);
    auto* created = group(QStringLiteral("Create  A New Note ::"), this, {CodeMax2, count2, nameRow});

    auto* right = new QVBoxLayout;
    right->addWidget(opened, 1);
    right->addWidget(created, 1);
    auto* outer = new QHBoxLayout(this);
    outer->addWidget(index);
    outer->addLayout(right, 1);

    SmartMenuXP1 = editingMenu(QStringLiteral("SmartMenuXP1"), CodeMax1);
    SmartMenuXP2 = editingMenu(QStringLiteral("SmartMenuXP2"), CodeMax2);

    connect(index, &IndexPanel::rowActivated, this, Event([this] { List2_DblClick(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(SmartNetButton3, &QPushButton::clicked, this, Event([this] { SmartNetButton3_Click(); }));
    connect(CodeMax1, &CodeMax::Change, this, [this] { showCount(count1, CodeMax1); });
    connect(CodeMax2, &CodeMax::Change, this, [this] { showCount(count2, CodeMax2); });
    // Nothing in this window is a default button: Enter belongs to the search box and the editors.
    connect(loadButton, &QPushButton::clicked, this, Event([this] { loadIntoDocument(); }));
    for (QPushButton* b : {SmartNetButton1, SmartNetButton3, loadButton})
        b->setAutoDefault(false);
    const QList<QWidget*> order = {index->List2, index->Text1, index->SmartNetButton2, index->Option1, index->Option2,
                                   SmartNetButton3, CodeMax1, loadButton, CodeMax2, txtname, SmartNetButton1};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    showCount(count1, CodeMax1);
    showCount(count2, CodeMax2);
}

void Quick::Form_Load() { fillLists(); }

QString Quick::folder() { return App::userFile(QStringLiteral("Notes")); }

void Quick::fillLists() { index->fill(folder()); }

void Quick::List2_DblClick()
{
    const QString row = index->chosenRow();
    if (row.isEmpty())
        return;
    CodeMax1->OpenFile(folder() + QLatin1Char('/') + row);
}

void Quick::SmartNetButton1_Click()
{
    const QString name = txtname->text();
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("You need to enter a name to call the quick note."));
        return;
    }
    // A name that is no file name here (a separator would reach outside the folder) fails as
    // the creation of such a file does.
    if (!QuickNotes::isFileName(name))
        throw RuntimeError::badFileName(QStringLiteral("Quick"));
    // The folder as it stands now, not as the list last saw it.
    index->File1->refresh();
    if (QuickNotes::isStored(rowsOf(index->File1), name)) {
        MsgBox(QStringLiteral("There is allready a note saved as that, change the name and try again."));
        return;
    }
    // Written whole through a temporary file: a failed save leaves no note behind.
    QDir().mkpath(folder());
    CodeMax2->SaveFile(QuickNotes::notePath(folder(), name), true);
    MsgBox(QStringLiteral("Note has been saved and added to the left menu."));
    fillLists();
}

void Quick::SmartNetButton3_Click()
{
    MsgBox(QStringLiteral("You can use this part of Velloro to save small bits of code that you use regually.\r\n"
                          "You can enter nothing into the search to get full listing.\r\n"
                          "You can access this quickly by pressing Ctrl F1"));
}

void Quick::loadIntoDocument()
{
    DocumentWindow* doc = ActiveForm();
    if (!doc) {
        MsgBox(QStringLiteral("There is no document open to load the note into."), Style::Exclamation);
        return;
    }
    const QString note = CodeMax1->text();
    if (ActiveIsNotepad())
        doc->RichTextBox1()->setSelText(note);
    else
        InsertAtCaret(note);
}

QMenu* Quick::editingMenu(const QString& name, CodeMax* editor)
{
    auto* menu = Look::named(new QMenu(this), name);
    const struct {
        const char* key;
        const char* caption;
        std::function<void()> run;
    } items[] = {
        {"Undo", "Undo", [editor] { editor->undo(); }},
        {"Redo", "Redo", [editor] { editor->redo(); }},
        {"Cut", "Cut", [editor] { editor->cut(); }},
        {"Copy", "Copy", [editor] { editor->copy(); }},
        {"Paste", "Paste", [editor] { editor->paste(); }},
        {"Delete", "Delete", [editor] { editor->removeSelectedText(); }},
        {"SelectAll", "Select All", [editor] { editor->selectAll(); }},
        {"About", "About", [] { Commands::click(QStringLiteral("About")); }},
    };
    for (const auto& item : items) {
        QAction* a = menu->addAction(Look::menuIcon(QString::fromLatin1(item.key)), QString::fromLatin1(item.caption));
        a->setObjectName(QString::fromLatin1(item.key));
        connect(a, &QAction::triggered, this, Event(item.run));
    }
    editor->viewport()->installEventFilter(this);
    return menu;
}

bool Quick::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        QMenu* menu = watched == CodeMax1->viewport() ? SmartMenuXP1 : watched == CodeMax2->viewport() ? SmartMenuXP2 : nullptr;
        if (menu) {
            menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool Quick::event(QEvent* e)
{
    if (e->type() == QEvent::WindowActivate) {
        showCount(count1, CodeMax1);
        showCount(count2, CodeMax2);
    }
    return QDialog::event(e);
}

void Quick::showCount(QLabel* line, const CodeMax* editor)
{
    line->setText(QStringLiteral("Chr: %1    Lines: %2").arg(editor->TextLength()).arg(editor->LineCount()));
}
