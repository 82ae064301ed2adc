// The main window's three reference panels, driven through their controls' names with the
// mouse, against real page and notepad windows.
#include "common/TestSupport.h"
#include "reference/ShownItem.h"

#include "documents/DocumentWindow.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "platform/Twips.h"
#include "reference/ReferencePanels.h"
#include "shell/frmMain.h"

#include <QFile>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <memory>

namespace {

const QString CRLF = QStringLiteral("\r\n");

class PanelTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        host = std::make_unique<QWidget>();
        host->resize(300, 700);
        new QVBoxLayout(host.get());
    }
    void TearDown() override
    {
        host.reset();
        WindowTest::TearDown();
    }
    QFrame* place(QFrame* panel)
    {
        host->layout()->addWidget(panel);
        host->show();
        processEvents();
        return panel;
    }
    template <class W>
    W* control(const char* name)
    {
        W* w = host->findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    void click(QTreeWidget* tree, QTreeWidgetItem* i)
    {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(i).center());
    }
    void doubleClick(QTreeWidget* tree, QTreeWidgetItem* i)
    {
        const QPoint at = tree->visualItemRect(i).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, at);
    }
    QPoint cellCentre(QTableWidget* grid, int row, int column)
    {
        grid->scrollToItem(grid->item(row, column));
        processEvents();
        return grid->visualItemRect(grid->item(row, column)).center();
    }
    int itemCount(QTreeWidget* tree)
    {
        int n = 0;
        for (QTreeWidgetItemIterator it(tree); *it; ++it)
            ++n;
        return n;
    }
    QString headOf(QFrame* frame)
    {
        QLabel* head = frame->findChild<QLabel*>();
        return head ? head->text() : QString();
    }

    std::unique_ptr<QWidget> host;
};

}  // namespace

// ---- Library panel ----

TEST_F(PanelTest, LibraryPanelHoldsTheReferenceTree)
{
    QFrame* panel = place(createLibraryPanel(host.get()));
    EXPECT_EQ(panel->objectName(), QStringLiteral("frlibrary"));
    auto* tree = control<QTreeWidget>("TreeView1");
    EXPECT_EQ(control<QPushButton>("Command3")->text(), QStringLiteral("Insert"));
    EXPECT_TRUE(control<QLineEdit>("Text1")->text().isEmpty());
    EXPECT_FALSE(headOf(panel).isEmpty());
    EXPECT_EQ(itemCount(tree), 243);
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* root = tree->topLevelItem(0);
    EXPECT_EQ(root->text(0), QStringLiteral("Reference Library"));
    EXPECT_EQ(root->data(0, NodeKeyRole).toString(), QStringLiteral("root"));
    ASSERT_EQ(root->childCount(), 3);
    EXPECT_EQ(root->child(2)->text(0), QStringLiteral("ASP Reference"));
    // The first branch of each part shows open; others stay shut.
    for (const char* key : {"child1_root1", "Font + Text properties", "Built in Objects"})
        EXPECT_TRUE(shownItem(tree, QString::fromLatin1(key))->isExpanded()) << key;
    EXPECT_TRUE(root->isExpanded());
    EXPECT_FALSE(shownItem(tree, QStringLiteral("child2_root1"))->isExpanded());
    // Images: branches, leaves and web links are told apart by number and picture.
    QTreeWidgetItem* branch = shownItem(tree, QStringLiteral("child1_root1"));
    QTreeWidgetItem* leaf = shownItem(tree, QStringLiteral("child1_child1"));
    QTreeWidgetItem* link = shownItem(tree, QStringLiteral("child8_root1"))->child(0);
    EXPECT_EQ(branch->data(0, NodeImageRole).toInt(), 2);
    EXPECT_EQ(leaf->data(0, NodeImageRole).toInt(), 3);
    EXPECT_EQ(link->data(0, NodeImageRole).toInt(), 4);
    EXPECT_EQ(link->text(0), QStringLiteral("Dynamic Drive"));
    for (QTreeWidgetItem* i : {branch, leaf, link})
        EXPECT_FALSE(i->icon(0).isNull());
    EXPECT_NE(branch->icon(0).pixmap(16).toImage(), leaf->icon(0).pixmap(16).toImage());
    EXPECT_NE(leaf->icon(0).pixmap(16).toImage(), link->icon(0).pixmap(16).toImage());
    // A selected branch shows its open picture.
    EXPECT_NE(branch->icon(0).pixmap(16, QIcon::Normal).toImage(), branch->icon(0).pixmap(16, QIcon::Selected).toImage());
    saveShot(host.get(), QStringLiteral("frlibrary"));
}

