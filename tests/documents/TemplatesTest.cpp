// The template browser: the tree of the two template folders, the preview of a chosen page, and
// Open, which makes a web page window that keeps the template's own path.
#include "common/TestSupport.h"

#include "documents/Templates.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "documents/tmplsave.h"
#include "platform/CodeMax.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "platform/WebBrowser.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

namespace {
const QString chooseFirst = QStringLiteral("First select a valid doucment from the list on the left, then try again.");

class TemplatesTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        useOwnTemplates();
    }
    // Template folders of the test's own in place of the shipped ones.
    void useOwnTemplates()
    {
        for (const char* f : {"Templates/WebPage", "Templates/Javascript"})
            QDir(folder.file(QString::fromLatin1(f))).removeRecursively();
        folder.write(QStringLiteral("Templates/WebPage/b page.htm"), "<html><body><h1>B</h1></body></html>");
        folder.write(QStringLiteral("Templates/WebPage/A Page.htm"),
                     "<html>\r\n<body>\r\n<p>caf\xc3\xa9</p>\r\n</body>\r\n</html>\r\n");
        folder.write(QStringLiteral("Templates/WebPage/notes.txt"), "plain");
        folder.write(QStringLiteral("Templates/Javascript/Clock.htm"), "<script>clock()</script>");
    }
    QString page(const char* relative) const { return folder.file(QStringLiteral("Templates/") + QString::fromUtf8(relative)); }

    Templates* open(const char* key = "From Templates")
    {
        frmMain::instance()->MenuClick(QString::fromLatin1(key));
        auto* w = loadedForm<Templates>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
    // A mouse click on a node, as the user does it.
    static void click(Templates* w, QTreeWidgetItem* node)
    {
        ASSERT_NE(node, nullptr);
        w->Tree->scrollToItem(node);
        const QRect r = w->Tree->visualItemRect(node);
        QTest::mouseClick(w->Tree->viewport(), Qt::LeftButton, {}, r.center());
    }
    static QStringList texts(const QTreeWidgetItem* parent)
    {
        QStringList t;
        for (int i = 0; parent && i < parent->childCount(); ++i)
            t << parent->child(i)->text(0);
        return t;
    }
    // Runs the choice and waits until the preview has finished loading the page.
    static bool loads(WebBrowser* view, const QString& path, const std::function<void()>& choose)
    {
        QSignalSpy done(view, &WebBrowser::NavigateComplete);
        choose();
        const QUrl url = QUrl::fromLocalFile(path);
        return QTest::qWaitFor([&] {
            for (const QList<QVariant>& args : done)
                if (args.at(0).toUrl() == url)
                    return true;
            return false;
        }, 20000);
    }
    static QList<DocumentWindow*> documents() { return frmMain::instance()->documents(); }
};
}

