// The main window's left pane, its file panel, its tooltips and the start screen's tasks.
#include "common/TestSupport.h"

#include "documents/DocumentWindow.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

namespace {
TEST(FilePanel, SizeColumnCountsBytesUpTo1000ThenWholeKilobytes)
{
    for (const auto& [bytes, text] : {std::pair{0, "0 byte's"}, {1000, "1000 byte's"}, {1001, "1 kB's"}, {2500, "2 kB's"},
                                      {1999999, "1999 kB's"}})
        EXPECT_EQ(fileSizeText(bytes), QString::fromLatin1(text));
}

TEST(FilePanel, PatternIsTheTextBetweenTheBrackets)
{
    EXPECT_EQ(patternOf(QStringLiteral("[*.htm]  .htm Files")), QStringLiteral("*.htm"));
    EXPECT_EQ(patternOf(QStringLiteral("[*.C++]  C++ Files")), QStringLiteral("*.C++"));
    EXPECT_EQ(patternOf(QStringLiteral("no brackets")), QString());
}

class MainWindowTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        main = frmMain::instance();
    }
    QToolButton* button(const QString& name) const { return main->findChild<QToolButton*>(name); }
    int visiblePanels() const
    {
        int n = 0;
        for (QFrame* f : main->sidePanels())
            n += f->isVisibleTo(main) ? 1 : 0;
        return n;
    }
    frmMain* main = nullptr;
};

TEST_F(MainWindowTest, ExactlyOneOfTheFivePanelsIsVisible)
{
    main->show();
    ASSERT_EQ(main->sidePanels().size(), 5);
    EXPECT_TRUE(main->frfiles->isVisibleTo(main));
    EXPECT_EQ(visiblePanels(), 1);
    const std::pair<const char*, QFrame*> switches[] = {{"SmartNetButton62", main->frlibrary},
                                                        {"SmartNetButton63", main->frchr},
                                                        {"SmartNetButton64", main->frjavascript},
                                                        {"SmartNetButton66", main->frproject},
                                                        {"SmartNetButton61", main->frfiles}};
    for (const auto& [name, panel] : switches) {
        button(QString::fromLatin1(name))->click();
        EXPECT_TRUE(panel->isVisibleTo(main)) << name;
        EXPECT_EQ(visiblePanels(), 1) << name;
        saveShot(main, QStringLiteral("main-") + panel->objectName());
    }
}

TEST_F(MainWindowTest, TheFileListShowsTheChosenFolderWithSizesAndOpensAsChosen)
{
    folder.write(QStringLiteral("site/a.htm"), QByteArray(1000, 'a'));
    folder.write(QStringLiteral("site/b.htm"), QByteArray(2500, 'b'));
    folder.write(QStringLiteral("site/c.txt"), QByteArray("note"));
    main->PicBrowse->setPath(folder.file(QStringLiteral("site")));
    QTreeWidget* list = main->ListView1;
    ASSERT_EQ(list->topLevelItemCount(), 3);
    EXPECT_EQ(list->headerItem()->text(0), QStringLiteral("File's"));
    EXPECT_EQ(list->headerItem()->text(1), QStringLiteral("Size"));
    EXPECT_EQ(list->headerItem()->text(2), QStringLiteral("Modified"));
    EXPECT_EQ(list->topLevelItem(0)->text(1), QStringLiteral("1000 byte's"));
    EXPECT_EQ(list->topLevelItem(1)->text(1), QStringLiteral("2 kB's"));

    main->Combo3->setCurrentIndex(3);  // "[*.txt]  Text Files"
    Q_EMIT main->Combo3->textActivated(main->Combo3->currentText());
    ASSERT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->topLevelItem(0)->text(0), QStringLiteral("c.txt"));

    main->openchoice->setCurrentText(QStringLiteral("Notepad"));
    Q_EMIT list->itemDoubleClicked(list->topLevelItem(0), 0);
    ASSERT_EQ(main->documents().size(), 1);
    EXPECT_EQ(main->ActiveForm()->Tag(), QStringLiteral("Pad"));

    // A folder without matching files clears the list.
    main->Combo3->setCurrentIndex(5);  // "[*.tmpl]  Velloro Template's"
    Q_EMIT main->Combo3->textActivated(main->Combo3->currentText());
    EXPECT_EQ(list->topLevelItemCount(), 0);
}

