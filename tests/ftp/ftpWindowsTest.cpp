// The FTP windows headless: the profile keeper, the upload window's queue and controls, and
// whole uploads through the engine to a real server.
#include "common/TestSupport.h"

#include "FakeServer.h"
#include "FtpServers.h"
#include "documents/frmDocument.h"
#include "ftp/FtpEngine.h"
#include "ftp/FtpProfiles.h"
#include "ftp/ftpUsers.h"
#include "ftp/ftpadvanced.h"
#include "ftp/ftpnormal.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <memory>

namespace {
const QString velloroTitle = QStringLiteral(":: Velloro 2002 ::");

class FtpWindowTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
    }
    void TearDown() override
    {
        ftpadvanced::setPortForTesting(21);
        WindowTest::TearDown();
    }
    ftpnormal* upload() { return static_cast<ftpnormal*>(Forms::get(QStringLiteral("ftpnormal"))); }
    ftpUsers* users() { return static_cast<ftpUsers*>(Forms::get(QStringLiteral("ftpUsers"))); }
    ftpadvanced* advanced() { return static_cast<ftpadvanced*>(Forms::get(QStringLiteral("ftpadvanced"))); }
    QStringList treeTexts(QTreeWidget* tree)
    {
        QStringList out;
        QTreeWidgetItem* root = tree->topLevelItem(0);
        if (!root)
            return out;
        out << root->text(0);
        for (int i = 0; i < root->childCount(); ++i)
            out << root->child(i)->text(0);
        return out;
    }
    QTreeWidgetItem* node(QTreeWidget* tree, const QString& text)
    {
        QTreeWidgetItem* root = tree->topLevelItem(0);
        if (root && root->text(0) == text)
            return root;
        for (int i = 0; root && i < root->childCount(); ++i)
            if (root->child(i)->text(0) == text)
                return root->child(i);
        return nullptr;
    }
    void saveProfile(const QString& name, const QString& address, const QString& user, const QString& pass)
    {
        ftpUsers* u = users();
        u->Command3->click();
        u->txtProfile->setText(name);
        u->txtAddress->setText(address);
        u->txtUsername->setText(user);
        u->txtPassword->setText(pass);
        prompts.answerMsgBox(Answer::OK);
        u->Command1->click();
    }
    QString localFile(const QString& name, const QByteArray& bytes)
    {
        const QString path = folder.file(QStringLiteral("queue/") + name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile f(path);
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return path;
    }
    // Fills in the account and presses Connect.
    void connectAs(const QString& user, const QString& password)
    {
        upload()->ftpaddress->setText(QStringLiteral("127.0.0.1"));
        upload()->username->setText(user);
        upload()->password->setText(password);
        upload()->upload->click();
    }
    QString cell(int row, int column)
    {
        QTableWidgetItem* item = upload()->Flex->item(row, column);
        return item ? item->text() : QStringLiteral("<none>");
    }
};

// Acts from inside a wait of the engine once a condition holds; gives up after a deadline.
void whenTrue(QObject* owner, std::function<bool()> condition, std::function<void()> action, int deadlineMs = 30000)
{
    auto* timer = new QTimer(owner);
    // Shared with the connection, so it goes with the timer whether or not it ever fired.
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(timer, &QTimer::timeout, owner, [=] {
        if (condition() || clock->elapsed() > deadlineMs) {
            timer->stop();
            timer->deleteLater();
            action();
        }
    });
    timer->start(5);
}
}

