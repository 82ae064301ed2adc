// TLS on the control connection: what is refused, what is asked, what is remembered, and a
// peer that breaks off in the middle of the TLS start. Transfers over TLS run in the
// real-server suite (vsftpd with ssl_enable=YES).
#include "EngineHarness.h"
#include "FakeServer.h"
#include "FtpServers.h"
#include "ftp/FtpTrust.h"
#include "platform/App.h"

#include <QFile>
#include <QTemporaryDir>

namespace {
const QString host = QStringLiteral("127.0.0.1");
const QString title = QStringLiteral(":: Velloro 2002 ::");

class TlsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        App::setPathForTesting(appFolder.path());
        engine.setTrustQuestion([this](const QString& q) {
            questions << q;
            return answer;
        });
    }
    void TearDown() override { EXPECT_EQ(engine.activeWaits(), 0); }
    bool connectTo(quint16 port, const QString& user, const QString& password)
    {
        engine.setPort(port);
        CutWhen guard(engine, nullptr, 20000);
        const bool ok = engine.FtpConnect(host, user, password);
        EXPECT_FALSE(guard.timedOut) << rec.lines.join(QLatin1Char('|')).toStdString();
        return ok;
    }
    QByteArray trustFile() const
    {
        QFile f(appFolder.path() + QStringLiteral("/Options/FTP/Certificates.txt"));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
    }
    void startTls(FtpServer& server)
    {
        QString why;
        if (!server.start(&why))
            GTEST_SKIP() << why.toStdString();
    }
    QTemporaryDir appFolder;
    FtpEngine engine;
    EngineRecorder rec{engine};
    QStringList questions;
    bool answer = true;
};
}

// A server that answers AUTH TLS with a refusal: "TLS required" cuts before the user name, "TLS
// if offered" logs in as before.
TEST_F(TlsTest, APlainOnlyServerIsRefusedWhenTlsIsRequiredAndUsedWhenOnlyOffered)
{
    const struct {
        FtpSecurity security;
        bool loggedIn;
        QList<QByteArray> wire;
    } cases[] = {
        {FtpSecurity::Required, false, {"AUTH TLS"}},
        {FtpSecurity::IfOffered, true, {"AUTH TLS", "USER u", "PASS p"}},
        {FtpSecurity::Plain, true, {"USER u", "PASS p"}},
    };
    for (const auto& c : cases) {
        FakeServer fake;
        fake.standardLogin();
        fake.on("AUTH", [&fake](const QByteArray&) { fake.send("500 'AUTH TLS': command not understood.\r\n"); });
        rec.messages.clear();
        engine.setSecurity(c.security);
        EXPECT_EQ(connectTo(fake.port(), QStringLiteral("u"), QStringLiteral("p")), c.loggedIn);
        spinUntil([&] { return fake.lines.size() >= c.wire.size(); }, 2000);
        EXPECT_EQ(fake.lines, c.wire);
        EXPECT_FALSE(engine.controlEncrypted());
        EXPECT_FALSE(engine.dataProtected());
        EXPECT_EQ(engine.isConnected(), c.loggedIn);
        if (c.loggedIn) {
            EXPECT_TRUE(rec.messages.isEmpty());
        } else {
            ASSERT_EQ(rec.messages.size(), 1);
            EXPECT_EQ(rec.messages[0], QStringLiteral("The server 127.0.0.1 does not offer a secure connection; it answered:\r"
                                                      "500 'AUTH TLS': command not understood.\r\rThis connection asks for TLS, "
                                                      "so it has been cut and your user name and password were not sent.|16|") +
                                           title);
            EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server"));
        }
        engine.FtpDisconnect();
    }
    EXPECT_TRUE(questions.isEmpty());
}

