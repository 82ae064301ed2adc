// The main menu: its table, its dispatcher against a page, a notepad and no document, and the
// bars that repeat its keys.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Desktop.h"
#include "platform/RichTextBox.h"
#include "report/frmReport.h"
#include "services/Commands.h"
#include "shell/MainMenu.h"
#include "shell/MenuCommands.h"
#include "shell/MenuTable.h"
#include "shell/Options.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QToolButton>
#include <QToolBar>
#include <QUrl>

namespace {
const QString crlf = QStringLiteral("\r\n");

QStringList keysUnder(const QString& parent)
{
    QStringList keys;
    for (const MenuEntry& e : menuChildren(parent))
        keys << e.key;
    return keys;
}

TEST(MenuTable, TopLevelAndGroupsInOrder)
{
    EXPECT_EQ(keysUnder(QString()),
              (QStringList{"keyFile", "keyEdit", "keyView", "keyInsert", "keyText", "keyMacro", "keyTools",
                           "keyWindow", "keyHelp"}));
    // "keyFile" and "KeyFile" name one menu.
    EXPECT_EQ(keysUnder(QStringLiteral("keyFile")),
              (QStringList{"keyNew", "KeyOpen", "Web", "Save", "Save As", "KeyTemplates", "KeyAdvanced", "Properties",
                           "Printsetup", "Print", "Close", "Close All", "Exit"}));
    EXPECT_EQ(keysUnder(QStringLiteral("keyOpen")),
              (QStringList{"From Files", "From Templates", "From Note's", "From Internet"}));
    EXPECT_EQ(keysUnder(QStringLiteral("Top")), (QStringList{"KeyFTP", "EasyRGB", "Developerfusion", "MSDN"}));
    EXPECT_EQ(keysUnder(QStringLiteral("KeyForm")),
              (QStringList{"Form", "ListForm", "ListField", "1 Line Text Box", "Scrolling TextBox", "Password Box",
                           "File Upload", "Radio Button", "Check Button", "Push Button", "Drop Menu", "Label",
                           "Last Updated"}));
    EXPECT_EQ(keysUnder(QStringLiteral("keyMacro")).size(), 11);
    EXPECT_EQ(keysUnder(QStringLiteral("keyTools")).size(), 16);
    EXPECT_EQ(keysUnder(QStringLiteral("keyHelp")),
              (QStringList{"Contents", "Search for Help on...", "Online", "Send Feedback", "About", "Check Version",
                           "Velloro Online"}));
}

TEST(MenuTable, CaptionsShortcutsAndDisabledItems)
{
    for (const auto& [key, caption] : {std::pair{"keyFile", "&File"}, {"Site Managment", "Site Managment Solution"},
                                       {"Create External Stlye Sheet", "Create External Stlye Sheet"},
                                       {"Check Version", "Update Velloro ..."}, {"Find Files", "Find Files....."}})
        EXPECT_EQ(menuEntry(QString::fromLatin1(key))->caption, QString::fromLatin1(caption)) << key;
    for (const auto& [key, shortcut] : {std::pair{"keyNew", 79}, {"Save As", 83}, {"Properties", 113}, {"Quick Note", 112},
                                        {"Marquee", 77}})
        EXPECT_EQ(menuEntry(QString::fromLatin1(key))->shortcut, shortcut) << key;
    QStringList disabled;
    for (const MenuEntry& e : menuTable())
        if (!e.enabled)
            disabled << e.key;
    EXPECT_EQ(disabled, (QStringList{"Close All", "Delete Current File", "Delete Files", "ListForm", "ListField",
                                     "Label", "Find Files", "Search for Help on..."}));
    for (const MenuEntry& e : menuTable())
        EXPECT_TRUE(e.visible) << e.key.toStdString();
}

class MainMenuTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        main = frmMain::instance();
    }
    frmDocument* page(const QString& text = QString()) { return newPage(text); }
    notepad* pad(const QString& text = QStringLiteral("plain note")) { return newPad(text); }
    QAction* item(const QString& key) const
    {
        for (QAction* a : main->SmartMenuXP1->findChildren<QAction*>())
            if (a->data().toString() == key)
                return a;
        return nullptr;
    }
    frmMain* main = nullptr;
};

