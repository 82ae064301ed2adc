// Find + Replace and GoTo Line on the active document: web pages, a notepad, no document.
#include "common/TestSupport.h"

#include "documents/findform.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "documents/frmgoto.h"
#include "platform/CodeMax.h"
#include "platform/FindReplaceDialog.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "platform/CheckValue.h"
#include "shell/Options.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
const QString appTitle = QStringLiteral("Velloro 2002");
const QString notFound = QStringLiteral("Word not found.");

class FindFormTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }

    // The window as the menu shows it: loaded on first touch, then shown (and activated).
    QWidget* showFind()
    {
        QWidget* w = Forms::get(QStringLiteral("findform"));
        w->show();
        processEvents();
        return w;
    }
    template <class W>
    W* control(const char* name)
    {
        auto* w = Forms::get(QStringLiteral("findform"))->findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    void setFind(const QString& text) { control<QLineEdit>("Text1")->setText(text); }
    void click(const char* name)
    {
        auto* b = control<QPushButton>(name);
        ASSERT_TRUE(b->isEnabled()) << name;
        b->click();
    }
    bool replaceAllowed()
    {
        const bool text2 = control<QLineEdit>("Text2")->isEnabled();
        EXPECT_EQ(text2, control<QPushButton>("Command2")->isEnabled()) << "Text2 and Command2 go together";
        return text2;
    }
    // Clicks a button that must show exactly one plain message box with this text.
    void clickExpecting(const char* name, const QString& text)
    {
        const auto before = prompts.prompts().size();
        prompts.answerMsgBox(Answer::OK);
        click(name);
        ASSERT_EQ(prompts.prompts().size(), before + 1) << name;
        EXPECT_EQ(prompts.last().kind, QStringLiteral("MsgBox"));
        EXPECT_TRUE(isBox(prompts.last(), text, 0, appTitle));
    }
    void clickSilently(const char* name)
    {
        const auto before = prompts.prompts().size();
        click(name);
        EXPECT_EQ(prompts.prompts().size(), before) << name << " said something";
    }
};
}

// ---- The windows -------------------------------------------------------------------------------

TEST_F(FindFormTest, FindWindowIsOneInstanceWithItsControls)
{
    QWidget* w = Forms::get(QStringLiteral("findform"));
    auto* form = qobject_cast<findform*>(w);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(w->objectName(), QStringLiteral("findform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Find + Replace Velloro 2002"));
    EXPECT_EQ(control<QPushButton>("Command1")->text(), QStringLiteral("Find"));
    EXPECT_EQ(control<QPushButton>("Command2")->text(), QStringLiteral("Replace"));
    EXPECT_EQ(control<QPushButton>("Command3")->text(), QStringLiteral("Find Next"));
    EXPECT_EQ(control<QPushButton>("Command5")->text(), QStringLiteral("Show Advanced"));
    EXPECT_EQ(control<QPushButton>("Command5")->toolTip(), QStringLiteral("Opens an advanced Find+Replace Dialog"));
    EXPECT_EQ(control<QCheckBox>("Check1")->text(), QStringLiteral("Close after Replace"));
    EXPECT_FALSE(control<QCheckBox>("Check1")->isChecked());
    EXPECT_NE(control<QPushButton>("Command4"), nullptr);
    // Replace waits for a successful find.
    EXPECT_FALSE(replaceAllowed());

    // Hidden, not destroyed: the same window with its fields comes back.
    showFind();
    setFind(QStringLiteral("kept"));
    click("Command4");
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(Forms::get(QStringLiteral("findform")), w);
    EXPECT_EQ(form->Text1->text(), QStringLiteral("kept"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
    showFind();
    saveShot(w, QStringLiteral("findform"));
}

TEST_F(FindFormTest, ActivatingFindLoadsTheOlderStartWindowHiddenWithTheStyleChoice)
{
    setCheckValue(form<Options>()->CSS, 1);
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("Form2")));
    showFind();
    qobject_cast<findform*>(Forms::get(QStringLiteral("findform")))->Form_Activate();
    ASSERT_TRUE(Forms::isLoaded(QStringLiteral("Form2")));
    QWidget* old = Forms::find(QStringLiteral("Form2"));
    EXPECT_FALSE(old->isVisible());
    EXPECT_EQ(old->windowTitle(), QStringLiteral("New Form Properties ::"));
    EXPECT_TRUE(old->findChild<QCheckBox*>(QStringLiteral("Check3"))->isChecked());
}

