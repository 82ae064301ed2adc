// The floating sidebar, opened by its menu keys and driven through its controls' names with the
// mouse: the code tree and the character grid against page, split and notepad windows and no
// window at all, the on-top button, and the file page on real files of the test's folder.
#include "common/TestSupport.h"
#include "reference/ShownItem.h"

#include "documents/DocumentWindow.h"
#include "documents/frmDocument.h"
#include "documents/OpenSave.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "reference/ReferencePanels.h"
#include "reference/sidebar.h"
#include "services/Commands.h"
#include "shell/frmMain.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

namespace {

const QString CRLF = QStringLiteral("\r\n");
const QString hint = QStringLiteral("Double click to select an data string.");

class SidebarTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }

    sidebar* open(const QString& key = QStringLiteral("Quick Bar"))
    {
        frmMain::instance()->MenuClick(key);
        auto* w = loadedForm<sidebar>();
        EXPECT_NE(w, nullptr) << key.toStdString();
        if (w) {
            EXPECT_TRUE(w->isVisible()) << key.toStdString();
        }
        processEvents();
        return w;
    }
    static frmsplit* newSplit(const QString& text)
    {
        auto* split = new frmsplit;
        frmMain::instance()->addDocument(split);
        split->CodeMax1()->setText(text);
        processEvents();
        return split;
    }
    static void click(QAbstractItemView* view, const QRect& r) { QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, r.center()); }
    static void doubleClick(QAbstractItemView* view, const QRect& r)
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, r.center());
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, r.center());
    }
    void clickNode(sidebar* w, const char* key)
    {
        w->SSTab1->setCurrentIndex(0);
        QTreeWidgetItem* i = shownItem(w->TreeView1, QString::fromLatin1(key));
        click(w->TreeView1, w->TreeView1->visualItemRect(i));
    }
    void doubleClickNode(sidebar* w, const char* key)
    {
        w->SSTab1->setCurrentIndex(0);
        QTreeWidgetItem* i = shownItem(w->TreeView1, QString::fromLatin1(key));
        doubleClick(w->TreeView1, w->TreeView1->visualItemRect(i));
    }
    QRect cell(sidebar* w, int row)
    {
        w->SSTab1->setCurrentIndex(1);
        w->Flex->scrollToItem(w->Flex->item(row, 1));
        processEvents();
        return w->Flex->visualItemRect(w->Flex->item(row, 1));
    }
    QRect fileRow(sidebar* w, const QString& name)
    {
        w->SSTab1->setCurrentIndex(2);
        processEvents();
        const QList<QListWidgetItem*> found = w->File1->findItems(name, Qt::MatchExactly);
        EXPECT_EQ(found.size(), 1) << name.toStdString();
        return found.isEmpty() ? QRect() : w->File1->visualItemRect(found.first());
    }
    // A row of the pattern box picked from its list, as the mouse does.
    static void choose(QComboBox* box, const QString& row)
    {
        box->showPopup();
        processEvents();
        QAbstractItemView* list = box->view();
        const QModelIndex index = box->model()->index(box->findText(row), 0);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
        processEvents();
    }
    static QPoint caret(CodeMax* editor)
    {
        int line = 0, index = 0;
        editor->getCursorPosition(&line, &index);
        return {line, index};
    }
    // Whether Tab walks the widgets in this order, in one round from the first (others may come
    // between them).
    static bool tabsThrough(const QList<QWidget*>& order)
    {
        QList<QWidget*> round{order.first()};
        for (QWidget* w = order.first()->nextInFocusChain(); w != order.first(); w = w->nextInFocusChain())
            round.append(w);
        qsizetype last = -1;
        for (QWidget* w : order) {
            const qsizetype at = round.indexOf(w);
            if (at <= last)
                return false;
            last = at;
        }
        return true;
    }
    static QString mainCaption() { return frmMain::instance()->windowTitle(); }
};

}  // namespace

