// The code editor's own find and replace dialog, driven through its controls by name.
#include "common/TestSupport.h"

#include "platform/CodeMax.h"
#include "platform/FindReplaceDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace {
using Sci = QsciScintillaBase;

class FindReplaceTest : public ::testing::Test {
protected:
    void SetUp() override { editor.resize(600, 400); }

    // Opens the dialog the way the program does: editor command 169.
    FindReplaceDialog* open()
    {
        editor.ExecuteCmd(169);
        auto* d = editor.findChild<FindReplaceDialog*>();
        EXPECT_NE(d, nullptr);
        return d;
    }
    template <class W>
    W* control(const char* name)
    {
        auto* w = dialog->findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    void setFind(const QString& text) { control<QLineEdit>("findText")->setText(text); }
    void setReplace(const QString& text) { control<QLineEdit>("replaceText")->setText(text); }
    void tick(const char* name, bool on = true) { control<QCheckBox>(name)->setChecked(on); }
    void press(const char* name)
    {
        auto* b = control<QPushButton>(name);
        ASSERT_TRUE(b->isEnabled()) << name;
        b->click();
    }
    QString status() { return control<QLabel>("status")->text(); }

    // Positions in characters, as the user sees them (the control counts bytes).
    long bytePos(int chars) const
    {
        return editor.SendScintilla(Sci::SCI_POSITIONRELATIVE, 0UL, static_cast<long>(chars));
    }
    int chars(long bytes) const
    {
        return static_cast<int>(editor.SendScintilla(Sci::SCI_COUNTCHARACTERS, 0UL, bytes));
    }
    void select(int from, int to) { editor.SendScintilla(Sci::SCI_SETSEL, bytePos(from), bytePos(to)); }
    void setCaret(int at) { select(at, at); }
    std::pair<int, int> selection() const
    {
        return {chars(editor.SendScintilla(Sci::SCI_GETSELECTIONSTART)),
                chars(editor.SendScintilla(Sci::SCI_GETSELECTIONEND))};
    }
    using Sel = std::pair<int, int>;

    CodeMax editor;
    FindReplaceDialog* dialog = nullptr;
};
}

// ---- The dialog itself -------------------------------------------------------------------------

TEST_F(FindReplaceTest, FindCommandShowsOneNonModalDialogPerEditor)
{
    QSignalSpy requested(&editor, &CodeMax::findReplaceRequested);
    editor.setText(QStringLiteral("alpha beta\r\ngamma"));
    select(6, 10);
    dialog = open();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(requested.count(), 1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_TRUE(dialog->isWindow());
    // A selection on one line is offered as the text to find.
    EXPECT_EQ(control<QLineEdit>("findText")->text(), QStringLiteral("beta"));
    EXPECT_TRUE(control<QCheckBox>("wrapAround")->isChecked());
    EXPECT_FALSE(control<QCheckBox>("matchCase")->isChecked());
    EXPECT_FALSE(control<QCheckBox>("wholeWord")->isChecked());
    EXPECT_FALSE(control<QCheckBox>("regularExpression")->isChecked());
    // Opening it does not touch the text.
    EXPECT_EQ(editor.text(), QStringLiteral("alpha beta\r\ngamma"));
    saveShot(dialog, QStringLiteral("FindReplaceDialog"));

    // Hidden by Close, the same dialog comes back, with what was typed; a selection over
    // two lines is not taken as the text to find.
    press("close");
    EXPECT_FALSE(dialog->isVisible());
    select(0, 13);
    EXPECT_EQ(open(), dialog);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(control<QLineEdit>("findText")->text(), QStringLiteral("beta"));
    EXPECT_EQ(requested.count(), 2);
    EXPECT_EQ(editor.findChildren<FindReplaceDialog*>().size(), 1);

    CodeMax other;
    other.ExecuteCmd(169);
    auto* second = other.findChild<FindReplaceDialog*>();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, dialog);
    EXPECT_EQ(second->editor(), &other);
}

