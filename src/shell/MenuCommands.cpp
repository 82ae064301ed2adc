#include "shell/MenuCommands.h"

#include "documents/CodeDocumentWindow.h"
#include "documents/Insertion.h"
#include "documents/OpenSave.h"
#include "documents/Printing.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Desktop.h"
#include "platform/Forms.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Commands.h"
#include "services/Settings.h"
#include "shell/frmMain.h"

#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QLocale>
#include <QMdiArea>
#include <QProcess>
#include <QStandardPaths>
#include <QTime>
#include <QUrl>

namespace {
using TextFiles::crlf;

// A fragment the menu drops at the caret. Pieces are separated by '|', which becomes a line
// end; the fragment itself stands between two line ends.
struct Snippet {
    const char* key;
    const char* text;
    bool keepSelected;  // no command 201 afterwards: the fragment stays selected
};

constexpr Snippet snippets[] = {
    {"Break", "<br>", false},
    {"Inline Frame", "<p><iframe name=I1>|</iframe></p>", false},
    {"Insert Column", "<td></td>", false},
    {"Insert Row", "<tr></tr>", false},
    {"Insert Heading Cell", "<th></th>", false},
    {"Form", "<Form>|</Form>", true},
    {"Radio Button", "<p><input type=radio value=V1 checked name=R1></p>", true},
    {"Check Button", "<p><input type=checkbox name=C1 value=ON></p>", true},
    {"Push Button",
     "<p><input type=button value=Button name=B3><input type=submit value=Submit name=B1><input type=reset "
     "value=Reset name=B2></p>",
     true},
    {"Insert Comment", "<p><!-- Put Comment Here --></p>", false},
    {"Insert Bookmark", "<p><a name=Bookmark></a></p>", false},
    {"Insert Strike", "<strike><!-- Insert Text --></strike>", false},
    {"Insert Blink", "<blink><!-- Insert Text --></blink>", false},
    {"Bold", "<b><!-- Insert Text --></b>", false},
    {"Italic", "<I><!-- Insert Text --></I>", false},
    {"Underline", "<U><!-- Insert Text --></U>", false},
    {"Strikethrough", "<S><!-- Insert Text --></S>", false},
    {"Subscript", "<sub><!-- Insert Text --></sub>", false},
    {"Superscript", "<sup><!-- Insert Text --></sup>", false},
    {"Typewriter", "<tt><!-- Insert Text --></tt>", false},
    {"Citation", "<cite><!-- Insert Text --></cite>", false},
    {"Code", "<code><!-- Insert Text --></code>", false},
    {"Emphasis", "<em><!-- Insert Text --></em>", false},
    {"StrongEmphasis", "<strong><!-- Insert Text --></strong>", false},
    {"Footnote", "<fn><!-- Insert Text --></fn>", false},
    {"Keyboard", "<kbd><!-- Insert Text --></kbd>", false},
    {"Sample", "<samp><!-- Insert Text --></samp>", false},
    {"Variable", "<var><!-- Insert Text --></var>", false},
    {"Address", "<address><!-- Insert Text --></address>", false},
    {"Comment", "<!-- Insert Text -->", false},
    {"Division", "<div><!-- Insert Text --></div>", false},
    {"Paragraph", "<p><!-- Insert Text --></p>", false},
    {"Preformated Text", "<pre><!-- Insert Text --></pre>", false},
    {"Span", "<span><!-- Insert Text --></span>", false},
};

// The editor commands by number.
constexpr std::pair<const char*, int> editorKeys[] = {
    {"Select All", CodeMax::SelectAll},   {"Delete Current Line", CodeMax::DeleteLine},
    {"Previous Line", CodeMax::LineUp},   {"Next Line", CodeMax::LineDown},
    {"To Upper Case", CodeMax::UpperCase}, {"To Lower Case", CodeMax::LowerCase},
};


void add(const char* key, Commands::Command command) { Commands::add(QString::fromUtf8(key), std::move(command)); }

QString today() { return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat); }
QString now() { return QTime::currentTime().toString(QStringLiteral("hh:mm:ss")); }

