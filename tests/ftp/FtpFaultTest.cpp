// The engine against a scripted peer that misbehaves: in every case the program keeps running,
// the user is freed by cutting the connection, and no wait is left on the stack. What happens
// after the login runs twice: over plain FTP and over explicit TLS with protected data
// connections.
#include "EngineHarness.h"
#include "FakeServer.h"
#include "FtpServers.h"
#include "platform/App.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

namespace {
const QString host = QStringLiteral("127.0.0.1");

class EngineFaults : public ::testing::Test {
protected:
    void SetUp() override
    {
        // The certificate answer is kept in the application folder.
        App::setPathForTesting(appFolder.path());
        engine.setPort(fake.port());
        QObject::connect(&engine, &FtpEngine::retrieved, [this](const QString& f) { shown << f; });
    }
    void TearDown() override
    {
        EXPECT_EQ(engine.activeWaits(), 0);
    }
    // Connects under a guard that cuts a login still waiting at the deadline.
    bool connectGuarded(int deadlineMs = 10000)
    {
        CutWhen guard(engine, nullptr, deadlineMs);
        return engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p"));
    }
    void login()
    {
        fake.standardLogin();
        if (tls) {
            QString why;
            const TestCertificate* made = sharedCertificate(0, &why);
            ASSERT_TRUE(made) << why.toStdString();
            ASSERT_TRUE(fake.secure(*made));
            engine.setSecurity(FtpSecurity::Required);
            engine.setTrustQuestion([](const QString&) { return true; });
        }
        CutWhen guard(engine, nullptr, 10000);
        ASSERT_TRUE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
        ASSERT_FALSE(guard.timedOut);
        ASSERT_EQ(engine.dataProtected(), tls);
    }
    // One transfer on the data connection as a server makes it: the opening reply, the bytes
    // once the client has connected, the close, then what the server says at the end.
    void transfer(const QByteArray& opening, const QByteArray& bytes, const QByteArray& closing)
    {
        fake.send(opening);
        spinUntil([this] { return fake.data != nullptr; }, 5000);
        fake.data->write(bytes);
        fake.data->flush();
        fake.data->disconnectFromHost();
        fake.send(closing);
    }
    bool seen(const QByteArray& verb) const
    {
        for (const QByteArray& l : fake.lines)
            if (l.startsWith(verb))
                return true;
        return false;
    }
    QString local(const QByteArray& bytes)
    {
        const QString path = dir.path() + QStringLiteral("/up.bin");
        QFile f(path);
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return path;
    }

    QTemporaryDir appFolder;
    FakeServer fake;
    FtpEngine engine;
    EngineRecorder rec{engine};
    QTemporaryDir dir;
    QStringList shown;
    bool tls = false;
};

// The faults after the login, once over plain FTP and once over TLS.
class AfterLogin : public EngineFaults, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override
    {
        tls = GetParam();
        EngineFaults::SetUp();
    }
};
}

TEST_F(EngineFaults, SilenceAfterConnectIsEndedByCutting)
{
    CutWhen cut(engine, [this] { return seen("USER"); });
    EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
    EXPECT_TRUE(cut.cut());
    EXPECT_TRUE(rec.lines.isEmpty());
    EXPECT_FALSE(engine.isConnected());
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
}

TEST_F(EngineFaults, RepliesSplitByteByByteAreJoined)
{
    fake.onConnect = [this] { fake.dribble("220 Slow banner\r\n"); };
    fake.on("USER", [this](const QByteArray&) { fake.dribble("331 Slow\r\n"); });
    fake.on("PASS", [this](const QByteArray&) { fake.dribble("230 Slowly in\r\n"); });
    ASSERT_TRUE(connectGuarded());
    ASSERT_TRUE(spinUntil([this] { return rec.lines.size() == 3; }));
    EXPECT_EQ(rec.lines, (QStringList{QStringLiteral("220 Slow banner"), QStringLiteral("331 Slow"), QStringLiteral("230 Slowly in")}));
}