// The same refusal from a real plain-only server.
TEST_F(TlsTest, TlsRequiredAgainstPlainPyftpdlibSendsNoUserName)
{
    FtpServer server(FtpServer::Pyftpdlib);
    startTls(server);
    engine.setSecurity(FtpSecurity::Required);
    EXPECT_FALSE(connectTo(server.port(), server.user(), server.password()));
    EXPECT_FALSE(engine.isConnected());
    EXPECT_FALSE(rec.logHas(QStringLiteral("331")));  // USER never went out
    EXPECT_FALSE(rec.logHas(QStringLiteral("230")));
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_TRUE(rec.messages[0].startsWith(QStringLiteral("The server 127.0.0.1 does not offer a secure connection; it answered:\r500 ")))
        << rec.messages[0].toStdString();
}

// Peers that break off during the TLS start: each ends the login, sends no user name, and
// leaves no wait behind.
TEST_F(TlsTest, APeerThatBreaksOffDuringTheTlsStartEndsTheLogin)
{
    const struct {
        const char* name;
        std::function<void(FakeServer&)> onAuth;
        bool cutByUser;
    } cases[] = {
        {"garbage instead of a handshake", [](FakeServer& f) {
             f.send("234 Go ahead\r\n");
             QTimer::singleShot(300, &f, [&f] { f.send("this is not TLS at all\r\n"); });
         }, false},
        {"closes after 234", [](FakeServer& f) {
             f.send("234 Go ahead\r\n");
             f.closeControl();
         }, false},
        {"resets after 234", [](FakeServer& f) {
             f.send("234 Go ahead\r\n");
             FakeServer::reset(f.client);
         }, false},
        {"never answers AUTH", [](FakeServer&) {}, true},
        {"234 and then silence", [](FakeServer& f) { f.send("234 Go ahead\r\n"); }, true},
    };
    engine.setSecurity(FtpSecurity::Required);
    for (const auto& c : cases) {
        FakeServer fake;
        fake.onConnect = [&fake] { fake.send("220 Fake ready\r\n"); };
        fake.on("AUTH", [&](const QByteArray&) { c.onAuth(fake); });
        engine.setPort(fake.port());
        CutWhen guard(engine, [&] { return c.cutByUser && fake.lines.size() == 1; }, 15000);
        EXPECT_FALSE(engine.FtpConnect(host, QStringLiteral("u"), QStringLiteral("p"))) << c.name;
        EXPECT_FALSE(guard.timedOut) << c.name;
        EXPECT_EQ(guard.cut(), c.cutByUser) << c.name;
        EXPECT_FALSE(engine.isConnected()) << c.name;
        EXPECT_EQ(engine.activeWaits(), 0) << c.name;
        EXPECT_EQ(fake.lines, QList<QByteArray>{"AUTH TLS"}) << c.name;
        EXPECT_EQ(rec.status, QStringLiteral("Disconnected from Server")) << c.name;
    }
    EXPECT_TRUE(questions.isEmpty());
}

