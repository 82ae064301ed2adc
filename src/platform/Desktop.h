#pragma once
#include <QString>
#include <QStringList>
#include <functional>

class QUrl;

// What the program hands to the desktop: addresses and files for their default programs, and
// other programs to start. Tests put a recorder in place, so that no browser or file manager
// opens while they run. Failures of the started programs are not reported.
namespace Desktop {
bool openUrl(const QUrl& url);
bool startProgram(const QString& program, const QStringList& arguments = {});

struct Handler {
    std::function<bool(const QUrl&)> openUrl;
    std::function<bool(const QString&, const QStringList&)> startProgram;
};
// An empty handler restores the real desktop.
void setHandler(Handler handler);
}
