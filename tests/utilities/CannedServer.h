#pragma once
// A web server of canned answers on a free port of 127.0.0.1, living as long as the test: the
// pages it is given, and the awkward answers of a real network (redirects, a loop of them,
// silence, a page that never ends, a 404, TLS spoken to it).
#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

class CannedServer : public QObject {
public:
    CannedServer()
    {
        server.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = server.nextPendingConnection())
                QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] { answer(s); });
        });
    }
    QString url(const char* path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(server.serverPort()).arg(QString::fromLatin1(path));
    }
    quint16 port() const { return server.serverPort(); }
    int requests = 0;
    // Path to the headers (each ended by CR LF) and body of a "200 OK" answer.
    struct Page {
        QByteArray headers, body;
    };
    QHash<QByteArray, Page> pages;

private:
    static void reply(QTcpSocket* s, const QByteArray& status, const QByteArray& headers, const QByteArray& body)
    {
        s->write("HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: " + QByteArray::number(body.size()) +
                 "\r\nConnection: close\r\n\r\n" + body);
        s->disconnectFromHost();
    }
    void answer(QTcpSocket* s)
    {
        QByteArray& in = pending[s];
        in += s->readAll();
        if (!in.startsWith("GET ")) {  // not HTTP at all: a TLS hello
            s->write("this is no TLS server\r\n");
            s->disconnectFromHost();
            return;
        }
        if (!in.contains("\r\n\r\n"))
            return;
        ++requests;
        const QByteArray path = in.split(' ').value(1);
        if (pages.contains(path))
            reply(s, "200 OK", pages.value(path).headers, pages.value(path).body);
        else if (path == "/moved")
            reply(s, "301 Moved Permanently", "Location: /hop\r\n", {});
        else if (path == "/hop")
            reply(s, "302 Found", "Location: " + url("/latin").toLatin1() + "\r\n", {});
        else if (path == "/loop")
            reply(s, "302 Found", "Location: /loop\r\n", {});
        else if (path.startsWith("/silent")) {
            // Accepts and never answers.
        } else if (path == "/endless") {
            s->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n");
            auto* t = new QTimer(s);
            QObject::connect(t, &QTimer::timeout, s, [s] { s->write(QByteArray(64 * 1024, 'x')); });
            t->start(5);
        } else
            reply(s, "404 Not Found", "Content-Type: text/html\r\n", "<h1>Not Found</h1>");
    }
    QTcpServer server;
    QHash<QTcpSocket*, QByteArray> pending;
};
