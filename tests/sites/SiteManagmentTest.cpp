// The Site Wizard from the menu: its pages in order, a Business, a Personal and a Custom site
// made into a folder of the test's and loaded as the project, the reset, the runs it refuses,
// and the generated sites in the browser view with every menu link leading to a page.
#include "common/Utf8.h"
#include "common/TestSupport.h"

#include "platform/WebBrowser.h"
#include "services/Commands.h"
#include "shell/frmMain.h"
#include "sites/ProjectPanel.h"
#include "sites/SiteManagment.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

class SiteManagmentTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        QDir().mkpath(out());
    }
    QString out() const { return folder.file(u("sites")); }
    SiteManagment* open()
    {
        frmMain::instance()->MenuClick(u("Site Managment"));
        auto* w = loadedForm<SiteManagment>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
    static QWidget* current(SiteManagment* w) { return w->findChild<QStackedWidget*>()->currentWidget(); }
    // From the about page to the ticks of a type, the details filled in.
    void toPages(SiteManagment* w, const QString& title, const QString& type)
    {
        w->SmartNetButton10->click();
        w->sitetitle->setText(title);
        w->siteauthor->setText(u("Ann"));
        w->siteemail->setText(u("ann@example.org"));
        w->sitetype->setCurrentText(type);
        prompts.answerFolder(out());
        w->browseLocation->click();
        w->detailsNextButton->click();
    }
    static void tickAll(QCheckBox* const* boxes, int n, bool on)
    {
        for (int i = 0; i < n; ++i)
            if (boxes[i]->isEnabled())
                boxes[i]->setChecked(on);
    }
};

// Runs a script in the page a browser shows and hands back its value.
QVariant run(WebBrowser& browser, const QString& script)
{
    auto* view = qobject_cast<QWebEngineView*>(browser.findChild<QWebEngineView*>());
    if (!view)
        return {};
    QVariant result;
    bool done = false;
    view->page()->runJavaScript(script, [&](const QVariant& v) {
        result = v;
        done = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 10000)) << "the script answered";
    return result;
}

bool navigate(WebBrowser& browser, const QString& path)
{
    QSignalSpy status(&browser, &WebBrowser::StatusTextChange);
    browser.Navigate(path);
    return QTest::qWaitFor([&] { return status.contains(QVariantList{u("Done")}); }, 20000);
}
}