TEST_F(MainWindowTest, HoldersFoldAndTheTipStripFollowsTheMouse)
{
    main->LeftMenuIn_Click();
    EXPECT_EQ(main->SideholderWidth(), 475);
    EXPECT_EQ(main->LeftMenuIn->toolTip(), QStringLiteral("Move Menu Out"));
    EXPECT_FALSE(main->LeftTool->isVisibleTo(main));
    main->LeftMenuIn_Click();
    EXPECT_EQ(main->SideholderWidth(), 3470);
    EXPECT_EQ(main->LeftMenuIn->toolTip(), QStringLiteral("Move Menu In"));

    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(main->ListView1, &enter);
    EXPECT_EQ(main->Tooltiptext->text(), QStringLiteral("Double click to open an existing document."));
    QCoreApplication::sendEvent(main->PicBrowse, &enter);
    EXPECT_EQ(main->Tooltiptext->text(), QStringLiteral("Select a root folder to browse."));
}

class StartScreenTest : public MainWindowTest {};

TEST_F(StartScreenTest, HoveringATaskShowsItsHintAndMarkerAndTheFrameClearsThem)
{
    Startup* s = form<Startup>();
    s->show();
    auto* label = s->findChild<QLabel*>(QStringLiteral("Label6"));
    ASSERT_NE(label, nullptr);
    QTest::mouseMove(label, QPoint(5, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), label->mapToGlobal(QPointF(5, 5)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(label, &move);
    EXPECT_EQ(s->ToolTip->text(), QStringLiteral("Simply create a standard Notepad document."));
    EXPECT_EQ(s->ToolTip->palette().color(QPalette::Window), QColor(255, 255, 192));
    int shown = 0;
    for (QLabel* m : s->markers)
        shown += m->isVisibleTo(s) ? 1 : 0;
    EXPECT_EQ(shown, 1);

    QMouseEvent frameMove(QEvent::MouseMove, QPointF(1, 1), s->frstartup->mapToGlobal(QPointF(1, 1)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(s->frstartup, &frameMove);
    EXPECT_EQ(s->ToolTip->text(), QString());
    for (QLabel* m : s->markers)
        EXPECT_FALSE(m->isVisibleTo(s));
    saveShot(s, QStringLiteral("startup-tasks"));
}

TEST_F(StartScreenTest, TheNotepadTaskMakesANotepadAndHidesTheScreen)
{
    Startup* s = form<Startup>();
    s->show();
    QTest::mouseClick(s->findChild<QLabel*>(QStringLiteral("Label6")), Qt::LeftButton);
    ASSERT_EQ(main->documents().size(), 1);
    EXPECT_EQ(main->ActiveForm()->Tag(), QStringLiteral("Pad"));
    // The notepad owns its spell checker from its load on.
    EXPECT_NE(main->ActiveForm()->findChild<QObject*>(QStringLiteral("spellchecker")), nullptr);
    EXPECT_FALSE(s->isVisible());
}

TEST_F(StartScreenTest, EveryTaskIsLiveAndTheHeadingsStand)
{
    Startup* s = form<Startup>();
    EXPECT_TRUE(s->findChild<QLabel*>(QStringLiteral("Label29"))->isEnabled());  // Openform exists
    EXPECT_TRUE(s->findChild<QLabel*>(QStringLiteral("Label26"))->isEnabled());  // the page source window exists
    EXPECT_TRUE(s->findChild<QLabel*>(QStringLiteral("Label31"))->isEnabled());  // the site wizard exists
    EXPECT_EQ(s->findChild<QLabel*>(QStringLiteral("Label32"))->text(), QStringLiteral("Open A Pre-set:"));
    EXPECT_EQ(s->findChild<QLabel*>(QStringLiteral("Label33"))->text(), QStringLiteral("Web Options:"));
    EXPECT_EQ(s->findChild<QLabel*>(QStringLiteral("Label35"))->text(), QStringLiteral("Help :"));
    EXPECT_EQ(s->findChild<QLabel*>(QStringLiteral("Label4"))->text(), QStringLiteral("Create A Single  Web Page"));
    s->show();
    QTest::mouseClick(s->findChild<QLabel*>(QStringLiteral("Label5")), Qt::LeftButton);
    EXPECT_TRUE(s->frframe->isVisibleTo(s));
    EXPECT_NE(s->Toolbar1, nullptr);
    saveShot(s, QStringLiteral("startup-frame-set"));
    QTest::mouseClick(s->findChild<QLabel*>(QStringLiteral("Label31")), Qt::LeftButton);
    ASSERT_TRUE(Forms::isLoaded(QStringLiteral("SiteManagment")));
    EXPECT_TRUE(Forms::find(QStringLiteral("SiteManagment"))->isVisible());
    EXPECT_FALSE(s->isVisible());
}
}
