// The two outward channels: Update.DAT's fields and the version check against a server of the
// test's own on 127.0.0.1, and the feedback file with its hand-over to a stand-in mail program.
#include "common/TestSupport.h"
#include "CannedServer.h"

#include "platform/App.h"
#include "platform/Desktop.h"
#include "services/Settings.h"
#include "shell/frmMain.h"
#include "utilities/FeedBack.h"
#include "utilities/OutwardText.h"
#include "utilities/SourceFetch.h"
#include "utilities/frmUpdate.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {
const QString version = QStringLiteral("%1.%2.%3").arg(App::major()).arg(App::minor()).arg(App::revision());
}

TEST(OutwardText, UpdateFieldsAndAddresses)
{
    struct Case {
        QByteArray body;
        QStringList fields;
    };
    const Case cases[] = {
        {"Velloro 2002,1.0.8,Velloro Team,2.4 MB,01/11/2026\r\n",
         {"Velloro 2002", "1.0.8", "Velloro Team", "2.4 MB", "01/11/2026"}},
        // Only the first line counts, and an LF-only file ends the same way.
        {"Velloro,1.0.8,Team,2 MB,today\nsecond,line", {"Velloro", "1.0.8", "Team", "2 MB", "today"}},
        // A comma inside a field shifts the later ones.
        {"Velloro, the editor,1.0.8,Team,2 MB,today", {"Velloro", " the editor", "1.0.8", "Team", "2 MB", "today"}},
        {"Velloro,1.0.8", {"Velloro", "1.0.8"}},
        {"", {""}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(UpdateCheck::fields(c.body), c.fields) << c.body.toStdString();

    EXPECT_EQ(UpdateCheck::listAddress(QStringLiteral("http://127.0.0.1:8080")).toString(),
              QStringLiteral("http://127.0.0.1:8080/Update.DAT"));
    EXPECT_EQ(UpdateCheck::packageAddress(QStringLiteral("https://example.org/velloro")).toString(),
              QStringLiteral("https://example.org/velloro/Velloro.zip"));
    EXPECT_EQ(UpdateCheck::newVersionMessage(QStringLiteral("2.0.0")),
              QStringLiteral("A new version is available version 2.0.0"));
}

TEST(OutwardText, TheFeedbackFileLineByLine)
{
    const Feedback::Form form{QStringLiteral("Ann Other"), QStringLiteral("ann@example.org"), QStringLiteral("Wales"),
                              QStringLiteral("42"),        QStringLiteral("Fine.\nBut slow\r\nto start."),
                              QString(),                   QStringLiteral("7")};
    const QByteArray expected = "===START=====\r\n"
                                "\r\n"
                                "Feedback For :: Velloro 2002 : Version 1.2.3\r\n"
                                "\r\n"
                                "Name         :: Ann Other\r\n"
                                "Email        :: ann@example.org\r\n"
                                "Country      :: Wales\r\n"
                                "Age          :: 42\r\n"
                                "\r\n"
                                "Comments ::\r\n"
                                "Fine.\r\nBut slow\r\nto start.\r\n"
                                "\r\n"
                                "Extra's-Future Features ::\r\n"
                                "\r\n"
                                "\r\n"
                                "Rate         :: 7\r\n"
                                "\r\n"
                                "=====END=====\r\n";
    EXPECT_EQ(Feedback::fileText(QStringLiteral("Velloro 2002 : Version 1.2.3"), form), expected);
    EXPECT_EQ(Feedback::fileText({}, {}).count("\r\n"), 18) << "eighteen lines when every field is empty";
    EXPECT_TRUE(Feedback::fileText({}, {QStringLiteral("Zo\u00eb")}).contains("\r\nName         :: Zo\xc3\xab\r\n"));
}

namespace {
class OutwardWindowTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        folder.write(QStringLiteral("Options/Online.ini"),
                     "[Online]\r\nUpdateServer=" + server.url("/site/").toLatin1() +
                         "\r\nFeedbackAddress=team@velloro.test\r\n");
    }
    frmUpdate* openUpdate()
    {
        frmMain::instance()->MenuClick(QStringLiteral("Check Version"));
        auto* w = loadedForm<frmUpdate>();
        EXPECT_TRUE(w && w->isVisible());
        return w;
    }
    void serve(const QByteArray& line) { server.pages["/site/Update.DAT"] = {"Content-Type: text/plain\r\n", line}; }
    void check(frmUpdate* w)
    {
        w->Command1->click();
        EXPECT_FALSE(w->Command1->isEnabled()) << "one check at a time";
        ASSERT_TRUE(QTest::qWaitFor([w] { return !w->fetch()->running() && w->Command1->isEnabled(); }, 20000));
    }
    static QStringList labels(frmUpdate* w)
    {
        return {w->lblUName->text(), w->lblUversion->text(), w->lblUAuthor->text(), w->lblUSize->text(),
                w->lblUDate->text()};
    }
    static QString status() { return frmMain::instance()->findChild<QLabel*>(QStringLiteral("Panel1"))->text(); }

    CannedServer server;
};
}

