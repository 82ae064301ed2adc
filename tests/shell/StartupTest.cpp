// The start-up sequence and the shut-down walk, driven through Main() on a throw-away
// application folder.
#include "common/TestSupport.h"

#include "documents/DocumentWindow.h"
#include "platform/CheckValue.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "app/Main.h"
#include "shell/modMain.h"
#include "shell/Options.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "colour/ColourSwatch.h"

namespace {
const QByteArray resetFile =
    "0\r\n1\r\n1\r\n1\r\n\"Maximised\"\r\n\"c:\\Velloro\\\"\r\n65\r\n\"HTML\"\r\n255&\r\n\"#FF0000\"\r\n"
    "16711680\r\n\"#0000FF\"\r\n65280\r\n\"#00FF00\"\r\nArial\r\n5\r\nMS Sans Serif\r\n8\r\nScript\r\n12\r\n"
    "Comic Sans MS\r\n14\r\nLucida Console\r\n18\r\nTrebuchet MS\r\n24\r\n.htm,.html,.asp,.aspx,.php\r\n"
    ".htm,.html,.asp,.aspx,.php\r\n 1 \r\n";

const QString startupSkeleton = QStringLiteral(
    "<html>\r\n\r\n<head>\r\n<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n"
    "<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n<title> New Page </title>\r\n</head> \r\n\r\n"
    "<body text=\"#000000\" bgColor=\"ffffff\">\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n</body>\r\n\r\n</html>");

const QString resetMessage = QStringLiteral(
    "Settings have been reset, application will needed to be reset. This may be due to first time use of the program.");

// A Details.dat in the quoted form with a few fields chosen by the test.
QByteArray quotedDetails(int lnew, int sform, int tooltip, const QByteArray& sstart = "Maximized")
{
    return "0\r\n1\r\n" + QByteArray::number(lnew) + "\r\n" + QByteArray::number(sform) + "\r\n\"" + sstart
           + "\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n\"HTML\"\r\n255\r\n\"#FF0000\"\r\n16711680\r\n\"#0000FF\"\r\n"
             "65280\r\n\"#00FF00\"\r\n\"Arial\"\r\n\"5\"\r\n\"MS Sans Serif\"\r\n\"8\"\r\n\"Script\"\r\n\"12\"\r\n"
             "\"Comic Sans MS\"\r\n\"14\"\r\n\"Lucida Console\"\r\n\"18\"\r\n\"Trebuchet MS\"\r\n\"24\"\r\n"
             "\".htm,.html,.asp,.aspx,.php\"\r\n\".htm,.html,.asp,.aspx,.php\"\r\n"
           + QByteArray::number(tooltip) + "\r\n";
}

class StartupTest : public WindowTest {};

class FirstStartTest : public WindowTest {
protected:
    FirstStartTest() : WindowTest(false) {}
};
}