TEST_F(SidebarTest, OpensFromItsThreeKeysAsOneFloatingWindowOnTop)
{
    for (const char* key : {"Quick Bar", "Quick Bar1", "quickbar"})
        EXPECT_TRUE(Commands::available(QString::fromLatin1(key))) << key;
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Quick Menu ::"));
    EXPECT_TRUE(w->isWindow());
    EXPECT_TRUE(w->isTopmost());
    EXPECT_EQ(w->SSTab1->currentIndex(), 0);
    EXPECT_EQ(w->SSTab1->count(), 3);

    // The code page: the sidebar's own tree, its one root open.
    EXPECT_EQ(w->Label3->text(), hint);
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Insert"));
    EXPECT_TRUE(w->Text1->text().isEmpty());
    int nodes = 0;
    for (QTreeWidgetItemIterator it(w->TreeView1); *it; ++it)
        ++nodes;
    EXPECT_EQ(nodes, 50);
    ASSERT_EQ(w->TreeView1->topLevelItemCount(), 1);
    QTreeWidgetItem* root = w->TreeView1->topLevelItem(0);
    EXPECT_EQ(root->text(0), QStringLiteral("<<CODE>>"));
    EXPECT_TRUE(root->isExpanded());
    ASSERT_EQ(root->childCount(), 2);
    EXPECT_EQ(root->child(0)->text(0), QStringLiteral("<HTML CODE>"));
    EXPECT_EQ(root->child(1)->text(0), QStringLiteral("<ASP CODE>"));
    EXPECT_EQ(shownItem(w->TreeView1, QStringLiteral("child2_child0"))->text(0), QStringLiteral("<HTML"));
    EXPECT_EQ(shownItem(w->TreeView1, QStringLiteral("child3_child0"))->text(0), QStringLiteral("Coming Soon"));
    saveShot(w, QStringLiteral("sidebar-code"));

    // The character page: the main window's table.
    w->SSTab1->setCurrentIndex(1);
    EXPECT_EQ(w->Label2->text(), hint);
    EXPECT_EQ(w->Command4->text(), QStringLiteral("Insert"));
    ASSERT_EQ(w->Flex->rowCount(), 30);
    EXPECT_EQ(w->Flex->columnCount(), 3);
    EXPECT_EQ(w->Flex->item(0, 1)->text(), QStringLiteral("Quotes"));
    EXPECT_EQ(w->Flex->item(23, 2)->text(), QStringLiteral("&sec;"));
    EXPECT_EQ(w->Flex->item(29, 2)->text(), QStringLiteral("&sup3;"));
    saveShot(w, QStringLiteral("sidebar-characters"));

    // The file page.
    w->SSTab1->setCurrentIndex(2);
    QLabel* head = w->Frame1->findChild<QLabel*>();
    ASSERT_NE(head, nullptr);
    EXPECT_EQ(head->text(), QStringLiteral("Open  File ::"));
    QStringList patterns;
    for (int i = 0; i < w->Combo1->count(); ++i)
        patterns << w->Combo1->itemText(i);
    EXPECT_EQ(patterns, (QStringList{QStringLiteral("*.*"), QStringLiteral("*.html"), QStringLiteral("*.htm"), QStringLiteral("*.txt"),
                                     QStringLiteral("*.tmpl")}));
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("*.*"));
    EXPECT_EQ(w->File1->Pattern(), QStringLiteral("*.*"));
    EXPECT_EQ(w->File1->Path(), w->Dir1->Path());
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Open as a Notepad Document"));
    EXPECT_FALSE(w->Check1->isChecked());
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Open"));
    for (QWidget* c : std::initializer_list<QWidget*>{w->Drive1, w->Dir1, w->File1, w->Combo1, w->Check1, w->Command2})
        EXPECT_TRUE(w->Frame1->isAncestorOf(c)) << c->objectName().toStdString();
    saveShot(w, QStringLiteral("sidebar-files"));

    EXPECT_EQ(w->Label1->text(), QStringLiteral("You can disable the always on top feature of the menu bar by clicking below."));
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Disable"));

    // Tab walks each page from top to bottom, then the on-top button.
    EXPECT_TRUE(tabsThrough({w->TreeView1, w->Text1, w->Command1, w->Flex, w->Text2, w->Command4, w->Drive1, w->Dir1, w->File1,
                             w->Combo1, w->Check1, w->Command2, w->Command3}));
    EXPECT_FALSE(tabsThrough({w->Command1, w->Text1, w->TreeView1, w->Command3}));

    // Every control answers to its name.
    for (const char* name : {"SSTab1", "TreeView1", "Text1", "Command1", "Flex", "Label2", "Label3", "Text2", "Command4",
                             "Command3", "Label1", "Frame1", "Drive1", "Dir1", "File1", "Combo1", "Check1", "Command2"})
        EXPECT_NE(w->findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;

    // The other keys show the same window, which kept its page.
    w->hide();
    EXPECT_EQ(open(QStringLiteral("Quick Bar1")), w);
    EXPECT_EQ(w->SSTab1->currentIndex(), 2);
    w->hide();
    notepad* pad = newPad(QStringLiteral("notes"));
    QAction* quickbar = pad->mnu->findChild<QAction*>(QStringLiteral("quickbar"));
    ASSERT_NE(quickbar, nullptr);
    EXPECT_TRUE(quickbar->isEnabled());
    quickbar->trigger();
    processEvents();
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(loadedForm<sidebar>(), w);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(SidebarTest, TreeClickChoosesAndDoubleClickWritesIntoTheActiveCodeEditor)
{
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    // No document at all: the double click does nothing and says nothing.
    doubleClickNode(w, "child5_child6");
    EXPECT_EQ(w->Text1->text(), QStringLiteral("Scr="));

    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    clickNode(w, "child1_child1");
    EXPECT_EQ(w->Text1->text(), QStringLiteral("align="));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body></body>"));

    // A branch goes in like a leaf, on a line of its own, the caret behind it.
    doubleClickNode(w, "child5_root1");
    EXPECT_EQ(w->Text1->text(), QStringLiteral("<Frames>"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><Frames>") + CRLF + QStringLiteral("</body>"));
    EXPECT_EQ(caret(page->CodeMax1()), QPoint(1, 0));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());

    // Over a selection, with the sidebar's own captions.
    page->CodeMax1()->setSelection(1, 0, 1, 7);
    doubleClickNode(w, "child2_child0");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><Frames>") + CRLF + QStringLiteral("<HTML") + CRLF);

    // A split window the same way; the page stays as it is.
    frmsplit* split = newSplit(QString());
    doubleClickNode(w, "child7_child0");
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("Language=\"\"") + CRLF);
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><Frames>") + CRLF + QStringLiteral("<HTML") + CRLF);

    // A notepad has no code editor: nothing, and no message.
    notepad* pad = newPad(QStringLiteral("notes"));
    doubleClickNode(w, "child3_child0");
    EXPECT_EQ(w->Text1->text(), QStringLiteral("Coming Soon"));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("Language=\"\"") + CRLF);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(SidebarTest, InsertWritesTheChosenCodeIntoTheRichTextBoxAndNotTheEditor)
{
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    // Nothing chosen: the plain box, and nothing else.
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Select a code to insert!"), 0, QStringLiteral("Velloro 2002")));

    // Chosen, but no document: nothing guards the step, so the run-time error box comes up.
    clickNode(w, "child1_child0");
    ASSERT_EQ(w->Text1->text(), QStringLiteral("<p>"));
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 2);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '91':\n\nObject variable or With block variable not set"), 16));

    // A web page: the hidden work copy takes the code; the visible code stays, its caret one
    // step on.
    frmDocument* page = newPage(QStringLiteral("<b></b>"));
    page->CodeMax1()->setCursorPosition(0, 3);
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<b></b>"));
    EXPECT_EQ(page->RichTextBox1()->text(), QStringLiteral("<p>") + CRLF);
    EXPECT_EQ(caret(page->CodeMax1()), QPoint(0, 4));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("<p>"));

    // A split window the same.
    frmsplit* split = newSplit(QStringLiteral("x"));
    clickNode(w, "child4_child0");
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("x"));
    EXPECT_EQ(split->RichTextBox1()->text(), QStringLiteral("<A></A>") + CRLF);
    EXPECT_EQ(prompts.prompts().size(), 2);

    // A notepad: the text is its document and the code appears there; then the step on the
    // missing code editor fails, unguarded.
    notepad* pad = newPad(QString());
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("<A></A>") + CRLF);
    ASSERT_EQ(prompts.prompts().size(), 3);
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Run-time error '438':"))) << prompts.last().text.toStdString();
    EXPECT_EQ(prompts.last().style, 16);
    EXPECT_EQ(w->Text1->text(), QStringLiteral("<A></A>"));
    EXPECT_EQ(split->RichTextBox1()->text(), QStringLiteral("<A></A>") + CRLF);
}