TEST_F(OutwardWindowTest, UpdateCheckComparesTheVersionAsText)
{
    EXPECT_EQ(Settings::updateServer(), server.url("/site")) << "the trailing / of the setting is dropped";
    frmUpdate* w = openUpdate();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->lblCversion->text(), version);
    EXPECT_FALSE(w->Command2->isEnabled());
    saveShot(w, QStringLiteral("frmUpdate"));

    // The same version: nothing to offer.
    serve(("Velloro 2002," + version + ",Velloro Team,2.4 MB,01/11/2026\r\n").toLatin1());
    check(w);
    EXPECT_EQ(labels(w), (QStringList{"Velloro 2002", version, "Velloro Team", "2.4 MB", "01/11/2026"}));
    EXPECT_EQ(w->lblstatus->text(), QStringLiteral("Status :: No update currently available."));
    EXPECT_FALSE(w->Command2->isEnabled());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // A short line fills what it reaches and stops: no verdict, the later labels as they were.
    serve("Velloro 2003,9.9.9");
    check(w);
    EXPECT_EQ(labels(w), (QStringList{"Velloro 2003", "9.9.9", "Velloro Team", "2.4 MB", "01/11/2026"}));
    EXPECT_EQ(w->lblstatus->text(), QStringLiteral("Status :: No update currently available."));
    EXPECT_FALSE(w->Command2->isEnabled());
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_FALSE(status().isEmpty()) << "the status line says the line was short";

    // An older version on the server differs too, and counts as new.
    serve("Velloro 2002,0.0.1,Velloro Team,1 MB,01/01/2002");
    prompts.answerMsgBox(1);
    check(w);
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("A new version is available version 0.0.1"), 64));
    EXPECT_EQ(w->lblstatus->text(), QStringLiteral("Status :: A new version is available."));
    ASSERT_TRUE(w->Command2->isEnabled());
    saveShot(w, QStringLiteral("frmUpdate-new"));

    DesktopRecorder desktop;
    w->Command2->click();
    EXPECT_EQ(desktop.opened, QStringList{server.url("/site/Velloro.zip")});

    // Whatever else the server sends ends the same way, with the first field in the first label.
    const std::pair<QByteArray, QString> others[] = {
        {"", QString()},
        {"<html>\r\n<head><title>502 Bad Gateway</title></head>\r\n<body>,,,,,</body></html>", QStringLiteral("<html>")},
        {QByteArray(20000, 'v') + ",2", QString(20000, QLatin1Char('v'))},
    };
    const QSize size = w->size();
    for (const auto& [body, first] : others) {
        serve(body);
        check(w);
        EXPECT_EQ(w->lblUName->text(), first);
        EXPECT_EQ(w->lblstatus->text(), QStringLiteral("Status :: A new version is available."));
        EXPECT_EQ(prompts.prompts().size(), 1);
    }
    EXPECT_EQ(w->size(), size) << "a long field does not stretch the window";
    serve(QByteArray(10 * 1024 * 1024, 'x'));
    check(w);
    EXPECT_EQ(status(), QStringLiteral("The page could not be fetched: the page is larger than 1 MB"));
    EXPECT_EQ(w->lblUName->text(), QString(20000, QLatin1Char('v')));

    // A missing file: the trap takes it without a box; the status line says why.
    server.pages.remove("/site/Update.DAT");
    check(w);
    EXPECT_EQ(status(), QStringLiteral("The page could not be fetched: HTTP 404 Not Found"));
    EXPECT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(labels(w).at(1), QStringLiteral("2"));
}

