#include "platform/Application.h"
#include "shell/Main.h"
#include "shell/frmMain.h"

int main(int argc, char** argv)
{
    VelloroApplication::prepare();
    VelloroApplication app(argc, argv);
    Main();
    frmMain* main = frmMain::loaded();
    if (!main)
        return 0;  // the settings were reset: the next start is a normal one
    QObject::connect(main, &QObject::destroyed, &app, &QCoreApplication::quit);
    return app.exec();
}
