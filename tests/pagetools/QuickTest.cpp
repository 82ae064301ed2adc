// The quick notes window: opened by its keys, the folder's files as the index, save (never over
// a stored note, never outside the folder, whole or not at all), search and open.
#include "common/TestSupport.h"

#include "pagetools/IndexPanel.h"
#include "pagetools/Quick.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "platform/Forms.h"
#include "shell/frmMain.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {
const QString saved = QStringLiteral("Note has been saved and added to the left menu.");
const QString taken = QStringLiteral("There is allready a note saved as that, change the name and try again.");

class QuickTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        QDir(folder.file(QStringLiteral("Notes"))).removeRecursively();
        folder.write(QStringLiteral("Notes/table row.dat"), "<tr><td></td></tr>");
        folder.write(QStringLiteral("Notes/Anchor.dat"), "<a href=\"\"></a>\r\n");
    }
    Quick* open()
    {
        frmMain::instance()->MenuClick(QStringLiteral("Quick Note"));
        auto* w = loadedForm<Quick>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
};
}

TEST_F(QuickTest, OpensWithTheFolderAsItsIndex)
{
    Quick* w = open();
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Quick"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("View/Save Quick Note's"));
    const QStringList both = {QStringLiteral("Anchor.dat"), QStringLiteral("table row.dat")};
    EXPECT_EQ(rows(w->index->List1), both);
    EXPECT_EQ(rows(w->index->List2), both);
    EXPECT_FALSE(w->index->List1->isVisible());
    EXPECT_TRUE(w->index->Option1->isChecked());
    EXPECT_EQ(w->index->Option1->text(), QStringLiteral("Partial word"));
    EXPECT_EQ(w->index->Option2->text(), QStringLiteral("Exact Word"));
    bool labelled = false;
    for (const QLabel* l : w->findChildren<QLabel*>())
        labelled |= l->text() == QStringLiteral("Note you can search this blank to retrieve all Note's");
    EXPECT_TRUE(labelled);
    EXPECT_EQ(w->CodeMax1->editorFont().family(), QStringLiteral("Courier New"));
    EXPECT_EQ(w->count2->text(), QStringLiteral("Chr: 0    Lines: 1"));

    // The notes menu entry of the open menu opens the same window.
    w->hide();
    frmMain::instance()->MenuClick(QStringLiteral("From Note's"));
    EXPECT_TRUE(w->isVisible());

    // A double click opens a note into the upper editor; the count follows.
    w->index->List2->setCurrentRow(0);
    w->List2_DblClick();
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("<a href=\"\"></a>\r\n"));
    processEvents();
    EXPECT_EQ(w->count1->text(), QStringLiteral("Chr: 17    Lines: 2"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(QuickTest, SavesANewNoteWholeAndNeverOverAStoredOne)
{
    Quick* w = open();
    ASSERT_NE(w, nullptr);
    w->CodeMax2->setText(QStringLiteral("<p>ünï</p>\r\n<br>"));

    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You need to enter a name to call the quick note."), 0));

    w->txtname->setText(QStringLiteral("Para"));
    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton1->click();
    EXPECT_TRUE(isBox(prompts.last(), saved, 0));
    EXPECT_EQ(folder.read(QStringLiteral("Notes/Para.dat")), QByteArray("<p>\xc3\xbcn\xc3\xaf</p>\r\n<br>"));
    EXPECT_EQ(rows(w->index->List2), (QStringList{QStringLiteral("Anchor.dat"), QStringLiteral("Para.dat"), QStringLiteral("table row.dat")}));

    // The same name in other letters is the same note: refused, and the stored one kept.
    w->CodeMax2->setText(QStringLiteral("other"));
    for (const char* name : {"Para", "PARA", "table ROW"}) {
        w->txtname->setText(QString::fromUtf8(name));
        prompts.answerMsgBox(Answer::OK);
        w->SmartNetButton1->click();
        EXPECT_TRUE(isBox(prompts.last(), taken, 0)) << name;
    }
    EXPECT_EQ(folder.read(QStringLiteral("Notes/Para.dat")), QByteArray("<p>\xc3\xbcn\xc3\xaf</p>\r\n<br>"));

    // A note of 10 MB saves and opens again.
    const QString big = QStringLiteral("<td>cell</td>\r\n").repeated(700000);
    w->CodeMax2->setText(big);
    w->txtname->setText(QStringLiteral("big"));
    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton1->click();
    EXPECT_TRUE(isBox(prompts.last(), saved, 0));
    w->index->List2->setCurrentRow(1);
    ASSERT_EQ(w->index->List2->currentItem()->text(), QStringLiteral("big.dat"));
    w->List2_DblClick();
    EXPECT_TRUE(w->CodeMax1->text() == big);
}

TEST_F(QuickTest, NamesThatAreNoFileNameWriteNothing)
{
    Quick* w = open();
    ASSERT_NE(w, nullptr);
    w->CodeMax2->setText(QStringLiteral("x"));
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString& name : {QStringLiteral("../outside"), QStringLiteral("sub/note"), QStringLiteral("/tmp/abs"),
                                QString::fromUtf8("nul\0name", 8), QString(300, QLatin1Char('n'))}) {
        w->txtname->setText(name);
        prompts.answerMsgBox(Answer::OK);
        w->SmartNetButton1->click();
        EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '52':\n\nBad file name or number"), 16))
            << name.toStdString();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    EXPECT_EQ(QDir(folder.file(QStringLiteral("Notes"))).entryList(QDir::Files).size(), 2);
    EXPECT_FALSE(QFile::exists(QStringLiteral("/tmp/abs.dat")));

    // ".." alone is a name like any other, inside the folder.
    w->txtname->setText(QStringLiteral(".."));
    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton1->click();
    EXPECT_TRUE(isBox(prompts.last(), saved, 0));
    EXPECT_TRUE(QFile::exists(folder.file(QStringLiteral("Notes/...dat"))));
}

TEST_F(QuickTest, SearchesTheNamesAndTellsItsHelp)
{
    Quick* w = open();
    ASSERT_NE(w, nullptr);
    w->index->Text1->setText(QStringLiteral("ROW"));
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2), QStringList{QStringLiteral("table row.dat")});
    EXPECT_EQ(w->index->Bar->maximum(), 2);
    EXPECT_EQ(w->index->Bar->value(), 2);

    w->index->Option2->setChecked(true);
    w->index->Text1->setText(QStringLiteral("Anchor"));
    QTest::keyClick(w->index->Text1, Qt::Key_Return);  // Enter in the search box searches
    EXPECT_TRUE(rows(w->index->List2).isEmpty()) << "the exact word is the whole row";
    w->index->Text1->setText(QStringLiteral("Anchor.dat"));
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2), QStringList{QStringLiteral("Anchor.dat")});

    w->index->Option1->setChecked(true);
    w->index->Text1->clear();
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2).size(), 2) << "an empty search gives the whole list";
    EXPECT_TRUE(w->isVisible()) << "Enter did not close the window";

    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton3->click();
    EXPECT_TRUE(isBox(prompts.last(),
                      QStringLiteral("You can use this part of Velloro to save small bits of code that you use regually.\r\n"
                                     "You can enter nothing into the search to get full listing.\r\n"
                                     "You can access this quickly by pressing Ctrl F1"),
                      0));

    // The editors' menus: the editing commands, then About.
    QStringList items;
    for (const QAction* a : w->SmartMenuXP2->actions())
        items << a->text();
    EXPECT_EQ(items, (QStringList{QStringLiteral("Undo"), QStringLiteral("Redo"), QStringLiteral("Cut"), QStringLiteral("Copy"),
                                  QStringLiteral("Paste"), QStringLiteral("Delete"), QStringLiteral("Select All"),
                                  QStringLiteral("About")}));
    w->CodeMax2->setText(QStringLiteral("abc"));
    w->SmartMenuXP2->findChild<QAction*>(QStringLiteral("SelectAll"))->trigger();
    EXPECT_EQ(w->CodeMax2->selectedText(), QStringLiteral("abc"));
}

TEST_F(QuickTest, TheOpenedNoteGoesIntoTheActiveDocument)
{
    Quick* w = open();
    ASSERT_NE(w, nullptr);
    w->CodeMax1->setText(QStringLiteral("<hr>"));
    prompts.answerMsgBox(Answer::OK);
    w->loadButton->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("There is no document open to load the note into."), 48));

    frmDocument* page = newPage(QStringLiteral("[]"));
    page->CodeMax1()->setCursorPosition(0, 1);
    w->loadButton->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("[<hr>]"));
    notepad* pad = newPad(QStringLiteral("ab"));
    pad->RichTextBox1()->setSelStart(1);
    w->loadButton->click();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("a<hr>b"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}