TEST_F(OutwardWindowTest, ClosingTheUpdateWindowCancelsTheCheck)
{
    folder.write(QStringLiteral("Options/Online.ini"), "[Online]\r\nUpdateServer=" + server.url("/silent").toLatin1() + "\r\n");
    server.pages.clear();
    frmUpdate* w = openUpdate();
    ASSERT_NE(w, nullptr);
    w->Command1->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests == 1; }, 10000));
    EXPECT_TRUE(w->fetch()->running());
    w->Command3->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(w->fetch()->running());
    EXPECT_TRUE(w->Command1->isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass goes with the check";
}

TEST_F(OutwardWindowTest, FeedbackIsWrittenThenHandedToTheMailProgram)
{
    // A stand-in xdg-email on the PATH records the arguments it was started with.
    const QString bin = folder.file(QStringLiteral("bin"));
    QDir().mkpath(bin);
    const QString record = folder.file(QStringLiteral("mail-arguments.txt"));
    folder.write(QStringLiteral("bin/xdg-email"),
                 ("#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" + record + ".part'\nmv '" + record +
                  ".part' '" + record + "'\n")
                     .toUtf8());
    QFile::setPermissions(bin + QStringLiteral("/xdg-email"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", bin.toUtf8() + ':' + oldPath);
    Desktop::setHandler({});

    frmMain::instance()->MenuClick(QStringLiteral("Send Feedback"));
    auto* w = loadedForm<FeedBack>();
    ASSERT_TRUE(w && w->isVisible());
    EXPECT_EQ(w->coscale->count(), 10);
    EXPECT_EQ(w->coscale->itemText(0), QStringLiteral("1"));
    EXPECT_EQ(w->coscale->itemText(9), QStringLiteral("10"));
    w->txtname->setText(QStringLiteral("Ann"));
    w->txtemail->setText(QStringLiteral("ann@example.org"));
    w->txtcountry->setText(QStringLiteral("Wales"));
    w->txtage->setText(QStringLiteral("42"));
    w->txtcomment->setPlainText(QStringLiteral("One\nTwo"));
    w->txtchanges->setPlainText(QStringLiteral("Tabs"));
    w->coscale->setCurrentIndex(8);
    saveShot(w, QStringLiteral("FeedBack"));
    const QString file = folder.file(QStringLiteral("Options/FeedBack.dat"));
    folder.write(QStringLiteral("Options/FeedBack.dat"), QByteArray(5000, 'x'));  // rewritten whole

    prompts.answerMsgBox(6);
    w->Command1->click();
    const bool mailed = QTest::qWaitFor([&] { return QFile::exists(record); }, 10000);
    qputenv("PATH", oldPath);
    refuseDesktop();
    EXPECT_EQ(folder.read(QStringLiteral("Options/FeedBack.dat")),
              "===START=====\r\n\r\nFeedback For :: Velloro 2002 : Version " + version.toLatin1() +
                  "\r\n\r\nName         :: Ann\r\nEmail        :: ann@example.org\r\nCountry      :: Wales\r\n"
                  "Age          :: 42\r\n\r\nComments ::\r\nOne\r\nTwo\r\n\r\nExtra's-Future Features ::\r\nTabs\r\n\r\n"
                  "Rate         :: 9\r\n\r\n=====END=====\r\n");
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(),
                      QStringLiteral("The feedback file has been created, Do you use Outlook for your emailing?"), 4 + 48,
                      QStringLiteral(":: Velloro 2002 ::")));
    ASSERT_TRUE(mailed);
    EXPECT_EQ(folder.read(QStringLiteral("mail-arguments.txt")),
              "--utf8\n--subject\nVelloro 2002 Feedback\n--body\nFeedback - Version " + version.toLatin1() +
                  "\n--attach\n" + file.toUtf8() + "\nteam@velloro.test\n");
}

