#include "ProgramBench.h"

#include "app/Main.h"
#include "platform/App.h"
#include "platform/ScriptedPrompts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace ProgramBench {
void start(QTemporaryDir& folder)
{
    App::setPathForTesting(folder.path());
    QDir().mkpath(folder.filePath(QStringLiteral("Options")));
    QFile details(folder.filePath(QStringLiteral("Options/Details.dat")));
    details.open(QIODevice::WriteOnly);
    details.write("0\r\n1\r\n0\r\n0\r\n\"Maximized\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n\"HTML\"\r\n255\r\n\"#FF0000\"\r\n"
                  "16711680\r\n\"#0000FF\"\r\n65280\r\n\"#00FF00\"\r\n\"Arial\"\r\n\"5\"\r\n\"MS Sans Serif\"\r\n\"8\"\r\n"
                  "\"Script\"\r\n\"12\"\r\n\"Comic Sans MS\"\r\n\"14\"\r\n\"Lucida Console\"\r\n\"18\"\r\n"
                  "\"Trebuchet MS\"\r\n\"24\"\r\n\".htm\"\r\n\".htm\"\r\n1\r\n");
    details.close();
    ScriptedPrompts::setFailureHandler([](const QString&) {});
    Main();
}
}