TEST_F(StartupTest, ShippedSettingsGiveTheMaximisedStartupPageAndTheFormsInOrder)
{
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(Forms::find(QStringLiteral("frmSplash")), nullptr) << "the splash is unloaded after the load";

    ASSERT_EQ(main->documents().size(), 1);
    DocumentWindow* page = main->ActiveForm();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->Tag(), QString());
    EXPECT_EQ(page->CodeMax1()->text(), startupSkeleton) << visible(page->CodeMax1()->text());
    EXPECT_TRUE(page->Caption().startsWith(QStringLiteral("Document "))) << page->Caption().toStdString();
    EXPECT_EQ(page->WindowState(), 2);
    EXPECT_EQ(page->tempaddress()->text(), QString());
    // The start-up page is not cleared of its change: closing it asks.
    EXPECT_EQ(page->Changedvalue()->text(), QStringLiteral("Changed"));

    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ New Page ]"));
    EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded ::  New Page"));
    EXPECT_EQ(main->statusText(2), QStringLiteral("Lines: 19"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: %1").arg(startupSkeleton.size()));

    // LNEW 1 keeps the start screen on screen; ToolTip 1 shows the tip strip.
    Startup* startup = loadedForm<Startup>();
    ASSERT_NE(startup, nullptr);
    EXPECT_TRUE(startup->isVisible());
    EXPECT_TRUE(startup->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(main->Tooltipframe->isHidden());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // The forms load in the order of their first reference.
    const QStringList wanted = {QStringLiteral("frmMain"), QStringLiteral("Options"), QStringLiteral("Startup"),
                                QStringLiteral("AboutFORM")};
    QStringList names;
    for (QWidget* w : Forms::loaded())
        if (wanted.contains(w->objectName()))
            names << w->objectName();
    EXPECT_EQ(names, wanted) << names.join(QLatin1Char(' ')).toStdString();
}

TEST_F(FirstStartTest, MissingSettingsAreResetAndTheProgramEnds)
{
    prompts.answerMsgBox(Answer::OK);
    Main();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), resetMessage, 16, QStringLiteral("Velloro 2002")));
    EXPECT_EQ(folder.read(QStringLiteral("Options/Details.dat")), resetFile);
    EXPECT_EQ(frmMain::loaded(), nullptr);
    EXPECT_EQ(Forms::count(), 0) << "every form is unloaded";
    processEvents();

    // The next start reads the reset's own file.
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(prompts.prompts().size(), 1) << "no further message";
    Options* options = form<Options>();
    EXPECT_EQ(options->Shape6->BackColor(), 255) << "255& is the colour 255";
    EXPECT_EQ(options->txtSaveEx->text(), QStringLiteral(".htm"));
    EXPECT_EQ(options->txtOpenEx->text(), QStringLiteral(".html"));
    EXPECT_EQ(checkValue(options->ToolTip), 0) << "\".asp\" in the tool-tip field counts as 0";
    EXPECT_TRUE(main->Tooltipframe->isHidden());
    EXPECT_EQ(options->SSTART->currentText(), QStringLiteral("Maximised"));
    EXPECT_FALSE(main->windowState() & Qt::WindowMaximized) << "\"Maximised\" leaves the state alone";
    EXPECT_EQ(options->HeadingFont[3]->text(), QStringLiteral("Comic Sans MS"));
    EXPECT_EQ(options->HeadingSize[5]->text(), QStringLiteral("24"));
    EXPECT_EQ(main->documents().size(), 1);
    EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded ::  New Page"));
}

TEST_F(StartupTest, MaximizedSettingMaximisesTheMainWindow)
{
    folder.write(QStringLiteral("Options/Details.dat"), quotedDetails(0, 1, 1, "Maximized"));
    Main();
    ASSERT_NE(frmMain::loaded(), nullptr);
    EXPECT_TRUE(frmMain::loaded()->windowState() & Qt::WindowMaximized);
}

TEST_F(StartupTest, LoadAtStartupOffHidesTheStartScreenAndRewritesTheSettings)
{
    // The reset's form with LNEW 0: the click handler of the start screen's tick saves the
    // settings at once, so the file comes back in the quoted form.
    QByteArray details = resetFile;
    details.replace(6, 1, "0");  // line 3
    folder.write(QStringLiteral("Options/Details.dat"), details);
    Main();
    Startup* startup = loadedForm<Startup>();
    ASSERT_NE(startup, nullptr);
    EXPECT_FALSE(startup->isVisible());
    EXPECT_FALSE(startup->Check1->isChecked());
    const QByteArray written = folder.read(QStringLiteral("Options/Details.dat"));
    EXPECT_TRUE(written.startsWith("0\r\n1\r\n0\r\n1\r\n\"Maximised\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n")) << written.constData();
    EXPECT_TRUE(written.endsWith("\".htm\"\r\n\".html\"\r\n0\r\n")) << written.constData();
}

TEST_F(StartupTest, NoPageAndNoStartScreenStillShowsTheMainWindow)
{
    folder.write(QStringLiteral("Options/Details.dat"), quotedDetails(0, 0, 1));
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->documents().isEmpty());
    EXPECT_EQ(main->ActiveForm(), nullptr);
    EXPECT_FALSE(loadedForm<Startup>()->isVisible());
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(main->statusText(1), QStringLiteral("Settings and Options Loaded Succesfully"));
}

TEST_F(StartupTest, DamagedSettingsStopTheLoadButNotTheProgram)
{
    QByteArray details = quotedDetails(1, 1, 1);
    details.replace(0, 1, "yes");
    folder.write(QStringLiteral("Options/Details.dat"), details);
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(main->documents().isEmpty()) << "the steps after the settings do not run";
    EXPECT_TRUE(main->statusText(1).contains(QStringLiteral("Run-time error '13'"))) << main->statusText(1).toStdString();
    EXPECT_EQ(folder.read(QStringLiteral("Options/Details.dat")), details) << "a damaged file is not repaired";
}

