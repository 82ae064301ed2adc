#include "documents/Templates.h"

#include "documents/TemplateOpen.h"
#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/WebBrowser.h"

#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using Look::named;

namespace {
const QString rootKey = QStringLiteral("root");
const QString generalKey = QStringLiteral("General Templates");
const QString scriptKey = QStringLiteral("Javascript Templates");

bool isGroup(const QString& key) { return key == scriptKey || key == generalKey || key == rootKey; }
}

Templates::Templates(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Velloro 2002 Templates"));
    resize(900, 600);

    Label7 = named(new QLabel(QStringLiteral("Choose a template below : "), this), QStringLiteral("Label7"));
    Tree = named(new QTreeWidget(this), QStringLiteral("Tree"));
    Tree->setHeaderHidden(true);
    Tree->setColumnCount(1);
    Tree->setSelectionMode(QAbstractItemView::SingleSelection);
    Tree->setIndentation(14);
    // Long page names scroll sideways rather than being cut short.
    Tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    Tree->header()->setStretchLastSection(false);
    File1 = named(new FileListBox(this), QStringLiteral("File1"));
    File1->setVisible(false);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Open"), this);
    Command2->setToolTip(QStringLiteral("Open Selected Template"));
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Close Window"), this);

    auto* choose = new QVBoxLayout;
    choose->addWidget(Label7);
    choose->addWidget(Tree, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command2);
    buttons->addWidget(Command1);
    choose->addLayout(buttons);

    Label1 = named(new QLabel(QStringLiteral("Current Template Displayed : "), this), QStringLiteral("Label1"));
    Label2 = named(new QLabel(this), QStringLiteral("Label2"));
    Label2->setStyleSheet(QStringLiteral("font-weight: bold;"));
    auto* shown = new QHBoxLayout;
    shown->addWidget(Label1);
    shown->addWidget(Label2, 1);
    WebBrowser1 = named(new WebBrowser(this), QStringLiteral("WebBrowser1"));
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(1, 1, 1, 1);
    frameLayout->addWidget(WebBrowser1);
    auto* preview = new QVBoxLayout;
    preview->addLayout(shown);
    preview->addWidget(frame, 1);

    auto* outer = new QHBoxLayout(this);
    outer->addLayout(choose, 0);
    outer->addLayout(preview, 1);
    Tree->setMinimumWidth(270);

    for (QPushButton* b : {Command1, Command2})
        b->setAutoDefault(false);
    // A node chosen by the mouse or the arrow keys is shown at once.
    connect(Tree, &QTreeWidget::currentItemChanged, this,
            Event([this](QTreeWidgetItem* current, QTreeWidgetItem*) { Tree_NodeClick(current); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command1, &QPushButton::clicked, this, &QWidget::hide);
}

void Templates::Form_Load() { fillTree(); }

QString Templates::keyOf(const QTreeWidgetItem* node) { return node ? node->data(0, KeyRole).toString() : QString(); }

QTreeWidgetItem* Templates::node(const QString& key) const
{
    for (QTreeWidgetItemIterator it(Tree); *it; ++it)
        if (keyOf(*it) == key)
            return *it;
    return nullptr;
}

void Templates::fillTree()
{
    Tree->clear();
    QTreeWidgetItem* root = nullptr;
    auto add = [this](QTreeWidgetItem* parent, const QString& key, const QString& text) {
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(Tree);
        item->setData(0, KeyRole, key);
        item->setText(0, text);
        return item;
    };
    auto fillGroup = [&](const QString& folder, const QString& group) {
        const QString path = App::path() + folder;
        if (!QFileInfo(path).isDir())
            throw RuntimeError::pathNotFound(QStringLiteral("Templates"));
        File1->setPath(path);
        if (!root)
            root = add(nullptr, rootKey, QStringLiteral("Available Templates"));
        QTreeWidgetItem* parent = add(root, group, group);
        for (int i = 0; i < File1->count(); ++i) {
            const QString name = File1->item(i)->text();
            add(parent, File1->Path() + QLatin1Char('/') + name, name);
        }
        return parent;
    };
    OnErrorExit([&] {
        QTreeWidgetItem* general = fillGroup(QStringLiteral("/Templates/WebPage"), generalKey);
        QTreeWidgetItem* scripts = fillGroup(QStringLiteral("/Templates/Javascript"), scriptKey);
        // The root is opened too, or the two groups would stand folded away under it.
        root->setExpanded(true);
        general->setExpanded(true);
        scripts->setExpanded(true);
    });
}

void Templates::Tree_NodeClick(QTreeWidgetItem* node)
{
    const QString key = keyOf(node);
    if (!node || isGroup(key))
        return;
    Label2->setText(node->text(0));
    currenttemplate = key;
    WebBrowser1->Navigate(key);
}

void Templates::Command2_Click()
{
    const QList<QTreeWidgetItem*> selected = Tree->selectedItems();
    if (currenttemplate.isEmpty() || selected.isEmpty() || isGroup(keyOf(selected.first()))) {
        MsgBox(QStringLiteral("First select a valid doucment from the list on the left, then try again."));
        return;
    }
    Label2->setText(selected.first()->text(0));
    OpenTemplatePage(currenttemplate);
}