TEST_F(FtpWindowTest, UploadWindowOnLoad)
{
    ftpnormal* w = upload();
    EXPECT_EQ(w->windowTitle(), QStringLiteral("FTP Client"));
    QStringList items;
    for (int i = 0; i < w->Combo1->count(); ++i)
        items << w->Combo1->itemText(i);
    EXPECT_EQ(items, (QStringList{"*.*", "*.html", "*.htm", "*.txt", "*.tmpl", "*.exe", "*.zip", "*.rar", "*.doc", "*.jpg", "*.gif"}));
    EXPECT_EQ(w->Combo1->toolTip(), QStringLiteral("Choose a file extension"));
    EXPECT_EQ(w->File1->Pattern(), QStringLiteral("*.*"));
    EXPECT_EQ(w->panelText(2), QStringLiteral("Not Connected to Server..."));
    EXPECT_EQ(w->Flex->columnCount(), 3);
    EXPECT_EQ(w->Flex->rowCount(), 0);
    EXPECT_EQ(w->Flex->horizontalHeaderItem(0)->text(), QStringLiteral("Filename (No Spaces!)"));
    EXPECT_EQ(w->Flex->horizontalHeaderItem(1)->text(), QStringLiteral("File Size"));
    EXPECT_EQ(w->Flex->columnWidth(0), 217);
    EXPECT_EQ(w->Flex->columnWidth(1), 73);
    EXPECT_TRUE(w->Flex->isColumnHidden(2));
    EXPECT_EQ(w->Flex->toolTip(), QStringLiteral("Server side file name (NO SPACES)"));
    EXPECT_EQ(w->Tree->headerItem()->text(0), QStringLiteral("Slect A Profile To Connect To ..."));
    EXPECT_EQ(treeTexts(w->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>"}));
    EXPECT_EQ(nodeKey(node(w->Tree, QStringLiteral("<<FTP PROFILES>>"))), QStringLiteral("root"));
    EXPECT_EQ(nodeKey(node(w->Tree, QStringLiteral("<CURRENT>"))), QStringLiteral("child1_root"));
    EXPECT_EQ(w->lblfileuploading->text(), QStringLiteral("..."));
    ftpadvanced* a = advanced();
    const std::pair<QPushButton*, const char*> captions[] = {
        {w->upload, "Connect to FTP Server"}, {w->Command1, "Disconnect from FTP Server"},
        {w->Command2, "Upload File's"}, {w->Command3, "Clear \"Files to be Uploaded\" list"},
        {w->SmartNetButton2, "Delete 1 file from list"}, {w->Command4, "View advanced options, file download etc"},
        {w->SmartNetButton1, "Add Profile"}, {w->Command5, "Close"}, {a->Command5, "Cut Connection"},
        {a->Command6, "View Files"}, {a->Command7, "Send File"}, {a->inputdata1, "Retrieve"}};
    for (const auto& [button, caption] : captions)
        EXPECT_EQ(button->text(), QString::fromLatin1(caption));
    EXPECT_EQ(w->Command2->toolTip(), QStringLiteral("Press to start uploading files"));
    EXPECT_FALSE(w->Command1->isEnabled());
    EXPECT_EQ(w->serverShapeColour(), 255);
    EXPECT_EQ(w->Command2->palette().color(QPalette::Button), QColor(193, 210, 238));

    EXPECT_EQ(a->windowTitle(), QStringLiteral("Advanced Settings"));
    EXPECT_EQ(a->Text9->toPlainText(), QStringLiteral("RETR\n"));
    EXPECT_EQ(a->Text13->text(), QStringLiteral("c:\\"));
    for (const char* caption : {"Local IP :", "Local Port :", "Remote Host IP :", "Remote Port :", "Socket Handle :",
                                "Bytes Recieved :", "FTP connection :", "FTP Server Responses", "Files on Specified FTP://"}) {
        bool found = false;
        for (QLabel* l : a->findChildren<QLabel*>())
            found = found || l->text() == QLatin1String(caption);
        EXPECT_TRUE(found) << caption;
    }
}

TEST_F(FtpWindowTest, OptionsOffersTheProfileWindow)
{
    EXPECT_TRUE(Forms::hasFactory(QStringLiteral("ftpUsers")));
    QWidget* options = Forms::get(QStringLiteral("Options"));
    auto* button = options->findChild<QPushButton*>(QStringLiteral("Command3"));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isEnabled());
    button->click();
    EXPECT_TRUE(users()->isVisible());
    EXPECT_EQ(users()->windowTitle(), QStringLiteral("FTP Profile's [ BETA 1.0.7 ]"));
}

TEST_F(FtpWindowTest, ConnectNeedsAddressUserAndPassword)
{
    ftpnormal* w = upload();
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    w->upload->click();
    w->ftpaddress->setText(QStringLiteral("127.0.0.1"));
    w->upload->click();
    w->username->setText(QStringLiteral("me"));
    w->upload->click();
    ASSERT_EQ(prompts.prompts().size(), 3);
    EXPECT_TRUE(isBox(prompts.prompts()[0], QStringLiteral("You havnt entered an FTP Address!"), 16));
    EXPECT_EQ(prompts.prompts()[1].text, QStringLiteral("You havnt entered your username!"));
    EXPECT_EQ(prompts.prompts()[2].text, QStringLiteral("You havnt entered an your password!"));
    EXPECT_FALSE(advanced()->engine()->isConnected());
}

TEST_F(FtpWindowTest, ProfilesAreSavedRefusedReadAndListedInBothTrees)
{
    ftpnormal* w = upload();
    ftpUsers* u = users();
    EXPECT_EQ(treeTexts(u->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>"}));

    prompts.answerMsgBox(Answer::OK);
    u->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You need to enter a profile name."), 64));

    saveProfile(QStringLiteral("Home"), QStringLiteral("ftp.home.net"), QStringLiteral("bob"), QStringLiteral("pw,1"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("The user : Home has been added, list will now refresh."), 64));
    EXPECT_EQ(treeTexts(u->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>", "Home"}));
    EXPECT_EQ(treeTexts(w->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>", "Home"}));
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("Home\r\n"));
    const QByteArray file = folder.read(QStringLiteral("Options/FTP/Home.DAT"));
    EXPECT_TRUE(file.startsWith("##### FTP PROFILE START #####\r\nHome\r\nftp.home.net\r\nbob\r\npw,1\r\n")) << file.constData();

    // The same name again, exactly, is refused; another case is another name.
    saveProfile(QStringLiteral("Home"), QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"));
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("A Profile allready has that Profile name, please use a unique profile name. Or if you are "
                             "updating a profile, press the update to save the profile."));
    EXPECT_EQ(prompts.last().style, 16);
    saveProfile(QStringLiteral("home"), QStringLiteral("ftp.other"), QStringLiteral("amy"), QStringLiteral("pw2"));
    EXPECT_EQ(treeTexts(u->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>", "Home", "home"}));

    // A click reads the file back: the comma cuts the password and shifts the date.
    u->Tree_NodeClick(node(u->Tree, QStringLiteral("Home")));
    EXPECT_EQ(u->txtProfile->text(), QStringLiteral("Home"));
    EXPECT_EQ(u->txtAddress->text(), QStringLiteral("ftp.home.net"));
    EXPECT_EQ(u->txtUsername->text(), QStringLiteral("bob"));
    EXPECT_EQ(u->txtPassword->text(), QStringLiteral("pw"));
    EXPECT_EQ(u->txtDate->text(), QStringLiteral("1"));
    // The fixed nodes have no file and leave the fields alone.
    u->Tree_NodeClick(node(u->Tree, QStringLiteral("<CURRENT>")));
    u->Tree_NodeClick(node(u->Tree, QStringLiteral("<<FTP PROFILES>>")));
    EXPECT_EQ(u->txtAddress->text(), QStringLiteral("ftp.home.net"));

    // The upload window's tree fills the account.
    w->Tree_NodeClick(node(w->Tree, QStringLiteral("home")));
    EXPECT_EQ(w->ftpaddress->text(), QStringLiteral("ftp.other"));
    EXPECT_EQ(w->username->text(), QStringLiteral("amy"));
    EXPECT_EQ(w->password->text(), QStringLiteral("pw2"));
    w->Tree_NodeClick(node(w->Tree, QStringLiteral("<CURRENT>")));
    EXPECT_EQ(w->ftpaddress->text(), QStringLiteral("ftp.other"));

    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton1->click();
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("No help file has currently been created for the ftp profiles. It should be created shortly."));
}

TEST_F(FtpWindowTest, UpdateRewritesOnlyAnExistingProfile)
{
    saveProfile(QStringLiteral("One"), QStringLiteral("a1"), QStringLiteral("u1"), QStringLiteral("p1"));
    saveProfile(QStringLiteral("Two"), QStringLiteral("a2"), QStringLiteral("u2"), QStringLiteral("p2"));
    ftpUsers* u = users();

    u->txtProfile->clear();
    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You have not selected a profile from the left treeview to update!."),
                      16));

    u->Tree_NodeClick(node(u->Tree, QStringLiteral("One")));
    u->txtProfile->setText(QStringLiteral("Renamed"));
    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton2->click();
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("Failed Profile Update: You had not selected a valid profile, or u changed the profile name."));
    EXPECT_FALSE(QFile::exists(FtpProfiles::profilePath(QStringLiteral("Renamed"))));

    u->Tree_NodeClick(node(u->Tree, QStringLiteral("One")));
    u->txtAddress->setText(QStringLiteral("new.address"));
    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("The user : One has been updated."), 64));
    EXPECT_TRUE(folder.read(QStringLiteral("Options/FTP/One.DAT")).contains("\r\nnew.address\r\n"));
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("One\r\nTwo\r\n"));

    // Renaming to another profile's name overwrites that one's file.
    u->txtProfile->setText(QStringLiteral("Two"));
    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton2->click();
    EXPECT_TRUE(folder.read(QStringLiteral("Options/FTP/Two.DAT")).contains("\r\nnew.address\r\nu1\r\n"));
}

TEST_F(FtpWindowTest, DeleteAsksThenRemovesFileNodeAndIndexLine)
{
    saveProfile(QStringLiteral("One"), QStringLiteral("a1"), QStringLiteral("u1"), QStringLiteral("p1"));
    saveProfile(QStringLiteral("Two"), QStringLiteral("a2"), QStringLiteral("u2"), QStringLiteral("p2"));
    ftpUsers* u = users();
    u->Tree_NodeClick(node(u->Tree, QStringLiteral("One")));

    prompts.answerMsgBox(Answer::No);
    u->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Are you sure you would like to delete the current profile?"),
                      52, velloroTitle));
    EXPECT_TRUE(QFile::exists(FtpProfiles::profilePath(QStringLiteral("One"))));

    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    u->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("User Profile Deleted"), 64));
    EXPECT_FALSE(QFile::exists(FtpProfiles::profilePath(QStringLiteral("One"))));
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("Two\r\n"));
    EXPECT_EQ(treeTexts(u->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>", "Two"}));
    for (QLineEdit* e : {u->txtProfile, u->txtAddress, u->txtUsername, u->txtPassword, u->txtDate})
        EXPECT_TRUE(e->text().isEmpty());

    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    u->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No profile currently selected to delete."), 16));

    u->Tree_NodeClick(node(u->Tree, QStringLiteral("Two")));
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    u->Command2->click();
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray());
    EXPECT_EQ(treeTexts(upload()->Tree), (QStringList{"<<FTP PROFILES>>", "<CURRENT>"}));
}

