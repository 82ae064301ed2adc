#include "pagetools/Quick.h"

#include "pagetools/QuickNotes.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
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
#include <QProgressBar>
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

// A titled group around one widget and what stands below it.
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

    // The index: the folder's files (never shown), every name, and the names the search kept.
    File1 = Look::named(new FileListBox(this), QStringLiteral("File1"));
    File1->hide();
    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    List1->hide();
    List2 = Look::named(new QListWidget(this), QStringLiteral("List2"));

    Text1 = Look::named(new QLineEdit(this), QStringLiteral("Text1"));
    auto* searchNote = new QLabel(QStringLiteral("Note you can search this blank to retrieve all Note's"), this);
    searchNote->setWordWrap(true);
    Option1 = Look::named(new QRadioButton(QStringLiteral("Partial word"), this), QStringLiteral("Option1"));
    Option2 = Look::named(new QRadioButton(QStringLiteral("Exact Word"), this), QStringLiteral("Option2"));
    Option1->setChecked(true);
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Search"), this);
    Bar = Look::named(new QProgressBar(this), QStringLiteral("Bar"));
    Bar->setTextVisible(false);
    Bar->setMaximumHeight(12);
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Help"), this);

    // The search box with its button, the two kinds of match below.
    auto* searchRow = new QWidget(this);
    auto* searchLayout = new QHBoxLayout(searchRow);
    searchLayout->setContentsMargins(0, 0, 0, 0);
    searchLayout->addWidget(Text1, 1);
    searchLayout->addWidget(SmartNetButton2);
    auto* options = new QWidget(this);
    auto* optionRow = new QHBoxLayout(options);
    optionRow->setContentsMargins(0, 0, 0, 0);
    optionRow->addWidget(Option1);
    optionRow->addWidget(Option2);
    optionRow->addStretch();
    auto* left = group(QStringLiteral("Stored Quick Notes ::"), this, {List2, searchRow, searchNote, options, Bar, SmartNetButton3});
    left->setFixedWidth(290);

    CodeMax1 = noteEditor(QStringLiteral("CodeMax1"), this);
    count1 = Look::named(new QLabel(this), QStringLiteral("count1"));
    auto* opened = group(QStringLiteral("Current Quick Note Opened ::"), this, {CodeMax1, count1});

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
    outer->addWidget(left);
    outer->addLayout(right, 1);

    SmartMenuXP1 = editingMenu(QStringLiteral("SmartMenuXP1"), CodeMax1);
    SmartMenuXP2 = editingMenu(QStringLiteral("SmartMenuXP2"), CodeMax2);

    connect(List2, &QListWidget::itemDoubleClicked, this, Event([this] { List2_DblClick(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(SmartNetButton2, &QPushButton::clicked, this, Event([this] { SmartNetButton2_Click(); }));
    connect(SmartNetButton3, &QPushButton::clicked, this, Event([this] { SmartNetButton3_Click(); }));
    connect(CodeMax1, &CodeMax::Change, this, [this] { showCount(count1, CodeMax1); });
    connect(CodeMax2, &CodeMax::Change, this, [this] { showCount(count2, CodeMax2); });
    // Enter in the search box searches; nothing in this window is a default button.
    connect(Text1, &QLineEdit::returnPressed, this, Event([this] { SmartNetButton2_Click(); }));
    for (QPushButton* b : {SmartNetButton1, SmartNetButton2, SmartNetButton3})
        b->setAutoDefault(false);
    const QList<QWidget*> order = {Text1, Option1, Option2, SmartNetButton2, List2, CodeMax1, CodeMax2, txtname, SmartNetButton1};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    showCount(count1, CodeMax1);
    showCount(count2, CodeMax2);
}

void Quick::Form_Load() { fillLists(); }

QString Quick::folder() { return App::path() + QStringLiteral("/Notes"); }

void Quick::fillLists()
{
    File1->refresh();
    List1->clear();
    List2->clear();
    File1->setPath(folder());
    for (int i = 0; i < File1->count(); ++i) {
        List1->addItem(File1->item(i)->text());
        List2->addItem(File1->item(i)->text());
    }
}

void Quick::List2_DblClick()
{
    const QListWidgetItem* row = List2->currentItem();
    if (!row || row->text().isEmpty())
        return;
    CodeMax1->OpenFile(folder() + QLatin1Char('/') + row->text());
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
    QStringList files;
    for (int i = 0; i < List1->count(); ++i)
        files << List1->item(i)->text();
    File1->refresh();
    for (int i = 0; i < File1->count(); ++i)
        files << File1->item(i)->text();
    if (QuickNotes::isStored(files, name)) {
        MsgBox(QStringLiteral("There is allready a note saved as that, change the name and try again."));
        return;
    }
    // Written whole through a temporary file: a failed save leaves no note behind.
    QDir().mkpath(folder());
    CodeMax2->SaveFile(QuickNotes::notePath(folder(), name), true);
    MsgBox(QStringLiteral("Note has been saved and added to the left menu."));
    fillLists();
}

void Quick::SmartNetButton2_Click()
{
    QStringList rows;
    for (int i = 0; i < List1->count(); ++i)
        rows << List1->item(i)->text();
    Bar->setRange(0, qMax(1, int(rows.size())));
    Bar->setValue(0);
    List2->clear();
    const auto match = Option2->isChecked() ? QuickNotes::Match::Exact : QuickNotes::Match::Partial;
    List2->addItems(QuickNotes::search(rows, Text1->text(), match));
    Bar->setValue(int(rows.size()));
}

void Quick::SmartNetButton3_Click()
{
    MsgBox(QStringLiteral("You can use this part of Velloro to save small bits of code that you use regually.\r\n"
                          "You can enter nothing into the search to get full listing.\r\n"
                          "You can access this quickly by pressing Ctrl F1"));
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