TEST_F(EngineFaults, SeveralRepliesInOneArrivalAreHandledInOrder)
{
    fake.on("USER", [this](const QByteArray&) { fake.send("220 Late banner\r\n331 Password\r\n"); });
    fake.on("PASS", [this](const QByteArray&) { fake.send("230-First\r\n230 Last\r\n"); });
    ASSERT_TRUE(connectGuarded());
    EXPECT_EQ(rec.lines, (QStringList{QStringLiteral("220 Late banner"), QStringLiteral("331 Password"),
                                      QStringLiteral("230-First"), QStringLiteral("230 Last")}));
}

TEST_F(EngineFaults, AContinuationLineCountsAsItsCode)
{
    fake.onConnect = [this] { fake.send("220 x\r\n"); };
    fake.on("USER", [this](const QByteArray&) { fake.send("331 x\r\n"); });
    fake.on("PASS", [this](const QByteArray&) {
        fake.send("230-Welcome\r\n");
        QTimer::singleShot(300, &fake, [this] { fake.send("230-Rules\r\n230 Done\r\n"); });
    });
    ASSERT_TRUE(connectGuarded());
    // The login ended on "230-" already, before the rest came.
    EXPECT_EQ(rec.lines.last(), QStringLiteral("230-Welcome"));
    ASSERT_TRUE(spinUntil([this] { return rec.lines.size() == 5; }));
    EXPECT_EQ(rec.lines.last(), QStringLiteral("230 Done"));
}

TEST_F(EngineFaults, APlainTextLineResetsTheCode)
{
    QList<int> codes;
    QObject::connect(&engine, &FtpEngine::replyLine, [&](const QString&) { codes << engine.ReplyCode(); });
    fake.onConnect = [this] { fake.send("220 x\r\n"); };
    fake.on("USER", [this](const QByteArray&) { fake.send("331 x\r\n"); });
    fake.on("PASS", [this](const QByteArray&) {
        fake.send("230-Welcome\r\n  no code here\r\n");
        QTimer::singleShot(300, &fake, [this] { fake.send("230 Done\r\n"); });
    });
    ASSERT_TRUE(connectGuarded());
    // The 230 of the continuation was wiped by the text line before the wait looked.
    EXPECT_EQ(rec.lines.last(), QStringLiteral("230 Done"));
    EXPECT_EQ(codes, (QList<int>{220, 331, 230, 0, 230}));
}

TEST_F(EngineFaults, ShortLinesSetTheCodeFromWhatTheyHave)
{
    QList<int> codes;
    QObject::connect(&engine, &FtpEngine::replyLine, [&](const QString&) { codes << engine.ReplyCode(); });
    fake.on("USER", [this](const QByteArray&) { fake.send("33\r\n3\r\n\r\n331 ok\r\n"); });
    fake.on("PASS", [this](const QByteArray&) { fake.send("230 in\r\n"); });
    ASSERT_TRUE(connectGuarded());
    EXPECT_EQ(codes, (QList<int>{33, 3, 0, 331, 230}));
}

TEST_F(EngineFaults, AMegabyteLineWithoutLineEndIsHeldUntilItEnds)
{
    const QByteArray huge(1 << 20, 'x');
    fake.onConnect = [&] { fake.send(huge); };
    fake.on("USER", [this](const QByteArray&) {
        QTimer::singleShot(200, &fake, [this] { fake.send("\r\n331 ok\r\n"); });
    });
    fake.on("PASS", [this](const QByteArray&) { fake.send("230 in\r\n"); });
    ASSERT_TRUE(connectGuarded(20000));
    ASSERT_EQ(rec.lines.size(), 3);
    EXPECT_EQ(rec.lines[0].size(), huge.size());
}