TEST_F(OutwardWindowTest, FeedbackWithoutAMailProgramSaysWhereTheFileIs)
{
    frmMain::instance()->MenuClick(QStringLiteral("Send Feedback"));
    auto* w = loadedForm<FeedBack>();
    ASSERT_NE(w, nullptr);
    const QString file = folder.file(QStringLiteral("Options/FeedBack.dat"));
    const QString told = QStringLiteral("You will have to send the file yourself, it is located at : ") + file +
                         QStringLiteral(" The email address to send the file to is: team@velloro.test");

    // "No" to the mail question.
    prompts.answerMsgBox(7).answerMsgBox(1);
    w->Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 2);
    EXPECT_TRUE(isBox(prompts.last(), told, 16));
    EXPECT_TRUE(folder.read(QStringLiteral("Options/FeedBack.dat")).endsWith("Rate         :: \r\n\r\n=====END=====\r\n"));

    // "Yes", but the desktop has no mail program to start.
    Desktop::setHandler({{}, [](const QString&, const QStringList&) { return false; }});
    prompts.answerMsgBox(6).answerMsgBox(1);
    w->Command1->click();
    refuseDesktop();
    ASSERT_EQ(prompts.prompts().size(), 4);
    EXPECT_TRUE(isBox(prompts.last(), told, 16));

    // A file that cannot be written is said so, and nothing is mailed (a folder in its place
    // stops even a test run as root).
    QFile::remove(file);
    QDir().mkpath(file);
    prompts.answerMsgBox(1);
    w->Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 5);
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("The feedback file could not be written: ")));
}

// The keyboard: Tab walks the fields top to bottom and then the buttons; Enter in a field of
// the feedback form sends nothing (a half-written form is not sent by accident); Esc hides.
TEST_F(OutwardWindowTest, TabWalksTheFieldsAndEscHides)
{
    frmUpdate* update = openUpdate();
    ASSERT_NE(update, nullptr);
    EXPECT_EQ(tabOrder(update), (QStringList{QStringLiteral("Command1"), QStringLiteral("Command3")}))
        << "the update button waits for a newer version";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(update->isVisible());

    frmMain::instance()->MenuClick(QStringLiteral("Send Feedback"));
    auto* feedback = loadedForm<FeedBack>();
    ASSERT_TRUE(feedback && feedback->isVisible());
    EXPECT_EQ(tabOrder(feedback),
              (QStringList{QStringLiteral("txtname"), QStringLiteral("txtemail"), QStringLiteral("txtcountry"), QStringLiteral("txtage"),
                           QStringLiteral("txtcomment"), QStringLiteral("txtchanges"), QStringLiteral("coscale"),
                           QStringLiteral("Command1"), QStringLiteral("Command2")}));
    feedback->txtname->setText(QStringLiteral("Ann"));
    QTest::keyClick(feedback->txtname, Qt::Key_Return);
    EXPECT_TRUE(prompts.prompts().isEmpty()) << "nothing asked, nothing sent";
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("Options/FeedBack.dat"))));
    EXPECT_TRUE(feedback->isVisible());
    QTest::keyClick(feedback->txtname, Qt::Key_Escape);
    EXPECT_FALSE(feedback->isVisible());
}