void registerSnippets()
{
    for (const Snippet& s : snippets) {
        const bool keep = s.keepSelected;
        const QString key = QString::fromUtf8(s.key);
        Commands::add(key, [key, keep] {
            if (ActiveIsNotepad())
                return;
            if (keep)
                InsertSelected(menuSnippet(key));
            else
                InsertAtCaret(menuSnippet(key));
        });
    }
    for (const char* key : {"Add Time", "Add Date", "Last Updated"}) {
        const QString k = QString::fromUtf8(key);
        Commands::add(k, [k] {
            if (ActiveIsNotepad())
                return;
            InsertAtCaret(menuSnippet(k));
        });
    }
}

void registerForms()
{
    // "Insert Text" and "Insert Tabbed Text" send the notepad user back to the page itself.
    for (const char* key : {"Insert Text", "Insert Tabbed Text"}) {
        const QString formName = Commands::windowOf(QString::fromUtf8(key));
        add(key, [formName] {
            if (RedirectInNotepad())
                return;
            showForm(formName);
        });
    }
    for (const char* key : {"Insert .CSV File", "Insert TAB File"}) {
        const bool csv = QLatin1String(key) == QLatin1String("Insert .CSV File");
        add(key, [csv] {
            const QString path = prompts().openFile(
                QString(), csv ? QStringLiteral("CSV Files (*.csv *.CSV)") : QStringLiteral("Tab Delinited Files (*.txt *.TXT)"),
                QString());
            if (path.isEmpty())
                return;
            QWidget* wizard = Forms::get(QStringLiteral("CSVWizard"));
            wizard->setProperty("sourceFile", path);
            showForm(QStringLiteral("CSVWizard"));
        });
    }
}

void registerEditing()
{
    add("Undo", [] { ActiveDocument()->CodeMax1()->undo(); });
    add("Redo", [] { ActiveDocument()->CodeMax1()->redo(); });
    add("Cut", [] {
        DocumentWindow* doc = ActiveDocument();
        if (doc->isNotepad()) {
            RichTextBox* box = doc->RichTextBox1();
            QGuiApplication::clipboard()->setText(box->SelText());
            box->setSelText(QString());
            return;
        }
        doc->CodeMax1()->cut();
    });
    add("Copy", [] { ActiveDocument()->CodeMax1()->copy(); });
    add("Paste", [] { ActiveDocument()->CodeMax1()->paste(); });
    add("Delete Selected", [] { ActiveDocument()->CodeMax1()->DeleteSel(); });
    add("Clear Clipboard", [] { QGuiApplication::clipboard()->clear(); });
    for (const auto& [key, number] : editorKeys) {
        const int n = number;
        add(key, [n] { ActiveDocument()->CodeMax1()->ExecuteCmd(n); });
    }
}

// Recording asks which of the ten slots takes the macro; the same command ends it.
void recordMacro()
{
    CodeMax* editor = ActiveDocument()->CodeMax1();
    frmMain* main = frmMain::instance();
    if (editor->isRecordingMacro()) {
        editor->ExecuteCmd(CodeMax::RecordMacro);
        main->setStatusText(1, QStringLiteral("Macro %1 recorded: play it from the Macro menu.").arg(editor->macroRecordSlot()));
        return;
    }
    int suggested = 1;
    while (suggested < 10 && editor->hasMacro(suggested))
        ++suggested;
    const QString answer = InputBox(QStringLiteral("Record into which macro (1 to 10)? A macro already there is replaced."),
                                    QStringLiteral("Record Macro"), QString::number(suggested));
    bool ok = false;
    const int slot = answer.trimmed().toInt(&ok);
    if (answer.isEmpty())
        return;
    if (!ok || slot < 1 || slot > 10) {
        MsgBox(QStringLiteral("Choose a macro number from 1 to 10."), Style::Exclamation, QStringLiteral("Record Macro"));
        return;
    }
    editor->setMacroRecordSlot(slot);
    editor->ExecuteCmd(CodeMax::RecordMacro);
    main->setStatusText(1, QStringLiteral("Recording macro %1 ... choose Record Macro again to stop.").arg(slot));
}