TEST_F(FindFormTest, GoToWindowIsOneInstanceWithItsControls)
{
    QWidget* w = Forms::get(QStringLiteral("frmgoto"));
    ASSERT_NE(qobject_cast<frmgoto*>(w), nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("GoTo Line"));
    EXPECT_EQ(Forms::get(QStringLiteral("frmgoto")), w);
    ASSERT_NE(w->findChild<QLineEdit*>(QStringLiteral("Text1")), nullptr);
    auto* go = w->findChild<QPushButton*>(QStringLiteral("Command1"));
    ASSERT_NE(go, nullptr);
    w->show();
    processEvents();
    // The button's face: RGB 193, 210, 238, as the style paints it.
    EXPECT_EQ(go->palette().color(QPalette::Button), QColor(193, 210, 238));
    saveShot(w, QStringLiteral("frmgoto"));
}

// ---- Find in a web page ------------------------------------------------------------------------

TEST_F(FindFormTest, FindWordThatIsNotThere)
{
    newPage(QStringLiteral("<html>\r\n<body>Hello</body>\r\n</html>"));
    showFind();
    setFind(QStringLiteral("missing"));
    clickExpecting("Command1", notFound);
    EXPECT_FALSE(replaceAllowed());
    // An empty field finds nothing either.
    setFind(QString());
    clickExpecting("Command1", notFound);
    EXPECT_FALSE(replaceAllowed());
}