TEST_F(MainMenuTest, EveryItemOfTheTableIsInTheMenuWithItsPicture)
{
    for (const MenuEntry& e : menuTable()) {
        if (e.key == QLatin1String("Web"))
            continue;
        QAction* a = item(e.key);
        ASSERT_NE(a, nullptr) << e.key.toStdString();
        EXPECT_EQ(a->text(), e.caption) << e.key.toStdString();
        if (!e.parent.isEmpty()) {
            EXPECT_TRUE(QFileInfo::exists(App::path() + "/Options/Images/" + e.key + ".ico")) << e.key.toStdString();
        }
    }
    EXPECT_EQ(item(QStringLiteral("Quick Note"))->shortcut(), QKeySequence(QStringLiteral("Ctrl+F1")));
    EXPECT_EQ(item(QStringLiteral("Text"))->shortcut(), QKeySequence(QStringLiteral("Ctrl+T")));
    EXPECT_FALSE(item(QStringLiteral("Close All"))->isEnabled());
    EXPECT_FALSE(item(QStringLiteral("Label"))->isEnabled());
    EXPECT_TRUE(item(QStringLiteral("Image"))->isEnabled());
    EXPECT_TRUE(item(QStringLiteral("Bold"))->isEnabled());
    EXPECT_TRUE(item(QStringLiteral("CheckTags"))->isEnabled());
    saveShot(main, QStringLiteral("main-window"));
    for (const char* name : {"keyFile", "keyInsert", "keyText", "keyTools"}) {
        auto* menu = main->SmartMenuXP1->findChild<QMenu*>(QString::fromLatin1(name));
        ASSERT_NE(menu, nullptr) << name;
        EXPECT_FALSE(menu->actions().isEmpty()) << name;
        menu->popup(main->mapToGlobal(QPoint(40, 40)));
        saveShot(menu, QStringLiteral("menu-") + QString::fromLatin1(name));
        menu->hide();
    }
}

TEST_F(MainMenuTest, BoldInAPageGoesInBetweenLineEndsWithTheCaretBehind)
{
    frmDocument* doc = page(QStringLiteral("ab"));
    doc->CodeMax1()->setCursorPosition(0, 1);
    main->MenuClick(QStringLiteral("Bold"));
    const QString fragment = "\r\n<b><!-- Insert Text --></b>\r\n";
    EXPECT_EQ(doc->CodeMax1()->text(), "a" + fragment + "b");
    int line = 0, index = 0;
    doc->CodeMax1()->getCursorPosition(&line, &index);
    EXPECT_EQ(doc->CodeMax1()->positionFromLineIndex(line, index), 1 + fragment.size());
}