TEST_F(EngineFaults, AMegabyteLineThatNeverEndsLeavesTheUserToCut)
{
    fake.onConnect = [this] { fake.send(QByteArray(1 << 20, 'y')); };
    CutWhen cut(engine, [this] { return seen("USER"); });
    EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
    EXPECT_TRUE(cut.cut());
    EXPECT_TRUE(rec.lines.isEmpty());
}

TEST_F(EngineFaults, GarbageIsLoggedAndTheLoginGoesOn)
{
    QByteArray junk;
    for (int i = 0; i < 256; ++i)
        junk.append(char(i));
    junk += QByteArray("\r\n\xff\xfe\x00\x01\r\n220 fine\r\n", 18);
    fake.onConnect = [&] { fake.send(junk); };
    fake.on("USER", [this](const QByteArray&) { fake.send("331 x\r\n"); });
    fake.on("PASS", [this](const QByteArray&) { fake.send("230 in\r\n"); });
    ASSERT_TRUE(connectGuarded());
    EXPECT_EQ(rec.lines.size(), 5);
    EXPECT_EQ(rec.lines[2], QStringLiteral("220 fine"));
}

TEST_F(EngineFaults, UserAnsweredWith230LeavesTheWaitFor331ToTheUser)
{
    fake.onConnect = [this] { fake.send("220 x\r\n"); };
    fake.on("USER", [this](const QByteArray&) { fake.send("230 Already in\r\n"); });
    CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("230")); });
    EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
    EXPECT_TRUE(cut.cut());
    EXPECT_FALSE(seen("PASS"));
}

TEST_F(EngineFaults, ARefusedConnectionShowsTheErrorAndEndsTheWait)
{
    engine.setPort(freePort());
    CutWhen guard(engine, nullptr, 10000);
    EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
    EXPECT_FALSE(guard.timedOut);
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_TRUE(rec.messages[0].startsWith(QStringLiteral("Error: 10061\r"))) << rec.messages[0].toStdString();
    EXPECT_TRUE(rec.messages[0].endsWith(QStringLiteral(", Connection Will be cut off.|0|Winsock1 Error:")))
        << rec.messages[0].toStdString();
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
    EXPECT_TRUE(rec.downs.last());
}

TEST_P(AfterLogin, Reply421InTheMiddleOfACommandWithTheCloseEndsTheSend)
{
    login();
    fake.on("TYPE", [this](const QByteArray&) {
        fake.send("421 Service not available, closing control connection.\r\n");
        fake.closeControl();
    });
    CutWhen guard(engine, nullptr, 10000);
    engine.SendFile(local("abc"), QStringLiteral("x.txt"));
    EXPECT_FALSE(guard.timedOut);
    EXPECT_FALSE(seen("PASV"));
    EXPECT_FALSE(engine.isConnected());
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
}

TEST_P(AfterLogin, Reply421WithoutACloseIsLoggedAndTheUserCuts)
{
    login();
    fake.on("TYPE", [this](const QByteArray&) { fake.send("421 Too busy\r\n"); });
    CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("421")); });
    engine.SendFile(local("abc"), QStringLiteral("x.txt"));
    EXPECT_TRUE(cut.cut());
    EXPECT_FALSE(seen("PASV"));
}

TEST_P(AfterLogin, MalformedPassiveRepliesAreRunTimeErrorsAndNoDataConnection)
{
    const struct { const char* line; int error; } cases[] = {
        {"227 Entering Passive Mode 127,0,0,1,4,1\r\n", 9},  // no brackets
        {"227 Entering Passive Mode (127,0,0,1,4,1\r\n", 9}, // no closing bracket
        {"227 Entering Passive Mode (127,0,0,1,4)\r\n", 9},  // five numbers
        {"227 Entering Passive Mode (127,0,0,1,300,1)\r\n", 380}, // a port beyond 65535
    };
    login();
    for (const auto& c : cases) {
        rec.errors.clear();
        fake.on("PASV", [this, &c](const QByteArray&) { fake.send(c.line); });
        fake.on("LIST", [this](const QByteArray&) { fake.send("425 Can't open data connection.\r\n"); });
        {
            CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("425")); });
            engine.ViewFiles();
            EXPECT_TRUE(cut.cut()) << c.line;
        }
        ASSERT_EQ(rec.errors.size(), 1) << c.line;
        EXPECT_EQ(rec.errors[0].first, c.error) << c.line;
        EXPECT_EQ(fake.dataConnections, 0);
        // Log in again for the next case.
        rec.lines.clear();
        ASSERT_TRUE(connectGuarded());
    }
}