TEST_F(FindFormTest, FindTellsTheLineFromTheStartEveryTime)
{
    frmDocument* page = newPage(QStringLiteral("<p>cat</p>\r\n<div>\r\n<p>Cat and cat</p>\r\n</div>"));
    showFind();
    setFind(QStringLiteral("cat"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    EXPECT_TRUE(replaceAllowed());
    // Find starts over from the beginning: the first one again.
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    // Case does not count.
    setFind(QStringLiteral("DIV"));
    clickExpecting("Command1", QStringLiteral("Word found on line 2"));
    setFind(QStringLiteral("and"));
    clickExpecting("Command1", QStringLiteral("Word found on line 3"));
    // The search ran on the work copy: the editor's own selection is untouched.
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    EXPECT_EQ(page->RichTextBox1()->SelText(), QStringLiteral("and"));
}

TEST_F(FindFormTest, FindNextGoesOnAndIsSilentAtTheEnd)
{
    newPage(QStringLiteral("<p>cat</p>\r\n<div>\r\n<p>Cat and cat</p>\r\n</div>"));
    showFind();
    setFind(QStringLiteral("cat"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    clickExpecting("Command3", QStringLiteral("Word found on line 3"));
    clickExpecting("Command3", QStringLiteral("Word found on line 3"));
    clickSilently("Command3");
    clickSilently("Command3");
    // Without a find first it starts at the caret of the copy, the start of the text.
    setFind(QStringLiteral("div"));
    Forms::get(QStringLiteral("findform"))->hide();
    showFind();
    clickExpecting("Command3", QStringLiteral("Word found on line 2"));
    clickExpecting("Command3", QStringLiteral("Word found on line 4"));
    clickSilently("Command3");
}

TEST_F(FindFormTest, ReplaceInAWebPageRewritesTheEditor)
{
    frmDocument* page = newPage(QStringLiteral("<p>cat</p>\r\n<p>Cat and cat</p>"));
    page->Changedvalue()->setText(QString());
    showFind();
    setFind(QStringLiteral("cat"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    clickExpecting("Command3", QStringLiteral("Word found on line 2"));
    ASSERT_TRUE(replaceAllowed());
    control<QLineEdit>("Text2")->setText(QStringLiteral("dog"));
    clickSilently("Command2");
    // The match that Find Next selected is replaced, and the whole text is copied back.
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p>cat</p>\r\n<p>dog and cat</p>"));
    EXPECT_EQ(page->Changedvalue()->text(), QStringLiteral("Changed"));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QString());
    EXPECT_EQ(control<QLineEdit>("Text2")->text(), QString());
    // Without "Close after Replace" the window stays.
    EXPECT_TRUE(Forms::get(QStringLiteral("findform"))->isVisible());

    control<QCheckBox>("Check1")->setChecked(true);
    setFind(QStringLiteral("CAT"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    control<QLineEdit>("Text2")->setText(QStringLiteral("bird"));
    clickSilently("Command2");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p>bird</p>\r\n<p>dog and cat</p>"));
    EXPECT_FALSE(Forms::get(QStringLiteral("findform"))->isVisible());
    EXPECT_FALSE(replaceAllowed());
}

TEST_F(FindFormTest, ReplaceWorksOnTheFoundWordAfterTheWindowComesBack)
{
    // The message box takes the focus; when the window gets it back, the found word must
    // still be the one Replace works on.
    frmDocument* page = newPage(QStringLiteral("one two\r\nthree two"));
    auto* form = static_cast<findform*>(showFind());
    setFind(QStringLiteral("two"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    clickExpecting("Command3", QStringLiteral("Word found on line 2"));
    form->Form_Activate();
    ASSERT_TRUE(replaceAllowed());
    control<QLineEdit>("Text2")->setText(QStringLiteral("2"));
    clickSilently("Command2");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("one two\r\nthree 2"));
}

TEST_F(FindFormTest, FindSearchesTheCopyTakenWhenTheWindowWasActivated)
{
    frmDocument* page = newPage(QStringLiteral("alpha"));
    auto* form = static_cast<findform*>(showFind());
    page->CodeMax1()->setText(QStringLiteral("alpha\r\nbeta"));
    setFind(QStringLiteral("beta"));
    clickExpecting("Command1", notFound);
    // Coming back to the window refreshes the copy.
    form->Form_Activate();
    clickExpecting("Command1", QStringLiteral("Word found on line 2"));
    EXPECT_EQ(page->RichTextBox1()->text(), QStringLiteral("alpha\r\nbeta"));
}

TEST_F(FindFormTest, LeavingTheWindowTakesReplaceAway)
{
    newPage(QStringLiteral("some text"));
    auto* form = static_cast<findform*>(showFind());
    setFind(QStringLiteral("text"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    ASSERT_TRUE(replaceAllowed());
    form->Form_Deactivate();
    EXPECT_FALSE(replaceAllowed());
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    ASSERT_TRUE(replaceAllowed());
    form->hide();
    EXPECT_FALSE(replaceAllowed());
    // A failed find after a good one takes it away too.
    showFind();
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    setFind(QStringLiteral("nothing"));
    clickExpecting("Command1", notFound);
    EXPECT_FALSE(replaceAllowed());
}

TEST_F(FindFormTest, CloseCopiesTheWorkCopyBack)
{
    frmDocument* page = newPage(QStringLiteral("before"));
    showFind();
    page->RichTextBox1()->setText(QStringLiteral("after\r\nand more"));
    clickSilently("Command4");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("after\r\nand more"));
    EXPECT_FALSE(Forms::get(QStringLiteral("findform"))->isVisible());
}

TEST_F(FindFormTest, FindAndCloseKeepEveryCharacterOfThePage)
{
    // A no-break space in the page: the copy must give it back as it was.
    frmDocument* page = newPage(QStringLiteral("<p>one\u00A0two</p>\r\n<p>two</p>"));
    auto* form = static_cast<findform*>(showFind());
    setFind(QStringLiteral("two"));
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    form->Form_Activate();
    ASSERT_TRUE(replaceAllowed());
    control<QLineEdit>("Text2")->setText(QStringLiteral("2"));
    clickSilently("Command2");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p>one\u00A02</p>\r\n<p>two</p>")) << "the found word is replaced";

    showFind();
    clickSilently("Command4");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p>one\u00A02</p>\r\n<p>two</p>"));
}

TEST_F(FindFormTest, FindFollowsTheActiveDocument)
{
    frmDocument* first = newPage(QStringLiteral("apple"));
    frmDocument* second = newPage(QStringLiteral("pear\r\napple"));
    auto* form = static_cast<findform*>(showFind());
    setFind(QStringLiteral("apple"));
    clickExpecting("Command1", QStringLiteral("Word found on line 2"));
    frmMain::instance()->activate(first);
    form->Form_Activate();
    clickExpecting("Command1", QStringLiteral("Word found on line 1"));
    control<QLineEdit>("Text2")->setText(QStringLiteral("plum"));
    clickSilently("Command2");
    EXPECT_EQ(first->CodeMax1()->text(), QStringLiteral("plum"));
    EXPECT_EQ(second->CodeMax1()->text(), QStringLiteral("pear\r\napple"));
}

TEST_F(FindFormTest, ShowAdvancedOpensTheEditorsOwnDialog)
{
    frmDocument* page = newPage(QStringLiteral("text"));
    showFind();
    clickSilently("Command5");
    auto* advanced = page->CodeMax1()->findChild<FindReplaceDialog*>();
    ASSERT_NE(advanced, nullptr);
    EXPECT_TRUE(advanced->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("text"));
}

// ---- Find in a notepad and with no document ----------------------------------------------------

TEST_F(FindFormTest, FindAndReplaceInANotepad)
{
    notepad* pad = newPad(QStringLiteral("Dear diary,\r\ntoday was sunny.\r\nSunny again."));
    showFind();
    setFind(QStringLiteral("sunny"));
    clickExpecting("Command1", QStringLiteral("Word found on line 2"));
    EXPECT_EQ(pad->RichTextBox1()->widget()->textCursor().selectedText(), QStringLiteral("sunny"));
    clickExpecting("Command3", QStringLiteral("Word found on line 3"));
    clickSilently("Command3");
    control<QLineEdit>("Text2")->setText(QStringLiteral("Rainy"));
    clickSilently("Command2");
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("Dear diary,\r\ntoday was sunny.\r\nRainy again."));
    EXPECT_EQ(control<QLineEdit>("Text1")->text(), QString());
    setFind(QStringLiteral("nothing"));
    clickExpecting("Command1", notFound);
    // The notepad has no editor: Show Advanced ends silently, Close just closes.
    clickSilently("Command5");
    clickSilently("Command4");
    EXPECT_FALSE(Forms::get(QStringLiteral("findform"))->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("Dear diary,\r\ntoday was sunny.\r\nRainy again."));
}

TEST_F(FindFormTest, FindWithNoDocumentDoesNothing)
{
    ASSERT_EQ(frmMain::instance()->ActiveForm(), nullptr);
    auto* form = static_cast<findform*>(showFind());
    setFind(QStringLiteral("anything"));
    clickSilently("Command1");
    EXPECT_FALSE(replaceAllowed());
    clickSilently("Command3");
    clickSilently("Command5");
    form->Form_Activate();
    // Replace is reachable only after a find; its procedure is as silent without a document.
    form->Text2->setEnabled(true);
    form->Command2->setEnabled(true);
    clickSilently("Command2");
    clickSilently("Command4");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

// ---- GoTo Line ---------------------------------------------------------------------------------

namespace {
class GoToLineTest : public FindFormTest {
protected:
    QWidget* showGoTo()
    {
        QWidget* w = Forms::get(QStringLiteral("frmgoto"));
        w->show();
        processEvents();
        return w;
    }
    void go(const QString& line)
    {
        QWidget* w = Forms::get(QStringLiteral("frmgoto"));
        w->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(line);
        const auto before = prompts.prompts().size();
        w->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        EXPECT_EQ(prompts.prompts().size(), before) << "GoTo Line never speaks";
    }
    static int caretLine(CodeMax* editor)
    {
        int line = -1, index = -1;
        editor->getCursorPosition(&line, &index);
        return line;
    }
};
}

TEST_F(GoToLineTest, GoToLinesWithinTheText)
{
    frmDocument* page = newPage(QStringLiteral("one\r\ntwo\r\nthree\r\nfour\r\nfive"));
    CodeMax* editor = page->CodeMax1();
    ASSERT_EQ(editor->LineCount(), 5);
    showGoTo();
    // The editor counts from 0; the last line is the line count itself.
    for (const auto& [typed, line] : {std::pair{"3", 2}, {"1", 0}, {"5", 4}, {" 2 ", 1}}) {
        go(QString::fromLatin1(typed));
        EXPECT_EQ(editor->HighlightedLine(), line) << typed;
        EXPECT_EQ(caretLine(editor), line) << typed;
    }
    EXPECT_EQ(editor->text(), QStringLiteral("one\r\ntwo\r\nthree\r\nfour\r\nfive"));
}

TEST_F(GoToLineTest, GoToWhatIsNoLineOfTheTextDoesNothing)
{
    frmDocument* page = newPage(QStringLiteral("one\r\ntwo\r\nthree"));
    CodeMax* editor = page->CodeMax1();
    showGoTo();
    go(QStringLiteral("2"));
    ASSERT_EQ(editor->HighlightedLine(), 1);
    for (const QString& bad : {QStringLiteral("4"), QStringLiteral("1000"), QStringLiteral("0"), QStringLiteral("-1"),
                               QStringLiteral("abc"), QString(), QStringLiteral("2x"), QStringLiteral("2.5"),
                               QStringLiteral("99999999999999999999")}) {
        go(bad);
        EXPECT_EQ(editor->HighlightedLine(), 1) << qPrintable(bad);
        EXPECT_EQ(caretLine(editor), 1) << qPrintable(bad);
    }
}

TEST_F(GoToLineTest, GoToWithoutAnEditorIsSilent)
{
    showGoTo();
    go(QStringLiteral("1"));   // no document
    newPad(QStringLiteral("a\r\nb"));
    go(QStringLiteral("1"));   // a notepad has no editor
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