TEST_F(FindReplaceTest, FindButtonsNeedSomethingToFind)
{
    editor.setText(QStringLiteral("text"));
    dialog = open();
    setFind(QString());
    for (const char* b : {"findNext", "findPrevious", "replace", "replaceAll"})
        EXPECT_FALSE(control<QPushButton>(b)->isEnabled()) << b;
    EXPECT_FALSE(dialog->findNext());
    EXPECT_EQ(status(), QStringLiteral("Type the text to find."));
    setFind(QStringLiteral("t"));
    for (const char* b : {"findNext", "findPrevious", "replace", "replaceAll"})
        EXPECT_TRUE(control<QPushButton>(b)->isEnabled()) << b;
    // Typing clears the last verdict.
    EXPECT_EQ(status(), QString());
}

// ---- Finding -----------------------------------------------------------------------------------

TEST_F(FindReplaceTest, FindNextWalksForwardAndWrapsAroundWhenAllowed)
{
    editor.setText(QStringLiteral("cat dog cat\r\ndog cat"));
    setCaret(0);
    dialog = open();
    setFind(QStringLiteral("cat"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(0, 3));
    EXPECT_EQ(status(), QString());
    press("findNext");
    EXPECT_EQ(selection(), Sel(8, 11));
    press("findNext");
    EXPECT_EQ(selection(), Sel(17, 20));
    EXPECT_EQ(editor.SelText(), QStringLiteral("cat"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(0, 3));
    EXPECT_EQ(status(), QStringLiteral("Passed the end of the text; continued from the start."));

    // Without wrapping the end is the end: the selection stays where it was.
    tick("wrapAround", false);
    select(17, 20);
    press("findNext");
    EXPECT_EQ(selection(), Sel(17, 20));
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"cat\"."));
}

TEST_F(FindReplaceTest, FindPreviousWalksBackwardAndWrapsAroundWhenAllowed)
{
    editor.setText(QStringLiteral("cat dog cat\r\ndog cat"));
    setCaret(20);
    dialog = open();
    setFind(QStringLiteral("cat"));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(17, 20));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(8, 11));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(0, 3));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(17, 20));
    EXPECT_EQ(status(), QStringLiteral("Passed the start of the text; continued from the end."));

    tick("wrapAround", false);
    select(0, 3);
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(0, 3));
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"cat\"."));
    // And forward again from there.
    press("findNext");
    EXPECT_EQ(selection(), Sel(8, 11));
}

TEST_F(FindReplaceTest, NothingFoundLeavesSelectionAndSaysSo)
{
    editor.setText(QStringLiteral("one two three"));
    select(4, 7);
    dialog = open();
    setFind(QStringLiteral("four"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(4, 7));
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"four\"."));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(4, 7));
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"four\"."));
}

TEST_F(FindReplaceTest, FindMatchCaseAndWholeWord)
{
    editor.setText(QStringLiteral("Apple concat apple cats APPLE cat"));
    setCaret(0);
    dialog = open();
    setFind(QStringLiteral("apple"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(0, 5));   // case does not count by default

    tick("matchCase");
    setCaret(0);
    press("findNext");
    EXPECT_EQ(selection(), Sel(13, 18));
    press("findNext");
    EXPECT_EQ(selection(), Sel(13, 18));   // the only one: wrapped onto itself
    setFind(QStringLiteral("aPPLE"));
    press("findNext");
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"aPPLE\"."));

    tick("matchCase", false);
    tick("wholeWord");
    setFind(QStringLiteral("cat"));
    setCaret(0);
    press("findNext");
    EXPECT_EQ(selection(), Sel(30, 33));   // not inside "concat" or "cats"
    press("findNext");
    EXPECT_EQ(selection(), Sel(30, 33));
    tick("wholeWord", false);
    setCaret(0);
    press("findNext");
    EXPECT_EQ(selection(), Sel(9, 12));
}

