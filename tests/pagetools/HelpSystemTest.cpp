// The help window: the help folder as its list (names less their last four characters), the
// index page first, pages opened by a double click, search, home, back and forward.
#include "common/TestSupport.h"

#include "pagetools/HelpSystem.h"
#include "pagetools/IndexPanel.h"
#include "platform/Forms.h"
#include "platform/WebBrowser.h"
#include "shell/frmMain.h"

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

namespace {
class HelpSystemTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        QDir(folder.file(QStringLiteral("Documents/Help"))).removeRecursively();
        for (const char* name : {"Index.htm", "The Editor.htm", "Wizards.htm", "notes.txt", "ab.c"})
            folder.write(QStringLiteral("Documents/Help/") + QString::fromLatin1(name),
                         QByteArray("<html><body><h1>") + name + "</h1></body></html>");
    }
    QUrl page(const char* file) const
    {
        return QUrl::fromLocalFile(folder.file(QStringLiteral("Documents/Help/") + QString::fromLatin1(file)));
    }
    static bool loaded(WebBrowser* view, const QUrl& url)
    {
        QSignalSpy done(view, &WebBrowser::NavigateComplete);
        return view->LocationURL() == url && (done.wait(20000) || view->LocationURL() == url);
    }
};
}

TEST_F(HelpSystemTest, ListsThePagesAndShowsThem)
{
    frmMain::instance()->MenuClick(QStringLiteral("Contents"));
    auto* w = loadedForm<HelpSystem>();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Velloro 2002 Help System"));
    // Every file loses its last four characters, whatever its extension.
    const QStringList all = {QString(), QStringLiteral("Index"), QStringLiteral("notes"), QStringLiteral("The Editor"),
                             QStringLiteral("Wizards")};
    EXPECT_EQ(rows(w->index->List1), all);
    EXPECT_EQ(rows(w->index->List2), all);
    EXPECT_EQ(w->Web1->LocationURL(), page("Index.htm"));
    EXPECT_EQ(w->SmartNetButton6->text(), QStringLiteral("Refresh Help List"));

    // A double click opens the row's page; an empty row opens nothing.
    w->index->List2->setCurrentRow(0);
    w->List2_DblClick();
    EXPECT_EQ(w->Web1->LocationURL(), page("Index.htm"));
    w->index->List2->setCurrentRow(3);
    w->List2_DblClick();
    EXPECT_EQ(w->Web1->LocationURL(), page("The Editor.htm"));
    w->SmartNetButton1->click();
    EXPECT_EQ(w->Web1->LocationURL(), page("Index.htm"));

    // Search: partial in any letter case, exact on the whole row, empty for all.
    w->index->Text1->setText(QStringLiteral("EDIT"));
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2), QStringList{QStringLiteral("The Editor")});
    w->index->Option2->setChecked(true);
    w->index->Text1->setText(QStringLiteral("Wizards"));
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2), QStringList{QStringLiteral("Wizards")});
    w->index->Option1->setChecked(true);
    w->index->Text1->clear();
    w->index->SmartNetButton2->click();
    EXPECT_EQ(rows(w->index->List2), all);

    // A page added to the folder shows after "Refresh Help List".
    folder.write(QStringLiteral("Documents/Help/Spelling.htm"), "<p>spelling</p>");
    w->SmartNetButton6->click();
    EXPECT_TRUE(rows(w->index->List2).contains(QStringLiteral("Spelling")));

    prompts.answerMsgBox(Answer::OK);
    w->SmartNetButton3->click();
    EXPECT_TRUE(isBox(prompts.last(),
                      QStringLiteral("This is where all help files will be for Velloro 2002\r\n"
                                     "You can enter nothing into the search box to get all of the help files."),
                      0));
}

TEST_F(HelpSystemTest, BackAndForwardFollowTheViewsHistory)
{
    frmMain::instance()->MenuClick(QStringLiteral("Contents"));
    auto* w = loadedForm<HelpSystem>();
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(loaded(w->Web1, page("Index.htm")));
    w->showPage(QStringLiteral("Wizards"));
    ASSERT_TRUE(loaded(w->Web1, page("Wizards.htm")));
    QSignalSpy done(w->Web1, &WebBrowser::NavigateComplete);
    w->SmartNetButton5->click();
    ASSERT_TRUE(done.wait(20000));
    EXPECT_EQ(w->Web1->LocationURL(), page("Index.htm"));
    w->SmartNetButton4->click();
    ASSERT_TRUE(done.wait(20000));
    EXPECT_EQ(w->Web1->LocationURL(), page("Wizards.htm"));
}

TEST_F(HelpSystemTest, AMissingFolderLeavesTheListsEmpty)
{
    QDir(folder.file(QStringLiteral("Documents/Help"))).removeRecursively();
    frmMain::instance()->MenuClick(QStringLiteral("Contents"));
    auto* w = loadedForm<HelpSystem>();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->index->List1->count(), 0);
    EXPECT_EQ(w->index->List2->count(), 0);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