TEST_F(SidebarTest, CharacterGridChoosesAndInsertsTheCodeWithoutALineEnd)
{
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    // No document: the double click and Insert both fail in silence.
    doubleClick(w->Flex, cell(w, 2));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("&lt;"));
    w->Command4->click();
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // A split window takes the code like a page.
    frmsplit* split = newSplit(QStringLiteral("<p></p>"));
    split->CodeMax1()->setCursorPosition(0, 3);
    doubleClick(w->Flex, cell(w, 3));
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<p>&gt;</p>"));
    w->Command4->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<p>&gt;&gt;</p>"));

    frmDocument* page = newPage(QStringLiteral("ab"));
    w->Text2->clear();
    page->CodeMax1()->setCursorPosition(0, 1);

    // Insert with nothing chosen: the critical box; the page as it was.
    prompts.answerMsgBox(Answer::OK);
    w->Command4->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No data string to input, click on the grid"), 16, QStringLiteral(":: Error ::")));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("ab"));

    // A row with an empty character cell still has its code.
    click(w->Flex, cell(w, 4));
    EXPECT_TRUE(w->Flex->item(4, 0)->text().isEmpty());
    EXPECT_EQ(w->Text2->text(), QStringLiteral("&nbsp;"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("ab"));

    // A double click inserts, with the caret behind.
    doubleClick(w->Flex, cell(w, 18));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("&copy;"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("a&copy;b"));
    EXPECT_EQ(caret(page->CodeMax1()), QPoint(0, 7));

    // Insert sends what the box holds, even after another row became current.
    w->Text2->setText(QStringLiteral("&nbsp;"));
    w->Command4->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("a&copy;&nbsp;b"));

    // The Euro row inserts the sign itself.
    page->CodeMax1()->setText(QString());
    doubleClick(w->Flex, cell(w, 16));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral(u"\u20AC"));

    // In a notepad both fail in silence, and the notepad keeps its text.
    notepad* pad = newPad(QStringLiteral("plain"));
    doubleClick(w->Flex, cell(w, 1));
    w->Command4->click();
    EXPECT_EQ(w->Text2->text(), QStringLiteral("&amp;"));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("plain"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral(u"\u20AC"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}

TEST_F(SidebarTest, OnTopButtonTurnsTheStateByItsCaption)
{
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    w->move(120, 90);
    processEvents();
    const QPoint at = w->pos();
    ASSERT_TRUE(w->isTopmost());

    w->Command3->click();
    processEvents();
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Enable"));
    EXPECT_FALSE(w->isTopmost());
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->pos(), at);

    w->Command3->click();
    processEvents();
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Disable"));
    EXPECT_TRUE(w->isTopmost());
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->pos(), at);

    // Another caption does nothing.
    w->Command3->setText(QStringLiteral("Off"));
    w->Command3->click();
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Off"));
    EXPECT_TRUE(w->isTopmost());

    // The re-assertion leaves it on top and in place.
    w->StayOnTop();
    processEvents();
    EXPECT_TRUE(w->isTopmost());
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->pos(), at);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(SidebarTest, FilePageListsAFolderByThePatternBoxWhenTheFolderChangesOrARowIsChosen)
{
    const QString site = folder.file(QStringLiteral("site"));
    for (const char* name : {"site/a.htm", "site/b.html", "site/c.txt", "site/d.tmpl", "site/e.css", "site/sub/f.txt", "site/sub/g.htm"})
        folder.write(QString::fromLatin1(name), "x");
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    w->SSTab1->setCurrentIndex(2);

    w->Dir1->setPath(site);
    EXPECT_EQ(w->File1->Path(), site);
    EXPECT_EQ(rows(w->File1), (QStringList{QStringLiteral("a.htm"), QStringLiteral("b.html"), QStringLiteral("c.txt"),
                                           QStringLiteral("d.tmpl"), QStringLiteral("e.css")}));
    choose(w->Combo1, QStringLiteral("*.htm"));
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("*.htm"));
    EXPECT_EQ(rows(w->File1), QStringList{QStringLiteral("a.htm")});
    choose(w->Combo1, QStringLiteral("*.tmpl"));
    EXPECT_EQ(rows(w->File1), QStringList{QStringLiteral("d.tmpl")});

    // Typing a pattern changes nothing by itself ...
    w->Combo1->lineEdit()->selectAll();
    QTest::keyClicks(w->Combo1->lineEdit(), QStringLiteral("*.txt"));
    processEvents();
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("*.txt"));
    EXPECT_EQ(rows(w->File1), QStringList{QStringLiteral("d.tmpl")});
    EXPECT_EQ(w->File1->Pattern(), QStringLiteral("*.tmpl"));
    // ... until the folder changes.
    w->Dir1->setPath(site + QStringLiteral("/sub"));
    EXPECT_EQ(w->File1->Path(), site + QStringLiteral("/sub"));
    EXPECT_EQ(w->File1->Pattern(), QStringLiteral("*.txt"));
    EXPECT_EQ(rows(w->File1), QStringList{QStringLiteral("f.txt")});
    // A pattern that is no row of the box works the same way.
    w->Combo1->lineEdit()->selectAll();
    QTest::keyClicks(w->Combo1->lineEdit(), QStringLiteral("*.css"));
    w->Dir1->setPath(site);
    EXPECT_EQ(rows(w->File1), QStringList{QStringLiteral("e.css")});
    choose(w->Combo1, QStringLiteral("*.*"));
    EXPECT_EQ(rows(w->File1).size(), 5);

    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(SidebarTest, ADriveChangePutsTheFoldersOnItsRootAndTheFilesFollow)
{
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    w->SSTab1->setCurrentIndex(2);
    choose(w->Combo1, QStringLiteral("*.txt"));
    int other = -1;
    for (int i = 0; i < w->Drive1->count() && other < 0; ++i)
        if (i != w->Drive1->currentIndex() && QDir(w->Drive1->itemText(i)).exists())
            other = i;
    if (other < 0)
        GTEST_SKIP() << "this machine shows one volume only";
    const QString root = QDir::cleanPath(w->Drive1->itemText(other));
    w->Drive1->setCurrentIndex(other);
    EXPECT_EQ(w->Dir1->Path(), root);
    EXPECT_EQ(w->File1->Path(), root);
    EXPECT_EQ(w->File1->Pattern(), QStringLiteral("*.txt"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(SidebarTest, OpenMakesAPageOrANotepadOfTheChosenFileAndStaysOpen)
{
    const QString site = folder.file(QStringLiteral("site"));
    folder.write(QStringLiteral("site/index.htm"), "<html>\r\n<body>Hello</body>\r\n</html>\r\n");
    folder.write(QStringLiteral("site/notes.txt"), "first line\r\nsecond line\r\n");
    folder.write(QStringLiteral("site/contact.htm"), "soon deleted");
    sidebar* w = open();
    ASSERT_NE(w, nullptr);
    w->Dir1->setPath(site);
    w->SSTab1->setCurrentIndex(2);
    // The folder tree reads in the background: the picture waits until it shows the folder.
    EXPECT_TRUE(QTest::qWaitFor([w] { return w->Dir1->currentIndex().data(QFileSystemModel::FilePathRole).toString() == w->Dir1->Path(); }, 3000));
    saveShot(w, QStringLiteral("sidebar-files-site"));

    // A web page window: the file's text, its path, its bare name, and the older main caption.
    click(w->File1, fileRow(w, QStringLiteral("index.htm")));
    ASSERT_EQ(w->File1->FileName(), QStringLiteral("index.htm"));
    w->Command2->click();
    processEvents();
    DocumentWindow* doc = frmMain::instance()->ActiveForm();
    ASSERT_NE(doc, nullptr);
    EXPECT_NE(qobject_cast<frmDocument*>(doc), nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("<html>\r\n<body>Hello</body>\r\n</html>\r\n"));
    const QString indexPath = site + QStringLiteral("/index.htm");
    EXPECT_EQ(doc->tempaddress()->text(), indexPath);
    EXPECT_EQ(doc->Caption(), QStringLiteral("index.htm"));
    EXPECT_EQ(mainCaption(), QStringLiteral("Velloro 1 :: [ ") + indexPath + QStringLiteral(" ]"));
    EXPECT_TRUE(w->isVisible());

    // Ticked: a notepad, by a double click in the list. The main window's file panel has made a
    // notepad before; the sidebar counts its own, so this one is its first: the main caption,
    // written as the window comes up, shows that count before the file's name replaces it.
    OpenAsNotepad(site + QStringLiteral("/notes.txt"));
    w->Check1->setChecked(true);
    doubleClick(w->File1, fileRow(w, QStringLiteral("notes.txt")));
    processEvents();
    DocumentWindow* pad = frmMain::instance()->ActiveForm();
    ASSERT_NE(pad, nullptr);
    ASSERT_NE(pad, doc);
    EXPECT_EQ(pad->Tag(), QStringLiteral("Pad"));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("first line\r\nsecond line\r\n"));
    EXPECT_EQ(pad->tempaddress()->text(), site + QStringLiteral("/notes.txt"));
    EXPECT_EQ(pad->Caption(), QStringLiteral("notes.txt"));
    EXPECT_TRUE(mainCaption().startsWith(QStringLiteral("Velloro 2002 : Version ")) &&
                mainCaption().endsWith(QStringLiteral(" [ Notepad [ 1 ] ]"))) << mainCaption().toStdString();
    doubleClick(w->File1, fileRow(w, QStringLiteral("notes.txt")));
    processEvents();
    EXPECT_TRUE(mainCaption().startsWith(QStringLiteral("Velloro 2002 : Version ")) &&
                mainCaption().endsWith(QStringLiteral(" [ Notepad [ 2 ] ]"))) << mainCaption().toStdString();
    EXPECT_EQ(frmMain::instance()->ActiveForm()->Caption(), QStringLiteral("notes.txt"));
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // A file listed but gone from the disk, either way: the message, and no document with its path.
    const QString error = QStringLiteral("An error has happened try clicking the file again, or restart");
    click(w->File1, fileRow(w, QStringLiteral("contact.htm")));
    ASSERT_TRUE(QFile::remove(site + QStringLiteral("/contact.htm")));
    for (bool asNotepad : {true, false}) {
        w->Check1->setChecked(asNotepad);
        prompts.answerMsgBox(Answer::OK);
        w->Command2->click();
        processEvents();
        EXPECT_TRUE(isBox(prompts.last(), error, 0, QStringLiteral(":: Error Opening Document ::"))) << asNotepad;
    }
    EXPECT_EQ(prompts.prompts().size(), 2);
    for (QWidget* f : Forms::loaded())
        if (auto* d = qobject_cast<DocumentWindow*>(f)) {
            EXPECT_NE(d->tempaddress()->text(), site + QStringLiteral("/contact.htm"));
        }

    // Nothing chosen: the folder itself is no document.
    w->File1->clearSelection();
    w->Check1->setChecked(false);
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), error, 0, QStringLiteral(":: Error Opening Document ::")));
    EXPECT_EQ(prompts.prompts().size(), 3);
}