TEST_F(PanelTest, LibraryClickChoosesAndDoubleClickInsertsTheCaptionOnItsOwnLine)
{
    place(createLibraryPanel(host.get()));
    auto* tree = control<QTreeWidget>("TreeView1");
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);

    click(tree, shownItem(tree, QStringLiteral("child1_child1")));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QStringLiteral("align="));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body></body>"));

    // A branch inserts like a leaf.
    doubleClick(tree, shownItem(tree, QStringLiteral("child1_root1")));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QStringLiteral("<Text>"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><Text>") + CRLF + QStringLiteral("</body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    int line = 0, index = 0;
    page->CodeMax1()->getCursorPosition(&line, &index);
    EXPECT_EQ(line, 1);
    EXPECT_EQ(index, 0);

    // Insert sends the chosen text again, at the caret, over the selection.
    page->CodeMax1()->setSelection(1, 0, 1, 7);
    click(tree, shownItem(tree, QStringLiteral("Cookies1")));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QStringLiteral("Cookies"));
    control<QPushButton>("Command3")->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><Text>") + CRLF + QStringLiteral("Cookies") + CRLF);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(PanelTest, LibraryInsertWithNothingChosenAsksForACode)
{
    place(createLibraryPanel(host.get()));
    frmDocument* page = newPage(QStringLiteral("x"));
    prompts.answerMsgBox(Answer::OK);
    control<QPushButton>("Command3")->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("MsgBox"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Select a code to insert!"), 0, QStringLiteral("Velloro 2002")));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("x"));
}

TEST_F(PanelTest, LibraryIsSilentInANotepadAndWithNoDocument)
{
    place(createLibraryPanel(host.get()));
    auto* tree = control<QTreeWidget>("TreeView1");
    // No document at all: nothing happens, no box.
    doubleClick(tree, shownItem(tree, QStringLiteral("child5_child6")));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QStringLiteral("Scr="));
    EXPECT_TRUE(prompts.prompts().isEmpty());

    frmDocument* page = newPage(QStringLiteral("page"));
    notepad* pad = newPad(QStringLiteral("notes"));
    doubleClick(tree, shownItem(tree, QStringLiteral("seperate")));
    control<QPushButton>("Command3")->click();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("page"));
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // The page, active again, takes the text.
    frmMain::instance()->activate(page);
    page->CodeMax1()->setCursorPosition(0, 4);
    control<QPushButton>("Command3")->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("pageseperate") + CRLF);
}

// ---- Script panel ----

TEST_F(PanelTest, ScriptPanelListsTheScripts)
{
    QFrame* panel = place(createScriptPanel(host.get()));
    EXPECT_EQ(panel->objectName(), QStringLiteral("frjavascript"));
    auto* tree = control<QTreeWidget>("JavaList");
    auto* javatext = control<QLineEdit>("javatext");
    auto* open = control<QPushButton>("Command5");
    EXPECT_FALSE(javatext->isVisible());
    EXPECT_FALSE(open->text().isEmpty());
    EXPECT_FALSE(open->isEnabled());
    EXPECT_EQ(itemCount(tree), 38);
    QTreeWidgetItem* root = tree->topLevelItem(0);
    EXPECT_EQ(root->text(0), QStringLiteral("Available Javascripts"));
    EXPECT_TRUE(root->isExpanded());
    ASSERT_EQ(root->childCount(), 34);
    EXPECT_EQ(root->child(0)->text(0), QStringLiteral("Link 1 .css"));
    EXPECT_EQ(root->child(33)->text(0), QStringLiteral("Advanced Script's"));
    EXPECT_FALSE(root->child(33)->isExpanded());
    EXPECT_EQ(root->child(5)->data(0, NodeImageRole).toInt(), 7);
    EXPECT_EQ(root->child(33)->data(0, NodeImageRole).toInt(), 2);
    EXPECT_NE(root->child(5)->icon(0).pixmap(16).toImage(), root->child(33)->icon(0).pixmap(16).toImage());

    // Hovering it puts its line into the main window's tooltip strip.
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(tree, &enter);
    EXPECT_EQ(frmMain::instance()->Tooltiptext->text(), QStringLiteral("Double click to open a pre-made template."));
}

