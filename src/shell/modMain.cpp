#include "shell/modMain.h"

#include "documents/DocumentWindow.h"
#include "documents/OpenSave.h"
#include "documents/PageGenerator.h"
#include "documents/SyntaxLanguages.h"
#include "platform/CheckValue.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "platform/StartupSteps.h"
#include "services/Commands.h"
#include "services/Settings.h"
#include "shell/AboutFORM.h"
#include "shell/AppProperties.h"
#include "shell/Form2.h"
#include "shell/MenuCommands.h"
#include "shell/Options.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>

namespace {
void fillMainLists()
{
    frmMain* main = frmMain::instance();
    main->Combo1->clear();
    main->Combo1->addItems({QStringLiteral("1  (8pt)"), QStringLiteral("2  (10pt)"), QStringLiteral("3  (12pt)"),
                            QStringLiteral("4  (14pt)"), QStringLiteral("5  (18pt)"), QStringLiteral("6  (24pt)"),
                            QStringLiteral("7  (36pt)")});
    main->Combo3->clear();
    main->Combo3->addItems({QStringLiteral("[*.*]  All Files"), QStringLiteral("[*.html]  .html Files"),
                            QStringLiteral("[*.htm]  .htm Files"), QStringLiteral("[*.txt]  Text Files"),
                            QStringLiteral("[*.css]  Style Sheet's"), QStringLiteral("[*.tmpl]  Velloro Template's"),
                            QStringLiteral("[*.VB]  Visual Basic Files"), QStringLiteral("[*.ASP]  ASP Files"),
                            QStringLiteral("[*.ASPX]  ASP.NET Files"), QStringLiteral("[*.C]  C Files"),
                            QStringLiteral("[*.C++]  C++ Files"), QStringLiteral("[*.JAVA]  JAVA Files"),
                            QStringLiteral("[*.PHP]  PHP Files"), QStringLiteral("[*.Perl]  Perl Files"),
                            QStringLiteral("[*.VBscript]  VBscript Files")});
    main->openchoice->clear();
    main->openchoice->addItems({QStringLiteral("HTML"), QStringLiteral("Notepad"), QStringLiteral("Split HTML")});
    Options* options = form<Options>();
    options->SSTART->clear();
    options->SSTART->addItems({QStringLiteral("Maximized"), QStringLiteral("Minimized"), QStringLiteral("Normal")});
    options->SSTART->setCurrentText(QStringLiteral("Maximized"));
    StartupSteps::run(StartupSteps::MainLists);
}
}

void InitialiseApplication()
{
    frmMain* main = frmMain::instance();
    fillMainLists();
    main->showPanel(main->frfiles);
    StartupSteps::run(StartupSteps::Panels);
    StartupSteps::run(StartupSteps::ReferenceTrees);
    main->buildMenu();
    StartupSteps::run(StartupSteps::MainMenu);
    main->Combo4->clear();
    for (int level = 1; level <= 6; ++level)
        main->Combo4->addItem(QStringLiteral("Heading %1").arg(level));
    StartupSteps::run(StartupSteps::RemainingCombos);
    DefinePhpLanguage();
    DefineJavaScriptLanguage();
    DefineDelphiLanguage();
    DefineBasicLanguage();
    main->File1->setPattern(QStringLiteral("*.*"));
    StartupSteps::run(StartupSteps::FilePattern);

    // The settings; a missing file resets them and ends the program here.
    if (!LoadDetails())
        return;
    const DetailsRecord& settings = Settings::details();

    // The start screen takes two fields. Its first touch loads it (and shows it while its
    // tick is set); assigning the tick runs its click handler, which hides it again at 0.
    Startup* startup = form<Startup>();
    setCheckValue(startup->CSS, settings.CSS);
    setCheckValue(startup->Check1, settings.LNEW);

    main->Tooltipframe->setVisible(settings.ToolTip == 1);

    if (settings.SFORM == 1) {
        CreateStartupPage();
        ApplyStartWindowState();
    }

    main->Combo2->clear();
    main->Combo2->addItems(QFontDatabase::families());
    main->Combo2->setCurrentText(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
    StartupSteps::run(StartupSteps::FontList);
    // The folder tree starts in the user's own folder; its choice fills the list.
    main->PicBrowse->setPath(QDir::homePath());
    main->File1->setPath(main->PicBrowse->Path());
    main->fillFileList();
    StartupSteps::run(StartupSteps::FileList);
}

void registerShell()
{
    registerForm<frmSplash>();
    registerForm<frmMain>();
    registerForm<Options>();
    registerForm<Startup>();
    registerForm<Form2>();
    registerForm<AboutFORM>();
    registerForm<AppProperties>();

    Commands::add(QStringLiteral("Exit"), [] { CloseAllWindows(); });
    Commands::add(QStringLiteral("Quick html Page"), [] { form<Startup>()->GenerateWebPage(); });
    Commands::add(QStringLiteral("Quick Split html Page"), [] { form<Startup>()->GenerateSplitPage(); });
    // The start screen's two frame layouts, from its frame fields.
    for (const auto& [key, layout] : {std::pair{"frame1", FrameSetText::Layout::Columns}, std::pair{"frame2", FrameSetText::Layout::Rows}})
        Commands::add(QString::fromLatin1(key), [layout] {
            const Startup* s = form<Startup>();
            GenerateFrames(layout, {s->frsp->text(), s->bo->text(), s->frbo->text(), s->frco->text(), s->Text5->text()});
        });
    Commands::add(QStringLiteral("Save Layout"), [] { form<AppProperties>()->SaveProperties(); });
    Commands::add(QStringLiteral("Load Layout"), [] { form<AppProperties>()->LoadProperties(); });
    registerMenuCommands();
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
