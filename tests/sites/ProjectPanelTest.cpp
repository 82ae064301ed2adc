// The project panel: loading a project file (its facts, the tree of its files, the panel brought
// up), the edge cases and the bad files a user may hand it, closing, adding a file, opening a
// file with a double click and queueing the project for upload.
#include "common/Utf8.h"
#include "common/TestSupport.h"

#include "documents/DocumentWindow.h"
#include "ftp/ftpnormal.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/Look.h"
#include "shell/frmMain.h"
#include "sites/ProjAdd.h"
#include "sites/ProjectPanel.h"
#include "sites/SiteManagment.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

namespace {
const QByteArray header = "'''Start Project Details'''\r\nMy Site\r\nAnn Author\r\n26/11/2026\r\nann@example.org\r\n'''End Of Details'''\r\n";

class ProjectPanelTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        main = frmMain::instance();
        panel = ProjectPanel::instance();
        ASSERT_NE(panel, nullptr);
        folder.write(u("site/a.htm"), "<p>a</p>");
        folder.write(u("site/b.htm"), "<p>b</p>");
    }
    // A project file of the test's folder, with the header and these path lines.
    QString project(const QString& name, const QStringList& paths, const QByteArray& head = header)
    {
        QByteArray bytes = head;
        for (const QString& p : paths)
            bytes += p.toUtf8() + "\r\n";
        folder.write(name, bytes);
        return folder.file(name);
    }
    QString site(const char* name) const { return folder.file(u("site/") + u(name)); }
    QTreeWidgetItem* root() const { return panel->TreeProject->topLevelItem(0); }
    QStringList childTexts(int column = 0, int role = Qt::DisplayRole) const
    {
        QStringList list;
        for (int i = 0; root() && i < root()->childCount(); ++i)
            list.append(root()->child(i)->data(column, role).toString());
        return list;
    }
    QStringList facts() const
    {
        return {panel->prosite->text(), panel->proauthor->text(), panel->prodate->text(), panel->projectlocation->text()};
    }
    bool projectPanelShown() const
    {
        for (QFrame* p : main->sidePanels())
            if (p->isVisibleTo(main) != (p == main->frproject))
                return false;
        return true;
    }
    void load(const QString& path)
    {
        prompts.answerOpenFile(path);
        panel->ProjectLoad->click();
    }
    frmMain* main = nullptr;
    ProjectPanel* panel = nullptr;
};
}

TEST_F(ProjectPanelTest, LoadShowsTheFactsAndTheFilesAndBringsThePanelUp)
{
    EXPECT_EQ(facts(), (QStringList{u("None"), u("None"), u("None"), u("")})) << "an empty panel";
    EXPECT_EQ(main->TreeProject, panel->TreeProject) << "the main window reaches the panel's members by name";
    main->findChild<QToolButton*>(u("SmartNetButton61"))->click();
    ASSERT_FALSE(projectPanelShown());

    const QString path = project(u("p1/SiteDetails.dat"), {site("a.htm"), site("b.htm"), site("gone.htm"), site("a.htm")});
    load(path);
    EXPECT_EQ(prompts.last().kind, u("OpenFile"));
    EXPECT_EQ(facts(), (QStringList{u("My Site"), u("Ann Author"), u("26/11/2026"), path}));
    EXPECT_TRUE(projectPanelShown());
    EXPECT_TRUE(main->findChild<QToolButton*>(u("SmartNetButton66"))->isChecked());
    EXPECT_EQ(loadedForm<SiteManagment>()->List1->count(), 6);
    EXPECT_EQ(loadedForm<SiteManagment>()->List1->item(4)->text(), u("ann@example.org")) << "read, not shown";

    ASSERT_EQ(panel->TreeProject->topLevelItemCount(), 1);
    EXPECT_EQ(root()->text(0), u("Project Files"));
    EXPECT_EQ(root()->data(0, Qt::UserRole).toString(), u("root"));
    EXPECT_TRUE(root()->isExpanded());
    EXPECT_EQ(childTexts(), (QStringList{u("a.htm"), u("b.htm"), u("")}))
        << "a path that is gone shows no name; the second a.htm is refused by its key";
    EXPECT_EQ(childTexts(0, Qt::UserRole), (QStringList{site("a.htm"), site("b.htm"), site("gone.htm")}));
    EXPECT_EQ(root()->child(0)->icon(0).cacheKey(), Look::treeImage(7).cacheKey()) << "image 7";
    EXPECT_FALSE(root()->child(0)->icon(0).isNull());
    saveShot(main, u("ProjectPanel"));

    // A second project clears the tree first; a cancelled dialog changes nothing.
    const QString other = project(u("p2/SiteDetails.dat"), {site("b.htm")}, "S\r\nOther\r\nBo\r\n1/1/2027\r\nE\r\nX\r\n");
    load(other);
    EXPECT_EQ(childTexts(), QStringList{u("b.htm")});
    EXPECT_EQ(facts(), (QStringList{u("Other"), u("Bo"), u("1/1/2027"), other}));
    load(u(""));
    EXPECT_EQ(facts(), (QStringList{u("Other"), u("Bo"), u("1/1/2027"), other}));
    EXPECT_EQ(childTexts(), QStringList{u("b.htm")});
}

