// New pages from the start screen: the texts in their windows, captions, counters and the
// start screen's fields before and after.
#include "common/TestSupport.h"

#include "documents/DocumentWindow.h"
#include "documents/PageGenerator.h"
#include "platform/CheckValue.h"
#include "platform/CodeMax.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>

namespace {
const QString head = QStringLiteral(
    "<html>\r\n\r\n<head>\r\n<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n"
    "<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n");

class GeneratorTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        startup = form<Startup>();
        main = frmMain::instance();
    }
    Startup* startup = nullptr;
    frmMain* main = nullptr;
};
}

TEST_F(GeneratorTest, QuickPageRightAfterStartHasAnEmptyTitle)
{
    main->MenuClick(QStringLiteral("Quick html Page"));
    DocumentWindow* page = main->ActiveForm();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->CodeMax1()->text(),
              head + QStringLiteral("<title>  </title>\r\n\r\n</head> \r\n\r\n<body text=\"#000000\" bgColor=\"#FFFFFF\">"
                                    "\r\n\r\n\r\n\r\n\r\n\r\n</body>\r\n\r\n</html>"))
        << visible(page->CodeMax1()->text());
    EXPECT_EQ(page->Caption(), QString());
    EXPECT_TRUE(main->windowTitle().endsWith(QStringLiteral(" [  ]"))) << main->windowTitle().toStdString();
    EXPECT_EQ(page->WindowState(), 2);
    EXPECT_EQ(page->tempaddress()->text(), QString());
    EXPECT_EQ(page->Changedvalue()->text(), QStringLiteral("Changed")) << "a fresh page asks on close";
}

TEST_F(GeneratorTest, WizardPageWithSoundAndColours)
{
    startup->show();
    startup->title->setText(QStringLiteral("My Page"));
    startup->Text3->setText(QStringLiteral("\"#112233\""));
    startup->mlocation->setText(QStringLiteral("a.wav"));
    startup->mloop->setText(QStringLiteral("3"));
    setCheckValue(startup->CSS, 0);
    startup->Command1->click();  // "Next" without a style sheet generates the page

    DocumentWindow* page = main->ActiveForm();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->CodeMax1()->text(),
              head + QStringLiteral("<title> My Page </title>\r\n<bgsound src=\"a.wav\" loop=3>\r\n</head> \r\n\r\n"
                                    "<body text=\"#112233\" bgColor=\"#FFFFFF\">\r\n\r\n\r\n\r\n\r\n\r\n</body>\r\n\r\n</html>"))
        << visible(page->CodeMax1()->text());
    EXPECT_EQ(page->Caption(), QStringLiteral("My Page"));
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ My Page ]"));
    EXPECT_FALSE(startup->isVisible());
    EXPECT_EQ(startup->Text1->text(), QString()) << "the sound tag is cleared";
    EXPECT_EQ(startup->title->text(), QStringLiteral("My Page")) << "other fields stay for the next page";

    // The next quick page skips the sound step: no sound, but the stale title.
    main->MenuClick(QStringLiteral("Quick html Page"));
    EXPECT_TRUE(main->ActiveForm()->CodeMax1()->text().contains(QStringLiteral("<title> My Page </title>\r\n\r\n</head> ")));
}

TEST_F(GeneratorTest, LoopZeroPlaysForever)
{
    startup->mlocation->setText(QStringLiteral("tune.mp3"));
    startup->mloop->setText(QStringLiteral("0"));
    startup->PrepareSoundTag();
    EXPECT_TRUE(main->ActiveForm()->CodeMax1()->text().contains(QStringLiteral("\r\n<bgsound src=\"tune.mp3\" loop=-1>\r\n</head> ")));
}

