// The engine against real servers: pyftpdlib, and vsftpd as a stricter second peer. Files
// that go up are compared byte for byte with what the server stored.
#include "EngineHarness.h"
#include "FtpServers.h"
#include "platform/App.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTcpSocket>

namespace {
class EngineAgainstServer : public ::testing::TestWithParam<FtpServer::Kind> {
protected:
    void SetUp() override
    {
        server = std::make_unique<FtpServer>(GetParam());
        QString why;
        if (!server->start(&why))
            GTEST_SKIP() << why.toStdString();
        engine.setPort(server->port());
        if (GetParam() == FtpServer::VsftpdTls) {
            // Everything over TLS, the server's certificate trusted when asked.
            App::setPathForTesting(appFolder.path());
            engine.setSecurity(FtpSecurity::Required);
            engine.setTrustQuestion([this](const QString& q) {
                questions << q;
                return true;
            });
        }
        QObject::connect(&engine, &FtpEngine::retrieved, [this](const QString& folder) { shownFolders << folder; });
    }

    bool login()
    {
        CutWhen guard(engine, nullptr);
        const bool ok = engine.FtpConnect(QStringLiteral("127.0.0.1"), server->user(), server->password());
        EXPECT_FALSE(guard.timedOut);
        EXPECT_TRUE(ok) << "log: " << rec.lines.join(QLatin1Char('|')).toStdString()
                        << " messages: " << rec.messages.join(QLatin1Char('|')).toStdString() << " server: " << server->output().toStdString();
        if (ok && GetParam() == FtpServer::VsftpdTls) {
            // The one question showed the certificate's fingerprint as openssl prints it.
            EXPECT_TRUE(engine.controlEncrypted());
            EXPECT_TRUE(engine.dataProtected());
            EXPECT_EQ(questions.size(), 1);
            EXPECT_TRUE(questions.value(0).contains(server->fingerprint())) << questions.value(0).toStdString();
        }
        return ok;
    }
    QString local(const QString& name, const QByteArray& bytes)
    {
        const QString path = files.path() + QLatin1Char('/') + name;
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return path;
    }
    void send(const QString& path, const QString& remote)
    {
        CutWhen guard(engine, nullptr, 120000);
        engine.SendFile(path, remote);
        EXPECT_FALSE(guard.timedOut) << rec.lines.join(QLatin1Char('|')).toStdString() << rec.messages.join(QLatin1Char('|')).toStdString();
    }
    void retrieve(const QString& command)
    {
        CutWhen guard(engine, nullptr);
        engine.Retrieve(command);
        ASSERT_FALSE(guard.timedOut);
    }

    std::unique_ptr<FtpServer> server;
    FtpEngine engine;
    EngineRecorder rec{engine};
    QTemporaryDir files;
    QStringList shownFolders;
    QTemporaryDir appFolder;
    QStringList questions;
};
}

TEST_P(EngineAgainstServer, LogsInAndLogsTheBanner)
{
    ASSERT_TRUE(login());
    EXPECT_TRUE(engine.isConnected());
    EXPECT_TRUE(rec.logHas(QStringLiteral("220"))) << rec.lines.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(rec.logHas(QStringLiteral("331")));
    EXPECT_TRUE(rec.logHas(QStringLiteral("230")));
    EXPECT_EQ(rec.status, QStringLiteral("Connected to Server"));
    EXPECT_TRUE(rec.messages.isEmpty()) << rec.messages.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(engine.activeWaits(), 0);
    EXPECT_TRUE(engine.controlTag().isEmpty());
    EXPECT_EQ(engine.ReplyCode(), 230);  // the login wait reads it and leaves it

    engine.FtpDisconnect();
    EXPECT_FALSE(engine.isConnected());
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
    EXPECT_EQ(rec.downs.last(), false);
}

TEST_P(EngineAgainstServer, WrongPasswordShowsTheRefusalAndTheUserCutsTheWait)
{
    engine.setPort(server->port());
    const QString user = GetParam() == FtpServer::Pyftpdlib ? server->user() : QStringLiteral("nobody");
    bool ok = true;
    {
        CutWhen cut(engine, [this] { return rec.logHas(QStringLiteral("530")); });
        ok = engine.FtpConnect(QStringLiteral("127.0.0.1"), user, QStringLiteral("wrong"));
        EXPECT_TRUE(cut.cut()) << "never saw 530: " << rec.lines.join(QLatin1Char('|')).toStdString();
    }
    EXPECT_FALSE(ok);
    EXPECT_EQ(engine.activeWaits(), 0);
    EXPECT_FALSE(engine.isConnected());
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
    // The two login messages never come: the waits end only on their own codes.
    EXPECT_TRUE(rec.messages.isEmpty()) << rec.messages.join(QLatin1Char('|')).toStdString();
}

TEST_P(EngineAgainstServer, ViewFilesListsTheFolder)
{
    server->writeFile(QStringLiteral("listed-one.htm"), "a");
    server->writeFile(QStringLiteral("listed-two.txt"), "bb");
    ASSERT_TRUE(login());
    CutWhen guard(engine, nullptr);
    engine.ViewFiles();
    ASSERT_FALSE(guard.timedOut) << rec.lines.join(QLatin1Char('|')).toStdString() << rec.messages.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(rec.logHas(QStringLiteral("227")));
    EXPECT_TRUE(rec.logHas(QStringLiteral("226")));
    // The listing may still be arriving after the 226.
    EXPECT_TRUE(spinUntil([this] { return rec.listing.contains(QStringLiteral("listed-two.txt")); }))
        << rec.listing.toStdString();
    EXPECT_TRUE(rec.listing.contains(QStringLiteral("listed-one.htm")));
    EXPECT_TRUE(engine.isConnected());
}