TEST_F(MainMenuTest, EverySnippetKeyInsertsItsFragmentAndTheFormGroupLeavesItSelected)
{
    const std::pair<const char*, const char*> plain[] = {
        {"Break", "<br>"},
        {"Inline Frame", "<p><iframe name=I1>\r\n</iframe></p>"},
        {"Insert Column", "<td></td>"},
        {"Insert Row", "<tr></tr>"},
        {"Insert Heading Cell", "<th></th>"},
        {"Insert Comment", "<p><!-- Put Comment Here --></p>"},
        {"Insert Bookmark", "<p><a name=Bookmark></a></p>"},
        {"Insert Strike", "<strike><!-- Insert Text --></strike>"},
        {"Insert Blink", "<blink><!-- Insert Text --></blink>"},
        {"Italic", "<I><!-- Insert Text --></I>"},
        {"Underline", "<U><!-- Insert Text --></U>"},
        {"Strikethrough", "<S><!-- Insert Text --></S>"},
        {"Subscript", "<sub><!-- Insert Text --></sub>"},
        {"Superscript", "<sup><!-- Insert Text --></sup>"},
        {"Typewriter", "<tt><!-- Insert Text --></tt>"},
        {"Citation", "<cite><!-- Insert Text --></cite>"},
        {"Code", "<code><!-- Insert Text --></code>"},
        {"Emphasis", "<em><!-- Insert Text --></em>"},
        {"StrongEmphasis", "<strong><!-- Insert Text --></strong>"},
        {"Footnote", "<fn><!-- Insert Text --></fn>"},
        {"Keyboard", "<kbd><!-- Insert Text --></kbd>"},
        {"Sample", "<samp><!-- Insert Text --></samp>"},
        {"Variable", "<var><!-- Insert Text --></var>"},
        {"Address", "<address><!-- Insert Text --></address>"},
        {"Comment", "<!-- Insert Text -->"},
        {"Division", "<div><!-- Insert Text --></div>"},
        {"Paragraph", "<p><!-- Insert Text --></p>"},
        {"Preformated Text", "<pre><!-- Insert Text --></pre>"},
        {"Span", "<span><!-- Insert Text --></span>"},
    };
    // The form group leaves out the collapse: its text stays selected.
    const std::pair<const char*, const char*> selected[] = {
        {"Form", "<Form>\r\n</Form>"},
        {"Radio Button", "<p><input type=radio value=V1 checked name=R1></p>"},
        {"Check Button", "<p><input type=checkbox name=C1 value=ON></p>"},
        {"Push Button",
         "<p><input type=button value=Button name=B3><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2></p>"},
    };
    frmDocument* doc = page();
    auto run = [&](const char* key, const char* fragment, bool staysSelected) {
        doc->CodeMax1()->setText(QString());
        main->MenuClick(QString::fromUtf8(key));
        const QString text = crlf + QString::fromUtf8(fragment) + crlf;
        EXPECT_EQ(doc->CodeMax1()->text(), text) << key;
        EXPECT_EQ(doc->CodeMax1()->selectedText(), staysSelected ? text : QString()) << key;
    };
    for (const auto& [key, fragment] : plain)
        run(key, fragment, false);
    for (const auto& [key, fragment] : selected)
        run(key, fragment, true);
}

TEST_F(MainMenuTest, TimeAndDateRowsCarryToday)
{
    frmDocument* doc = page();
    main->MenuClick(QStringLiteral("Add Time"));
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\r\\n<p>\\d\\d:\\d\\d:\\d\\d</p>\\r\\n$"))
                    .match(doc->CodeMax1()->text()).hasMatch())
        << visible(doc->CodeMax1()->text());
    doc->CodeMax1()->setText(QString());
    main->MenuClick(QStringLiteral("Last Updated"));
    EXPECT_TRUE(doc->CodeMax1()->text().startsWith("\r\n<p align=center> Last Updated ::  "));
    EXPECT_TRUE(QRegularExpression(QStringLiteral(" :: \\d\\d:\\d\\d:\\d\\d</p>\\r\\n$")).match(doc->CodeMax1()->text()).hasMatch())
        << visible(doc->CodeMax1()->text());
}

TEST_F(MainMenuTest, TagCommandsAreSilentInANotepadAndWithoutADocument)
{
    // No document: the handler's error path ends every command without a word.
    for (const char* key : {"Bold", "Form", "Undo", "Select All", "Insert Column", "Record Macro", "PlayM1",
                            "Left Margin", "Close", "Preview in Velloro", "Add Date"})
        main->MenuClick(QString::fromUtf8(key));
    EXPECT_TRUE(prompts.prompts().isEmpty());

    notepad* n = pad();
    for (const char* key : {"Bold", "Break", "Form", "Radio Button", "Insert Comment", "Insert Column", "Add Time",
                            "To Upper Case", "Undo"})
        main->MenuClick(QString::fromUtf8(key));
    EXPECT_EQ(n->RichTextBox1()->text(), QStringLiteral("plain note"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(MainMenuTest, RefusalsAndMessagesOfTheViewAndTextGroups)
{
    pad();
    prompts.answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Margin Numbers"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Not supported for the notepad"));
    // Text is typed straight into a notepad: the text wizard redirects and stays shut.
    prompts.answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Insert Text"));
    EXPECT_EQ(prompts.last().title, QStringLiteral(":: Text Input ::"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("You do need to open this because you can enter text directly into the Notepad"));
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("Textinput")) && Forms::find(QStringLiteral("Textinput"))->isVisible());

    frmDocument* doc = page(QStringLiteral("x"));
    const bool numbers = doc->CodeMax1()->LineNumbering();
    main->MenuClick(QStringLiteral("Margin Numbers"));
    EXPECT_NE(doc->CodeMax1()->LineNumbering(), numbers);
    const bool before = doc->CodeMax1()->DisplayWhitespace();
    main->MenuClick(QStringLiteral("White Spaces"));
    EXPECT_NE(doc->CodeMax1()->DisplayWhitespace(), before);
    const bool margin = doc->CodeMax1()->DisplayLeftMargin();
    main->MenuClick(QStringLiteral("Left Margin"));
    EXPECT_NE(doc->CodeMax1()->DisplayLeftMargin(), margin);

    prompts.answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Open in Default App"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("This is not a saved file, so Velloro cannot open to default program."));

    prompts.answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Tooltip Box"));
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("You need to set this option in Program Options, then reload Velloro, you will be redirected to options now."));
    EXPECT_TRUE(form<Options>()->isVisible());
}