TEST_F(GeneratorTest, StyledPageGoesThroughTheLinkColourPage)
{
    startup->show();
    startup->title->setText(QStringLiteral("Styled"));
    setCheckValue(startup->CSS, 1);
    startup->showFrame(startup->frsingle);
    saveShot(startup, QStringLiteral("startup-single"));
    startup->Command1->click();
    EXPECT_FALSE(startup->CSSFrame->isHidden()) << "Next with the style sheet ticked shows the link colours";
    saveShot(startup, QStringLiteral("startup-links"));
    EXPECT_EQ(main->ActiveForm(), nullptr);
    startup->Combo10->setCurrentText(QStringLiteral("Underline + Upperline"));
    startup->Text8->setText(QStringLiteral("\"#FF00FF\""));
    startup->Command12->click();

    DocumentWindow* page = main->ActiveForm();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->CodeMax1()->text(),
              head + QStringLiteral(
                         "<title>Styled</title>\r\n\r\n<style>\r\n"
                         "<!-- A:link  {color:\"#0000FF\"; text-decoration:Underlined }\r\n"
                         "A:visited {color:\"#FF00FF\"; text-decoration:Underlined }\r\n"
                         "A:active {color:\"#0000FF\"; text-decoration:Underlined}\r\n"
                         "A:hover {color:\"#0000FF\";text-decoration:Underline + Upperline} -->\r\n"
                         "</style>\r\n\r\n</head>\r\n\r\n<body text=\"#000000\" bgColor=\"#FFFFFF\">\r\n\r\n\r\n\r\n\r\n\r\n"
                         "</body>\r\n\r\n</html>"))
        << visible(page->CodeMax1()->text());
}

TEST_F(GeneratorTest, SplitPageIsPlainWhateverTheStyleChoice)
{
    setCheckValue(startup->CSS, 1);
    startup->title->setText(QStringLiteral("Split"));
    main->MenuClick(QStringLiteral("Quick Split html Page"));
    DocumentWindow* page = main->ActiveForm();
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->CodeMax1()->text().startsWith(head + QStringLiteral("<title> Split </title>\r\n")));
    EXPECT_FALSE(page->CodeMax1()->text().contains(QStringLiteral("<style>")));
    EXPECT_EQ(page->Caption(), QStringLiteral("Split"));
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ Split ]"));
}

TEST_F(GeneratorTest, CountersNeverFall)
{
    // The numbered caption lasts only until the title replaces it; watch it through the
    // counters of the start-up page, which keeps its number.
    CreateStartupPage();
    const QString first = main->ActiveForm()->Caption();
    ASSERT_TRUE(first.startsWith(QStringLiteral("Document ")));
    const int n = first.mid(9).toInt();
    main->ActiveForm()->Changedvalue()->setText(QString());
    main->ActiveForm()->Unload();
    processEvents();
    CreateStartupPage();
    main->ActiveForm()->Changedvalue()->setText(QString());
    CreateStartupPage();
    EXPECT_EQ(main->ActiveForm()->Caption(), QStringLiteral("Document %1").arg(n + 2));
    EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded ::  New Page"));
}

TEST_F(GeneratorTest, WizardNavigation)
{
    startup->show();
    EXPECT_FALSE(startup->frstartup->isHidden());
    startup->showFrame(startup->frsingle);
    startup->Command2->click();
    EXPECT_FALSE(startup->frstartup->isHidden()) << "Previous goes back to the task list";
    startup->showFrame(startup->CSSFrame);
    startup->Command13->click();
    EXPECT_FALSE(startup->frsingle->isHidden()) << "Back goes to the first wizard page";
    // Hidden and shown again, the window comes up on the task list with its fields kept.
    startup->title->setText(QStringLiteral("kept"));
    startup->hide();
    startup->show();
    EXPECT_FALSE(startup->frstartup->isHidden());
    EXPECT_TRUE(startup->frsingle->isHidden());
    EXPECT_EQ(startup->title->text(), QStringLiteral("kept"));
    // "Forever" disables the loop count for good.
    startup->Check2->click();
    startup->Check2->click();
    EXPECT_FALSE(startup->mloop->isEnabled());
}

