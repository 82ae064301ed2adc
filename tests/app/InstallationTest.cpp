// An installed program: its application folder is shared and never written; the user's
// settings, notes and spelling list live in the user's own folder, seeded from the shipped
// copies, and are kept from one start to the next. The build folder goes on working as before.
#include "common/TestSupport.h"

#include "app/Main.h"
#include "pagetools/Quick.h"
#include "platform/App.h"
#include "platform/Forms.h"
#include "shell/Options.h"
#include "shell/frmMain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>

namespace {
// Every file of a folder with a hash of its bytes: what must not change.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        f.open(QIODevice::ReadOnly);
        files.insert(path.mid(folder.size()), QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha1));
    }
    return files;
}

class InstallationTest : public WindowTest {
protected:
    void SetUp() override
    {
        folder.write(QStringLiteral("installed"), "This folder is an installation of Velloro.\n");
        folder.write(QStringLiteral("dictionary.txt"), "apple\r\npear\r\n");
        App::setUserPathForTesting(user.path() + QStringLiteral("/velloro"));
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        App::setUserPathForTesting({});
    }
    QString mine(const QString& relative) const { return user.path() + QStringLiteral("/velloro/") + relative; }
    QTemporaryDir user;
};
}

TEST_F(InstallationTest, SettingsAndNotesGoToTheUsersFolderAndAreKept)
{
    ASSERT_TRUE(App::isInstallation());
    EXPECT_EQ(App::userPath(), user.path() + QStringLiteral("/velloro"));
    startWithoutPage();  // writes the shipped Details.dat, then starts
    const QMap<QString, QByteArray> shipped = snapshot(folder.path());
    ASSERT_TRUE(shipped.contains(QStringLiteral("/Options/Details.dat")));
    EXPECT_TRUE(QFileInfo::exists(mine(QStringLiteral("Options/Details.dat")))) << "seeded on the first start";

    // A setting changed and applied, and a note saved.
    auto* options = form<Options>();
    options->txtSaveEx->setText(QStringLiteral(".htm,.shtml"));
    options->ApplyDetails();
    frmMain::instance()->MenuClick(QStringLiteral("Quick Note"));
    auto* notes = loadedForm<Quick>();
    ASSERT_NE(notes, nullptr);
    EXPECT_EQ(Quick::folder(), mine(QStringLiteral("Notes")));

    // Started again: the change is there, read from the user's folder.
    Forms::destroyAllForTesting();
    processEvents();
    Main();
    EXPECT_EQ(form<Options>()->txtSaveEx->text(), QStringLiteral(".htm,.shtml"));
    EXPECT_TRUE(QFile(mine(QStringLiteral("Options/Details.dat"))).size() > 0);
    EXPECT_EQ(snapshot(folder.path()), shipped) << "nothing in the application folder changed";
}

TEST_F(InstallationTest, TheUsersCopiesStartFromTheShippedOnes)
{
    folder.write(QStringLiteral("Options/FTP/Profiles.dat"), "shipped\r\n");
    // A file: copied once, then the user's own.
    EXPECT_EQ(App::userFile(QStringLiteral("dictionary.txt")), mine(QStringLiteral("dictionary.txt")));
    QFile dictionary(mine(QStringLiteral("dictionary.txt")));
    ASSERT_TRUE(dictionary.open(QIODevice::ReadOnly));
    EXPECT_EQ(dictionary.readAll(), QByteArray("apple\r\npear\r\n"));
    dictionary.close();
    ASSERT_TRUE(dictionary.open(QIODevice::WriteOnly | QIODevice::Append)) << "the user's copy can be written";
    dictionary.write("plum\r\n");
    dictionary.close();
    folder.write(QStringLiteral("dictionary.txt"), "changed\r\n");
    App::userFile(QStringLiteral("dictionary.txt"));
    QFile again(mine(QStringLiteral("dictionary.txt")));
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), QByteArray("apple\r\npear\r\nplum\r\n")) << "the user's additions stay";
    // A folder with what is in it; a name the program does not ship is just a place.
    App::userFile(QStringLiteral("Options/FTP"));
    EXPECT_TRUE(QFileInfo::exists(mine(QStringLiteral("Options/FTP/Profiles.dat"))));
    EXPECT_EQ(App::userFile(QStringLiteral("Options/FeedBack.dat")), mine(QStringLiteral("Options/FeedBack.dat")));
    EXPECT_FALSE(QFileInfo::exists(mine(QStringLiteral("Options/FeedBack.dat"))));
}

TEST(BuildFolder, IsItsOwnUsersFolder)
{
    TempAppFolder app(false);
    EXPECT_FALSE(App::isInstallation());
    EXPECT_EQ(App::userPath(), app.path());
    EXPECT_EQ(App::userFile(QStringLiteral("Options/Details.dat")), app.file(QStringLiteral("Options/Details.dat")));
}
