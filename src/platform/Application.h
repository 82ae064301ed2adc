#pragma once
#include <QApplication>

// The application object with the program-wide net: a RuntimeError that escapes an event
// handler shows the platform's "Run-time error 'N':" box, and the process goes on, so the
// user's open documents are never lost.
class VelloroApplication : public QApplication {
    Q_OBJECT
public:
    VelloroApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;

};