TEST_F(SiteManagmentTest, PagesInOrderAndABusinessSiteLoadedAsTheProject)
{
    SiteManagment* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), u("Site Wizard"));
    EXPECT_EQ(current(w), w->frmstep0);
    EXPECT_EQ(w->sitetitle->text(), u("New_Site"));
    EXPECT_EQ(w->sitedate->text(), QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
    ASSERT_EQ(w->sitetype->count(), 3);
    EXPECT_EQ(w->sitetype->itemText(0), u("Business"));
    EXPECT_EQ(w->sitetype->itemText(1), u("Personal"));
    EXPECT_EQ(w->sitetype->itemText(2), u("Custom"));
    EXPECT_EQ(w->createpage->toPlainText(), w->createpage1->toPlainText());
    saveShot(w, u("SiteWizard-0-about"));

    w->SmartNetButton10->click();
    EXPECT_EQ(current(w), w->frmstep1);
    saveShot(w, u("SiteWizard-1-details"));
    EXPECT_EQ(tabOrder(w), (QStringList{u("sitetitle"), u("siteauthor"), u("sitedate"), u("siteemail"), u("sitetype"),
                                        u("sitelocation"), u("browseLocation"), u("detailsBack"), u("detailsNextButton"),
                                        u("SmartNetButton1")}));
    // The details page's Next goes by the type; Enter in a field presses it.
    const std::pair<const char*, QFrame*> byType[] = {{"Personal", w->frmstep2p}, {"Custom", w->frmcustom}, {"Business", w->frmstep2B}};
    for (const auto& [type, page] : byType) {
        w->sitetype->setCurrentText(u(type));
        QTest::keyClick(w->siteauthor, Qt::Key_Return);
        EXPECT_EQ(current(w), page) << type;
        saveShot(w, u("SiteWizard-2-") + u(type));
        w->SmartNetButton11->click();  // any back button leads to the details
        w->businessBack->click();
        w->personalBack->click();
        EXPECT_EQ(current(w), w->frmstep1);
    }
    w->detailsBack->click();
    EXPECT_EQ(current(w), w->frmstep0);

    // Cancelling the folder browser keeps the location.
    w->SmartNetButton10->click();
    w->sitelocation->setText(u("/keep"));
    prompts.answerFolder(u(""));
    w->browseLocation->click();
    EXPECT_EQ(w->sitelocation->text(), u("/keep"));

    w->SmartNetButton10->click();
    toPages(w, u("Acme"), u("Business"));
    EXPECT_EQ(w->sitelocation->text(), out());
    ASSERT_EQ(current(w), w->frmstep2B);
    w->BCheck[2]->setChecked(false);  // Portfolio
    w->businessNext->click();
    EXPECT_EQ(current(w), w->frmstep3);
    EXPECT_EQ(w->statusbar->text(), u("Status : Completed Creation Proccess"));
    EXPECT_EQ(w->ProgressBar1->value(), 4);
    EXPECT_EQ(w->ProgressBar1->maximum(), 4);
    EXPECT_EQ(w->createpage->toPlainText(), u(""));
    saveShot(w, u("SiteWizard-3-done"));

    const QString site = out() + u("/Acme");
    EXPECT_EQ(QDir(site).entryList(QDir::Files, QDir::Name),
              (QStringList{u("About.htm"), u("Contact.htm"), u("Index.htm"), u("Main.htm"), u("MainMenu.htm"), u("Quote.htm"),
                           u("Services.htm"), u("SiteDetails.dat")}));
    EXPECT_EQ(folder.read(u("sites/Acme/SiteDetails.dat")),
              "'''Start Project Details'''\r\nAcme\r\nAnn\r\n" + w->sitedate->text().toUtf8() +
                  "\r\nann@example.org\r\n'''End Of Details'''\r\n" +
                  (site + u("/Index.htm\r\n") + site + u("/Main.htm\r\n") + site + u("/Services.htm\r\n") + site +
                   u("/Quote.htm\r\n") + site + u("/About.htm\r\n") + site + u("/Contact.htm\r\n") + site + u("/MainMenu.htm\r\n"))
                      .toUtf8());

    // The project panel shows the new site.
    ProjectPanel* panel = ProjectPanel::instance();
    EXPECT_EQ(panel->projectlocation->text(), site + u("/SiteDetails.dat"));
    EXPECT_EQ(panel->prosite->text(), u("Acme"));
    EXPECT_EQ(panel->proauthor->text(), u("Ann"));
    EXPECT_EQ(panel->TreeProject->topLevelItem(0)->childCount(), 7);
    EXPECT_EQ(panel->TreeProject->topLevelItem(0)->child(6)->text(0), u("MainMenu.htm"));
    EXPECT_TRUE(panel->frproject->isVisibleTo(frmMain::instance()));
    saveShot(frmMain::instance(), u("SiteWizard-project-panel"));

    // Close, or Esc, resets the wizard.
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->statusbar->text(), u("Status :"));
    EXPECT_EQ(w->sitetitle->text(), u("New_Site"));
    EXPECT_EQ(w->ProgressBar1->value(), 0);
    EXPECT_EQ(current(w), w->frmstep0);
    EXPECT_EQ(w->createpage->toPlainText(), w->createpage1->toPlainText());

    // The panel's New shows the wizard again.
    panel->ProjectNew->click();
    EXPECT_TRUE(w->isVisible());
}

TEST_F(SiteManagmentTest, AnExistingFolderOrAMissingTemplateIsRefusedWithAMessage)
{
    folder.write(u("sites/Acme/Index.htm"), "mine");
    SiteManagment* w = open();
    ASSERT_NE(w, nullptr);
    toPages(w, u("Acme"), u("Business"));
    prompts.answerMsgBox(Answer::OK);
    w->businessNext->click();
    const QString folderText = out() + u("/Acme");
    EXPECT_TRUE(isBox(prompts.last(), u("The folder ") + folderText + u(" already exists. Nothing was written: choose another site title or location."),
                      48, u(":: Velloro 2002 ::")));
    EXPECT_EQ(w->statusbar->text(), u("Status : The folder ") + folderText + u(" already exists. Nothing was written: choose another site title or location."));
    EXPECT_EQ(folder.read(u("sites/Acme/Index.htm")), QByteArray("mine"));
    EXPECT_EQ(QDir(folderText).entryList(QDir::Files), QStringList{u("Index.htm")});
    EXPECT_EQ(ProjectPanel::instance()->projectlocation->text(), u("")) << "no project was loaded";
    ASSERT_TRUE(w->progressBack->isVisible());
    w->progressBack->click();
    EXPECT_EQ(current(w), w->frmstep1);

    // Another title works at once.
    w->sitetitle->setText(u("Acme2"));
    w->detailsNextButton->click();
    w->businessNext->click();
    EXPECT_EQ(w->statusbar->text(), u("Status : Completed Creation Proccess"));
    EXPECT_FALSE(w->progressBack->isVisible());

    // A Personal template gone from the application folder.
    QFile::remove(folder.file(u("Templates/Advanced/Sites/Personal/Hobbies.htm")));
    w->progressBack->show();
    w->progressBack->click();
    w->sitetitle->setText(u("Trip"));
    w->sitetype->setCurrentText(u("Personal"));
    w->detailsNextButton->click();
    prompts.answerMsgBox(Answer::OK);
    w->personalNext->click();
    EXPECT_TRUE(prompts.last().text.startsWith(u("The template file "))) << prompts.last().text.toStdString();
    EXPECT_TRUE(prompts.last().text.contains(u("Hobbies.htm")));
    EXPECT_FALSE(QFileInfo::exists(out() + u("/Trip")));
    EXPECT_TRUE(ProjectPanel::instance()->ProjectLoad->isEnabled());
}

