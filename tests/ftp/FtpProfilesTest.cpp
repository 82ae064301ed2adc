// The profile files: seven lines, the index, owner-only files, and reading back through the
// field reader with its comma rule.
#include "common/FileSizeLimit.h"
#include "ftp/FtpProfiles.h"
#include "platform/App.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {
class ProfileFiles : public ::testing::Test {
protected:
    void SetUp() override { App::setPathForTesting(dir.path()); }
    QByteArray read(const QString& rel) const
    {
        QFile f(dir.path() + QLatin1Char('/') + rel);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }
    QTemporaryDir dir;
};
}

TEST_F(ProfileFiles, SevenLinesWithMarkersAndOwnerOnly)
{
    ASSERT_TRUE(FtpProfiles::writeProfile({QStringLiteral("Home"), QStringLiteral("ftp.example.org"), QStringLiteral("bob"),
                                           QStringLiteral("pa ss"), QStringLiteral("01/02/2003 04:05:06")}));
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Home.DAT")),
              QByteArray("##### FTP PROFILE START #####\r\nHome\r\nftp.example.org\r\nbob\r\npa ss\r\n"
                         "01/02/2003 04:05:06\r\n##### FTP PROFILE END #####\r\n"));
    struct stat st {};
    ASSERT_EQ(::stat(QFile::encodeName(FtpProfiles::profilePath(QStringLiteral("Home"))).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);

    // Rewriting keeps it owner-only, even over a file that others could read.
    QFile::setPermissions(FtpProfiles::profilePath(QStringLiteral("Home")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther);
    ASSERT_TRUE(FtpProfiles::writeProfile({QStringLiteral("Home"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"),
                                           QStringLiteral("e")}));
    ASSERT_EQ(::stat(QFile::encodeName(FtpProfiles::profilePath(QStringLiteral("Home"))).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);

    FtpProfiles::Profile p;
    ASSERT_TRUE(FtpProfiles::readProfile(QStringLiteral("Home"), p));
    EXPECT_EQ(p.name, QStringLiteral("Home"));
    EXPECT_EQ(p.address, QStringLiteral("b"));
    EXPECT_EQ(p.username, QStringLiteral("c"));
    EXPECT_EQ(p.password, QStringLiteral("d"));
    EXPECT_EQ(p.date, QStringLiteral("e"));
}

TEST_F(ProfileFiles, ACommaCutsTheFieldAndShiftsTheRest)
{
    ASSERT_TRUE(FtpProfiles::writeProfile({QStringLiteral("Work"), QStringLiteral("host"), QStringLiteral("me"),
                                           QStringLiteral("se,cret"), QStringLiteral("today")}));
    // Saved whole ...
    EXPECT_TRUE(read(QStringLiteral("Options/FTP/Work.DAT")).contains("\r\nse,cret\r\n"));
    FtpProfiles::Profile p;
    ASSERT_TRUE(FtpProfiles::readProfile(QStringLiteral("Work"), p));
    // ... read back cut, and the date takes the rest of the password.
    EXPECT_EQ(p.password, QStringLiteral("se"));
    EXPECT_EQ(p.date, QStringLiteral("cret"));
}

TEST_F(ProfileFiles, MissingOrShortFilesAreNotRead)
{
    FtpProfiles::Profile p;
    p.name = QStringLiteral("kept");
    EXPECT_FALSE(FtpProfiles::readProfile(QStringLiteral("root"), p));
    QDir().mkpath(FtpProfiles::folder());
    QFile f(FtpProfiles::profilePath(QStringLiteral("Short")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("##### FTP PROFILE START #####\r\nShort\r\n");
    f.close();
    EXPECT_FALSE(FtpProfiles::readProfile(QStringLiteral("Short"), p));
    EXPECT_EQ(p.name, QStringLiteral("kept"));
}

TEST_F(ProfileFiles, TheIndexAppendsRewritesAndReadsAnyLineEnd)
{
    EXPECT_TRUE(FtpProfiles::readIndex().isEmpty());
    ASSERT_TRUE(FtpProfiles::ensureIndex());
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray());
    FtpProfiles::appendIndex(QStringLiteral("One"));
    FtpProfiles::appendIndex(QStringLiteral("Two"));
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("One\r\nTwo\r\n"));
    EXPECT_EQ(FtpProfiles::readIndex(), (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    FtpProfiles::rewriteIndex({QStringLiteral("Two")});
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("Two\r\n"));
    FtpProfiles::rewriteIndex({});
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray());

    QFile f(FtpProfiles::indexPath());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("A\nB\rC\r\n\r\nD");
    f.close();
    EXPECT_EQ(FtpProfiles::readIndex(), (QStringList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QString(),
                                                     QStringLiteral("D")}));
}

TEST_F(ProfileFiles, AWriteThatFailsLeavesTheOldFilesWhole)
{
    const FtpProfiles::Profile home{QStringLiteral("Home"), QStringLiteral("ftp.example.org"), QStringLiteral("bob"),
                                    QStringLiteral("secret"), QStringLiteral("01/02/2003")};
    ASSERT_TRUE(FtpProfiles::writeProfile(home));
    ASSERT_TRUE(FtpProfiles::rewriteIndex({QStringLiteral("Home")}));
    const QByteArray oldProfile = read(QStringLiteral("Options/FTP/Home.DAT"));
    {
        const FileSizeLimit fullDisk(16);
        ASSERT_TRUE(fullDisk.holds());
        EXPECT_FALSE(FtpProfiles::writeProfile({QStringLiteral("Home"), QStringLiteral("ftp.example.net"),
                                                QStringLiteral("alice"), QStringLiteral("other"), QStringLiteral("x")}));
        EXPECT_FALSE(FtpProfiles::appendIndex(QStringLiteral("A second profile")));
        EXPECT_FALSE(FtpProfiles::rewriteIndex({QStringLiteral("Home"), QStringLiteral("Work"), QStringLiteral("Club")}));
    }
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Home.DAT")), oldProfile);
    EXPECT_EQ(read(QStringLiteral("Options/FTP/Main.DAT")), QByteArray("Home\r\n"));
    EXPECT_EQ(QDir(FtpProfiles::folder()).entryList(QDir::Files | QDir::Hidden),
              (QStringList{QStringLiteral("Home.DAT"), QStringLiteral("Main.DAT")}))
        << "no scratch file is left";
}