void registerMacros()
{
    add("Record Macro", [] { recordMacro(); });
    for (int i = 1; i <= 10; ++i)
        Commands::add(QStringLiteral("PlayM%1").arg(i),
                                 [i] { ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::PlayMacro1 + i - 1); });
}

// The three view toggles of the editor; a notepad has no such margins.
void toggleView(bool (CodeMax::*get)() const, void (CodeMax::*set)(bool))
{
    DocumentWindow* doc = ActiveDocument();
    if (doc->isNotepad()) {
        MsgBox(QStringLiteral("Not supported for the notepad"));
        return;
    }
    CodeMax* editor = doc->CodeMax1();
    (editor->*set)(!(editor->*get)());
}

QString previewFile() { return App::userPath() + QStringLiteral("/temp.html"); }

void registerView()
{
    add("Tooltip Box", [] {
        MsgBox(QStringLiteral("You need to set this option in Program Options, then reload Velloro, you will be "
                              "redirected to options now."));
        showForm(QStringLiteral("Options"));
    });
    add("Preview in Velloro", [] {
        auto* doc = qobject_cast<CodeDocumentWindow*>(ActiveDocument());
        if (!doc)
            throw RuntimeError::noSuchMember(QStringLiteral("WebBrowser1"));
        doc->writeAndShowPreview(previewFile());
    });
    add("Preview .html Files In Explorer", [] {
        const QString text = ActiveDocument()->CodeMax1()->text();
        // A copy that could not be written would show an older page, or none.
        if (!TextFiles::writeText(previewFile(), text))
            throw RuntimeError::pathFileAccess(QStringLiteral("Preview .html Files In Explorer"));
        Desktop::openUrl(QUrl::fromLocalFile(previewFile()));
    });
    add("Open in Default App", [] {
        const QString path = ActiveDocument()->tempaddress()->text();
        if (path.isEmpty()) {
            MsgBox(QStringLiteral("This is not a saved file, so Velloro cannot open to default program."));
            return;
        }
        Desktop::openUrl(QUrl::fromLocalFile(path));
    });
    add("Left Margin", [] { toggleView(&CodeMax::DisplayLeftMargin, &CodeMax::setDisplayLeftMargin); });
    add("Margin Numbers", [] { toggleView(&CodeMax::LineNumbering, &CodeMax::setLineNumbering); });
    add("White Spaces", [] { toggleView(&CodeMax::DisplayWhitespace, &CodeMax::setDisplayWhitespace); });
    add("Bottom", [] { frmMain::instance()->alignCoolBar(Qt::BottomToolBarArea); });
}

void registerFileAndTools()
{
    add("Printsetup", [] { prompts().pageSetup(documentPrinter(), QStringLiteral("Page Setup")); });
    add("Print", [] { PrintDocument(); });
    add("Close", [] { Forms::unload(ActiveDocument()); });
    add("Load Own Templates", [] {
        const QString path = prompts().openFile(QString(), QStringLiteral("Template Files (*.tmpl)"), QString());
        if (!path.isEmpty())
            OpenOwnTemplate(path);
    });
    // The desktop's own tools stand in for the system programs of these items.
    add("RegEdit", [] {
        Desktop::openUrl(QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)));
    });
    add("Explorer", [] { Desktop::openUrl(QUrl::fromLocalFile(QDir::homePath())); });
    add("Run", [] {
        const QString command =
            InputBox(QStringLiteral("Type the name of a program, folder, document or Internet address to open."),
                     QStringLiteral("Run"));
        if (command.trimmed().isEmpty())
            return;
        const QString c = command.trimmed();
        if (QFileInfo::exists(c))
            Desktop::openUrl(QUrl::fromLocalFile(c));
        else if (c.contains(QLatin1String("://")))
            Desktop::openUrl(QUrl(c));
        else {
            QStringList words = QProcess::splitCommand(c);
            const QString program = words.takeFirst();
            Desktop::startProgram(program, words);
        }
    });
    for (const char* key : {"EasyRGB", "Developerfusion", "MSDN", "Velloro Online"}) {
        const QString k = QString::fromUtf8(key);
        Commands::add(k, [k] { Desktop::openUrl(QUrl(onlineAddress(k))); });
    }
}