TEST_P(AfterLogin, APassiveReplyNamingAnotherHostStillConnectsToThePeer)
{
    login();
    fake.on("PASV", [this](const QByteArray&) { fake.send(fake.pasv("10,99,88,77")); });
    fake.on("LIST", [this](const QByteArray&) {
        transfer("150 Here it comes\r\n", "-rw-r--r-- 1 u g 5 Jan 1 00:00 page.htm\r\n", "226 Done\r\n");
    });
    CutWhen guard(engine, nullptr, 10000);
    engine.ViewFiles();
    EXPECT_FALSE(guard.timedOut);
    EXPECT_EQ(fake.dataConnections, 1);
    EXPECT_TRUE(spinUntil([this] { return rec.listing.contains(QStringLiteral("page.htm")); }));
    EXPECT_TRUE(rec.errors.isEmpty());
}

TEST_P(AfterLogin, OneFiftyAndThenNoDataConnection)
{
    login();
    const quint16 nobody = freePort();
    fake.on("TYPE", [this](const QByteArray&) { fake.send("200 ok\r\n"); });
    fake.on("PASV", [this, nobody](const QByteArray&) {
        fake.send("227 Entering Passive Mode (127,0,0,1," + QByteArray::number(nobody / 256) + "," +
                  QByteArray::number(nobody % 256) + ")\r\n");
    });
    fake.on("STOR", [this](const QByteArray&) { fake.send("150 Go ahead\r\n"); });
    CutWhen cut(engine, [this] { return !rec.dataErrors.isEmpty() && rec.logHas(QStringLiteral("150")); });
    engine.SendFile(local("payload"), QStringLiteral("x.txt"));
    EXPECT_TRUE(cut.cut());
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_TRUE(rec.messages[0].startsWith(QStringLiteral("Error: 10061\r"))) << rec.messages[0].toStdString();
    EXPECT_TRUE(rec.messages[0].endsWith(QStringLiteral(", Connection Will be cut off.|0|Winsock2 Error:")));
    EXPECT_EQ(rec.completes, 0);
}

TEST_P(AfterLogin, ADownloadCutShortKeepsWhatCameAndShowsTheFolder)
{
    QFile::remove(FtpEngine::downloadPath());
    login();
    fake.on("PASV", [this](const QByteArray&) { fake.send(fake.pasv()); });
    fake.on("RETR", [this](const QByteArray&) {
        transfer("150 Sending 5000 bytes\r\n", QByteArray(1000, 'd'), "226 Transfer complete\r\n");
    });
    CutWhen guard(engine, nullptr, 10000);
    engine.Retrieve(QStringLiteral("RETR big.bin"));
    EXPECT_FALSE(guard.timedOut);
    ASSERT_TRUE(spinUntil([this] { return !shown.isEmpty(); }));
    QFile f(FtpEngine::downloadPath());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray(1000, 'd'));
    QFile::remove(FtpEngine::downloadPath());
}

namespace {
// The upload side of a fake STOR: answers the three commands and hands the data socket over.
void scriptStor(FakeServer& fake)
{
    fake.on("TYPE", [&fake](const QByteArray&) { fake.send("200 Binary\r\n"); });
    fake.on("PASV", [&fake](const QByteArray&) { fake.send(fake.pasv()); });
    fake.on("STOR", [&fake](const QByteArray&) {
        spinUntil([&fake] { return fake.data != nullptr; }, 5000);
        fake.send("150 Ok to send data.\r\n");
    });
}
}