TEST_F(ProjectPanelTest, BadProjectFilesLoadWithoutHarm)
{
    QByteArray binary;
    for (int i = 0; i < 3000; ++i)
        binary += static_cast<char>((i * 73 + 11) & 0xff);
    const struct {
        const char* what;
        QByteArray bytes;
        QStringList facts;  // site, author, date
        int children;
    } cases[] = {
        {"no file line: a root alone", header, {u("My Site"), u("Ann Author"), u("26/11/2026")}, 0},
        {"empty", "", {u(""), u(""), u("")}, 0},
        {"fewer than six lines: what there is", "S\r\nShort Site\r\nAnn\r\n", {u("Short Site"), u("Ann"), u("")}, 0},
        {"LF only", "S\nLF Site\nAnn\nToday\nE\nX\n/nowhere/a.htm\n", {u("LF Site"), u("Ann"), u("Today")}, 1},
        {"binary bytes", binary, {}, -1},
    };
    for (const auto& c : cases) {
        folder.write(u("bad.dat"), c.bytes);
        load(folder.file(u("bad.dat")));
        ASSERT_EQ(panel->TreeProject->topLevelItemCount(), 1) << c.what;
        if (c.children >= 0) {
            EXPECT_EQ(root()->childCount(), c.children) << c.what;
            EXPECT_EQ(facts().mid(0, 3), c.facts) << c.what;
        }
        EXPECT_EQ(panel->projectlocation->text(), folder.file(u("bad.dat"))) << c.what;
        EXPECT_TRUE(projectPanelShown()) << c.what;
    }

    // 50,000 paths that no longer exist: all listed, nameless, and the tree still answers.
    QByteArray big = header;
    for (int i = 0; i < 50000; ++i)
        big += "/nowhere/site/page" + QByteArray::number(i) + ".htm\r\n";
    folder.write(u("big.dat"), big);
    QElapsedTimer timer;
    timer.start();
    load(folder.file(u("big.dat")));
    processEvents();
    std::cout << "50,000 paths loaded and shown in " << timer.elapsed() << " ms\n";
    ASSERT_EQ(root()->childCount(), 50000);
    EXPECT_EQ(root()->child(49999)->data(0, Qt::UserRole).toString(), u("/nowhere/site/page49999.htm"));
    EXPECT_EQ(root()->child(49999)->text(0), u(""));
    panel->TreeProject->scrollToItem(root()->child(49999));
    panel->TreeProject->setCurrentItem(root()->child(25000));
    EXPECT_EQ(panel->TreeProject->currentItem(), root()->child(25000));

    // A project file that is not there: the platform's error, and the panel keeps its project.
    prompts.answerOpenFile(folder.file(u("missing.dat"))).answerMsgBox(Answer::OK);
    panel->ProjectLoad->click();
    EXPECT_TRUE(isBox(prompts.last(), u("Run-time error '53':\n\nFile not found"), 16));
    EXPECT_EQ(panel->projectlocation->text(), folder.file(u("big.dat")));
    EXPECT_EQ(root()->childCount(), 50000);
    EXPECT_TRUE(panel->ProjectLoad->isEnabled());
}

TEST_F(ProjectPanelTest, CloseAsksAndDeletesNothing)
{
    const QString path = project(u("SiteDetails.dat"), {site("a.htm")});
    load(path);
    for (int answer : {Answer::No, Answer::Cancel}) {
        prompts.answerMsgBox(answer);
        panel->ProjectDelete->click();
        EXPECT_TRUE(isBox(prompts.last(), u("Would you like to close the Project?"), 51, u(":: Velloro 2002 ::")));
        EXPECT_EQ(facts().last(), path);
        EXPECT_EQ(panel->TreeProject->topLevelItemCount(), 1);
    }
    prompts.answerMsgBox(Answer::Yes);
    panel->ProjectDelete->click();
    EXPECT_EQ(facts(), (QStringList{u("None"), u("None"), u("None"), u("")}));
    EXPECT_EQ(panel->TreeProject->topLevelItemCount(), 0);
    EXPECT_TRUE(QFileInfo::exists(path));
    EXPECT_TRUE(QFileInfo::exists(site("a.htm")));
}

