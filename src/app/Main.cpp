#include "app/Main.h"

#include "colour/Registration.h"
#include "documents/Registration.h"
#include "ftp/Registration.h"
#include "pagetools/Registration.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "reference/Registration.h"
#include "report/Registration.h"
#include "services/Workspace.h"
#include "shell/Options.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/modMain.h"
#include "sites/Registration.h"
#include "spelling/Registration.h"
#include "stylesheets/Registration.h"
#include "utilities/Registration.h"
#include "wizards/Registration.h"

#include <QCoreApplication>

namespace {
// Once per process: the registries keep what was registered.
void registerEverything()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    registerDocuments();
    registerSpelling();
    registerReport();
    registerReference();
    registerFtp();
    registerWizards();
    registerPagetools();
    registerUtilities();
    registerColourTools();
    registerStylesheets();
    registerSites();
    // Last: the menu's own branches fill in what the features have not claimed.
    registerShell();
}
}

void Main()
{
    registerEverything();
    try {
        auto* splash = form<frmSplash>();
        splash->show();
        splash->repaint();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);

        form<frmMain>();
        if (QWidget* s = Forms::find(QStringLiteral("frmSplash")))
            Forms::unload(s);
        if (Startup* startup = loadedForm<Startup>(); startup && startup->isVisible()) {
            startup->raise();
            startup->activateWindow();
        }
    } catch (const RuntimeError& e) {
        // Start-up goes on with whatever was loaded; the status bar says what failed.
        if (QWidget* s = Forms::find(QStringLiteral("frmSplash")))
            Forms::unload(s);
        if (frmMain* main = frmMain::loaded())
            main->setStatusText(1, QStringLiteral("Start-up stopped: Run-time error '%1': %2 (%3)")
                                       .arg(e.number)
                                       .arg(e.description, detailsPath()));
    }

    // The settings reset has ended the program.
    frmMain* main = frmMain::loaded();
    if (!main)
        return;
    main->show();
    if (Startup* startup = loadedForm<Startup>(); startup && startup->isVisible())
        startup->raise();
}

