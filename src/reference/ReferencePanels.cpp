#include "reference/ReferencePanels.h"

#include "documents/Insertion.h"
#include "documents/TemplateOpen.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Twips.h"
#include "services/Workspace.h"

#include <QEvent>
#include <QFrame>
#include <QHash>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace ReferenceData;
using Look::named;

namespace {

using TextFiles::crlf;

// Puts a region's line into the main window's tooltip strip while the mouse is over it.
class TooltipLine : public QObject {
public:
    TooltipLine(QWidget* region, QString line) : QObject(region), text(std::move(line)) { region->installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() == QEvent::Enter)
            if (Workspace* main = loadedWorkspace())
                main->setTooltipText(text);
        return false;
    }

private:
    QString text;
};

}  // namespace

void insertSilently(const QString& text)
{
    OnErrorExit([&] { InsertAtCaret(text); });
}

QTreeWidget* newReferenceTree(const QString& name, QWidget* parent)
{
    auto* tree = named(new QTreeWidget(parent), name);
    tree->setHeaderHidden(true);
    tree->setColumnCount(1);
    tree->setIconSize(QSize(16, 16));
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setIndentation(14);
    // The narrow pane scrolls sideways rather than cutting the captions short.
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    tree->header()->setStretchLastSection(false);
    return tree;
}

QTableWidget* newCharacterGrid(QWidget* parent)
{
    auto* grid = named(new QTableWidget(parent), QStringLiteral("Flex"));
    grid->setColumnCount(3);
    grid->horizontalHeader()->hide();
    grid->verticalHeader()->hide();
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    // The first column is narrower than the style's smallest section.
    grid->horizontalHeader()->setMinimumSectionSize(1);
    for (int c = 0; c < 2; ++c)
        grid->setColumnWidth(c, twipsToPixels(characterColumnTwips[c]));
    grid->horizontalHeader()->setStretchLastSection(true);
    // Rows as tall as the text needs, so that more of the table shows at once.
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 8);
    fillCharacterGrid(grid);
    return grid;
}

QString characterCode(const QTableWidget* grid, int row)
{
    const QTableWidgetItem* cell = grid->item(row, characterCodeColumn);
    return cell ? cell->text() : QString();
}

void fillTree(QTreeWidget* tree, const QList<Node>& nodes)
{
    tree->clear();
    QHash<QString, QTreeWidgetItem*> byKey;
    for (const Node& n : nodes) {
        QTreeWidgetItem* parent = n.parent.isEmpty() ? nullptr : byKey.value(n.parent);
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree);
        item->setText(0, n.caption);
        item->setData(0, NodeKeyRole, n.key);
        item->setData(0, NodeImageRole, n.image);
        item->setIcon(0, Look::treeImage(n.image));
        byKey.insert(n.key, item);
    }
    // Opened after filling, with the branches above them, so that each shows open.
    for (const Node& n : nodes)
        if (n.expanded)
            for (QTreeWidgetItem* item = byKey.value(n.key); item; item = item->parent())
                item->setExpanded(true);
}

void fillCharacterGrid(QTableWidget* grid)
{
    const QList<CharacterRow>& rows = characterTable();
    grid->clearContents();
    grid->setColumnCount(3);
    grid->setRowCount(static_cast<int>(rows.size()));
    for (int r = 0; r < rows.size(); ++r) {
        const QString cells[3] = {rows[r].character, rows[r].name, rows[r].code};
        for (int c = 0; c < 3; ++c)
            grid->setItem(r, c, new QTableWidgetItem(cells[c]));
    }
    if (!rows.isEmpty())
        grid->setCurrentCell(0, 0);
}

