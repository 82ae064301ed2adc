#include "platform/Desktop.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace {
Desktop::Handler& current()
{
    static Desktop::Handler handler;
    return handler;
}
}

bool Desktop::openUrl(const QUrl& url)
{
    if (current().openUrl)
        return current().openUrl(url);
    return QDesktopServices::openUrl(url);
}

bool Desktop::startProgram(const QString& program, const QStringList& arguments)
{
    if (current().startProgram)
        return current().startProgram(program, arguments);
    return QProcess::startDetached(program, arguments);
}

void Desktop::setHandler(Handler handler) { current() = std::move(handler); }