TEST_F(MainMenuTest, EditorCommandsRunOnTheActivePage)
{
    frmDocument* doc = page(QStringLiteral("one\r\ntwo\r\nthree"));
    CodeMax* e = doc->CodeMax1();
    main->MenuClick(QStringLiteral("Select All"));
    EXPECT_EQ(e->selectedText(), e->text());
    main->MenuClick(QStringLiteral("To Upper Case"));
    EXPECT_EQ(e->text(), QStringLiteral("ONE\r\nTWO\r\nTHREE"));
    main->MenuClick(QStringLiteral("Undo"));
    EXPECT_EQ(e->text(), QStringLiteral("one\r\ntwo\r\nthree"));
    e->setCursorPosition(1, 0);
    main->MenuClick(QStringLiteral("Delete Current Line"));
    EXPECT_EQ(e->text(), QStringLiteral("one\r\nthree"));
    main->MenuClick(QStringLiteral("Previous Line"));
    int line = -1, index = -1;
    e->getCursorPosition(&line, &index);
    EXPECT_EQ(line, 0);
}

TEST_F(MainMenuTest, AMacroRecordedIntoAChosenSlotPlaysInAnotherPage)
{
    frmDocument* first = page();
    prompts.answerInput(QStringLiteral("3"));
    main->MenuClick(QStringLiteral("Record Macro"));
    EXPECT_EQ(prompts.last().kind, QStringLiteral("InputBox"));
    EXPECT_TRUE(first->CodeMax1()->isRecordingMacro());
    main->MenuClick(QStringLiteral("Bold"));
    main->MenuClick(QStringLiteral("Record Macro"));
    EXPECT_FALSE(first->CodeMax1()->isRecordingMacro());
    EXPECT_TRUE(first->CodeMax1()->hasMacro(3));

    frmDocument* second = page();
    main->MenuClick(QStringLiteral("PlayM3"));
    EXPECT_EQ(second->CodeMax1()->text(), QStringLiteral("\r\n<b><!-- Insert Text --></b>\r\n"));

    // A slot outside 1 to 10 is refused; an empty answer records nothing.
    prompts.answerInput(QStringLiteral("11")).answerMsgBox(Answer::OK);
    main->MenuClick(QStringLiteral("Record Macro"));
    EXPECT_FALSE(second->CodeMax1()->isRecordingMacro());
    prompts.answerInput(QString());
    main->MenuClick(QStringLiteral("Record Macro"));
    EXPECT_FALSE(second->CodeMax1()->isRecordingMacro());
}

TEST_F(MainMenuTest, CheckHtmlTagsOpensTheReportEmptyFromMenuAndBar)
{
    page(QStringLiteral("<p>text</p>"));
    main->MenuClick(QStringLiteral("CheckTags"));
    auto* report = qobject_cast<frmReport*>(Forms::find(QStringLiteral("frmReport")));
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->isVisible());
    EXPECT_EQ(report->CodeMax1->text(), QString());
    report->hide();
    main->Picture[4]->findChild<QToolButton*>(QStringLiteral("SmartNetButton31"))->click();
    EXPECT_TRUE(report->isVisible());
}

