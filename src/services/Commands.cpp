#include "services/Commands.h"

#include "platform/Forms.h"
#include "platform/RuntimeError.h"

#include <QHash>
#include <QStringList>
#include <QWidget>

namespace {
QHash<QString, Commands::Command>& branches()
{
    static QHash<QString, Commands::Command> table;
    return table;
}

// The keys that show a window, and the window's name: the main menu's, the button bars' and
// the context menus' (the notepad's menu has keys of its own, all in lower case).
constexpr std::pair<const char*, const char*> windowTable[] = {
    {"Site Managment", "SiteManagment"},
    {"Quick Note", "Quick"},
    {"CSS Document", "frmCSSCreate"},
    {"From Files", "Openform"},
    {"From Templates", "Templates"},
    {"From Note's", "Quick"},
    {"From Internet", "sourcepage"},
    {"Create FTP Profile's", "ftpUsers"},
    {"Velloro Templates", "Templates"},
    {"Properties", "PProperties"},
    {"Quick Bar", "sidebar"},
    {"Text", "Textinput"},
    {"Image", "imageform"},
    {"Email", "emailform"},
    {"Marquee", "marqueeform"},
    {"Script", "scriptform"},
    {"Hyperlink", "Hyperlink1"},
    {"Horizontal Line", "lineform"},
    {"Table Wizard", "TableWizard"},
    {"CSV Table Wizard", "CSVWizard"},
    {"Table", "Tableform"},
    {"Colour Finder", "cfinderform"},
    {"Hyperlink Drop Down Menu", "dropmenu1"},
    {"External Window Script", "externalwindow"},
    {"External Style Sheet", "CSSform"},
    {"Scrolling TextBox", "Scrolltextbox"},
    {"Drop Menu", "dropmenu2"},
    {"Insert Sound", "Media"},
    {"Insert Movie", "Media"},
    {"Insert Object", "Object"},
    {"Insert Java Applet", "JavaApplet"},
    {"Insert RealAudio", "RealAudio"},
    {"Insert Text", "Textinput"},
    {"Insert Tabbed Text", "bulletform"},
    {"Format Main", "Fontform"},
    {"Program Options", "Options"},
    {"Page Properties", "PProperties"},
    {"Folder Sort1", "Folders"},
    {"CheckTags", "frmReport"},
    {"Create External Stlye Sheet", "CSSCREATE"},
    {"Create ScrollBar Color Code", "frmscrollbar"},
    {"Image Map Generator", "FormDesign"},
    {"Index Picture Generator", "GifLoader"},
    {"Style Link Wizard", "StyleLink"},
    {"Colour Finder1", "cfinderform"},
    {"Quick Bar1", "sidebar"},
    {"Contents", "HelpSystem"},
    {"Send Feedback", "FeedBack"},
    {"About", "AboutFORM"},
    {"Check Version", "frmUpdate"},
    {"Main New Window", "Startup"},
    {"Find + Replace", "findform"},
    {"GoTo Line", "frmgoto"},
    // The code windows' context menu.
    {"Format Text", "Fontform"},
    {"Tabbed Text", "bulletform"},
    // The notepad's menu.
    {"page", "pageproperties"},
    {"formattext", "Fontform"},
    {"text", "Textinput"},
    {"btext", "bulletform"},
    {"image", "imageform"},
    {"table", "Tableform"},
    {"hyperlink", "Hyperlink1"},
    {"quickbar", "sidebar"},
    {"about", "AboutFORM"},
    // Windows reached through a file chooser first.
    {"Insert .CSV File", "CSVWizard"},
    {"Insert TAB File", "CSVWizard"},
};

}

namespace Commands {

void add(const QString& key, Command command)
{
    if (!branches().contains(key))
        branches().insert(key, std::move(command));
}

bool has(const QString& key) { return branches().contains(key); }

void run(const QString& key)
{
    if (const Command c = branches().value(key)) {
        c();
        return;
    }
    const QString window = windowOf(key);
    if (!window.isEmpty() && Forms::hasFactory(window))
        showForm(window);
}

void click(const QString& key)
{
    if (!available(key))
        return;
    if (key == QLatin1String("Save") || key == QLatin1String("Save As")) {
        run(key);
        return;
    }
    OnErrorExit([&key] { run(key); });
}

bool available(const QString& key)
{
    // A key that ends in a window (some ask for a file first) needs that window.
    const QString window = windowOf(key);
    if (!window.isEmpty())
        return Forms::hasFactory(window);
    return has(key);
}

QString windowOf(const QString& key)
{
    for (const auto& [k, name] : windowTable)
        if (key == QLatin1String(k))
            return QString::fromLatin1(name);
    return {};
}

QList<std::pair<QString, QString>> windowKeys()
{
    QList<std::pair<QString, QString>> keys;
    for (const auto& [k, name] : windowTable)
        keys.append({QString::fromLatin1(k), QString::fromLatin1(name)});
    return keys;
}


} // namespace Commands

void showForm(const QString& name)
{
    QWidget* w = Forms::get(name);
    // A window whose load failed has unloaded itself again.
    if (!w)
        return;
    w->show();
    w->raise();
    w->activateWindow();
}