TEST_F(TemplatesTest, TheTreeHoldsTheFilesOfBothFolders)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Velloro 2002 Templates"));
    EXPECT_EQ(w->Label1->text(), QStringLiteral("Current Template Displayed : "));
    EXPECT_EQ(w->Label7->text(), QStringLiteral("Choose a template below : "));
    EXPECT_EQ(w->Label2->text(), QString());
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Open"));
    EXPECT_EQ(w->Command2->toolTip(), QStringLiteral("Open Selected Template"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Close Window"));
    EXPECT_FALSE(w->File1->isVisible());
    EXPECT_EQ(w->currentTemplate(), QString());

    ASSERT_EQ(w->Tree->topLevelItemCount(), 1);
    QTreeWidgetItem* root = w->Tree->topLevelItem(0);
    EXPECT_EQ(Templates::keyOf(root), QStringLiteral("root"));
    EXPECT_EQ(root->text(0), QStringLiteral("Available Templates"));
    ASSERT_EQ(root->childCount(), 2);
    QTreeWidgetItem* general = root->child(0);
    QTreeWidgetItem* scripts = root->child(1);
    EXPECT_EQ(Templates::keyOf(general), QStringLiteral("General Templates"));
    EXPECT_EQ(general->text(0), QStringLiteral("General Templates"));
    EXPECT_EQ(Templates::keyOf(scripts), QStringLiteral("Javascript Templates"));
    EXPECT_EQ(scripts->text(0), QStringLiteral("Javascript Templates"));
    EXPECT_TRUE(general->isExpanded());
    EXPECT_TRUE(scripts->isExpanded());

    // Every file of the folder, whatever its type, in name order regardless of case; the key is
    // the full path.
    EXPECT_EQ(texts(general), (QStringList{QStringLiteral("A Page.htm"), QStringLiteral("b page.htm"), QStringLiteral("notes.txt")}));
    EXPECT_EQ(texts(scripts), QStringList{QStringLiteral("Clock.htm")});
    const struct {
        QTreeWidgetItem* node;
        const char* path;
    } keys[] = {{general->child(0), "WebPage/A Page.htm"},
                {general->child(1), "WebPage/b page.htm"},
                {general->child(2), "WebPage/notes.txt"},
                {scripts->child(0), "Javascript/Clock.htm"}};
    for (const auto& k : keys) {
        EXPECT_EQ(Templates::keyOf(k.node), page(k.path)) << k.path;
        EXPECT_EQ(k.node->childCount(), 0) << k.path;
    }
    saveShot(w, QStringLiteral("Templates"));

    // "Close Window" hides it; the other menu key brings the same window back, not filled twice.
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(open("Velloro Templates"), w);
    EXPECT_EQ(w->Tree->topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(texts(w->Tree->topLevelItem(0)->child(0)).size(), 3);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(TemplatesTest, AClickOnAFileShowsItAndAClickOnAGroupDoesNothing)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(loads(w->WebBrowser1, page("WebPage/b page.htm"), [&] { click(w, w->node(page("WebPage/b page.htm"))); }));
    EXPECT_EQ(w->Label2->text(), QStringLiteral("b page.htm"));
    EXPECT_EQ(w->currentTemplate(), page("WebPage/b page.htm"));
    saveShot(w, QStringLiteral("Templates-preview"));

    for (const char* group : {"General Templates", "Javascript Templates", "root"}) {
        click(w, w->node(QString::fromLatin1(group)));
        EXPECT_EQ(w->Tree->currentItem(), w->node(QString::fromLatin1(group))) << group;
        EXPECT_EQ(w->Label2->text(), QStringLiteral("b page.htm")) << group;
        EXPECT_EQ(w->currentTemplate(), page("WebPage/b page.htm")) << group;
        EXPECT_EQ(w->WebBrowser1->LocationURL(), QUrl::fromLocalFile(page("WebPage/b page.htm"))) << group;
    }

    // The arrow keys choose as a click does.
    click(w, w->node(page("WebPage/A Page.htm")));
    w->Tree->setFocus();
    QTest::keyClick(w->Tree, Qt::Key_Down);
    EXPECT_EQ(w->Label2->text(), QStringLiteral("b page.htm"));
    EXPECT_TRUE(loads(w->WebBrowser1, page("WebPage/notes.txt"), [&] { QTest::keyClick(w->Tree, Qt::Key_Down); }));
    EXPECT_EQ(w->Label2->text(), QStringLiteral("notes.txt"));
    EXPECT_EQ(w->currentTemplate(), page("WebPage/notes.txt"));
    EXPECT_TRUE(documents().isEmpty());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(TemplatesTest, OpenWithoutAValidChoiceSaysSoAndOpensNothing)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    // Nothing chosen yet; then only the root; then a file and a group after it.
    const QList<QStringList> clicks = {{},
                                       {QStringLiteral("root")},
                                       {page("Javascript/Clock.htm"), QStringLiteral("General Templates")},
                                       {QStringLiteral("Javascript Templates")}};
    for (const QStringList& keys : clicks) {
        for (const QString& key : keys)
            click(w, w->node(key));
        prompts.answerMsgBox(Answer::OK);
        w->Command2->click();
        ASSERT_EQ(prompts.prompts().size(), 1) << keys.join(',').toStdString();
        EXPECT_TRUE(isBox(prompts.last(), chooseFirst, 0)) << keys.join(',').toStdString();
        prompts.clear();
        EXPECT_TRUE(documents().isEmpty());
        EXPECT_TRUE(w->isVisible());
    }
    // The preview keeps the file chosen before the groups.
    EXPECT_EQ(w->Label2->text(), QStringLiteral("Clock.htm"));
    EXPECT_EQ(w->WebBrowser1->LocationURL(), QUrl::fromLocalFile(page("Javascript/Clock.htm")));
}

TEST_F(TemplatesTest, OpenMakesAWebPageThatKeepsTheTemplatesPath)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    frmMain* main = frmMain::instance();
    const QString path = page("WebPage/A Page.htm");
    click(w, w->node(path));
    w->Command2->click();
    processEvents();
    ASSERT_EQ(documents().size(), 1);
    DocumentWindow* doc = main->ActiveForm();
    ASSERT_NE(qobject_cast<frmDocument*>(doc), nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("<html>\r\n<body>\r\n<p>caf\u00e9</p>\r\n</body>\r\n</html>\r\n"));
    EXPECT_EQ(doc->tempaddress()->text(), path);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 :: [ ") + path + QStringLiteral(" ]"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Label2->text(), QStringLiteral("A Page.htm"));
    const QString first = doc->Caption();
    ASSERT_TRUE(first.startsWith(QStringLiteral("Document ")));

    // A second template, chosen after the window is shown again: a second window, the
    // counter one higher.
    open("Velloro Templates");
    click(w, w->node(page("Javascript/Clock.htm")));
    w->Command2->click();
    processEvents();
    ASSERT_EQ(documents().size(), 2);
    EXPECT_EQ(main->ActiveForm()->CodeMax1()->text(), QStringLiteral("<script>clock()</script>"));
    EXPECT_EQ(main->ActiveForm()->Caption(), QStringLiteral("Document ") + QString::number(first.mid(9).toInt() + 1));
    EXPECT_FALSE(w->isVisible());

    // Save writes back onto the template file itself.
    main->activate(doc);
    doc->CodeMax1()->setText(QStringLiteral("<p>mine</p>"));
    prompts.answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Save"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Page Saved as :: ") + path));
    EXPECT_EQ(folder.read(QStringLiteral("Templates/WebPage/A Page.htm")), QByteArray("<p>mine</p>"));
}

