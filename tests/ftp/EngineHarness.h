#pragma once
#include "ftp/FtpEngine.h"

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QStringList>
#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

// Records what the engine tells its windows, and acts during the engine's waits (which run
// their own event loop, so a test reaches in only through timers).
struct EngineRecorder {
    explicit EngineRecorder(FtpEngine& e) : engine(e)
    {
        QObject::connect(&e, &FtpEngine::replyLine, [this](const QString& l) { lines << l; });
        QObject::connect(&e, &FtpEngine::message, [this](const QString& t, int s, const QString& title) {
            messages << QStringLiteral("%1|%2|%3").arg(t).arg(s).arg(title);
        });
        QObject::connect(&e, &FtpEngine::runtimeError, [this](int n, const QString& d) { errors << QPair<int, QString>(n, d); });
        QObject::connect(&e, &FtpEngine::listingData, [this](const QString& t) { listing += t; });
        QObject::connect(&e, &FtpEngine::statusText, [this](const QString& t) { status = t; });
        QObject::connect(&e, &FtpEngine::serverDown, [this](bool up) { downs << up; });
        QObject::connect(&e, &FtpEngine::SendProgress, [this](qint64 s, qint64 r) { progress << QPair<qint64, qint64>(s, r); });
        QObject::connect(&e, &FtpEngine::SendComplete, [this] { ++completes; });
        QObject::connect(&e, &FtpEngine::Winsock2Error, [this](int n, const QString&) { dataErrors << n; });
    }
    bool logHas(const QString& prefix) const
    {
        for (const QString& l : lines)
            if (l.startsWith(prefix))
                return true;
        return false;
    }
    FtpEngine& engine;
    QStringList lines;
    QStringList messages;
    QList<QPair<int, QString>> errors;
    QString listing;
    QString status;
    QList<bool> downs;
    QList<QPair<qint64, qint64>> progress;
    int completes = 0;
    QList<int> dataErrors;
};

// Cuts the connection once the condition holds (polled while the engine waits), or after a
// deadline, which fails the test: no engine wait has a time-out of its own.
class CutWhen : public QObject {
public:
    CutWhen(FtpEngine& e, std::function<bool()> condition, int deadlineMs = 30000)
        : engine(e), when(std::move(condition))
    {
        elapsed.start();
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, this, [this, deadlineMs] {
            if (fired)
                return;
            if (when && when()) {
                fired = true;
                engine.CutConnection();
            } else if (elapsed.elapsed() > deadlineMs) {
                fired = true;
                timedOut = true;
                engine.CutConnection();
            }
        });
        timer.start();
    }
    ~CutWhen() override { timer.stop(); }
    bool cut() const { return fired && !timedOut; }
    bool timedOut = false;

private:
    FtpEngine& engine;
    std::function<bool()> when;
    QTimer timer;
    QElapsedTimer elapsed;
    bool fired = false;
};

// Lets the event loop run until the condition holds or the time is up.
inline bool spinUntil(const std::function<bool()>& condition, int ms = 10000)
{
    QElapsedTimer t;
    t.start();
    while (!condition()) {
        if (t.elapsed() > ms)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}