// The first connection asks once and remembers; a "No" is remembered too; a changed
// certificate is refused before the password goes out.
TEST_F(TlsTest, TheCertificateIsAskedOnceRememberedAndAChangeRefused)
{
    FtpServer first(FtpServer::VsftpdTls);
    startTls(first);
    engine.setSecurity(FtpSecurity::Required);

    // "No": nothing sent, the refusal remembered, not asked again.
    answer = false;
    EXPECT_FALSE(connectTo(first.port(), first.user(), first.password()));
    ASSERT_EQ(questions.size(), 1);
    EXPECT_TRUE(questions[0].startsWith(QStringLiteral("The server 127.0.0.1 shows a certificate that this computer cannot check (")))
        << questions[0].toStdString();
    EXPECT_TRUE(questions[0].contains(QStringLiteral("SHA-256 fingerprint:\r") + first.fingerprint() + QStringLiteral("\r")));
    EXPECT_FALSE(rec.logHas(QStringLiteral("331")));
    EXPECT_EQ(trustFile(), ("127.0.0.1 refuse " + first.fingerprint() + "\r\n").toLatin1());
    rec.messages.clear();
    EXPECT_FALSE(connectTo(first.port(), first.user(), first.password()));
    EXPECT_EQ(questions.size(), 1);
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_TRUE(rec.messages[0].startsWith(QStringLiteral("You refused this certificate of 127.0.0.1 before:\r") + first.fingerprint()));

    // Trusted once asked again (the refusal removed from the file), then never asked.
    ASSERT_TRUE(FtpTrust::remember(host, FtpTrust::Answer::None, QString()));
    EXPECT_EQ(trustFile(), QByteArray());
    answer = true;
    questions.clear();
    rec.messages.clear();
    EXPECT_TRUE(connectTo(first.port(), first.user(), first.password())) << rec.messages.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(engine.controlEncrypted());
    EXPECT_EQ(questions.size(), 1);
    EXPECT_EQ(trustFile(), ("127.0.0.1 trust " + first.fingerprint() + "\r\n").toLatin1());
    engine.FtpDisconnect();
    EXPECT_TRUE(connectTo(first.port(), first.user(), first.password())) << rec.messages.join(QLatin1Char('|')).toStdString() << rec.lines.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(questions.size(), 1);
    EXPECT_TRUE(rec.messages.isEmpty());
    engine.FtpDisconnect();

    // Another server on the same host with a certificate of its own: refused, nothing asked.
    FtpServer second(FtpServer::VsftpdTls);
    startTls(second);
    ASSERT_NE(first.fingerprint(), second.fingerprint());
    rec.lines.clear();
    EXPECT_FALSE(connectTo(second.port(), second.user(), second.password()));
    EXPECT_EQ(questions.size(), 1);
    EXPECT_FALSE(engine.isConnected());
    EXPECT_FALSE(rec.logHas(QStringLiteral("331")));
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_TRUE(rec.messages[0].startsWith(QStringLiteral("The certificate of 127.0.0.1 has changed since you trusted it.\r\rTrusted:\r") +
                                           first.fingerprint() + QStringLiteral("\rNow shown:\r") + second.fingerprint() +
                                           QStringLiteral("\r\rSomeone may be listening in. The connection has been cut and your password was not sent.")))
        << rec.messages[0].toStdString();
    EXPECT_TRUE(rec.messages[0].endsWith(QStringLiteral("|16|") + title));
    // The trusted answer stays as it was.
    EXPECT_EQ(trustFile(), ("127.0.0.1 trust " + first.fingerprint() + "\r\n").toLatin1());
}

// Other hosts' lines survive an answer about one host.
TEST_F(TlsTest, TheTrustFileKeepsOtherHosts)
{
    ASSERT_TRUE(FtpTrust::remember(QStringLiteral("a.example"), FtpTrust::Answer::Trusted, QStringLiteral("AA:01")));
    ASSERT_TRUE(FtpTrust::remember(QStringLiteral("b.example"), FtpTrust::Answer::Refused, QStringLiteral("BB:02")));
    ASSERT_TRUE(FtpTrust::remember(QStringLiteral("a.example"), FtpTrust::Answer::Trusted, QStringLiteral("AA:03")));
    EXPECT_EQ(trustFile(), QByteArray("b.example refuse BB:02\r\na.example trust AA:03\r\n"));
    EXPECT_EQ(FtpTrust::lookUp(QStringLiteral("A.EXAMPLE")).fingerprint, QStringLiteral("AA:03"));
    EXPECT_EQ(FtpTrust::lookUp(QStringLiteral("b.example")).answer, FtpTrust::Answer::Refused);
    EXPECT_EQ(FtpTrust::lookUp(QStringLiteral("c.example")).answer, FtpTrust::Answer::None);
}

namespace {
// A scripted TLS peer with the usual login; the data connections may show another certificate.
void secureFake(FakeServer& fake, int dataCertificate = 0)
{
    QString why;
    const TestCertificate* shown = sharedCertificate(0, &why);
    const TestCertificate* onData = sharedCertificate(dataCertificate, &why);
    ASSERT_TRUE(shown && onData) << why.toStdString();
    fake.standardLogin();
    ASSERT_TRUE(fake.secure(*shown, onData));
}
}