TEST_F(SiteManagmentTest, CustomSiteFromChosenFiles)
{
    folder.write(u("mine/home.htm"), "<p>home</p>");
    folder.write(u("mine/logo.gif"), "GIF89a");
    SiteManagment* w = open();
    ASSERT_NE(w, nullptr);
    toPages(w, u("Own"), u("Custom"));
    ASSERT_EQ(current(w), w->frmcustom);
    prompts.answerOpenFile(folder.file(u("mine/home.htm"))).answerOpenFile(u("")).answerOpenFile(folder.file(u("mine/logo.gif")));
    for (int i = 0; i < 3; ++i)
        w->SmartNetButton13->click();
    ASSERT_EQ(w->Flex->rowCount(), 2) << "a cancelled dialog adds no row";
    EXPECT_EQ(w->Flex->horizontalHeaderItem(0)->text(), u("Filename"));
    EXPECT_EQ(w->Flex->item(1, 0)->text(), u("logo.gif"));
    EXPECT_EQ(w->Flex->item(1, 1)->text(), folder.file(u("mine/logo.gif")));
    saveShot(w, u("SiteWizard-2-Custom-files"));
    w->SmartNetButton12->click();
    const QString site = out() + u("/Own");
    EXPECT_EQ(folder.read(u("sites/Own/logo.gif")), QByteArray("GIF89a"));
    EXPECT_TRUE(folder.read(u("sites/Own/SiteDetails.dat"))
                    .endsWith("'''End Of Details'''\r\n" + (site + u("/home.htm\r\n") + site + u("/logo.gif\r\n")).toUtf8()));
    EXPECT_EQ(ProjectPanel::instance()->projectlocation->text(), site + u("/SiteDetails.dat"));
    EXPECT_FALSE(QFileInfo::exists(site + u("/MainMenu.htm")));
}

TEST_F(SiteManagmentTest, GeneratedSitesInTheBrowserView)
{
    SiteManagment* w = open();
    ASSERT_NE(w, nullptr);
    const struct {
        const char* title;
        const char* type;
        const char* menu;
        QStringList pages;
    } sites[] = {
        {"Shop", "Business", "MainMenu.htm", {u("Services.htm"), u("Portfolio.htm"), u("Quote.htm"), u("About.htm"), u("Contact.htm")}},
        {"Home", "Personal", "Bar.htm", {u("Pictures.htm"), u("About.htm"), u("Hobbies.htm"), u("Links.htm"), u("Contact.htm")}},
    };
    for (const auto& s : sites) {
        toPages(w, u(s.title), u(s.type));
        tickAll(w->BCheck, 6, true);
        tickAll(w->PCheck, 7, true);
        (u(s.type) == u("Business") ? w->businessNext : w->personalNext)->click();
        ASSERT_EQ(w->statusbar->text(), u("Status : Completed Creation Proccess")) << s.title;
        w->SmartNetButton1->click();
        w->show();

        const QString site = out() + u("/") + u(s.title);
        WebBrowser browser;
        browser.resize(1000, 700);
        browser.show();
        ASSERT_TRUE(navigate(browser, site + u("/Index.htm"))) << s.title;
        // The frame set names the menu page and Main.htm as the frame "main"; both load.
        QTest::qWait(500);
        const QStringList frames =
            run(browser, u("Array.from(document.querySelectorAll('frame')).map(f => f.name + '=' + f.getAttribute('src'))"))
                .toStringList();
        EXPECT_EQ(frames, (QStringList{u("menu=") + u(s.menu), u("main=Main.htm")})) << s.title;
        saveShot(&browser, u("Site-") + u(s.title) + u("-index"));

        // The menu page links every ticked page into the frame "main"; each is there.
        ASSERT_TRUE(navigate(browser, site + u("/") + u(s.menu)));
        const QStringList links =
            run(browser, u("Array.from(document.links).map(a => a.getAttribute('href') + '|' + a.target + '|' + a.href)"))
                .toStringList();
        ASSERT_EQ(links.size(), s.pages.size()) << s.title;
        for (int i = 0; i < links.size(); ++i) {
            const QStringList parts = links[i].split(u("|"));
            ASSERT_EQ(parts.size(), 3);
            EXPECT_EQ(parts[0], s.pages[i]);
            EXPECT_EQ(parts[1], u("main"));
            EXPECT_TRUE(QFileInfo(QUrl(parts[2]).toLocalFile()).isFile()) << parts[2].toStdString();
        }
        // Each page opens, and its pictures are in the folder.
        for (const QString& page : s.pages) {
            ASSERT_TRUE(navigate(browser, site + u("/") + page)) << page.toStdString();
            const int broken = run(browser, u("Array.from(document.images).filter(i => !(i.complete && i.naturalWidth > 0)).length")).toInt();
            EXPECT_EQ(broken, 0) << page.toStdString();
        }
    }
}