TEST_P(AfterLogin, TheServerClosingTheDataConnectionMidUploadStopsIt)
{
    login();
    scriptStor(fake);
    fake.onData = [this] {
        if (fake.received.size() > 256 * 1024 && fake.data) {
            fake.data->disconnectFromHost();
            fake.send("426 Connection closed; transfer aborted.\r\n");
        }
    };
    CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("426")); });
    engine.SendFile(local(randomBytes(64 << 20, 3)), QStringLiteral("big.bin"));
    EXPECT_TRUE(cut.cut());
    EXPECT_EQ(rec.completes, 0);
    EXPECT_LT(fake.received.size(), 64 << 20);
}

TEST_P(AfterLogin, AResetInTheMiddleOfAnUploadStopsIt)
{
    login();
    scriptStor(fake);
    fake.onData = [this] {
        if (fake.received.size() > 256 * 1024 && fake.data) {
            FakeServer::reset(fake.data);
            fake.send("426 Reset.\r\n");
        }
    };
    CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("426")); });
    engine.SendFile(local(randomBytes(64 << 20, 4)), QStringLiteral("big.bin"));
    EXPECT_TRUE(cut.cut());
    EXPECT_EQ(rec.completes, 0);
    EXPECT_FALSE(engine.isConnected());
}

TEST_P(AfterLogin, TheControlConnectionClosedMidUploadEndsEverything)
{
    login();
    scriptStor(fake);
    fake.onData = [this] {
        if (fake.received.size() > 256 * 1024)
            FakeServer::reset(fake.client);
    };
    CutWhen guard(engine, nullptr, 20000);
    engine.SendFile(local(randomBytes(64 << 20, 5)), QStringLiteral("big.bin"));
    EXPECT_FALSE(guard.timedOut);
    EXPECT_FALSE(engine.isConnected());
    EXPECT_EQ(rec.completes, 0);
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
}

TEST_P(AfterLogin, AnEmptySourceIsFileNeededAndNothingOnTheWire)
{
    login();
    const qsizetype before = fake.lines.size();
    engine.SendFile(QString(), QStringLiteral("x.txt"));
    EXPECT_EQ(rec.messages, QStringList{QStringLiteral("File Needed!!|0|")});
    spinUntil([] { return false; }, 100);
    EXPECT_EQ(fake.lines.size(), before);
}

TEST_F(EngineFaults, ACommandWithoutAConnectionIsARunTimeError)
{
    EXPECT_FALSE(engine.FtpSendCommand(QStringLiteral("PWD")));
    ASSERT_EQ(rec.errors.size(), 1);
    EXPECT_EQ(rec.errors[0].first, 40006);
}

TEST_F(EngineFaults, CancellingAWaitTwoHundredTimesInARow)
{
    fake.onConnect = [] {};  // silence
    for (int i = 0; i < 200; ++i) {
        QTimer::singleShot(i % 3, &engine, [this] { engine.CutConnection(); });
        ASSERT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p"))) << i;
        ASSERT_EQ(engine.activeWaits(), 0) << i;
    }
    EXPECT_FALSE(engine.isConnected());
}

TEST_F(EngineFaults, ANewConnectEndsTheOldWaitBelowIt)
{
    // The first login hangs on a server that never answers USER; a second login from inside
    // that wait succeeds elsewhere, and the first wait ends rather than spinning on.
    FakeServer good;
    good.standardLogin();
    bool second = false;
    QTimer::singleShot(100, &engine, [&] {
        engine.setPort(good.port());
        second = engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p"));
    });
    CutWhen guard(engine, nullptr, 10000);
    EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p")));
    EXPECT_FALSE(guard.timedOut);
    EXPECT_TRUE(second);
    EXPECT_TRUE(engine.isConnected());
}