TEST_F(PanelTest, ScriptClickCopiesTheKeyOfALeafOnly)
{
    place(createScriptPanel(host.get()));
    auto* tree = control<QTreeWidget>("JavaList");
    auto* javatext = control<QLineEdit>("javatext");
    click(tree, shownItem(tree, QStringLiteral("Digital Clock")));
    EXPECT_EQ(javatext->text(), QStringLiteral("Digital Clock"));
    EXPECT_TRUE(control<QPushButton>("Command5")->isEnabled());
    click(tree, shownItem(tree, QStringLiteral("root")));
    EXPECT_EQ(javatext->text(), QStringLiteral("Digital Clock"));
    click(tree, shownItem(tree, QStringLiteral("Advanced Script's")));
    EXPECT_EQ(javatext->text(), QStringLiteral("Digital Clock"));
    click(tree, shownItem(tree, QStringLiteral("Sports Headlines At MSNBC")));
    EXPECT_EQ(javatext->text(), QStringLiteral("Sports Headlines At MSNBC"));
    EXPECT_TRUE(frmMain::instance()->documents().isEmpty());
}

TEST_F(PanelTest, ScriptDoubleClickOpensItsPageAsANewWebPage)
{
    place(createScriptPanel(host.get()));
    auto* tree = control<QTreeWidget>("JavaList");
    frmMain* main = frmMain::instance();
    const QString path = folder.path() + QStringLiteral("/Templates/Javascript/Digital Clock.htm");
    const QString onDisk = QString::fromUtf8(folder.read(QStringLiteral("Templates/Javascript/Digital Clock.htm")));
    ASSERT_FALSE(onDisk.isEmpty());

    doubleClick(tree, shownItem(tree, QStringLiteral("Digital Clock")));
    processEvents();
    ASSERT_EQ(main->documents().size(), 1);
    DocumentWindow* doc = main->ActiveForm();
    ASSERT_NE(qobject_cast<frmDocument*>(doc), nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), onDisk);
    EXPECT_EQ(doc->tempaddress()->text(), path);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 :: [ ") + path + QStringLiteral(" ]"));
    const QString firstCaption = doc->Caption();
    EXPECT_TRUE(firstCaption.startsWith(QStringLiteral("Document ")));

    // The root and the advanced group open nothing; a script under the group does.
    doubleClick(tree, shownItem(tree, QStringLiteral("root")));
    doubleClick(tree, shownItem(tree, QStringLiteral("Advanced Script's")));
    EXPECT_EQ(main->documents().size(), 1);
    doubleClick(tree, shownItem(tree, QStringLiteral("Microsoft Excel")));
    processEvents();
    ASSERT_EQ(main->documents().size(), 2);
    const QString excel = folder.path() + QStringLiteral("/Templates/Javascript/Microsoft Excel.htm");
    EXPECT_EQ(main->ActiveForm()->tempaddress()->text(), excel);
    EXPECT_EQ(main->ActiveForm()->CodeMax1()->text(),
              QString::fromUtf8(folder.read(QStringLiteral("Templates/Javascript/Microsoft Excel.htm"))));
    // The open operation's counter rises by one per window.
    EXPECT_EQ(main->ActiveForm()->Caption(),
              QStringLiteral("Document ") + QString::number(firstCaption.mid(9).toInt() + 1));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(PanelTest, ScriptOpenButtonOpensTheChosenScript)
{
    place(createScriptPanel(host.get()));
    auto* tree = control<QTreeWidget>("JavaList");
    click(tree, shownItem(tree, QStringLiteral("Link 1 .css")));
    control<QPushButton>("Command5")->click();
    processEvents();
    ASSERT_EQ(frmMain::instance()->documents().size(), 1);
    EXPECT_EQ(frmMain::instance()->ActiveForm()->tempaddress()->text(),
              folder.path() + QStringLiteral("/Templates/Javascript/Link 1 .css.htm"));
}

