#pragma once
#include "FtpServers.h"

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QFile>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <sys/socket.h>

// Accepts every connection as a TLS-capable socket that starts plain, so one listener serves
// plain FTP and explicit TLS alike.
class FakeListener : public QTcpServer {
public:
    QSslConfiguration tls;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* s = new QSslSocket(this);
        if (!s->setSocketDescriptor(descriptor)) {
            delete s;
            return;
        }
        s->setSslConfiguration(tls);
        addPendingConnection(s);
    }
};

// A scripted FTP peer for behaviours no real server can be told to show: it answers each
// command line through a handler the test gives, and offers a passive data port of its own.
// secure() makes it a TLS server as a real one is: AUTH TLS, PBSZ and PROT P, and data
// connections in TLS once PROT P was given.
class FakeServer : public QObject {
public:
    using Handler = std::function<void(const QByteArray& line)>;

    FakeServer()
    {
        connect(&dribbler, &QTimer::timeout, this, [this] {
            if (trickle.isEmpty()) {
                dribbler.stop();
                return;
            }
            send(trickle.left(1));
            trickle.remove(0, 1);
        });
        control.listen(QHostAddress::LocalHost, 0);
        dataListener.listen(QHostAddress::LocalHost, 0);
        connect(&control, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = control.nextPendingConnection()) {
                client = s;
                connect(s, &QTcpSocket::readyRead, this, [this, s] { readLines(s); });
                if (onConnect)
                    onConnect();
            }
        });
        connect(&dataListener, &QTcpServer::newConnection, this, [this] {
            while (auto* s = static_cast<QSslSocket*>(dataListener.nextPendingConnection())) {
                connect(s, &QTcpSocket::readyRead, this, [this, s] {
                    received += s->readAll();
                    if (onData)
                        onData();
                });
                // A protected connection is handed to the test once its handshake is done.
                const auto ready = [this, s] {
                    data = s;
                    ++dataConnections;
                };
                if (protectData) {
                    connect(s, &QSslSocket::encrypted, this, ready);
                    s->startServerEncryption();
                } else {
                    ready();
                }
            }
        });
    }

    // Offers TLS with the certificate; the data connections may show another one.
    bool secure(const TestCertificate& shown, const TestCertificate* onData = nullptr)
    {
        const auto configuration = [](const TestCertificate& made) {
            QFile c(made.certificate), k(made.key);
            QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
            if (!c.open(QIODevice::ReadOnly) || !k.open(QIODevice::ReadOnly))
                return tls;
            tls.setLocalCertificate(QSslCertificate(c.readAll()));
            tls.setPrivateKey(QSslKey(k.readAll(), QSsl::Rsa));
            return tls;
        };
        control.tls = configuration(shown);
        dataListener.tls = configuration(onData ? *onData : shown);
        on("AUTH", [this](const QByteArray&) {
            send("234 Proceed with negotiation.\r\n");
            static_cast<QSslSocket*>(client.data())->startServerEncryption();
        });
        on("PBSZ", [this](const QByteArray&) { send("200 PBSZ set to 0.\r\n"); });
        on("PROT", [this](const QByteArray& line) {
            protectData = line == "PROT P";
            send("200 PROT now " + QByteArray(protectData ? "Private" : "Clear") + ".\r\n");
        });
        return !control.tls.localCertificate().isNull() && !control.tls.privateKey().isNull();
    }

    quint16 port() const { return control.serverPort(); }
    quint16 dataPort() const { return dataListener.serverPort(); }
    // The 227 line for the own data port, with any address in front.
    QByteArray pasv(const QByteArray& address = "127,0,0,1") const
    {
        return "227 Entering Passive Mode (" + address + "," + QByteArray::number(dataPort() / 256) + "," +
               QByteArray::number(dataPort() % 256) + ").\r\n";
    }

    void send(const QByteArray& bytes)
    {
        if (client) {
            client->write(bytes);
            client->flush();
        }
    }
    // Sends one byte at a time, each in its own segment a millisecond apart.
    // Replies queued this way go out in order, never interleaved.
    void dribble(const QByteArray& bytes)
    {
        trickle += bytes;
        if (!dribbler.isActive())
            dribbler.start(1);
    }
    void closeControl()
    {
        if (client)
            client->disconnectFromHost();
    }
    // Drops a connection with a reset rather than an orderly close.
    static void reset(QTcpSocket* s)
    {
        if (!s)
            return;
        linger l{1, 0};
        ::setsockopt(int(s->socketDescriptor()), SOL_SOCKET, SO_LINGER, &l, sizeof l);
        s->abort();
    }

    // Handlers by verb (a later one replaces an earlier); a line with no handler is recorded only.
    void on(const QByteArray& verb, Handler h)
    {
        for (auto& existing : handlers)
            if (existing.first == verb) {
                existing.second = std::move(h);
                return;
            }
        handlers.append({verb, std::move(h)});
    }
    // The usual login: banner, 331, 230.
    void standardLogin()
    {
        onConnect = [this] { send("220 Fake ready\r\n"); };
        on("USER", [this](const QByteArray&) { send("331 Password please\r\n"); });
        on("PASS", [this](const QByteArray&) { send("230 Logged in\r\n"); });
    }

    QList<QByteArray> lines;
    QByteArray received;
    int dataConnections = 0;
    QPointer<QTcpSocket> client;
    QPointer<QTcpSocket> data;
    std::function<void()> onConnect;
    std::function<void()> onData;

private:
    void readLines(QTcpSocket* s)
    {
        pending += s->readAll();
        for (qsizetype end; (end = pending.indexOf("\r\n")) >= 0;) {
            const QByteArray line = pending.left(end);
            pending.remove(0, end + 2);
            lines.append(line);
            const QByteArray verb = line.split(' ').value(0);
            for (const auto& h : handlers)
                if (h.first == verb) {
                    h.second(line);
                    break;
                }
        }
    }
    FakeListener control;
    FakeListener dataListener;
    bool protectData = false;
    QTimer dribbler;
    QByteArray trickle;
    QByteArray pending;
    QList<QPair<QByteArray, Handler>> handlers;
};