TEST_F(ProjectPanelTest, AddFilePointsTheProjectAtAFile)
{
    const QString path = project(u("SiteDetails.dat"), {site("a.htm")});
    load(path);
    panel->ProjectAdd->click();
    ProjAdd* w = loadedForm<ProjAdd>();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), u("Add File"));
    EXPECT_EQ(w->Text3->text(), path) << "on activation, from the panel";
    saveShot(w, u("ProjAdd"));
    EXPECT_EQ(tabOrder(w), (QStringList{u("Text1"), u("Command2"), u("Text2"), u("Text3"), u("Command3"), u("Command1")}));

    prompts.answerMsgBox(Answer::OK);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), u("You have not entered a location for the file you are going to add.")));

    prompts.answerOpenFile(u(""));
    w->Command2->click();
    EXPECT_EQ(prompts.last().kind, u("OpenFile"));
    EXPECT_EQ(w->Text1->text(), u(""));
    prompts.answerOpenFile(site("b.htm"));
    w->Command2->click();
    EXPECT_EQ(w->Text1->text(), site("b.htm"));
    EXPECT_EQ(w->Text2->text(), u("b.htm"));
    QTest::keyClick(w->Text1, Qt::Key_Return);  // Enter adds
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(folder.read(u("SiteDetails.dat")), header + site("a.htm").toUtf8() + "\r\n" + site("b.htm").toUtf8() + "\r\n");
    EXPECT_EQ(childTexts(), (QStringList{u("a.htm"), u("b.htm")}));
    EXPECT_FALSE(QFileInfo::exists(folder.file(u("b.htm")))) << "nothing is copied";

    // The same path again: the line is written, the tree keeps one node of that key.
    panel->ProjectAdd->click();
    w->Command3->click();
    EXPECT_TRUE(folder.read(u("SiteDetails.dat")).endsWith(site("b.htm").toUtf8() + "\r\n" + site("b.htm").toUtf8() + "\r\n"));
    EXPECT_EQ(childTexts(), (QStringList{u("a.htm"), u("b.htm")}));

    // With no project loaded: the platform's error, no stray file, the window stays.
    prompts.answerMsgBox(Answer::Yes);
    panel->ProjectDelete->click();
    panel->ProjectAdd->click();
    EXPECT_EQ(w->Text3->text(), u(""));
    prompts.answerMsgBox(Answer::OK);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), u("Run-time error '53':\n\nFile not found"), 16));
    EXPECT_TRUE(w->isVisible());
    EXPECT_FALSE(QFileInfo::exists(u("None")));
    QTest::keyClick(w->Text1, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible()) << "Esc hides";
}

TEST_F(ProjectPanelTest, DoubleClickOpensAFileAndUploadQueuesTheProject)
{
    const QString path = project(u("SiteDetails.dat"), {site("a.htm"), site("b.htm")});
    load(path);
    const int before = Forms::count();
    panel->TreeProject_DblClick(root());
    EXPECT_EQ(Forms::count(), before) << "the root leads to nothing";
    panel->TreeProject_DblClick(root()->child(1));
    DocumentWindow* doc = main->ActiveForm();
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), u("<p>b</p>"));
    EXPECT_EQ(doc->tempaddress()->text(), site("b.htm"));
    EXPECT_EQ(main->windowTitle(), u("Velloro 2002 :: [ ") + site("b.htm") + u(" ]"));

    main->findChild<QToolButton*>(u("SmartNetButton69"))->click();
    ftpnormal* up = loadedForm<ftpnormal>();
    ASSERT_NE(up, nullptr);
    EXPECT_TRUE(up->isVisible());
    ASSERT_EQ(up->Flex->rowCount(), 2);
    EXPECT_EQ(up->Flex->item(0, 0)->text(), u("a.htm"));
    EXPECT_EQ(up->Flex->item(0, 2)->text(), site("a.htm"));
    EXPECT_EQ(up->Flex->item(1, 0)->text(), u("b.htm"));
    EXPECT_EQ(up->Flex->item(1, 1)->text(), u("8"));
}