// A server that takes AUTH TLS but will not protect the data connections: "TLS required" cuts
// with the server's answer, "TLS if offered" lists the folder over a plain data connection.
TEST_F(TlsTest, AServerRefusingProtPIsCutWhenRequiredAndListsInTheClearWhenOffered)
{
    for (const FtpSecurity security : {FtpSecurity::Required, FtpSecurity::IfOffered}) {
        const bool required = security == FtpSecurity::Required;
        FakeServer fake;
        secureFake(fake);
        fake.on("PROT", [&fake](const QByteArray&) { fake.send("536 PROT P not supported here.\r\n"); });
        fake.on("PASV", [&fake](const QByteArray&) { fake.send(fake.pasv()); });
        fake.on("LIST", [&fake](const QByteArray&) {
            fake.send("150 Here it comes\r\n");
            spinUntil([&fake] { return fake.data != nullptr; }, 5000);
            fake.data->write("-rw-r--r-- 1 u g 5 Jan 1 00:00 page.htm\r\n");
            fake.data->disconnectFromHost();
            fake.send("226 Done\r\n");
        });
        rec.messages.clear();
        rec.listing.clear();
        engine.setSecurity(security);
        EXPECT_EQ(connectTo(fake.port(), QStringLiteral("u"), QStringLiteral("p")), !required);
        EXPECT_TRUE(engine.controlEncrypted() || required);
        EXPECT_FALSE(engine.dataProtected());
        if (required) {
            EXPECT_FALSE(engine.isConnected());
            ASSERT_EQ(rec.messages.size(), 1);
            EXPECT_EQ(rec.messages[0], QStringLiteral("The server 127.0.0.1 would not protect the transfers of files; it answered:\r"
                                                      "536 PROT P not supported here.\r\rThis connection asks for TLS, so it has "
                                                      "been cut.|16|") +
                                           title);
            EXPECT_FALSE(fake.lines.contains(QByteArray("PASV")));
            continue;
        }
        EXPECT_TRUE(rec.messages.isEmpty());
        CutWhen guard(engine, nullptr, 10000);
        engine.ViewFiles();
        EXPECT_FALSE(guard.timedOut);
        EXPECT_TRUE(spinUntil([this] { return rec.listing.contains(QStringLiteral("page.htm")); }));
        EXPECT_EQ(fake.dataConnections, 1);
        engine.FtpDisconnect();
    }
}

// A data connection that shows another certificate than the server the user trusted is
// someone else: it gets no byte of the file, and the user is told.
TEST_F(TlsTest, ADataConnectionWithAnotherCertificateGetsNothing)
{
    FakeServer fake;
    secureFake(fake, 1);
    fake.on("TYPE", [&fake](const QByteArray&) { fake.send("200 Binary\r\n"); });
    fake.on("PASV", [&fake](const QByteArray&) { fake.send(fake.pasv()); });
    fake.on("STOR", [&fake](const QByteArray&) { fake.send("150 Ok to send data.\r\n"); });
    engine.setSecurity(FtpSecurity::Required);
    ASSERT_TRUE(connectTo(fake.port(), QStringLiteral("u"), QStringLiteral("p")));
    ASSERT_TRUE(engine.dataProtected());
    EXPECT_EQ(questions.size(), 1);
    QTemporaryDir dir;
    const QString source = dir.path() + QStringLiteral("/secret.txt");
    QFile f(source);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("the user's page");
    f.close();
    rec.messages.clear();
    {
        CutWhen cut(engine, [this] { return !rec.dataErrors.isEmpty(); });
        engine.SendFile(source, QStringLiteral("secret.txt"));
        EXPECT_TRUE(cut.cut());
    }
    EXPECT_EQ(rec.dataErrors, QList<int>{10000});
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_EQ(rec.messages[0], QStringLiteral("Error: 10000\rThe data connection showed a certificate other than the server's, "
                                              "Connection Will be cut off.|0|Winsock2 Error:"));
    spinUntil([] { return false; }, 200);
    EXPECT_EQ(fake.received, QByteArray());
    EXPECT_EQ(rec.completes, 0);
    EXPECT_EQ(questions.size(), 1) << "the data connection asks nothing of its own";
}