TEST_F(FindReplaceTest, FindRegularExpressions)
{
    editor.setText(QStringLiteral("a1 b22 c333\r\nx4444 b22b"));
    setCaret(0);
    dialog = open();
    tick("regularExpression");
    setFind(QStringLiteral("[a-z]\\d{2,}"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("b22"));
    EXPECT_EQ(selection(), Sel(3, 6));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("c333"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("x4444"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(19, 22));
    press("findPrevious");
    EXPECT_EQ(editor.SelText(), QStringLiteral("x4444"));

    // Whole word applies to the pattern too: "b22b" is not the word "b22".
    tick("wholeWord");
    setFind(QStringLiteral("b\\d+"));
    setCaret(8);
    press("findNext");
    EXPECT_EQ(selection(), Sel(3, 6));
    EXPECT_EQ(status(), QStringLiteral("Passed the end of the text; continued from the start."));

    // Anchors work line by line.
    tick("wholeWord", false);
    setFind(QStringLiteral("^x\\d"));
    setCaret(0);
    press("findNext");
    EXPECT_EQ(selection(), Sel(13, 15));
    // An empty match at a line end steps over the whole CR LF, never between the two.
    setFind(QStringLiteral("$"));
    setCaret(0);
    press("findNext");
    EXPECT_EQ(selection(), Sel(11, 11));
    press("findNext");
    EXPECT_EQ(selection(), Sel(23, 23));
    press("findPrevious");
    EXPECT_EQ(selection(), Sel(11, 11));

    // Without the box ticked the same text is taken literally.
    tick("regularExpression", false);
    setFind(QStringLiteral("^x\\d"));
    setCaret(0);
    press("findNext");
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"^x\\d\"."));
}