QFrame* createLibraryPanel(QWidget* parent)
{
    QFrame* frame = Look::headedFrame(QStringLiteral("frlibrary"), QStringLiteral("Reference Library ::"), parent);
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    QTreeWidget* tree = newReferenceTree(QStringLiteral("TreeView1"), frame);
    auto* text = named(new QLineEdit(frame), QStringLiteral("Text1"));
    QPushButton* insert = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Insert"), frame);
    layout->addWidget(tree, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(insert);
    layout->addLayout(row);

    // The caption is the code: a click chooses it, Insert puts it on a line of its own.
    QObject::connect(tree, &QTreeWidget::itemClicked, frame, Event([text](QTreeWidgetItem* item, int) {
        text->setText(item->text(0));
    }));
    auto insertChosen = [text] {
        if (text->text().isEmpty()) {
            MsgBox(QStringLiteral("Select a code to insert!"));
            return;
        }
        insertSilently(text->text() + crlf);
    };
    QObject::connect(insert, &QPushButton::clicked, frame, Event([insertChosen] { insertChosen(); }));
    QObject::connect(tree, &QTreeWidget::itemDoubleClicked, frame, Event([text, insertChosen](QTreeWidgetItem* item, int) {
        text->setText(item->text(0));
        insertChosen();
    }));

    fillTree(tree, referenceTree());
    return frame;
}

QFrame* createScriptPanel(QWidget* parent)
{
    QFrame* frame = Look::headedFrame(QStringLiteral("frjavascript"), QStringLiteral("Javascript Examples ::"), parent);
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    QTreeWidget* tree = newReferenceTree(QStringLiteral("JavaList"), frame);
    auto* javatext = named(new QLineEdit(frame), QStringLiteral("javatext"));
    javatext->setVisible(false);
    // Opens the script chosen by the last click; there is nothing to open until then.
    QPushButton* open = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Open Script"), frame);
    open->setToolTip(QStringLiteral("Open the selected script as a new web page"));
    open->setEnabled(false);
    layout->addWidget(tree, 1);
    layout->addWidget(javatext);
    layout->addWidget(open);
    new TooltipLine(tree, QStringLiteral("Double click to open a pre-made template."));

    // Only the script leaves mean anything: the root and the group of advanced scripts don't.
    auto isScript = [](QTreeWidgetItem* item) { return item && item->data(0, NodeImageRole).toInt() == ScriptImage; };
    QObject::connect(javatext, &QLineEdit::textChanged, open, [open](const QString& key) { open->setEnabled(!key.isEmpty()); });
    QObject::connect(tree, &QTreeWidget::itemClicked, frame, Event([javatext, isScript](QTreeWidgetItem* item, int) {
        if (isScript(item))
            javatext->setText(item->data(0, NodeKeyRole).toString());
    }));
    QObject::connect(tree, &QTreeWidget::itemDoubleClicked, frame, Event([isScript](QTreeWidgetItem* item, int) {
        if (isScript(item))
            OpenScriptTemplate(item->data(0, NodeKeyRole).toString());
    }));
    QObject::connect(open, &QPushButton::clicked, frame, Event([javatext] {
        if (!javatext->text().isEmpty())
            OpenScriptTemplate(javatext->text());
    }));

    fillTree(tree, scriptList());
    return frame;
}

QFrame* createCharacterPanel(QWidget* parent)
{
    QFrame* frame = Look::headedFrame(QStringLiteral("frchr"), QStringLiteral("Special Chr ::"), parent);
    auto* layout = static_cast<QVBoxLayout*>(frame->layout());
    QTableWidget* grid = newCharacterGrid(frame);
    auto* text = named(new QLineEdit(frame), QStringLiteral("Text2"));
    QPushButton* insert = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("Insert"), frame);
    layout->addWidget(grid, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(insert);
    layout->addLayout(row);
    new TooltipLine(grid, QStringLiteral("Select a Special Character to insert."));

    // The code column is what goes in, as it stands: no line ending.
    auto codeOf = [grid](int r) { return characterCode(grid, r); };
    QObject::connect(grid, &QTableWidget::cellClicked, frame, Event([text, codeOf](int r, int) { text->setText(codeOf(r)); }));
    auto insertCurrent = [grid, codeOf] {
        if (grid->currentRow() >= 0)
            insertSilently(codeOf(grid->currentRow()));
    };
    QObject::connect(grid, &QTableWidget::cellDoubleClicked, frame, Event([insertCurrent](int, int) { insertCurrent(); }));
    QObject::connect(insert, &QPushButton::clicked, frame, Event([insertCurrent] { insertCurrent(); }));
    return frame;
}