TEST_F(PanelTest, AMissingScriptPageLeavesAnEmptyPageAndNoMessage)
{
    place(createScriptPanel(host.get()));
    auto* tree = control<QTreeWidget>("JavaList");
    ASSERT_TRUE(QFile::remove(folder.file(QStringLiteral("Templates/Javascript/Count Down.htm"))));
    doubleClick(tree, shownItem(tree, QStringLiteral("Count Down")));
    processEvents();
    ASSERT_EQ(frmMain::instance()->documents().size(), 1);
    DocumentWindow* doc = frmMain::instance()->ActiveForm();
    EXPECT_TRUE(doc->CodeMax1()->text().isEmpty());
    EXPECT_TRUE(doc->tempaddress()->text().isEmpty());
    EXPECT_FALSE(frmMain::instance()->windowTitle().contains(QStringLiteral("Count Down")));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

// ---- Character panel ----

TEST_F(PanelTest, CharacterPanelHoldsTheGrid)
{
    QFrame* panel = place(createCharacterPanel(host.get()));
    EXPECT_EQ(panel->objectName(), QStringLiteral("frchr"));
    EXPECT_EQ(headOf(panel), QStringLiteral("Special Chr ::"));
    auto* grid = control<QTableWidget>("Flex");
    EXPECT_EQ(control<QPushButton>("Command4")->text(), QStringLiteral("Insert"));
    EXPECT_TRUE(control<QLineEdit>("Text2")->text().isEmpty());
    ASSERT_EQ(grid->rowCount(), 30);
    ASSERT_EQ(grid->columnCount(), 3);
    // 550 and 2000 twips at 15 to the pixel.
    EXPECT_EQ(grid->columnWidth(0), 37);
    EXPECT_EQ(grid->columnWidth(1), 133);
    EXPECT_EQ(grid->item(0, 0)->text(), QStringLiteral("\""));
    EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral("Quotes"));
    EXPECT_EQ(grid->item(0, 2)->text(), QStringLiteral("&quot;"));
    EXPECT_EQ(grid->item(23, 2)->text(), QStringLiteral("&sec;"));
    EXPECT_EQ(grid->item(29, 1)->text(), QStringLiteral("Superscript 3"));
    // The pilcrow and the eighths show their own characters; only the Space row shows none.
    struct Shown { int row; const char* character; const char* name; const char* code; };
    const Shown shown[] = {{8, "¶", "Paragraph", "&para;"},  {12, "⅛", "Fraction", "&#8539;"},
                           {13, "⅜", "Fraction", "&#8540;"}, {14, "⅝", "Fraction", "&#8541;"},
                           {15, "⅞", "Fraction", "&#8542;"}, {4, "", "Space", "&nbsp;"}};
    for (const Shown& s : shown) {
        SCOPED_TRACE(s.row);
        EXPECT_EQ(grid->item(s.row, 0)->text(), QString::fromUtf8(s.character));
        EXPECT_EQ(grid->item(s.row, 1)->text(), QString::fromUtf8(s.name));
        EXPECT_EQ(grid->item(s.row, 2)->text(), QString::fromUtf8(s.code));
    }
    for (int r = 0; r < grid->rowCount(); ++r)
        EXPECT_EQ(grid->item(r, 0)->text().isEmpty(), r == 4) << "row " << r;
    // Cells are not edited in place.
    EXPECT_EQ(grid->editTriggers(), QAbstractItemView::NoEditTriggers);

    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(grid, &enter);
    EXPECT_EQ(frmMain::instance()->Tooltiptext->text(), QStringLiteral("Select a Special Character to insert."));
    saveShot(host.get(), QStringLiteral("frchr"));
}

TEST_F(PanelTest, CharacterClickShowsTheCodeAndDoubleClickInsertsIt)
{
    place(createCharacterPanel(host.get()));
    auto* grid = control<QTableWidget>("Flex");
    frmDocument* page = newPage(QStringLiteral("ab"));
    page->CodeMax1()->setCursorPosition(0, 1);

    // The Space row has no character but a code.
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(grid, 4, 0));
    EXPECT_EQ(control<QLineEdit>("Text2")->text(), QStringLiteral("&nbsp;"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("ab"));

    const QPoint euro = cellCentre(grid, 16, 1);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, euro);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, euro);
    EXPECT_EQ(page->CodeMax1()->text(), QString::fromUtf8("a€b"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());

    // Insert takes the current row too, with no line ending.
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(grid, 23, 2));
    control<QPushButton>("Command4")->click();
    EXPECT_EQ(page->CodeMax1()->text(), QString::fromUtf8("a€&sec;b"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(PanelTest, CharacterInsertStartsOnTheFirstRowAndIsSilentInANotepad)
{
    place(createCharacterPanel(host.get()));
    frmDocument* page = newPage(QString());
    control<QPushButton>("Command4")->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("&quot;"));

    notepad* pad = newPad(QStringLiteral("notes"));
    auto* grid = control<QTableWidget>("Flex");
    const QPoint copy = cellCentre(grid, 18, 0);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, copy);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, copy);
    control<QPushButton>("Command4")->click();
    EXPECT_EQ(control<QLineEdit>("Text2")->text(), QStringLiteral("&copy;"));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("&quot;"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