TEST_F(GeneratorTest, ColourButtonsFillTheFieldsWithQuotes)
{
    prompts.answerColour(0xFF8000);  // blue 0xFF, green 0x80, red 0x00
    startup->Command4->click();
    EXPECT_EQ(startup->Text4->text(), QStringLiteral("\"#0080FF\""));
    prompts.answerColour(std::nullopt);
    startup->Command3->click();
    EXPECT_EQ(startup->Text3->text(), QStringLiteral("\"#000000\""));
}

// The start screen's two frame layouts: three new pages each, their captions and texts, the
// message and the status line; values go in as they stand.
TEST_F(GeneratorTest, FrameLayoutsMakeThreePages)
{
    const QString frameHead = QStringLiteral(
        "<html>\r\n<head>\r\n<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n");
    const QString framePage = QStringLiteral("</head>\r\n\r\n<body bgColor=#000033>\r\n\r\n\r\n\r\n</body>\r\n\r\n</html>");
    startup->frsp->setText(QStringLiteral("0"));
    startup->bo->clear();
    startup->frbo->setText(QStringLiteral("no"));
    startup->frco->setText(QStringLiteral("25%"));
    startup->Text5->setText(QStringLiteral("#000033"));
    const struct {
        const char* key;
        QString index;
        QString second;
        QString message, title;
    } layouts[] = {
        {"frame1",
         QStringLiteral("<title> Index </title>\r\n</head>\r\n\r\n<frameset framespacing=0 border= frameborder=no cols=25%,*>\r\n"
                        "<frame name=contents target=main src=contents.html>\r\n<frame name=main src=main.html>\r\n"
                        "<noframes>\r\n\r\n<body>\r\n\r\n\r\n</body>\r\n</noframes>\r\n</frameset>\r\n</html>"),
         QStringLiteral("<title> Content Menu </title>\r\n"), QStringLiteral("Frames Created"), QStringLiteral(":: Confirmation ::")},
        {"frame2",
         QStringLiteral("<title> Index </title>\r\n</head>\r\n\r\n<Frameset framespacing=0 border= frameborder=no rows=25%,*>\r\n"
                        "<frame name=Header target=main src=Header.html>\r\n<frame name=main src=main.html>\r\n"
                        "<noframes>\r\n\r\n<body>\r\n\r\n\r\n</body>\r\n</noframes>\r\n</Frameset>\r\n</html>"),
         QStringLiteral("<title> Header Menu </title>\r\n"), QStringLiteral("Frames have been created"), QStringLiteral(":: Completion ::")},
    };
    for (const auto& l : layouts) {
        const int before = main->findChildren<DocumentWindow*>().size();
        prompts.answerMsgBox(Answer::OK);
        startup->Toolbar1->findChild<QAction*>(QString::fromLatin1(l.key))->trigger();
        EXPECT_TRUE(isBox(prompts.last(), l.message, 64, l.title)) << l.key;
        EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded :: Frames Have Been Created"));
        QList<DocumentWindow*> docs = main->findChildren<DocumentWindow*>();
        ASSERT_EQ(docs.size(), before + 3) << l.key;
        docs = docs.mid(before);
        EXPECT_EQ(docs[0]->windowTitle(), QStringLiteral("Index Page"));
        EXPECT_EQ(docs[1]->windowTitle(), QStringLiteral("Contents Page")) << "also for the header row";
        EXPECT_EQ(docs[2]->windowTitle(), QStringLiteral("Main Page"));
        EXPECT_EQ(docs[0]->CodeMax1()->text(), frameHead + l.index);
        EXPECT_EQ(docs[1]->CodeMax1()->text(), frameHead + l.second + framePage);
        EXPECT_EQ(docs[2]->CodeMax1()->text(), frameHead + QStringLiteral("<title> Main Document </title>\r\n") + framePage);
        for (DocumentWindow* d : docs)
            EXPECT_TRUE(d->tempaddress()->text().isEmpty()) << "nothing is saved";
    }
}