void registerWindowCommands()
{
    add("Cascade", [] { frmMain::instance()->Arrange(0); });
    add("Tile Horizontal", [] { frmMain::instance()->Arrange(1); });
    add("Tile Vertical", [] { frmMain::instance()->Arrange(2); });
    add("Arrange Icons", [] { frmMain::instance()->Arrange(3); });
    add("Next Window", [] { frmMain::instance()->MDIClient->activateNextSubWindow(); });
    add("Previous Window", [] { frmMain::instance()->MDIClient->activatePreviousSubWindow(); });
}

QString fontTag(const QString& attribute, const QString& value)
{
    return crlf + QStringLiteral("<font ") + attribute + QStringLiteral("=\"") + value +
           QStringLiteral("\">Enter Text Here</font>") + crlf;
}
}

QString menuSnippet(const QString& key)
{
    if (key == QLatin1String("Add Time"))
        return crlf + QStringLiteral("<p>") + now() + QStringLiteral("</p>") + crlf;
    if (key == QLatin1String("Add Date"))
        return crlf + QStringLiteral("<p>") + today() + QStringLiteral("</p>") + crlf;
    if (key == QLatin1String("Last Updated"))
        return crlf + QStringLiteral("<p align=center> Last Updated ::  ") + today() + QStringLiteral(" :: ") + now() +
               QStringLiteral("</p>") + crlf;
    for (const Snippet& s : snippets)
        if (key == QLatin1String(s.key))
            return crlf + QString::fromUtf8(s.text).replace(QLatin1Char('|'), crlf) + crlf;
    return {};
}

QString onlineAddress(const QString& key)
{
    static const QHash<QString, QString> builtIn = {
        {QStringLiteral("EasyRGB"), QStringLiteral("https://www.easyrgb.com/")},
        {QStringLiteral("Developerfusion"), QStringLiteral("https://www.developerfusion.com/")},
        {QStringLiteral("MSDN"), QStringLiteral("https://learn.microsoft.com/")},
        {QStringLiteral("Velloro Online"), QStringLiteral("https://velloro.example/")},
    };
    return Settings::online(QString(key).remove(QLatin1Char(' ')), builtIn.value(key));
}

void applyFontSize(const QString& chosen)
{
    if (chosen.isEmpty())
        return;
    const QChar digit = chosen.at(0);
    DocumentWindow* doc = ActiveDocument();
    if (doc->isNotepad()) {
        // The size digits of the font tag in points.
        static const int points[] = {8, 10, 12, 14, 18, 24, 36};
        const int d = digit.digitValue();
        if (d >= 1 && d <= 7)
            doc->RichTextBox1()->setSelFontSize(points[d - 1]);
        return;
    }
    doc->CodeMax1()->setFocus();
    InsertAtCaret(fontTag(QStringLiteral("size"), QString(digit)));
}

void applyFontFace(const QString& face)
{
    if (face.isEmpty())
        return;
    DocumentWindow* doc = ActiveDocument();
    if (doc->isNotepad()) {
        doc->RichTextBox1()->setSelFontName(face);
        return;
    }
    doc->CodeMax1()->setFocus();
    InsertAtCaret(fontTag(QStringLiteral("face"), face));
}

void insertHeading(int level)
{
    if (level < 1 || level > 6 || ActiveIsNotepad())
        return;
    const DetailsRecord& settings = Settings::details();
    const QString face = settings.HeadingFont[level - 1];
    const QString size = settings.HeadingSize[level - 1];
    const QString h = QString::number(level);
    ActiveDocument()->CodeMax1()->setFocus();
    InsertAtCaret(crlf + QStringLiteral("<h") + h + QStringLiteral("><font face=\"") + face +
                  QStringLiteral("\" style=\"font-size: ") + size + QStringLiteral("pt\">Enter Text Here</font></h") + h +
                  QStringLiteral(">") + crlf);
}

void registerMenuCommands()
{
    registerSnippets();
    registerForms();
    registerEditing();
    registerMacros();
    registerView();
    registerFileAndTools();
    registerWindowCommands();
}
