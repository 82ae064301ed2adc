#include "app/CommandLine.h"
#include "app/Main.h"
#include "documents/OpenSave.h"
#include "platform/Application.h"
#include "platform/EventProcedure.h"
#include "platform/RuntimeError.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

int main(int argc, char** argv)
{
    // The command-line tools run without a window, and so without a display.
    if (const std::optional<int> status = CommandLine::runFromMain(argc, argv))
        return *status;
    VelloroApplication app(argc, argv);
    // The desktop entry and the icon an installation puts in place.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.velloro.Velloro"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("velloro")));
    Main();
    frmMain* main = frmMain::loaded();
    if (!main)
        return 0;  // the settings were reset: the next start is a normal one
    QObject::connect(main, &QObject::destroyed, &app, &QCoreApplication::quit);
    // Files named on the command line (as a desktop's "Open with" passes them) open as pages.
    for (const QString& arg : app.arguments().mid(1)) {
        if (!QFileInfo(arg).isFile())
            continue;
        try {
            OpenDocument(QFileInfo(arg).absoluteFilePath(), LoadAs::Page, 2);
        } catch (const RuntimeError& e) {
            ReportRunTimeError(e);
        }
    }
    return app.exec();
}