TEST_F(FtpWindowTest, AddProfileOpensTheKeeperEmptyWithTodaysDate)
{
    ftpUsers* u = users();
    u->txtProfile->setText(QStringLiteral("left over"));
    upload()->SmartNetButton1->click();
    EXPECT_TRUE(u->isVisible());
    EXPECT_TRUE(u->txtProfile->text().isEmpty());
    EXPECT_TRUE(u->txtDate->text().startsWith(QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))))
        << u->txtDate->text().toStdString();
}

TEST_F(FtpWindowTest, TheQueueGrowsShrinksAndClears)
{
    ftpnormal* w = upload();
    const QString a = localFile(QStringLiteral("a page.htm"), "12345");
    localFile(QStringLiteral("b.txt"), "xy");
    w->Dir1->setPath(QFileInfo(a).absolutePath());
    w->File1->setPath(QFileInfo(a).absolutePath());
    processEvents();
    ASSERT_EQ(w->File1->count(), 2);
    w->File1->setCurrentRow(0);
    w->File1_DblClick();
    w->File1->setCurrentRow(0);
    w->File1_DblClick();  // the same file twice is allowed
    w->File1->setCurrentRow(1);
    w->File1_DblClick();
    ASSERT_EQ(w->Flex->rowCount(), 3);
    EXPECT_EQ(cell(0, 0), QStringLiteral("a page.htm"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("5"));
    EXPECT_EQ(cell(0, 2), a);
    EXPECT_EQ(cell(1, 0), QStringLiteral("a page.htm"));
    EXPECT_EQ(cell(2, 0), QStringLiteral("b.txt"));
    EXPECT_EQ(cell(2, 1), QStringLiteral("2"));
    EXPECT_EQ(w->ProgressBar1->maximum(), 3);
    EXPECT_EQ(w->Label3->text(), QStringLiteral("3"));
    EXPECT_EQ(w->currentRow(), 1);

    // The pattern box narrows the list.
    w->Combo1->setCurrentIndex(3);  // *.txt
    w->Combo1_Click();
    EXPECT_EQ(w->File1->count(), 1);

    w->Flex->setCurrentCell(1, 0);
    prompts.answerMsgBox(Answer::No);
    w->SmartNetButton2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Are you sure you want to remove the selected item?"),
                      -1, velloroTitle));
    EXPECT_EQ(w->Flex->rowCount(), 3);
    prompts.answerMsgBox(Answer::Yes);
    w->SmartNetButton2->click();
    EXPECT_EQ(w->Flex->rowCount(), 2);
    EXPECT_EQ(cell(1, 0), QStringLiteral("b.txt"));
    EXPECT_EQ(w->ProgressBar1->maximum(), 3);  // not lowered

    w->Command3->click();
    EXPECT_EQ(w->Flex->rowCount(), 0);
    EXPECT_EQ(w->Flex->horizontalHeaderItem(0)->text(), QStringLiteral("Filename (No Spaces!)"));
    EXPECT_EQ(w->Flex->columnWidth(0), 217);
}

