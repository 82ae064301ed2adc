#pragma once
#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <memory>

// Real FTP servers for the tests, each started on 127.0.0.1 at a free port with a throw-away
// folder, and stopped (by its own process id) when the object goes.
// A self-signed certificate for 127.0.0.1, made with openssl: the files and the SHA-256
// fingerprint as openssl prints it ("AB:CD:...").
struct TestCertificate {
    QString certificate;
    QString key;
    QString fingerprint;
};
// Makes one in the folder; false with the reason when openssl failed.
bool makeCertificate(const QString& folder, TestCertificate* made, QString* why);
// Certificates made once per test program and kept to its end; each number is another one.
const TestCertificate* sharedCertificate(int which, QString* why);

class FtpServer {
public:
    // VsftpdTls: vsftpd with ssl_enable=YES and a self-signed certificate that start() makes
    // with openssl; data connections must resume the control connection's TLS session, as
    // vsftpd requires by default.
    enum Kind { Pyftpdlib, Vsftpd, VsftpdTls };
    explicit FtpServer(Kind kind);
    ~FtpServer();
    FtpServer(const FtpServer&) = delete;
    FtpServer& operator=(const FtpServer&) = delete;

    // False (with the reason) when the server could not be started here.
    bool start(QString* why);
    quint16 port() const { return serverPort; }
    QString user() const;
    QString password() const;
    // The folder that uploads land in and downloads come from.
    QString root() const;
    // The remote name an upload of this name goes to (vsftpd takes uploads below its root).
    QString upload(const QString& name) const;
    QString name() const { return kind == Pyftpdlib ? QStringLiteral("pyftpdlib") : QStringLiteral("vsftpd"); }
    // The certificate's fingerprint; TLS only.
    QString fingerprint() const { return certificate.fingerprint; }
    QByteArray readFile(const QString& name) const;
    void writeFile(const QString& name, const QByteArray& bytes) const;
    // What the server printed (for failure messages).
    QString output() const;

private:
    Kind kind;
    QTemporaryDir dir;
    QProcess process;
    quint16 serverPort = 0;
    TestCertificate certificate;
};

// A port nothing listens on right now.
quint16 freePort();
// Random bytes, the same for the same seed.
QByteArray randomBytes(qsizetype size, quint32 seed);
