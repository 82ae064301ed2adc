#include "FtpServers.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <map>
#include <pwd.h>
#include <unistd.h>

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

QByteArray randomBytes(qsizetype size, quint32 seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator gen(seed);
    qsizetype i = 0;
    for (; i + 4 <= size; i += 4) {
        const quint32 v = gen.generate();
        memcpy(bytes.data() + i, &v, 4);
    }
    for (; i < size; ++i)
        bytes[i] = char(gen.generate());
    return bytes;
}

FtpServer::FtpServer(Kind k) : kind(k)
{
    process.setProcessChannelMode(QProcess::MergedChannels);
}

FtpServer::~FtpServer()
{
    if (process.state() != QProcess::NotRunning) {
        process.terminate();
        if (!process.waitForFinished(3000)) {
            process.kill();
            process.waitForFinished(3000);
        }
    }
}

QString FtpServer::user() const { return kind == Pyftpdlib ? QStringLiteral("velloro") : QStringLiteral("anonymous"); }
QString FtpServer::password() const { return kind == Pyftpdlib ? QStringLiteral("s3cret") : QStringLiteral("guest@"); }
QString FtpServer::upload(const QString& name) const
{
    return kind == Pyftpdlib ? name : QStringLiteral("incoming/") + name;
}

bool makeCertificate(const QString& folder, TestCertificate* made, QString* why)
{
    const auto run = [&](const QStringList& args, QByteArray* out) {
        QProcess p;
        p.start(QStringLiteral("openssl"), args);
        const bool ok = p.waitForFinished(30000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
        if (out)
            *out = p.readAllStandardOutput();
        if (!ok)
            *why = QStringLiteral("openssl failed (scripts/install-deps installs it): ") + QString::fromLocal8Bit(p.readAllStandardError());
        return ok;
    };
    made->certificate = folder + QStringLiteral("/cert.pem");
    made->key = folder + QStringLiteral("/key.pem");
    QByteArray out;
    if (!run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"), QStringLiteral("rsa:2048"), QStringLiteral("-nodes"),
              QStringLiteral("-keyout"), made->key, QStringLiteral("-out"), made->certificate, QStringLiteral("-days"),
              QStringLiteral("2"), QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1")},
             nullptr) ||
        !run({QStringLiteral("x509"), QStringLiteral("-noout"), QStringLiteral("-fingerprint"), QStringLiteral("-sha256"),
              QStringLiteral("-in"), made->certificate},
             &out))
        return false;
    // "sha256 Fingerprint=AB:CD:..."
    made->fingerprint = QString::fromLatin1(out).section(QLatin1Char('='), 1).trimmed();
    return true;
}

const TestCertificate* sharedCertificate(int which, QString* why)
{
    static QTemporaryDir folder;
    static std::map<int, TestCertificate> made;
    if (const auto it = made.find(which); it != made.end())
        return &it->second;
    const QString sub = folder.path() + QLatin1Char('/') + QString::number(which);
    TestCertificate c;
    if (!QDir().mkpath(sub) || !makeCertificate(sub, &c, why))
        return nullptr;
    return &made.emplace(which, c).first->second;
}

QString FtpServer::root() const { return dir.path() + QStringLiteral("/root"); }
QString FtpServer::output() const { return QString::fromLocal8Bit(const_cast<QProcess&>(process).readAll()); }