TEST_F(FtpWindowTest, UploadingAnEmptyQueueEndsInFileNeeded)
{
    ftpnormal* w = upload();
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("File Needed!!"));
    // The header row stands in for the missing file.
    EXPECT_EQ(w->lblfileuploading->text(), QStringLiteral("Filename (No Spaces!)"));
    EXPECT_EQ(w->lblsize->text(), QStringLiteral("File Size"));
    EXPECT_TRUE(advanced()->Text8->text().isEmpty());
}

TEST_F(FtpWindowTest, TheWebPageWindowQueuesItsFile)
{
    const QString page = localFile(QStringLiteral("index.htm"), "<html></html>");
    auto* doc = new frmDocument;
    frmMain::instance()->addDocument(doc);
    doc->tempaddress()->setText(page);
    processEvents();
    QToolButton* button = doc->previewButton(QStringLiteral("SmartNetButton4"));
    ASSERT_NE(button, nullptr);
    button->click();
    processEvents();
    ftpnormal* w = upload();
    EXPECT_TRUE(w->isVisible());
    ASSERT_EQ(w->Flex->rowCount(), 1);
    EXPECT_EQ(cell(0, 0), QStringLiteral("index.htm"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("13"));
    EXPECT_EQ(cell(0, 2), page);
    EXPECT_EQ(w->Label3->text(), QStringLiteral("1"));
}

TEST_F(FtpWindowTest, AProjectIsQueuedWholeAndTheWindowShown)
{
    const QString p1 = localFile(QStringLiteral("index.htm"), "1");
    const QString p2 = localFile(QStringLiteral("about.htm"), "22");
    uploadProjectToFtp({{QStringLiteral("index.htm"), p1}, {QStringLiteral("about.htm"), p2}});
    ftpnormal* w = upload();
    EXPECT_TRUE(w->isVisible());
    ASSERT_EQ(w->Flex->rowCount(), 2);
    EXPECT_EQ(cell(1, 0), QStringLiteral("about.htm"));
    EXPECT_EQ(cell(1, 1), QStringLiteral("2"));
    EXPECT_EQ(cell(1, 2), p2);
}

namespace {
class FtpWindowServerTest : public FtpWindowTest {
protected:
    void SetUp() override
    {
        FtpWindowTest::SetUp();
        QString why;
        if (!server.start(&why))
            GTEST_SKIP() << why.toStdString();
        ftpadvanced::setPortForTesting(server.port());
    }
    FtpServer server{FtpServer::Pyftpdlib};
};
}

TEST_F(FtpWindowServerTest, UploadsAQueueOfThreeFilesAndEmptiesIt)
{
    ftpnormal* w = upload();
    const QList<QByteArray> bodies = {randomBytes(70000, 1), QByteArray("<p>two</p>"), randomBytes(3 << 20, 3)};
    const QStringList names = {QStringLiteral("one.bin"), QStringLiteral("two.htm"), QStringLiteral("three.bin")};
    for (int i = 0; i < 3; ++i)
        w->addFile(names[i], localFile(names[i], bodies[i]));
    whenTrue(w, [] { return false; }, [this] { advanced()->Command5->click(); }, 20000);  // a stuck login is cut
    connectAs(server.user(), server.password());
    ASSERT_TRUE(advanced()->engine()->isConnected()) << w->Text2->toPlainText().toStdString();
    EXPECT_EQ(w->serverShapeColour(), 65280);
    EXPECT_TRUE(w->Command1->isEnabled());
    EXPECT_EQ(w->panelText(2), QStringLiteral("Connected to Server"));
    EXPECT_TRUE(w->Text2->toPlainText().contains(QStringLiteral("230 ")));
    EXPECT_EQ(w->Text2->toPlainText(), advanced()->Text2->toPlainText());

    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    ASSERT_TRUE([&] {
        QElapsedTimer t;
        t.start();
        while (prompts.pending() > 0 && t.elapsed() < 60000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return prompts.pending() == 0;
    }()) << w->Text2->toPlainText().toStdString();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Transfer off all files completed"), 64));
    EXPECT_EQ(w->Flex->rowCount(), 0);
    EXPECT_EQ(w->ProgressBar1->value(), 0);
    EXPECT_EQ(w->ProgressBar2->value(), 0);
    EXPECT_TRUE(w->lblsize->text().isEmpty());
    EXPECT_EQ(w->lblfileuploading->text(), QStringLiteral("..."));
    EXPECT_EQ(w->panelText(3), QStringLiteral("Progress :: Sent 3145728 bytes of 3145728"));
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer t;
        t.start();
        while (server.readFile(names[i]) != bodies[i] && t.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_TRUE(server.readFile(names[i]) == bodies[i]) << names[i].toStdString();
    }
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);

    w->Command1->click();
    EXPECT_FALSE(advanced()->engine()->isConnected());
    EXPECT_EQ(w->panelText(2), QStringLiteral("Disconnected from Server"));
    EXPECT_EQ(w->serverShapeColour(), 255);
    EXPECT_FALSE(w->Command1->isEnabled());
    EXPECT_FALSE(w->Command2->isEnabled());
    EXPECT_TRUE(w->Text2->toPlainText().isEmpty());
}

TEST_F(FtpWindowServerTest, AWrongPasswordKeepsTheHourglassUntilTheUserCuts)
{
    ftpnormal* w = upload();
    bool hourglass = false;
    whenTrue(w, [w] { return w->Text2->toPlainText().contains(QStringLiteral("530")); }, [&] {
        hourglass = advanced()->cursor().shape() == Qt::WaitCursor;
        advanced()->Command5->click();
    });
    connectAs(server.user(), QStringLiteral("not it"));
    EXPECT_TRUE(hourglass);
    EXPECT_NE(advanced()->cursor().shape(), Qt::WaitCursor);
    EXPECT_FALSE(advanced()->engine()->isConnected());
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);
    EXPECT_EQ(w->panelText(2), QStringLiteral("Disconnected from Server"));
    EXPECT_TRUE(w->Command2->isEnabled());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(FtpWindowServerTest, ClosingTheWindowFreesAWaitingLogin)
{
    ftpnormal* w = upload();
    w->show();
    whenTrue(w, [w] { return w->Text2->toPlainText().contains(QStringLiteral("530")); }, [w] { w->close(); });
    connectAs(server.user(), QStringLiteral("not it"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(advanced()->engine()->isConnected());
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);
    EXPECT_EQ(w->lblfileuploading->text(), QStringLiteral("..."));
}

TEST_F(FtpWindowServerTest, ViewFilesAndRetrieveFromTheAdvancedWindow)
{
    server.writeFile(QStringLiteral("remote.htm"), "remote body");
    DesktopRecorder desktop;
    const QStringList& shown = desktop.opened;
    QFile::remove(FtpEngine::downloadPath());
    connectAs(server.user(), server.password());
    ASSERT_TRUE(advanced()->engine()->isConnected());
    ftpadvanced* a = advanced();
    EXPECT_EQ(a->Text4->text(), QStringLiteral("127.0.0.1"));
    EXPECT_EQ(a->Text6->text(), QString::number(server.port()));
    a->Command6->click();
    QElapsedTimer t;
    t.start();
    while (!a->Text7->toPlainText().contains(QStringLiteral("remote.htm")) && t.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_TRUE(a->Text7->toPlainText().contains(QStringLiteral("remote.htm")));
    a->Text9->setPlainText(QStringLiteral("RETR remote.htm"));
    a->inputdata1->click();
    t.restart();
    while (shown.isEmpty() && t.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    ASSERT_EQ(shown.size(), 1);
    QFile f(FtpEngine::downloadPath());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray("remote body"));
    QFile::remove(FtpEngine::downloadPath());
}

namespace {
// A peer whose passive port leads nowhere: every data connection is refused.
class FtpWindowDataErrorTest : public FtpWindowTest {
protected:
    void SetUp() override
    {
        FtpWindowTest::SetUp();
        fake.standardLogin();
        const quint16 nobody = freePort();
        fake.on("TYPE", [this](const QByteArray&) { fake.send("200 ok\r\n"); });
        fake.on("PASV", [this, nobody](const QByteArray&) {
            fake.send("227 Entering Passive Mode (127,0,0,1," + QByteArray::number(nobody / 256) + "," +
                      QByteArray::number(nobody % 256) + ")\r\n");
        });
        fake.on("STOR", [this](const QByteArray&) { fake.send("150 Go ahead\r\n"); });
        ftpadvanced::setPortForTesting(fake.port());
        connectAs(QStringLiteral("u"), QStringLiteral("p"));
        ASSERT_TRUE(advanced()->engine()->isConnected());
    }
    FakeServer fake;
};
}

TEST_F(FtpWindowDataErrorTest, AFailedFileIsSkippedAndTheAdvancedWindowHidden)
{
    ftpnormal* w = upload();
    w->addFile(QStringLiteral("a.txt"), localFile(QStringLiteral("a.txt"), "aaa"));
    w->addFile(QStringLiteral("b.txt"), localFile(QStringLiteral("b.txt"), "bbb"));
    advanced()->show();
    prompts.answerMsgBox(Answer::OK);
    // The send still waits for its 226; the user cuts once the error has been shown.
    whenTrue(w, [this] { return prompts.pending() == 0; }, [this] { advanced()->Command5->click(); }, 10000);
    w->Command2->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(prompts.last().title, QStringLiteral("Winsock2 Error:"));
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Error: 10061\r")));
    EXPECT_TRUE(prompts.last().text.endsWith(QStringLiteral(", Connection Will be cut off.")));
    EXPECT_EQ(prompts.last().style, 0);
    EXPECT_EQ(w->currentRow(), 2);  // moved past the failed file, not restarted
    EXPECT_EQ(w->Flex->rowCount(), 2);
    EXPECT_FALSE(advanced()->isVisible());
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);
}

TEST_F(FtpWindowDataErrorTest, AFailedLastFileCutsTheWholeConnection)
{
    ftpnormal* w = upload();
    w->addFile(QStringLiteral("only.txt"), localFile(QStringLiteral("only.txt"), "x"));
    prompts.answerMsgBox(Answer::OK);
    whenTrue(w, [] { return false; }, [this] { advanced()->Command5->click(); }, 10000);  // a guard only
    w->Command2->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(prompts.last().title, QStringLiteral("Winsock2 Error:"));
    EXPECT_FALSE(advanced()->engine()->isConnected());
    EXPECT_EQ(w->panelText(2), QStringLiteral("Disconnected from Server"));
    EXPECT_EQ(w->serverShapeColour(), 255);
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);
}

TEST_F(FtpWindowTest, ProgressCountsUpToTheFileSizeAndNoFurther)
{
    ftpnormal* w = upload();
    w->addFile(QStringLiteral("ten.txt"), localFile(QStringLiteral("ten.txt"), "0123456789"));
    // Not connected: the send's first command is the platform's run-time error, nothing else.
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Run-time error '40006':"))) << prompts.last().text.toStdString();
    EXPECT_EQ(w->lblfileuploading->text(), QStringLiteral("ten.txt"));
    EXPECT_EQ(w->lblsize->text(), QStringLiteral("10"));
    EXPECT_EQ(advanced()->Text8->text(), folder.file(QStringLiteral("queue/ten.txt")));
    EXPECT_EQ(advanced()->Text11->text(), QStringLiteral("ten.txt"));
    EXPECT_EQ(w->ProgressBar2->maximum(), 10);
    EXPECT_EQ(w->ProgressBar2->value(), 0);

    w->onSendProgress(6, 4);
    EXPECT_EQ(w->ProgressBar2->value(), 6);
    EXPECT_EQ(w->panelText(3), QStringLiteral("Progress :: Sent 6 bytes of 10"));
    w->onSendProgress(4, 0);
    EXPECT_EQ(w->panelText(3), QStringLiteral("Progress :: Sent 10 bytes of 10"));
    w->onSendProgress(1, 0);
    EXPECT_EQ(w->ProgressBar2->value(), 10);
    EXPECT_EQ(w->panelText(3), QStringLiteral("Sent 10bytes of 10"));
}

TEST_F(FtpWindowDataErrorTest, ListingAndRetrievePressedWhileAnUploadWaitsWaitTheirTurn)
{
    // The upload's 226 never comes: its wait lasts until the user cuts.
    fake.on("PASV", [this](const QByteArray&) { fake.send(fake.pasv()); });
    ftpnormal* w = upload();
    w->addFile(QStringLiteral("a.txt"), localFile(QStringLiteral("a.txt"), "aaa"));
    ftpadvanced* a = advanced();
    a->Text9->setPlainText(QStringLiteral("RETR x.htm"));
    whenTrue(w, [this] { return fake.received.size() == 3; }, [this, a] {
        const qsizetype before = fake.lines.size();
        a->Command6->click();
        a->inputdata1->click();
        EXPECT_EQ(fake.lines.size(), before) << "nothing went out while the upload waited";
        a->Command5->click();
    }, 10000);
    whenTrue(w, [] { return false; }, [a] { a->Command5->click(); }, 15000);  // a guard only
    prompts.answerMsgBox(Answer::OK);  // the queue's end, after the cut
    w->Command2->click();
    EXPECT_TRUE(fake.lines.contains(QByteArray("STOR a.txt")));
    EXPECT_FALSE(fake.lines.contains(QByteArray("LIST")));
    EXPECT_EQ(a->engine()->activeWaits(), 0);
}

// The security choice: kept beside the profile's file (which keeps its seven lines), brought
// into the upload window by a click, gone with the profile.
TEST_F(FtpWindowTest, TheSecurityChoiceIsKeptBesideTheProfile)
{
    ftpnormal* w = upload();
    ftpUsers* u = users();
    const QStringList choices = {"Plain FTP (not encrypted)", "TLS if offered", "TLS required"};
    for (QComboBox* box : {u->cboSecurity, w->cboSecurity}) {
        QStringList items;
        for (int i = 0; i < box->count(); ++i)
            items << box->itemText(i);
        EXPECT_EQ(items, choices);
    }
    // An account typed into the upload window connects as before; a new profile asks for TLS.
    EXPECT_EQ(w->cboSecurity->currentText(), QStringLiteral("Plain FTP (not encrypted)"));
    u->cboSecurity->setCurrentIndex(2);
    u->Command3->click();
    EXPECT_EQ(u->cboSecurity->currentText(), QStringLiteral("TLS if offered"));

    saveProfile(QStringLiteral("Site"), QStringLiteral("ftp.site.net"), QStringLiteral("ann"), QStringLiteral("pw"));
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Site.TLS")), QByteArray("if-offered\r\n"));
    u->cboSecurity->setCurrentIndex(2);
    prompts.answerMsgBox(Answer::OK);
    u->SmartNetButton2->click();
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Site.TLS")), QByteArray("required\r\n"));
    const QByteArray expected = "##### FTP PROFILE START #####\r\nSite\r\nftp.site.net\r\nann\r\npw\r\n" +
                                u->txtDate->text().toUtf8() + "\r\n##### FTP PROFILE END #####\r\n";
    EXPECT_EQ(folder.read(QStringLiteral("Options/FTP/Site.DAT")), expected);

    // A profile from before the choice existed has no .TLS file and stays plain.
    saveProfile(QStringLiteral("Old"), QStringLiteral("ftp.old.net"), QStringLiteral("bob"), QStringLiteral("pw"));
    ASSERT_TRUE(QFile::remove(folder.file(QStringLiteral("Options/FTP/Old.TLS"))));
    for (const auto& [name, text] : {std::pair{"Site", "TLS required"}, std::pair{"Old", "Plain FTP (not encrypted)"},
                                     std::pair{"Site", "TLS required"}}) {
        w->Tree_NodeClick(node(w->Tree, QString::fromLatin1(name)));
        EXPECT_EQ(w->cboSecurity->currentText(), QString::fromLatin1(text)) << name;
        u->Tree_NodeClick(node(u->Tree, QString::fromLatin1(name)));
        EXPECT_EQ(u->cboSecurity->currentText(), QString::fromLatin1(text)) << name;
    }

    u->Tree_NodeClick(node(u->Tree, QStringLiteral("Site")));
    prompts.answerMsgBox(Answer::Yes);
    prompts.answerMsgBox(Answer::OK);
    u->Command2->click();
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("Options/FTP/Site.TLS"))));
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("Options/FTP/Site.DAT"))));
    u->Command3->click();
    u->show();
    saveShot(u, "ftp-profiles-security");
    u->hide();
    w->show();
    saveShot(w, "ftp-upload-security");
}

