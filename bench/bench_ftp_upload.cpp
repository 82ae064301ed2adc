// One upload through the program's FTP engine, for bench/ftp.sh and bench/ftps.sh: logs in, sends FTP_FILE as
// FTP_REMOTE and waits for the server's 226. Prints the resident memory once logged in (idle)
// and the peak after the upload, both in KiB.
#include "ftp/FtpEngine.h"
#include "platform/App.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

namespace {
long statusKib(const char* field)
{
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).trimmed().split(' ').value(0).toLong();
    return -1;
}
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QString host = qEnvironmentVariable("FTP_HOST", QStringLiteral("127.0.0.1"));
    FtpEngine engine;
    engine.setPort(quint16(qEnvironmentVariableIntValue("FTP_PORT")));
    // FTP_TLS=1: TLS required, the server's certificate trusted without a question (the script
    // made it a moment ago).
    if (qEnvironmentVariableIntValue("FTP_TLS") == 1) {
        App::setPathForTesting(qEnvironmentVariable("FTP_APP_DIR"));  // the answer is kept there
        engine.setSecurity(FtpSecurity::Required);
        engine.setTrustQuestion([](const QString&) { return true; });
    }
    int completes = 0;
    QObject::connect(&engine, &FtpEngine::SendComplete, [&] { ++completes; });
    QObject::connect(&engine, &FtpEngine::message, [](const QString& text, int, const QString& title) {
        std::fprintf(stderr, "%s %s\n", qPrintable(title), qPrintable(text));
    });
    if (!engine.FtpConnect(host, qEnvironmentVariable("FTP_USER"), qEnvironmentVariable("FTP_PASS"))) {
        std::fprintf(stderr, "login failed\n");
        return 1;
    }
    const long idle = statusKib("VmRSS:");
    engine.SendFile(qEnvironmentVariable("FTP_FILE"), qEnvironmentVariable("FTP_REMOTE"));
    const long peak = statusKib("VmHWM:");
    const bool ok = completes == 1 && engine.isConnected();
    engine.FtpDisconnect();
    std::printf("idle_rss_kib=%ld peak_rss_kib=%ld\n", idle, peak);
    return ok ? 0 : 1;
}