QByteArray FtpServer::readFile(const QString& name) const
{
    QFile f(root() + QLatin1Char('/') + name);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void FtpServer::writeFile(const QString& name, const QByteArray& bytes) const
{
    QFile f(root() + QLatin1Char('/') + name);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
    f.close();
    f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
}

bool FtpServer::start(QString* why)
{
    QDir().mkpath(root());
    serverPort = freePort();
    const quint16 pasv = freePort();
    if (kind == Pyftpdlib) {
        const QString python = QStringLiteral("/usr/bin/python3");
        process.start(python, {QStringLiteral("-m"), QStringLiteral("pyftpdlib"), QStringLiteral("-i"), QStringLiteral("127.0.0.1"),
                               QStringLiteral("-p"), QString::number(serverPort), QStringLiteral("-w"), QStringLiteral("-d"), root(),
                               QStringLiteral("-u"), user(), QStringLiteral("-P"), password()});
    } else {
        if (!QFile::exists(QStringLiteral("/usr/sbin/vsftpd"))) {
            *why = QStringLiteral("vsftpd is not installed (scripts/install-deps installs it)");
            return false;
        }
        // Anonymous login: the server refuses a root it could write to, so uploads go to a
        // folder below it; as root the server drops to the "ftp" user that its package creates,
        // so that folder belongs to that user.
        const QString empty = dir.path() + QStringLiteral("/empty");
        QDir().mkpath(empty);
        const QString incoming = root() + QStringLiteral("/incoming");
        QDir().mkpath(incoming);
        if (getuid() == 0) {
            if (const passwd* pw = getpwnam("ftp"))
                if (::chown(incoming.toLocal8Bit().constData(), pw->pw_uid, pw->pw_gid) != 0)
                    qWarning("cannot hand the upload folder to the ftp user");
        }
        QFile::setPermissions(root(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                                          QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                          QFileDevice::ExeOther);
        QFile::setPermissions(dir.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                                              QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                              QFileDevice::ExeOther);
        QString conf = QStringLiteral(
            "listen=YES\nlisten_ipv6=NO\nlisten_address=127.0.0.1\nlisten_port=%1\nbackground=NO\n"
            "anonymous_enable=YES\nlocal_enable=NO\nwrite_enable=YES\nanon_upload_enable=YES\n"
            "anon_other_write_enable=YES\nanon_mkdir_write_enable=YES\nanon_umask=022\nanon_root=%2\n"
            "ftp_username=ftp\npasv_enable=YES\npasv_address=127.0.0.1\n"
            "pasv_min_port=%3\npasv_max_port=%4\nsecure_chroot_dir=%5\nxferlog_enable=NO\n"
            "dirmessage_enable=NO\nseccomp_sandbox=NO\n")
                           .arg(serverPort)
                           .arg(root())
                           .arg(pasv)
                           .arg(std::min(65535, pasv + 100))
                           .arg(empty);
        if (getuid() != 0)
            conf += QStringLiteral("run_as_launching_user=YES\n");
        if (kind == VsftpdTls) {
            if (!makeCertificate(dir.path(), &certificate, why))
                return false;
            conf += QStringLiteral("ssl_enable=YES\nallow_anon_ssl=YES\nrsa_cert_file=%1/cert.pem\nrsa_private_key_file=%1/key.pem\n")
                        .arg(dir.path());
        } else {
            conf += QStringLiteral("ssl_enable=NO\n");
        }
        const QString confPath = dir.path() + QStringLiteral("/vsftpd.conf");
        QFile f(confPath);
        if (!f.open(QIODevice::WriteOnly)) {
            *why = QStringLiteral("cannot write the vsftpd configuration");
            return false;
        }
        f.write(conf.toUtf8());
        f.close();
        process.start(QStringLiteral("/usr/sbin/vsftpd"), {confPath});
    }
    if (!process.waitForStarted(5000)) {
        *why = name() + QStringLiteral(" did not start: ") + process.errorString();
        return false;
    }
    // Ready when it greets a client.
    const QDeadlineTimer deadline(15000);
    while (!deadline.hasExpired()) {
        if (process.state() == QProcess::NotRunning) {
            *why = name() + QStringLiteral(" ended: ") + output();
            return false;
        }
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, serverPort);
        if (probe.waitForConnected(200) && probe.waitForReadyRead(2000) && probe.readAll().startsWith("220"))
            return true;
        QThread::msleep(50);
    }
    *why = name() + QStringLiteral(" never answered: ") + output();
    return false;
}