// As a user would: a profile that requires TLS, the certificate question answered once, a
// queue uploaded over TLS to vsftpd and compared byte for byte; the next connection asks nothing.
TEST_F(FtpWindowTest, UploadsOverTlsAfterTheCertificateQuestion)
{
    FtpServer server{FtpServer::VsftpdTls};
    QString why;
    if (!server.start(&why))
        GTEST_SKIP() << why.toStdString();
    ftpadvanced::setPortForTesting(server.port());
    ftpnormal* w = upload();
    saveProfile(QStringLiteral("Secure"), QStringLiteral("127.0.0.1"), server.user(), server.password());
    users()->cboSecurity->setCurrentIndex(2);
    prompts.answerMsgBox(Answer::OK);
    users()->SmartNetButton2->click();
    w->Tree_NodeClick(node(w->Tree, QStringLiteral("Secure")));
    ASSERT_EQ(w->cboSecurity->currentText(), QStringLiteral("TLS required"));

    const QList<QByteArray> bodies = {randomBytes(300000, 7), QByteArray("<p>tls</p>")};
    const QStringList names = {QStringLiteral("a.bin"), QStringLiteral("b.htm")};
    for (int i = 0; i < 2; ++i)
        w->addFile(server.upload(names[i]), localFile(names[i], bodies[i]));
    whenTrue(w, [] { return false; }, [this] { advanced()->Command5->click(); }, 20000);  // a stuck login is cut
    prompts.answerMsgBox(Answer::Yes);
    w->upload->click();
    ASSERT_TRUE(advanced()->engine()->isConnected()) << w->Text2->toPlainText().toStdString();
    EXPECT_TRUE(advanced()->engine()->controlEncrypted());
    EXPECT_TRUE(advanced()->engine()->dataProtected());
    EXPECT_EQ(prompts.last().style, 36);
    EXPECT_EQ(prompts.last().title, velloroTitle);
    EXPECT_TRUE(prompts.last().text.contains(QStringLiteral("SHA-256 fingerprint:\r") + server.fingerprint()));
    EXPECT_TRUE(w->Text2->toPlainText().contains(QStringLiteral("200 PROT now Private.")));

    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    QElapsedTimer t;
    t.start();
    while (prompts.pending() > 0 && t.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Transfer off all files completed"), 64));
    for (int i = 0; i < 2; ++i) {
        t.restart();
        while (server.readFile(server.upload(names[i])) != bodies[i] && t.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_TRUE(server.readFile(server.upload(names[i])) == bodies[i]) << names[i].toStdString();
    }
    const int asked = prompts.prompts().size();
    w->Command1->click();
    whenTrue(w, [] { return false; }, [this] { advanced()->Command5->click(); }, 20000);
    w->upload->click();
    EXPECT_TRUE(advanced()->engine()->controlEncrypted());
    EXPECT_EQ(prompts.prompts().size(), asked);  // remembered: not asked again
    w->Command1->click();
}

// "TLS required" against a plain-only server: the connection is cut before the login and the
// user reads why in a box.
TEST_F(FtpWindowServerTest, TlsRequiredAgainstAPlainServerRefusesWithAMessage)
{
    ftpnormal* w = upload();
    w->cboSecurity->setCurrentIndex(2);
    whenTrue(w, [] { return false; }, [this] { advanced()->Command5->click(); }, 20000);  // a stuck wait is cut
    prompts.answerMsgBox(Answer::OK);
    connectAs(server.user(), server.password());
    EXPECT_FALSE(advanced()->engine()->isConnected());
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("The server 127.0.0.1 does not offer a secure connection; it answered:\r500 ")))
        << prompts.last().text.toStdString();
    EXPECT_TRUE(prompts.last().text.endsWith(QStringLiteral("This connection asks for TLS, so it has been cut and your user name and "
                                                            "password were not sent.")));
    EXPECT_EQ(prompts.last().style, 16);
    EXPECT_EQ(prompts.last().title, velloroTitle);
    EXPECT_EQ(w->panelText(2), QStringLiteral("Disconnected from Server"));
    EXPECT_EQ(w->serverShapeColour(), 255);
    EXPECT_NE(advanced()->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(advanced()->engine()->activeWaits(), 0);
}
