#include "shell/Main.h"

#include "documents/DocumentWindow.h"
#include "documents/OpenSave.h"
#include "documents/PageGenerator.h"
#include "documents/SyntaxLanguages.h"
#include "documents/findform.h"
#include "platform/CheckValue.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "platform/StartupSteps.h"
#include "ftp/ftpnormal.h"
#include "report/frmReport.h"
#include "shell/AboutFORM.h"
#include "shell/AppProperties.h"
#include "shell/Options.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>

namespace {
void registerShellForms()
{
    Forms::registerFactory(QStringLiteral("frmSplash"), [] { return new frmSplash; });
    Forms::registerFactory(QStringLiteral("frmMain"), [] { return new frmMain; });
    Forms::registerFactory(QStringLiteral("Options"), [] { return new Options; });
    Forms::registerFactory(QStringLiteral("Startup"), [] { return new Startup; });
    Forms::registerFactory(QStringLiteral("AboutFORM"), [] { return new AboutFORM; });
    Forms::registerFactory(QStringLiteral("AppProperties"), [] { return new AppProperties; });
}

// The menu keys whose branches live in the shell and the page generator.
void registerShellCommands()
{
    frmMain::registerCommand(QStringLiteral("Exit"), [] { CloseAllWindows(); });
    frmMain::registerCommand(QStringLiteral("Main New Window"), [] { showForm(QStringLiteral("Startup")); });
    frmMain::registerCommand(QStringLiteral("Quick html Page"), [] { GenerateWebPage(); });
    frmMain::registerCommand(QStringLiteral("Quick Split html Page"), [] { GenerateSplitPage(); });
    frmMain::registerCommand(QStringLiteral("Save Layout"), [] { form<AppProperties>()->SaveProperties(); });
    frmMain::registerCommand(QStringLiteral("Load Layout"), [] { form<AppProperties>()->LoadProperties(); });
    frmMain::registerCommand(QStringLiteral("About"), [] { showForm(QStringLiteral("AboutFORM")); });
}

void fillMainLists()
{
    Options* options = form<Options>();
    options->SSTART->clear();
    options->SSTART->addItems({QStringLiteral("Maximized"), QStringLiteral("Minimized"), QStringLiteral("Normal")});
    options->SSTART->setCurrentText(QStringLiteral("Maximized"));
    StartupSteps::run(StartupSteps::MainLists);
}
}

void showForm(const QString& name)
{
    QWidget* w = Forms::get(name);
    w->show();
    w->raise();
    w->activateWindow();
}

void InitialiseApplication()
{
    fillMainLists();
    StartupSteps::run(StartupSteps::Panels);
    StartupSteps::run(StartupSteps::ReferenceTrees);
    StartupSteps::run(StartupSteps::MainMenu);
    StartupSteps::run(StartupSteps::RemainingCombos);
    DefinePhpLanguage();
    DefineJavaScriptLanguage();
    DefineDelphiLanguage();
    DefineBasicLanguage();
    StartupSteps::run(StartupSteps::FilePattern);

    // The settings; a missing file resets them and ends the program here.
    if (!LoadDetails())
        return;
    Options* options = form<Options>();

    // The start screen takes two fields. Its first touch loads it (and shows it while its
    // tick is set); assigning the tick runs its click handler, which hides it again at 0.
    Startup* startup = form<Startup>();
    setCheckValue(startup->CSS, checkValue(options->CSS));
    setCheckValue(startup->Check1, checkValue(options->LNEW));

    frmMain* main = frmMain::instance();
    main->Tooltipframe->setVisible(checkValue(options->ToolTip) == 1);

    if (checkValue(options->SFORM) == 1) {
        CreateStartupPage();
        ApplyStartWindowState();
    }

    StartupSteps::run(StartupSteps::FontList);
    StartupSteps::run(StartupSteps::FileList);
}

void Main()
{
    registerShellForms();
    registerShellCommands();
    registerFindForms();
    registerDocumentForms();
    registerDocumentCommands();
    registerReportForms();
    registerFtpForms();

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

bool CloseAllWindows()
{
    static bool running = false;
    if (running)
        return false;
    running = true;
    struct Done {
        ~Done() { running = false; }
    } done;
    // The folder tree needs no giving back: it is an ordinary widget of the file panel.
    int i = Forms::count();
    while (i >= 1) {
        const QList<QWidget*> all = Forms::loaded();
        if (i - 1 >= all.size()) {
            --i;
            continue;
        }
        QWidget* w = all[i - 1];
        // The save question speaks of the active document: make the one that closes active.
        if (auto* doc = qobject_cast<DocumentWindow*>(w))
            if (frmMain* main = frmMain::loaded())
                main->activate(doc);
        if (!Forms::unload(w) || Forms::count() == i)
            return false;
        --i;
    }
    return true;
}