TEST_P(AfterLogin, AListingCharacterCutBetweenTwoArrivalsStaysOneCharacter)
{
    login();
    fake.on("PASV", [this](const QByteArray&) { fake.send(fake.pasv()); });
    fake.on("LIST", [this](const QByteArray&) {
        fake.send("150 Here it comes\r\n");
        spinUntil([this] { return fake.data != nullptr; }, 5000);
        // "café.htm" with the two bytes of the e acute in two arrivals.
        fake.data->write("caf\xc3");
        fake.data->flush();
        spinUntil([this] { return rec.listing == QStringLiteral("caf"); }, 5000);
        fake.data->write("\xa9.htm\r\n");
        fake.data->flush();
        fake.data->disconnectFromHost();
        fake.send("226 Done\r\n");
    });
    CutWhen guard(engine, nullptr, 10000);
    engine.ViewFiles();
    EXPECT_FALSE(guard.timedOut);
    EXPECT_TRUE(spinUntil([this] { return rec.listing.endsWith(QStringLiteral("\r\n")); }));
    EXPECT_EQ(rec.listing, QStringLiteral("caf\u00e9.htm\r\n"));
}

TEST_P(AfterLogin, ALineBreakInAFileNameStartsNoCommandOfItsOwn)
{
    login();
    scriptStor(fake);
    fake.onData = [this] {
        if (fake.data && fake.received.size() >= 3) {
            fake.data->disconnectFromHost();
            fake.send("226 Done\r\n");
        }
    };
    CutWhen guard(engine, nullptr, 10000);
    engine.SendFile(local("abc"), QStringLiteral("a\r\nDELE index.html"));
    EXPECT_FALSE(guard.timedOut);
    EXPECT_TRUE(fake.lines.contains(QByteArray("STOR aDELE index.html")));
    EXPECT_FALSE(seen("DELE"));
}

TEST(DownloadFolder, TempWhenSetElseAFolderOfTheUsersOwn)
{
    const QByteArray old = qgetenv("TEMP");
    QTemporaryDir mine;
    qputenv("TEMP", mine.path().toUtf8());
    EXPECT_EQ(FtpEngine::downloadFolder(), mine.path());
    EXPECT_EQ(FtpEngine::downloadPath(), mine.path() + QStringLiteral("/downme"));
    qunsetenv("TEMP");
    const QFileInfo own(FtpEngine::downloadFolder());
    if (!old.isEmpty())
        qputenv("TEMP", old);
    EXPECT_TRUE(own.isDir());
    EXPECT_EQ(own.ownerId(), ::getuid());
    EXPECT_EQ(own.permissions() & (QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ReadGroup | QFileDevice::WriteGroup),
              QFileDevice::Permissions()) << "nobody else may put a file there";
    EXPECT_NE(own.absoluteFilePath(), QFileInfo(QDir::tempPath()).absoluteFilePath());
}

TEST_P(AfterLogin, TheAwaitedReplyIsSeenEvenWithAnotherLineBehindItInTheSameArrival)
{
    QFile::remove(FtpEngine::downloadPath());
    login();
    fake.on("PASV", [this](const QByteArray&) { fake.send(fake.pasv()); });
    fake.on("RETR", [this](const QByteArray&) {
        // The answer to an empty line the retrieve box sent after the command comes in the
        // same arrival as the 226.
        transfer("150 Sending\r\n", "body", "226 Transfer complete\r\n500 Unknown command\r\n");
    });
    CutWhen guard(engine, nullptr, 10000);
    engine.Retrieve(QStringLiteral("RETR page.htm\r\n"));
    EXPECT_FALSE(guard.timedOut) << "the wait for 226 ended by itself";
    EXPECT_EQ(engine.activeWaits(), 0);
    QFile::remove(FtpEngine::downloadPath());
}

INSTANTIATE_TEST_SUITE_P(PlainAndTls, AfterLogin, ::testing::Bool(),
                         [](const ::testing::TestParamInfo<bool>& info) { return info.param ? "Tls" : "Plain"; });