TEST_P(EngineAgainstServer, RetrieveWritesDownmeWithoutTruncatingAndShowsTheFolder)
{
    const QByteArray longer = randomBytes(300000, 7);
    const QByteArray shorter("short file");
    server->writeFile(QStringLiteral("long.bin"), longer);
    server->writeFile(QStringLiteral("short.txt"), shorter);
    QFile::remove(FtpEngine::downloadPath());
    ASSERT_TRUE(login());
    // Retrieve sends no TYPE: the binary file needs it first, or the server may turn line ends.
    ASSERT_TRUE(engine.FtpSendCommand(QStringLiteral("TYPE I")));
    ASSERT_NO_FATAL_FAILURE(retrieve(QStringLiteral("RETR long.bin")));
    ASSERT_TRUE(spinUntil([this] { return shownFolders.size() == 1; }));
    EXPECT_EQ(shownFolders[0], FtpEngine::downloadFolder());
    QFile f(FtpEngine::downloadPath());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.readAll() == longer);
    f.close();
    ASSERT_NO_FATAL_FAILURE(retrieve(QStringLiteral("RETR short.txt")));
    ASSERT_TRUE(spinUntil([this] { return shownFolders.size() == 2; }));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray now = f.readAll();
    // The shorter download overwrites the front and leaves the tail of the longer one.
    EXPECT_EQ(now.size(), longer.size());
    EXPECT_TRUE(now.left(shorter.size()) == shorter);
    EXPECT_TRUE(now.mid(shorter.size()) == longer.mid(shorter.size()));
    QFile::remove(FtpEngine::downloadPath());
}

TEST_P(EngineAgainstServer, StoresSmallEmptyAndLargeFilesByteForByte)
{
    ASSERT_TRUE(login());
    const QByteArray small("<html>hello</html>\r\n");
    const QByteArray large = randomBytes(24 * 1024 * 1024 + 123, 42);
    const struct { const char* name; QByteArray bytes; } cases[] = {
        {"small.htm", small}, {"empty.txt", QByteArray()}, {"large.bin", large}};
    int completes = 0;
    for (const auto& c : cases) {
        const QString name = QString::fromLatin1(c.name);
        rec.progress.clear();
        send(local(name, c.bytes), server->upload(name));
        // SendComplete comes from the event loop, before the server's 226 can.
        ++completes;
        EXPECT_EQ(rec.completes, completes) << c.name;
        EXPECT_TRUE(server->readFile(server->upload(name)) == c.bytes) << c.name << " differs on the server";
        qint64 sum = 0;
        for (const auto& p : rec.progress)
            sum += p.first;
        EXPECT_EQ(sum, c.bytes.size()) << c.name;
        if (!rec.progress.isEmpty()) {
            EXPECT_EQ(rec.progress.last().second, 0) << c.name;
        }
    }
    EXPECT_TRUE(engine.isConnected());
    EXPECT_EQ(engine.activeWaits(), 0);
}

TEST_P(EngineAgainstServer, AQueueDrivenBySendCompleteSendsEveryFile)
{
    ASSERT_TRUE(login());
    QStringList names = {QStringLiteral("q1.htm"), QStringLiteral("q2.css"), QStringLiteral("q3.bin"), QStringLiteral("q4.txt")};
    QList<QByteArray> bodies;
    for (int i = 0; i < names.size(); ++i)
        bodies << randomBytes(1000 + i * 70000, quint32(i));
    int next = 1;
    QStringList order;
    int deepest = 0;
    QObject::connect(&engine, &FtpEngine::SendComplete, &engine, [&] {
        order << QStringLiteral("complete");
        deepest = std::max(deepest, engine.activeWaits());
        if (next < names.size()) {
            const int i = next++;
            engine.SendFile(files.path() + QLatin1Char('/') + names[i], server->upload(names[i]));
        }
    });
    for (int i = 0; i < names.size(); ++i)
        local(names[i], bodies[i]);
    send(files.path() + QLatin1Char('/') + names[0], server->upload(names[0]));
    // The last file's 226 may come after the first send returned.
    ASSERT_TRUE(spinUntil([&] { return order.size() == names.size(); }));
    for (int i = 0; i < names.size(); ++i)
        EXPECT_TRUE(spinUntil([&] { return server->readFile(server->upload(names[i])) == bodies[i]; })) << names[i].toStdString();
    EXPECT_EQ(engine.activeWaits(), 0);
    // Each next file waits in the frame of the one before, not on top of it.
    EXPECT_EQ(deepest, 1);
}

TEST_P(EngineAgainstServer, ServerClosingTheControlConnectionEndsTheWait)
{
    ASSERT_TRUE(login());
    rec.downs.clear();
    CutWhen guard(engine, nullptr);
    // QUIT awaits nothing; the wait for the PWD reply then ends with the close.
    engine.FtpSendCommand(QStringLiteral("QUIT"));
    const bool ok = engine.FtpSendCommand(QStringLiteral("PWD"));
    EXPECT_FALSE(guard.timedOut);
    EXPECT_FALSE(ok);
    EXPECT_FALSE(engine.isConnected());
    ASSERT_FALSE(rec.downs.isEmpty());
    EXPECT_TRUE(rec.downs.last());  // the close event enables the upload button again
    EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
}

INSTANTIATE_TEST_SUITE_P(Servers, EngineAgainstServer, ::testing::Values(FtpServer::Pyftpdlib, FtpServer::Vsftpd),
                         [](const auto& info) {
                             return std::string(info.param == FtpServer::Pyftpdlib ? "pyftpdlib" : "vsftpd");
                         });
INSTANTIATE_TEST_SUITE_P(Tls, EngineAgainstServer, ::testing::Values(FtpServer::VsftpdTls),
                         [](const auto&) { return std::string("vsftpd_tls"); });