// Every key of the table, run in a page, in a notepad and with no document: whatever prompts
// come are cancelled, nothing reaches the desktop, and the program is still there afterwards.
TEST_F(MainMenuTest, EveryKeyRunsInEachKindOfWindowWithoutHarm)
{
    ScriptedPrompts::setFailureHandler([](const QString&) {});
    int desktop = 0;
    Desktop::setHandler({[&](const QUrl&) { return ++desktop, false; },
                         [&](const QString&, const QStringList&) { return ++desktop, false; }});
    const QSet<QString> skip = {QStringLiteral("Exit")};  // ends the program
    for (int context = 0; context < 3; ++context) {
        for (const MenuEntry& e : menuTable()) {
            if (skip.contains(e.key))
                continue;
            // No document: each left over is closed without saving.
            while (context == 2 && !main->documents().isEmpty()) {
                prompts.clear();
                prompts.answerMsgBox(Answer::No);
                ASSERT_TRUE(Forms::unload(main->documents().first())) << e.key.toStdString();
                processEvents();
            }
            if (context == 0 && (main->documents().isEmpty() || main->ActiveForm()->Tag() == QLatin1String("Pad")))
                page(QStringLiteral("<p>text</p>"));
            if (context == 1 && (main->documents().isEmpty() || main->ActiveForm()->Tag() != QLatin1String("Pad")))
                pad();
            main->MenuClick(e.key);
            processEvents();
            ASSERT_EQ(frmMain::loaded(), main) << e.key.toStdString();
        }
    }
    Desktop::setHandler({});
    ScriptedPrompts::setFailureHandler([](const QString& msg) { ADD_FAILURE() << msg.toStdString(); });
    EXPECT_GT(desktop, 0);  // the online items asked for the browser
}

TEST_F(MainMenuTest, DisabledItemsNeverRun)
{
    page();
    page();
    main->MenuClick(QStringLiteral("Close All"));
    EXPECT_EQ(main->documents().size(), 2);
    main->MenuClick(QStringLiteral("Close"));
    processEvents();
    EXPECT_EQ(main->documents().size(), 1);
}

TEST_F(MainMenuTest, OnlineItemsAndTheDesktopGoThroughTheHandOver)
{
    QList<QUrl> opened;
    Desktop::setHandler({[&](const QUrl& u) {
                             opened << u;
                             return true;
                         },
                         {}});
    main->MenuClick(QStringLiteral("EasyRGB"));
    frmDocument* doc = page(QStringLiteral("<p>x</p>"));
    main->MenuClick(QStringLiteral("Preview .html Files In Explorer"));
    doc->tempaddress()->setText(folder.file(QStringLiteral("saved.htm")));
    main->MenuClick(QStringLiteral("Open in Default App"));
    Desktop::setHandler({});
    ASSERT_EQ(opened.size(), 3);
    EXPECT_EQ(opened[0].host(), QStringLiteral("www.easyrgb.com"));
    EXPECT_EQ(opened[1].toLocalFile(), App::path() + QStringLiteral("/temp.html"));
    EXPECT_EQ(folder.read(QStringLiteral("temp.html")), QByteArray("<p>x</p>"));
    EXPECT_EQ(opened[2].toLocalFile(), folder.file(QStringLiteral("saved.htm")));
}

TEST_F(MainMenuTest, APreviewCopyThatCannotBeWrittenOpensNothing)
{
    int opened = 0;
    Desktop::setHandler({[&](const QUrl&) { return ++opened > 0; }, {}});
    page(QStringLiteral("<p>x</p>"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("temp.html")));  // a folder in the way
    main->MenuClick(QStringLiteral("Preview .html Files In Explorer"));
    Desktop::setHandler({});
    EXPECT_EQ(opened, 0);
    EXPECT_TRUE(QFileInfo(folder.file(QStringLiteral("temp.html"))).isDir());
}

TEST_F(MainMenuTest, WindowArrangements)
{
    auto* a = page();
    auto* b = page();
    main->MenuClick(QStringLiteral("Tile Vertical"));
    EXPECT_EQ(a->subWindow()->geometry().top(), b->subWindow()->geometry().top());
    main->MenuClick(QStringLiteral("Tile Horizontal"));
    EXPECT_EQ(a->subWindow()->geometry().left(), b->subWindow()->geometry().left());
    EXPECT_NE(a->subWindow()->geometry().top(), b->subWindow()->geometry().top());
    main->MenuClick(QStringLiteral("Previous Window"));
    EXPECT_EQ(main->ActiveForm(), a);
    main->MenuClick(QStringLiteral("Bottom"));
    EXPECT_EQ(main->toolBarArea(main->Picture[0]), Qt::BottomToolBarArea);
}