TEST_F(FindReplaceTest, TextPastANulCharacterIsFoundAndKept)
{
    const QString text = QStringLiteral("ab") + QChar(0) + QStringLiteral("cd b");
    editor.setText(text);
    EXPECT_EQ(editor.text(), text);
    setCaret(4);
    dialog = open();
    setFind(QStringLiteral("b"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(6, 7));
    setReplace(QStringLiteral("B"));
    press("replaceAll");
    EXPECT_EQ(editor.text(), QStringLiteral("aB") + QChar(0) + QStringLiteral("cd B"));
}

TEST_F(FindReplaceTest, FindInvalidPatternSaysSoAndChangesNothing)
{
    const QString text = QStringLiteral("(abc [def] abc");
    editor.setText(text);
    select(1, 4);
    dialog = open();
    tick("regularExpression");
    setReplace(QStringLiteral("x"));
    for (const QString& bad : {QStringLiteral("(abc"), QStringLiteral("[def"), QStringLiteral("a{2,1}"),
                               QStringLiteral("*abc")}) {
        setFind(bad);
        press("findNext");
        EXPECT_TRUE(status().startsWith(QStringLiteral("Invalid regular expression"))) << qPrintable(bad) << " " << qPrintable(status());
        press("findPrevious");
        EXPECT_TRUE(status().startsWith(QStringLiteral("Invalid regular expression"))) << qPrintable(bad);
        press("replace");
        EXPECT_TRUE(status().startsWith(QStringLiteral("Invalid regular expression"))) << qPrintable(bad);
        EXPECT_EQ(dialog->replaceAll(), -1) << qPrintable(bad);
        EXPECT_TRUE(status().startsWith(QStringLiteral("Invalid regular expression"))) << qPrintable(bad);
        EXPECT_EQ(editor.text(), text);
        EXPECT_EQ(selection(), Sel(1, 4));
    }
    // The same characters as plain text are found.
    tick("regularExpression", false);
    setFind(QStringLiteral("[def"));
    press("findNext");
    EXPECT_EQ(selection(), Sel(5, 9));
}

TEST_F(FindReplaceTest, FindNonAsciiText)
{
    editor.setText(QStringLiteral("Grüße aus Köln, grüße\r\nΑθήνα 😀 café cafés"));
    setCaret(0);
    dialog = open();
    setFind(QStringLiteral("GRÜSSE"));
    press("findNext");
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"GRÜSSE\"."));
    setFind(QStringLiteral("grüße"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("Grüße"));
    EXPECT_EQ(selection(), Sel(0, 5));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("grüße"));
    EXPECT_EQ(selection(), Sel(16, 21));
    tick("matchCase");
    press("findNext");
    EXPECT_EQ(selection(), Sel(16, 21));

    tick("matchCase", false);
    setFind(QStringLiteral("KÖLN"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("Köln"));
    EXPECT_EQ(selection(), Sel(10, 14));
    setFind(QStringLiteral("αθήνα"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("Αθήνα"));
    setFind(QStringLiteral("😀"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("😀"));
    tick("wholeWord");
    setFind(QStringLiteral("café"));
    press("findNext");
    EXPECT_EQ(editor.SelText(), QStringLiteral("café"));
    const Sel first = selection();
    press("findNext");
    EXPECT_EQ(selection(), first);   // "cafés" is another word
}

// ---- Replacing ---------------------------------------------------------------------------------

TEST_F(FindReplaceTest, ReplaceOnlyReplacesASelectedMatchThenMovesOn)
{
    editor.setText(QStringLiteral("red green red blue red"));
    select(4, 9);   // "green" is not what we look for
    dialog = open();
    setFind(QStringLiteral("red"));
    setReplace(QStringLiteral("orange"));
    tick("wrapAround", false);
    press("replace");
    EXPECT_EQ(editor.text(), QStringLiteral("red green red blue red"));
    EXPECT_EQ(selection(), Sel(10, 13));
    EXPECT_EQ(status(), QString());

    press("replace");
    EXPECT_EQ(editor.text(), QStringLiteral("red green orange blue red"));
    EXPECT_EQ(selection(), Sel(22, 25));
    EXPECT_EQ(status(), QStringLiteral("Replaced 1 occurrence."));

    press("replace");
    EXPECT_EQ(editor.text(), QStringLiteral("red green orange blue orange"));
    EXPECT_EQ(status(), QStringLiteral("Replaced 1 occurrence. No more found."));
    // The first "red" was never reached without wrapping, and one undo takes back one step.
    editor.undo();
    EXPECT_EQ(editor.text(), QStringLiteral("red green orange blue red"));
}

TEST_F(FindReplaceTest, ReplaceWithGroupsOfARegularExpression)
{
    editor.setText(QStringLiteral("width=10 height=20"));
    setCaret(0);
    dialog = open();
    tick("regularExpression");
    setFind(QStringLiteral("(\\w+)=(\\d+)"));
    setReplace(QStringLiteral("\\1=\"\\2\""));
    press("findNext");
    press("replace");
    EXPECT_EQ(editor.text(), QStringLiteral("width=\"10\" height=20"));
    EXPECT_EQ(editor.SelText(), QStringLiteral("height=20"));
    press("replace");
    EXPECT_EQ(editor.text(), QStringLiteral("width=\"10\" height=\"20\""));
}

TEST_F(FindReplaceTest, ReplaceAllCountsAndIsOneUndoStep)
{
    const QString original = QStringLiteral("<B>one</B>\r\n<b>two</b>\r\n<i>three</i>");
    editor.setText(original);
    setCaret(12);
    dialog = open();
    setFind(QStringLiteral("b>"));
    setReplace(QStringLiteral("strong>"));
    press("replaceAll");
    EXPECT_EQ(editor.text(), QStringLiteral("<strong>one</strong>\r\n<strong>two</strong>\r\n<i>three</i>"));
    EXPECT_EQ(status(), QStringLiteral("Replaced 4 occurrences."));

    editor.undo();
    EXPECT_EQ(editor.text(), original);
    editor.redo();
    EXPECT_EQ(editor.text(), QStringLiteral("<strong>one</strong>\r\n<strong>two</strong>\r\n<i>three</i>"));
    editor.undo();

    tick("matchCase");
    EXPECT_EQ(dialog->replaceAll(), 2);
    EXPECT_EQ(editor.text(), QStringLiteral("<B>one</B>\r\n<strong>two</strong>\r\n<i>three</i>"));
    EXPECT_EQ(status(), QStringLiteral("Replaced 2 occurrences."));

    setFind(QStringLiteral("<i>"));
    setReplace(QStringLiteral("<em>"));
    EXPECT_EQ(dialog->replaceAll(), 1);
    EXPECT_EQ(status(), QStringLiteral("Replaced 1 occurrence."));

    setFind(QStringLiteral("<u>"));
    const QString before = editor.text();
    EXPECT_EQ(dialog->replaceAll(), 0);
    EXPECT_EQ(status(), QStringLiteral("Cannot find \"<u>\"."));
    EXPECT_EQ(editor.text(), before);
}

TEST_F(FindReplaceTest, ReplaceAllEdgeCases)
{
    // A replacement that contains what is searched for is not searched again.
    editor.setText(QStringLiteral("a-a-a"));
    dialog = open();
    setFind(QStringLiteral("a"));
    setReplace(QStringLiteral("aa"));
    EXPECT_EQ(dialog->replaceAll(), 3);
    EXPECT_EQ(editor.text(), QStringLiteral("aa-aa-aa"));

    // Replacing with nothing deletes.
    setFind(QStringLiteral("-"));
    setReplace(QString());
    EXPECT_EQ(dialog->replaceAll(), 2);
    EXPECT_EQ(editor.text(), QStringLiteral("aaaaaa"));

    // Patterns that match empty text end, once per place.
    editor.setText(QStringLiteral("one\r\ntwo\r\nthree"));
    tick("regularExpression");
    setFind(QStringLiteral("^"));
    setReplace(QStringLiteral("> "));
    EXPECT_EQ(dialog->replaceAll(), 3);
    EXPECT_EQ(editor.text(), QStringLiteral("> one\r\n> two\r\n> three"));
    editor.undo();
    EXPECT_EQ(editor.text(), QStringLiteral("one\r\ntwo\r\nthree"));

    setFind(QStringLiteral("$"));
    setReplace(QStringLiteral(";"));
    EXPECT_EQ(dialog->replaceAll(), 3);
    EXPECT_EQ(editor.text(), QStringLiteral("one;\r\ntwo;\r\nthree;"));

    // Non-ASCII text on both sides keeps the positions right.
    tick("regularExpression", false);
    editor.setText(QStringLiteral("Straße, straße, STRASSE; 😀 und 😀"));
    setFind(QStringLiteral("straße"));
    setReplace(QStringLiteral("Weg"));
    EXPECT_EQ(dialog->replaceAll(), 2);
    EXPECT_EQ(editor.text(), QStringLiteral("Weg, Weg, STRASSE; 😀 und 😀"));
    setFind(QStringLiteral("😀"));
    setReplace(QStringLiteral("ü"));
    EXPECT_EQ(dialog->replaceAll(), 2);
    EXPECT_EQ(editor.text(), QStringLiteral("Weg, Weg, STRASSE; ü und ü"));

    // An empty text has nothing to replace.
    editor.setText(QString());
    setFind(QStringLiteral("x"));
    EXPECT_EQ(dialog->replaceAll(), 0);
    EXPECT_EQ(editor.text(), QString());
}

TEST_F(FindReplaceTest, FindButNoReplaceInAReadOnlyEditor)
{
    editor.setText(QStringLiteral("keep keep"));
    editor.setReadOnly(true);
    setCaret(0);
    dialog = open();
    setFind(QStringLiteral("keep"));
    setReplace(QStringLiteral("lose"));
    EXPECT_FALSE(control<QPushButton>("replace")->isEnabled());
    EXPECT_FALSE(control<QPushButton>("replaceAll")->isEnabled());
    EXPECT_EQ(dialog->replaceAll(), -1);
    EXPECT_FALSE(dialog->replace());
    press("findNext");
    EXPECT_EQ(selection(), Sel(0, 4));
    EXPECT_EQ(editor.text(), QStringLiteral("keep keep"));
}