TEST_F(StartupTest, TruncatedSettingsReportInputPastEnd)
{
    folder.write(QStringLiteral("Options/Details.dat"), "0\r\n1\r\n");
    Main();
    ASSERT_NE(frmMain::loaded(), nullptr);
    EXPECT_TRUE(frmMain::loaded()->statusText(1).contains(QStringLiteral("Run-time error '62'")));
}

TEST_F(StartupTest, ShutDownAsksEachChangedPageAndStopsOnCancel)
{
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    ASSERT_EQ(main->documents().size(), 1);

    prompts.answerMsgBox(Answer::Cancel);
    EXPECT_FALSE(CloseAllWindows());
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Would you like to save the page?"),
                      51, QStringLiteral(":: Velloro 2002 ::")));
    EXPECT_NE(frmMain::loaded(), nullptr);
    EXPECT_EQ(main->documents().size(), 1) << "Cancel keeps the page and the program";

    prompts.answerMsgBox(Answer::No);
    EXPECT_TRUE(CloseAllWindows());
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_EQ(frmMain::loaded(), nullptr);
    EXPECT_EQ(prompts.pending(), 0);
}

TEST_F(StartupTest, ShutDownWalksPastUnchangedPagesWithoutAsking)
{
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_EQ(main->documents().size(), 1);
    main->documents().first()->Changedvalue()->setText(QString());
    EXPECT_TRUE(CloseAllWindows());
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_EQ(Forms::count(), 0);
}

// Settings files of any bytes: the program starts, says what failed, and leaves the file alone.
namespace {
QByteArray damagedFile(const std::string& kind)
{
    if (kind == "empty")
        return {};
    if (kind == "binary")
        return QByteArray("\x00\x01\xff\xfe\x80\r\n\x00", 8).repeated(50);
    if (kind == "one_huge_line")
        return QByteArray(8 * 1024 * 1024, '7');
    if (kind == "missing_lines")
        return "0\r\n1\r\n1\r\n1\r\n\"Maximized\"\r\n";
    if (kind == "stray_quote")
        return QByteArray("0\r\n1\r\n1\r\n1\r\n\"Maximized\r\n\"c:\\\"\r\n1\r\n").repeated(3);
    if (kind == "colour_not_a_number")
        return QByteArray("0\r\n1\r\n1\r\n1\r\nx\r\nx\r\nx\r\nx\r\nred\r\n").append(QByteArray("x\r\n").repeated(20));
    if (kind == "check_value_out_of_range")
        return QByteArray("7\r\n").append(QByteArray("1\r\n").repeated(28));
    return {};
}

class DamagedSettingsTest : public WindowTest, public ::testing::WithParamInterface<std::string> {};
}

TEST_P(DamagedSettingsTest, StartsAndSaysWhatFailed)
{
    const QByteArray bytes = damagedFile(GetParam());
    folder.write(QStringLiteral("Options/Details.dat"), bytes);
    Main();
    frmMain* main = frmMain::loaded();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(main->statusText(1).startsWith(QStringLiteral("Start-up stopped: Run-time error '"))) << main->statusText(1).toStdString();
    EXPECT_EQ(folder.read(QStringLiteral("Options/Details.dat")), bytes);
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedSettingsTest,
                         ::testing::Values("empty", "binary", "one_huge_line", "missing_lines", "stray_quote",
                                           "colour_not_a_number", "check_value_out_of_range"),
                         [](const auto& info) { return info.param; });
TEST_F(StartupTest, SplashShowsTheVersionAndGoesOnAKeyOrAClick)
{
    Forms::registerFactory(QStringLiteral("frmSplash"), [] { return new frmSplash; });
    auto* splash = static_cast<frmSplash*>(Forms::get(QStringLiteral("frmSplash")));
    EXPECT_EQ(splash->lblVersion->text(), QStringLiteral("Version 1.0.0"));
    EXPECT_EQ(splash->lblProductName->text(), QStringLiteral("Velloro 2002"));
    saveShot(splash, QStringLiteral("splash"));
    QTest::keyClick(splash, Qt::Key_Space);
    EXPECT_EQ(Forms::find(QStringLiteral("frmSplash")), nullptr);

    splash = static_cast<frmSplash*>(Forms::get(QStringLiteral("frmSplash")));
    splash->show();
    QTest::mouseClick(splash, Qt::LeftButton);
    EXPECT_EQ(Forms::find(QStringLiteral("frmSplash")), nullptr);
}