TEST_F(MainMenuTest, ButtonBarsRepeatTheMenuAndAddTheirOwnRefusals)
{
    // The bars' own buttons (a page window's preview bar has buttons of the same names).
    auto button = [this](int n) -> QToolButton* {
        const QString name = QStringLiteral("SmartNetButton%1").arg(n);
        for (QWidget* holder : {static_cast<QWidget*>(main->Picture[0]), static_cast<QWidget*>(main->Picture[1]),
                                static_cast<QWidget*>(main->Picture[2]), static_cast<QWidget*>(main->Picture[3]),
                                static_cast<QWidget*>(main->Picture[4]), static_cast<QWidget*>(main->RightHolder)})
            if (auto* b = holder->findChild<QToolButton*>(name))
                return b;
        return nullptr;
    };
    prompts.answerMsgBox(Answer::OK);
    button(28)->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("You need an active form to use the find facility"));

    notepad* n = pad();
    prompts.answerMsgBox(Answer::OK);
    button(22)->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Only Supported for Webpages."));
    prompts.answerMsgBox(Answer::OK);
    button(35)->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Only Supported for Webpages."));
    button(20)->click();
    EXPECT_EQ(n->RichTextBox1()->SelIndent(), 360);
    button(19)->click();
    EXPECT_EQ(n->RichTextBox1()->SelIndent(), 0);

    frmDocument* doc = page();
    for (const auto& [n, fragment] : {std::pair{18, "\r\n<p><font color=Black size=3>\r\n<ol>\r\n<li> ENTER TEXT HERE </li>\r\n</ol></font></p>\r\n"},
                                      {20, "\r\n<blockquote>\r\n"}, {8, "\r\n<b><!-- Insert Text --></b>\r\n"}}) {
        doc->CodeMax1()->setText(QString());
        button(n)->click();
        EXPECT_EQ(doc->CodeMax1()->text(), QString::fromLatin1(fragment)) << n;
    }

    // The editor commands of the document contract's table have their buttons too: 59 and 60
    // move the caret a line, 58 starts and stops a macro as the menu item does.
    CodeMax* e = doc->CodeMax1();
    e->setText(QStringLiteral("one\r\ntwo\r\nthree"));
    e->setCursorPosition(1, 1);
    const std::pair<int, int> moves[] = {{59, 0}, {60, 1}, {60, 2}, {60, 2}};
    for (const auto& [n, expectedLine] : moves) {
        ASSERT_NE(button(n), nullptr) << n;
        EXPECT_TRUE(button(n)->isEnabled()) << n;
        button(n)->click();
        int line = -1, index = -1;
        e->getCursorPosition(&line, &index);
        EXPECT_EQ(line, expectedLine) << n;
    }
    EXPECT_EQ(button(58)->toolTip(), QStringLiteral("Record Macro"));
    prompts.answerInput(QStringLiteral("2"));
    button(58)->click();
    EXPECT_TRUE(e->isRecordingMacro());
    button(58)->click();
    EXPECT_FALSE(e->isRecordingMacro());
}

TEST_F(MainMenuTest, SizeAndFontToolsWriteATagOrSetTheNotepadFont)
{
    EXPECT_EQ(main->Combo1->itemText(0), QStringLiteral("1  (8pt)"));
    EXPECT_EQ(main->Combo1->count(), 7);
    EXPECT_EQ(main->Combo4->itemText(5), QStringLiteral("Heading 6"));
    EXPECT_GT(main->Combo2->count(), 0);

    frmDocument* doc = page();
    main->Combo1->setCurrentIndex(2);
    Q_EMIT main->Combo1->textActivated(main->Combo1->currentText());
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("\r\n<font size=\"3\">Enter Text Here</font>\r\n"));

    notepad* n = pad();
    n->RichTextBox1()->setSelStart(0);
    n->RichTextBox1()->setSelLength(5);
    Q_EMIT main->Combo1->textActivated(QStringLiteral("6  (24pt)"));
    EXPECT_DOUBLE_EQ(n->RichTextBox1()->SelFontSize(), 24.0);
}
}
