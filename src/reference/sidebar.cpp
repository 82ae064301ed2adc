#include "reference/sidebar.h"

#include "documents/DocumentWindow.h"
#include "documents/OpenSave.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "reference/ReferencePanels.h"
#include "reference/SidebarText.h"
#include "services/Workspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using Look::named;

namespace {
const QString pickHint = QStringLiteral("Double click to select an data string.");
}

sidebar::sidebar(QWidget* parent) : QWidget(parent, Qt::Tool)
{
    setObjectName(QStringLiteral("sidebar"));
    setWindowTitle(QStringLiteral("Quick Menu ::"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(4, 4, 4, 4);
    SSTab1 = named(new QTabWidget(this), QStringLiteral("SSTab1"));
    TreeView1 = newReferenceTree(QStringLiteral("TreeView1"), this);
    SSTab1->addTab(listPage(Label3, QStringLiteral("Label3"), TreeView1, Text1, QStringLiteral("Text1"), Command1, QStringLiteral("Command1")),
                   QStringLiteral("Code"));
    Flex = newCharacterGrid(this);
    SSTab1->addTab(listPage(Label2, QStringLiteral("Label2"), Flex, Text2, QStringLiteral("Text2"), Command4, QStringLiteral("Command4")),
                   QStringLiteral("Characters"));
    SSTab1->addTab(filePage(), QStringLiteral("Files"));
    SSTab1->setStyleSheet(QStringLiteral("QTabBar::tab:selected { background: %1; }").arg(Look::tabFace.name()));
    outer->addWidget(SSTab1, 1);
    addOnTopStrip(outer);

    connect(TreeView1, &QTreeWidget::itemClicked, this, Event([this](QTreeWidgetItem* node, int) { TreeView1_NodeClick(node); }));
    connect(TreeView1, &QTreeWidget::itemDoubleClicked, this, Event([this](QTreeWidgetItem* node, int) { TreeView1_DblClick(node); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Flex, &QTableWidget::cellClicked, this, Event([this](int row, int) { Flex_Click(row); }));
    connect(Flex, &QTableWidget::cellDoubleClicked, this, Event([this](int row, int) { Flex_DblClick(row); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Drive1, &DriveListBox::Change, this, Event([this](const QString& drive) { Dir1->setPath(drive); }));
    // A new folder is listed with the pattern the box shows, typed or chosen.
    connect(Dir1, &DirListBox::Change, this, Event([this](const QString&) { Combo1_Click(); }));
    connect(Combo1, &QComboBox::activated, this, Event([this](int) { Combo1_Click(); }));
    connect(File1, &FileListBox::fileActivated, this, Event([this](const QString&) { Command2_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    resize(300, 560);
}

QWidget* sidebar::listPage(QLabel*& hint, const QString& hintName, QWidget* list, QLineEdit*& text, const QString& textName,
                           QPushButton*& insert, const QString& insertName)
{
    auto* page = new QWidget(this);
    auto* v = new QVBoxLayout(page);
    hint = named(new QLabel(pickHint, page), hintName);
    hint->setWordWrap(true);
    v->addWidget(hint);
    v->addWidget(list, 1);
    text = named(new QLineEdit(page), textName);
    insert = Look::faceButton(insertName, QStringLiteral("Insert"), page);
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(insert);
    v->addLayout(row);
    return page;
}

QWidget* sidebar::filePage()
{
    auto* page = new QWidget(this);
    auto* v = new QVBoxLayout(page);
    v->setContentsMargins(0, 0, 0, 0);
    Frame1 = Look::headedFrame(QStringLiteral("Frame1"), QStringLiteral("Open  File ::"), page);
    auto* f = static_cast<QVBoxLayout*>(Frame1->layout());
    Drive1 = named(new DriveListBox(Frame1), QStringLiteral("Drive1"));
    Dir1 = named(new DirListBox(Frame1), QStringLiteral("Dir1"));
    File1 = named(new FileListBox(Frame1), QStringLiteral("File1"));
    Combo1 = named(new QComboBox(Frame1), QStringLiteral("Combo1"));
    // Typing a pattern lists nothing by itself: it applies at the next folder or choice.
    Combo1->setEditable(true);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Check1 = named(new QCheckBox(QStringLiteral("Open as a Notepad Document"), Frame1), QStringLiteral("Check1"));
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Open"), Frame1);
    f->addWidget(Drive1);
    f->addWidget(Dir1, 1);
    f->addWidget(File1, 1);
    f->addWidget(Combo1);
    auto* openRow = new QHBoxLayout;
    openRow->addWidget(Check1, 1);
    openRow->addWidget(Command2);
    f->addLayout(openRow);
    v->addWidget(Frame1);
    return page;
}

// Under the pages, so that the window can be let down from any of them.
void sidebar::addOnTopStrip(QVBoxLayout* outer)
{
    Label1 = named(new QLabel(QStringLiteral("You can disable the always on top feature of the menu bar by clicking below."), this),
                   QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    Command3 = Look::faceButton(QStringLiteral("Command3"), SidebarText::disableCaption, this);
    outer->addWidget(Label1);
    auto* row = new QHBoxLayout;
    row->addWidget(Command3);
    row->addStretch(1);
    outer->addLayout(row);
}

void sidebar::Form_Load()
{
    SSTab1->setCurrentIndex(0);
    Combo1->addItems(SidebarText::patternRows());
    Combo1->setCurrentIndex(0);
    StayOnTop();
    File1->setPath(Dir1->Path());
    File1->setPattern(Combo1->currentText());
    fillTree(TreeView1, ReferenceData::sidebarTree());
    // The one root opens, so that its two parts show.
    if (QTreeWidgetItem* root = TreeView1->topLevelItem(0))
        root->setExpanded(true);
    // The character grid came filled with the window.
}

void sidebar::TreeView1_NodeClick(QTreeWidgetItem* node) { Text1->setText(node->text(0)); }

void sidebar::TreeView1_DblClick(QTreeWidgetItem* node) { insertSilently(SidebarText::codeFragment(node->text(0))); }

void sidebar::Command1_Click()
{
    if (Text1->text().isEmpty()) {
        MsgBox(QStringLiteral("Select a code to insert!"));
        return;
    }
    // Into the rich text box, not the code editor: the document of a notepad, the hidden work
    // copy of a code window. Unguarded: a notepad has no code editor for the step after.
    ActiveDocument()->RichTextBox1()->setSelText(SidebarText::codeFragment(Text1->text()));
    ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::CollapseRight);
}

void sidebar::Flex_Click(int row) { Text2->setText(characterCode(Flex, row)); }

void sidebar::Flex_DblClick(int row) { insertSilently(characterCode(Flex, row)); }

void sidebar::Command4_Click()
{
    if (Text2->text().isEmpty()) {
        MsgBox(QStringLiteral("No data string to input, click on the grid"), Style::Critical, QStringLiteral(":: Error ::"));
        return;
    }
    insertSilently(Text2->text());
}

bool sidebar::isTopmost() const { return windowFlags().testFlag(Qt::WindowStaysOnTopHint); }

void sidebar::setTopmost(bool on)
{
    if (isTopmost() == on)
        return;
    // Changing the flag takes the window down; it comes back where it was.
    const bool shown = isVisible();
    const QPoint at = pos();
    setWindowFlag(Qt::WindowStaysOnTopHint, on);
    if (shown) {
        move(at);
        show();
    }
}

void sidebar::StayOnTop()
{
    setTopmost(false);
    setTopmost(true);
}

void sidebar::Command3_Click()
{
    const SidebarText::TopmostStep step = SidebarText::topmostStep(Command3->text());
    if (!step.changes)
        return;
    setTopmost(step.topmost);
    Command3->setText(step.caption);
}

void sidebar::Combo1_Click()
{
    File1->setPath(Dir1->Path());
    File1->setPattern(Combo1->currentText());
}

void sidebar::Command2_Click()
{
    const QString path = SidebarText::chosenFilePath(Dir1->Path(), File1->FileName());
    OnErrorExit(
        [this, &path] {
            if (Check1->isChecked()) {
                DocumentWindow* pad = OpenInNewWindow(path, LoadAs::Notepad, QStringLiteral("Notepad [ %1 ]").arg(notepads.next()));
                pad->setCaption(QFileInfo(path).fileName());
            } else {
                OpenAsPage(path, pages);
            }
        },
        QStringLiteral("An error has happened try clicking the file again, or restart"), Style::OkOnly,
        QStringLiteral(":: Error Opening Document ::"));
}