TEST_F(TemplatesTest, ATemplateThatCannotBeReadLeavesAnEmptyPageAndNoMessage)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    click(w, w->node(page("WebPage/b page.htm")));
    ASSERT_TRUE(QFile::remove(page("WebPage/b page.htm")));
    w->Command2->click();
    processEvents();
    ASSERT_EQ(documents().size(), 1);
    EXPECT_TRUE(frmMain::instance()->ActiveForm()->CodeMax1()->text().isEmpty());
    EXPECT_FALSE(frmMain::instance()->windowTitle().contains(QStringLiteral("b page")));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(TemplatesTest, EmptyAndMissingFolders)
{
    Templates* w = open();
    ASSERT_NE(w, nullptr);
    auto top = [w]() -> QStringList {
        QStringList t;
        for (int i = 0; i < w->Tree->topLevelItemCount(); ++i)
            t << w->Tree->topLevelItem(i)->text(0) << texts(w->Tree->topLevelItem(i));
        return t;
    };
    const QString general = QStringLiteral("General Templates"), scripts = QStringLiteral("Javascript Templates");

    // An empty folder: its group stands without children.
    for (const char* f : {"WebPage/A Page.htm", "WebPage/b page.htm", "WebPage/notes.txt"})
        ASSERT_TRUE(QFile::remove(page(f)));
    w->fillTree();
    EXPECT_EQ(top(), (QStringList{QStringLiteral("Available Templates"), general, scripts}));
    EXPECT_EQ(w->node(general)->childCount(), 0);
    EXPECT_EQ(texts(w->node(scripts)), QStringList{QStringLiteral("Clock.htm")});

    // A missing script folder ends the fill after the general group.
    folder.write(QStringLiteral("Templates/WebPage/one.htm"), "1");
    QDir(page("Javascript")).removeRecursively();
    w->fillTree();
    EXPECT_EQ(top(), (QStringList{QStringLiteral("Available Templates"), general}));
    EXPECT_EQ(texts(w->node(general)), QStringList{QStringLiteral("one.htm")});
    EXPECT_EQ(w->node(scripts), nullptr);

    // A missing page folder ends it before the root.
    QDir(page("WebPage")).removeRecursively();
    w->fillTree();
    EXPECT_EQ(w->Tree->topLevelItemCount(), 0);
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), chooseFirst, 0));
    EXPECT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(documents().isEmpty());
}

TEST_F(TemplatesTest, TheStartScreenAndTheTemplateSaveShowTheWindow)
{
    auto* s = form<Startup>();
    s->show();
    auto* task = s->findChild<QLabel*>(QStringLiteral("Label28"));
    ASSERT_NE(task, nullptr);
    EXPECT_EQ(task->text(), QStringLiteral("Open A Pre-Made Template"));
    ASSERT_TRUE(task->isEnabled());
    QTest::mouseClick(task, Qt::LeftButton);
    auto* w = loadedForm<Templates>();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_FALSE(s->isVisible());
    w->hide();

    // A template saved with "Show Template's after save" ticked brings the window up.
    newPad(QStringLiteral("saved as a template"));
    auto* t = form<tmplsave>();
    t->Text1->setText(QStringLiteral("mine"));
    t->Check2->setChecked(true);
    prompts.answerMsgBox(Answer::OK);
    t->Command1->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral(" Page Saved ::  ") + page("mine.tmpl"));
    EXPECT_TRUE(w->isVisible());
}

// The program on its shipped data: every page of the general folder is offered and shows.
class ShippedTemplatesTest : public TemplatesTest {
protected:
    void SetUp() override { startWithoutPage(); }
};

TEST_F(ShippedTemplatesTest, EveryShippedPageIsInTheTree)
{
    frmMain::instance()->MenuClick(QStringLiteral("From Templates"));
    auto* w = loadedForm<Templates>();
    ASSERT_NE(w, nullptr);
    for (const auto& [sub, group] : {std::pair{"WebPage", "General Templates"}, std::pair{"Javascript", "Javascript Templates"}}) {
        const QStringList shipped = QDir(QStringLiteral(VELLORO_SOURCE_DATA "/Templates/") + QString::fromLatin1(sub))
                                        .entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
        ASSERT_FALSE(shipped.isEmpty()) << sub;
        EXPECT_EQ(texts(w->node(QString::fromLatin1(group))), shipped) << sub;
        for (const QString& name : shipped)
            EXPECT_NE(w->node(page(sub) + QLatin1Char('/') + name), nullptr) << name.toStdString();
    }
    EXPECT_GE(w->node(QStringLiteral("General Templates"))->childCount(), 10);

    const QString shown = page("WebPage/Two Column Page.htm");
    ASSERT_TRUE(loads(w->WebBrowser1, shown, [&] { click(w, w->node(shown)); }));
    EXPECT_EQ(w->Label2->text(), QStringLiteral("Two Column Page.htm"));
    saveShot(w, QStringLiteral("Templates-shipped"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
