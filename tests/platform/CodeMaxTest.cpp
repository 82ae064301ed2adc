// The code editor control: the insertion rule, the editor command numbers, macros, files,
// languages and the change event.
#include "common/TestSupport.h"
#include "common/Utf8.h"

#include "platform/CodeMax.h"
#include "platform/RuntimeError.h"

#include <Qsci/qscilexer.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <random>

namespace {
using Sci = QsciScintillaBase;

class CodeMaxTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        editor.resize(600, 400);
        ASSERT_TRUE(dir.isValid());
    }

    // Positions in characters, as the user sees them (the control itself counts bytes).
    int caret() const
    {
        const long pos = editor.SendScintilla(Sci::SCI_GETCURRENTPOS);
        return static_cast<int>(editor.SendScintilla(Sci::SCI_COUNTCHARACTERS, 0UL, pos));
    }
    long bytePos(int chars) const
    {
        return editor.SendScintilla(Sci::SCI_POSITIONRELATIVE, 0UL, static_cast<long>(chars));
    }
    void setCaret(int chars) { editor.SendScintilla(Sci::SCI_GOTOPOS, bytePos(chars)); }
    void select(int fromChars, int toChars)
    {
        editor.SendScintilla(Sci::SCI_SETSEL, bytePos(fromChars), bytePos(toChars));
    }
    int caretLine() const
    {
        int line = -1, index = -1;
        editor.getCursorPosition(&line, &index);
        return line;
    }
    // The insertion rule every wizard ends in.
    void insert(const QString& fragment)
    {
        editor.setSelText(fragment);
        editor.ExecuteCmd(201);
    }
    void type(const QString& chars)
    {
        for (const QChar c : chars) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QCoreApplication::sendEvent(&editor, &press);
        }
    }
    QByteArray readFile(const QString& path) const
    {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            return QByteArray("<missing>");
        return f.readAll();
    }
    void writeFile(const QString& path, const QByteArray& bytes) const
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
    }

    ScriptedPrompts prompts;
    QTemporaryDir dir;
    CodeMax editor;
};

void expectRuntimeError(int number, const std::function<void()>& f, const char* what)
{
    try {
        f();
        ADD_FAILURE() << what << ": no run-time error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, number) << what;
    }
}
}

TEST_F(CodeMaxTest, IsNamedAndStartsEmpty)
{
    EXPECT_EQ(editor.objectName(), QStringLiteral("CodeMax1"));
    EXPECT_EQ(editor.text(), QString());
    EXPECT_EQ(editor.TextLength(), 0);
    EXPECT_EQ(editor.LineCount(), 1);
    EXPECT_EQ(editor.SelLength(), 0);
}

// ---- The insertion rule --------------------------------------------------------------------

TEST_F(CodeMaxTest, InsertionLeavesTheCaretBehindTheTextWithNothingSelected)
{
    editor.setSelText(QStringLiteral("<b></b>"));
    EXPECT_EQ(editor.SelText(), QStringLiteral("<b></b>")) << "the new text stays selected until 201";
    EXPECT_EQ(editor.SelLength(), 7);
    editor.ExecuteCmd(201);
    EXPECT_EQ(editor.text(), QStringLiteral("<b></b>"));
    EXPECT_EQ(caret(), 7);
    EXPECT_FALSE(editor.hasSelectedText());
    EXPECT_EQ(editor.SelLength(), 0);
    EXPECT_EQ(editor.SelText(), QString());

    // A second fragment lands behind the first.
    insert(QStringLiteral("<i></i>"));
    EXPECT_EQ(editor.text(), QStringLiteral("<b></b><i></i>"));
    EXPECT_EQ(caret(), 14);
}

TEST_F(CodeMaxTest, InsertionReplacesTheSelection)
{
    editor.setText(QStringLiteral("Hello World!"));
    select(6, 11);
    ASSERT_EQ(editor.SelText(), QStringLiteral("World"));
    editor.setSelText(QStringLiteral("There"));
    EXPECT_EQ(editor.SelText(), QStringLiteral("There"));
    editor.ExecuteCmd(201);
    EXPECT_EQ(editor.text(), QStringLiteral("Hello There!"));
    EXPECT_EQ(caret(), 11);
    EXPECT_FALSE(editor.hasSelectedText());

    // A selection made from right to left is replaced just the same.
    editor.SendScintilla(Sci::SCI_SETSEL, bytePos(5), bytePos(0));
    insert(QStringLiteral("Bye"));
    EXPECT_EQ(editor.text(), QStringLiteral("Bye There!"));
    EXPECT_EQ(caret(), 3);

    // A longer and a shorter replacement.
    select(4, 9);
    insert(QStringLiteral("everybody"));
    EXPECT_EQ(editor.text(), QStringLiteral("Bye everybody!"));
    EXPECT_EQ(caret(), 13);
    // Assigning nothing removes the selection.
    select(0, 13);
    editor.setSelText(QString());
    EXPECT_EQ(editor.text(), QStringLiteral("!"));
    EXPECT_EQ(caret(), 0);
    EXPECT_FALSE(editor.hasSelectedText());
}

TEST_F(CodeMaxTest, InsertionOfNonAsciiTextPositionsByCharacters)
{
    editor.setText(QStringLiteral("x\u00E9y"));  // xéy
    setCaret(2);
    editor.setSelText(QStringLiteral("\u00E9\u20AC"));  // é€
    EXPECT_EQ(editor.SelText(), QStringLiteral("\u00E9\u20AC"));
    EXPECT_EQ(editor.SelLength(), 2);
    editor.ExecuteCmd(201);
    EXPECT_EQ(editor.text(), QStringLiteral("x\u00E9\u00E9\u20ACy"));
    EXPECT_EQ(caret(), 4);
    EXPECT_FALSE(editor.hasSelectedText());

    // The next insertion lands right behind, not inside a character.
    insert(QStringLiteral("!"));
    EXPECT_EQ(editor.text(), QStringLiteral("x\u00E9\u00E9\u20AC!y"));

    // Replacing a selection of non-ASCII text with non-ASCII text.
    select(1, 4);
    ASSERT_EQ(editor.SelText(), QStringLiteral("\u00E9\u00E9\u20AC"));
    insert(QStringLiteral("\u00FC\u00DF"));  // üß
    EXPECT_EQ(editor.text(), QStringLiteral("x\u00FC\u00DF!y"));
    EXPECT_EQ(caret(), 3);
    insert(QStringLiteral("\u20AC"));
    EXPECT_EQ(editor.text(), QStringLiteral("x\u00FC\u00DF\u20AC!y"));
}

TEST_F(CodeMaxTest, FragmentOnLinesOfItsOwn)
{
    editor.setText(QStringLiteral("<body></body>"));
    setCaret(6);
    insert(QStringLiteral("\r\n<hr>\r\n"));
    EXPECT_EQ(editor.text(), QStringLiteral("<body>\r\n<hr>\r\n</body>"));
    EXPECT_EQ(editor.LineCount(), 3);
    EXPECT_EQ(caretLine(), 2);
    EXPECT_EQ(caret(), 14);
}

TEST_F(CodeMaxTest, CommandStepsRightWithoutSelection)
{
    editor.setText(QStringLiteral("a\u20ACc"));
    setCaret(0);
    editor.ExecuteCmd(201);
    EXPECT_EQ(caret(), 1);
    editor.ExecuteCmd(201);
    EXPECT_EQ(caret(), 2) << "one step is one character, however many bytes it has";
    editor.ExecuteCmd(201);
    editor.ExecuteCmd(201);
    EXPECT_EQ(caret(), 3) << "the end of the text stops it";
    EXPECT_EQ(editor.text(), QStringLiteral("a\u20ACc"));
}

// ---- Editor command numbers ----------------------------------------------------------------

TEST_F(CodeMaxTest, CommandsOnTheTextAndTheSelection)
{
    // Each from its text and selection, in characters (an empty selection is the caret).
    const QString cafe = QStringLiteral("caf\u00E9 na\u00EFve \u00E0 la"), CAFE = QStringLiteral("CAF\u00C9 NA\u00CFVE \u00C0 LA");
    const QString page = QStringLiteral("<p>\r\n\u00E9t\u00E9\r\n</p>");
    const struct {
        const char* name;
        QString text;
        int from, to, command;
        QString expected, selected;
    } cases[] = {
        {"upper case of the selection only", u("hello big World"), 6, 9, 125, u("hello BIG World"), u("BIG")},
        {"lower case of the selection only", u("hello BIG World"), 10, 15, 147, u("hello BIG world"), u("world")},
        {"upper case of accented letters", cafe, 0, 15, 125, CAFE, CAFE},
        {"lower case of accented letters", CAFE, 0, 15, 147, cafe, cafe},
        {"case without a selection changes nothing", u("abc"), 1, 1, 125, u("abc"), u("")},
        {"select all from anywhere", page, 3, 3, 137, page, page},
        {"delete the caret's line", u("one\r\ntwo\r\nthree"), 7, 7, 160, u("one\r\nthree"), u("")},
        {"delete the first line", u("one\r\nthree"), 0, 0, 160, u("three"), u("")},
    };
    for (const auto& c : cases) {
        editor.setText(c.text);
        select(c.from, c.to);
        editor.ExecuteCmd(c.command);
        EXPECT_EQ(editor.text(), c.expected) << c.name << ": " << visible(editor.text());
        EXPECT_EQ(editor.SelText(), c.selected) << c.name;
        EXPECT_EQ(editor.SelLength(), c.selected.size()) << c.name;
    }
}

TEST_F(CodeMaxTest, LineUpAndDown)
{
    editor.setText(QStringLiteral("one\r\ntwo\r\nthree"));
    editor.setCursorPosition(1, 1);
    // Up twice, then down three times: the first and the last line stop the caret.
    for (const auto& [command, line] : {std::pair{149, 0}, {149, 0}, {157, 1}, {157, 2}, {157, 2}}) {
        editor.ExecuteCmd(command);
        EXPECT_EQ(caretLine(), line);
    }
    EXPECT_EQ(editor.text(), QStringLiteral("one\r\ntwo\r\nthree"));
}

TEST_F(CodeMaxTest, FindReplaceAndPropertiesAreHandedToTheirOwners)
{
    QSignalSpy find(&editor, &CodeMax::findReplaceRequested);
    QSignalSpy props(&editor, &CodeMax::propertiesRequested);
    editor.setText(QStringLiteral("text"));
    editor.ExecuteCmd(169);
    EXPECT_EQ(find.count(), 1);
    EXPECT_EQ(props.count(), 0);
    editor.ExecuteCmd(224);
    EXPECT_EQ(find.count(), 1);
    EXPECT_EQ(props.count(), 1);
    EXPECT_EQ(editor.text(), QStringLiteral("text"));
}

TEST_F(CodeMaxTest, OtherNumbersAreInvalidCalls)
{
    editor.setText(QStringLiteral("keep me"));
    setCaret(2);
    QSignalSpy find(&editor, &CodeMax::findReplaceRequested);
    QSignalSpy props(&editor, &CodeMax::propertiesRequested);
    for (int n : {0, 1, -1, 124, 126, 136, 148, 150, 158, 161, 168, 170, 200, 202, 212, 225, 1000}) {
        expectRuntimeError(5, [&] { editor.ExecuteCmd(n); }, qPrintable(QString::number(n)));
    }
    EXPECT_EQ(editor.text(), QStringLiteral("keep me"));
    EXPECT_EQ(caret(), 2);
    EXPECT_FALSE(editor.isRecordingMacro());
    EXPECT_EQ(find.count(), 0);
    EXPECT_EQ(props.count(), 0);
}

// ---- Macros --------------------------------------------------------------------------------

TEST_F(CodeMaxTest, MacroRecordedFromTypingPlaysBackFromItsSlot)
{
    editor.setMacroRecordSlot(3);
    editor.ExecuteCmd(213);
    EXPECT_TRUE(editor.isRecordingMacro());
    type(QStringLiteral("ab"));
    editor.SendScintilla(Sci::SCI_NEWLINE);
    type(QStringLiteral("c"));
    editor.ExecuteCmd(213);
    EXPECT_FALSE(editor.isRecordingMacro());
    ASSERT_EQ(editor.text(), QStringLiteral("ab\r\nc")) << "typing reached the editor";
    EXPECT_TRUE(editor.hasMacro(3));

    editor.setText(QString());
    editor.ExecuteCmd(216);
    EXPECT_EQ(editor.text(), QStringLiteral("ab\r\nc"));
    editor.ExecuteCmd(216);
    EXPECT_EQ(editor.text(), QStringLiteral("ab\r\ncab\r\nc")) << "each play repeats it at the caret";

    // The other slots are empty: playing them does nothing.
    for (int n = 214; n <= 223; ++n) {
        if (n == 216)
            continue;
        EXPECT_FALSE(editor.hasMacro(n - 213)) << n;
        editor.ExecuteCmd(n);
        EXPECT_EQ(editor.text(), QStringLiteral("ab\r\ncab\r\nc")) << n;
    }
}

TEST_F(CodeMaxTest, MacroOfInsertionsPlaysBackTheSameText)
{
    editor.setMacroRecordSlot(3);
    editor.ExecuteCmd(213);
    insert(QStringLiteral("<b>"));
    insert(QStringLiteral("x"));
    insert(QStringLiteral("</b>"));
    // A text in pieces, one cut inside the e acute, as a big table goes in.
    editor.setSelPieces({"<i>", "y\xc3", "\xa9</i>"});
    editor.ExecuteCmd(201);
    editor.ExecuteCmd(213);
    ASSERT_EQ(editor.text(), QStringLiteral("<b>x</b><i>y\u00e9</i>"));

    editor.setText(QString());
    editor.ExecuteCmd(216);
    EXPECT_EQ(editor.text(), QStringLiteral("<b>x</b><i>y\u00e9</i>")) << visible(editor.text());
    EXPECT_EQ(caret(), 17);
}

TEST_F(CodeMaxTest, RecordingAgainReplacesTheSlotAndOtherSlotsAreKept)
{
    editor.setMacroRecordSlot(3);
    editor.ExecuteCmd(213);
    type(QStringLiteral("one"));
    editor.ExecuteCmd(213);
    editor.setMacroRecordSlot(10);
    editor.ExecuteCmd(213);
    type(QStringLiteral("ten"));
    editor.ExecuteCmd(213);
    editor.setMacroRecordSlot(3);
    editor.ExecuteCmd(213);
    type(QStringLiteral("new"));
    editor.ExecuteCmd(213);

    editor.setText(QString());
    editor.ExecuteCmd(216);
    EXPECT_EQ(editor.text(), QStringLiteral("new"));
    editor.ExecuteCmd(223);
    EXPECT_EQ(editor.text(), QStringLiteral("newten"));
}

// ---- Files ---------------------------------------------------------------------------------

TEST_F(CodeMaxTest, SaveAndOpenKeepCrLfAndUtf8)
{
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    editor.setText(QStringLiteral("<p>caf\u00E9 \u20AC</p>\r\n<p>two</p>\r\n"));
    editor.SaveFile(path, true);
    EXPECT_EQ(readFile(path), QByteArray("<p>caf\xC3\xA9 \xE2\x82\xAC</p>\r\n<p>two</p>\r\n"));

    CodeMax other;
    QSignalSpy changed(&other, &CodeMax::Change);
    other.OpenFile(path);
    EXPECT_EQ(other.text(), QStringLiteral("<p>caf\u00E9 \u20AC</p>\r\n<p>two</p>\r\n"));
    EXPECT_GE(changed.count(), 1) << "loading a file is a change";
    EXPECT_EQ(other.LineCount(), 3);
}

TEST_F(CodeMaxTest, OpenReadsWindows1252WhenTheFileIsNotUtf8)
{
    const QString path = dir.filePath(QStringLiteral("old.htm"));
    writeFile(path, QByteArray("caf\xE9 \x80 \x93quoted\x94\r\n"));
    editor.OpenFile(path);
    EXPECT_EQ(editor.text(), QStringLiteral("caf\u00E9 \u20AC \u201Cquoted\u201D\r\n"));
}

TEST_F(CodeMaxTest, SaveOverwritesOnlyWhenAllowed)
{
    const QString path = dir.filePath(QStringLiteral("exists.htm"));
    writeFile(path, QByteArray("old"));
    editor.setText(QStringLiteral("new"));

    expectRuntimeError(58, [&] { editor.SaveFile(path, false); }, "overwrite false on an existing file");
    EXPECT_EQ(readFile(path), QByteArray("old"));

    editor.SaveFile(path, true);
    EXPECT_EQ(readFile(path), QByteArray("new"));

    const QString fresh = dir.filePath(QStringLiteral("fresh.htm"));
    editor.SaveFile(fresh, false);
    EXPECT_EQ(readFile(fresh), QByteArray("new"));
}

TEST_F(CodeMaxTest, OpenOfAMissingFileIsFileNotFound)
{
    editor.setText(QStringLiteral("unchanged"));
    expectRuntimeError(53, [&] { editor.OpenFile(dir.filePath(QStringLiteral("missing.htm"))); }, "missing file");
    EXPECT_EQ(editor.text(), QStringLiteral("unchanged"));
    expectRuntimeError(53, [&] { editor.OpenFile(dir.filePath(QStringLiteral("nofolder/missing.htm"))); },
                       "missing folder");
}

TEST_F(CodeMaxTest, SaveIntoAMissingFolderIsPathFileAccessErrorAndLeavesNothing)
{
    const QString folder = dir.filePath(QStringLiteral("nofolder"));
    const QString path = folder + QStringLiteral("/page.htm");
    editor.setText(QStringLiteral("text"));
    expectRuntimeError(75, [&] { editor.SaveFile(path, true); }, "missing folder");
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(QFileInfo::exists(folder)) << "no folder is made on the way";
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), QStringList());
}

// ---- Languages -----------------------------------------------------------------------------

TEST_F(CodeMaxTest, LanguageByNameAndPlainTextForUnknownNames)
{
    EXPECT_EQ(editor.lexer(), nullptr);
    editor.setLanguage(QStringLiteral("HTML"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "HTML");
    EXPECT_EQ(editor.Language(), QStringLiteral("HTML"));

    for (const char* name : {"Basic", "nonsense", ""}) {
        editor.setLanguage(QStringLiteral("HTML"));
        ASSERT_NE(editor.lexer(), nullptr);
        editor.setLanguage(QString::fromLatin1(name));
        EXPECT_EQ(editor.lexer(), nullptr) << "'" << name << "' shows plain text";
    }

    editor.setLanguage(QStringLiteral("XML"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "XML");
    editor.setLanguage(QStringLiteral("SQL"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "SQL");
}

TEST_F(CodeMaxTest, ChangingTheLanguageKeepsTheText)
{
    editor.setText(QStringLiteral("<html>\r\n</html>"));
    QSignalSpy changed(&editor, &CodeMax::Change);
    editor.setLanguage(QStringLiteral("HTML"));
    editor.setLanguage(QStringLiteral("nonsense"));
    EXPECT_EQ(editor.text(), QStringLiteral("<html>\r\n</html>"));
    EXPECT_EQ(changed.count(), 0) << "colouring is not a change of the text";
}

// ---- Change, length and lines --------------------------------------------------------------

TEST_F(CodeMaxTest, ChangeFiresOnEveryTextChangeAlsoByCode)
{
    QSignalSpy changed(&editor, &CodeMax::Change);
    editor.setText(QStringLiteral("assigned"));
    EXPECT_GE(changed.count(), 1) << "assigning the text is a change";

    changed.clear();
    editor.setSelText(QStringLiteral("!"));
    EXPECT_GE(changed.count(), 1);

    changed.clear();
    type(QStringLiteral("k"));
    EXPECT_GE(changed.count(), 1);

    changed.clear();
    editor.ExecuteCmd(137);
    editor.ExecuteCmd(125);
    EXPECT_GE(changed.count(), 1);

    // Moving the caret is not a change.
    editor.setText(QStringLiteral("a\r\nb"));
    changed.clear();
    editor.setCursorPosition(0, 0);
    editor.ExecuteCmd(201);
    editor.ExecuteCmd(157);
    editor.ExecuteCmd(149);
    editor.ExecuteCmd(137);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(CodeMaxTest, ANulCharacterIsTextLikeAnyOther)
{
    const QChar nul(0);
    editor.setText(QStringLiteral("ab") + nul + QStringLiteral("cd"));
    EXPECT_EQ(editor.text(), QStringLiteral("ab") + nul + QStringLiteral("cd"));
    EXPECT_EQ(editor.TextLength(), 5);
    editor.ExecuteCmd(137);
    EXPECT_EQ(editor.SelText(), QStringLiteral("ab") + nul + QStringLiteral("cd"));
    editor.ExecuteCmd(125);
    EXPECT_EQ(editor.text(), QStringLiteral("AB") + nul + QStringLiteral("CD")) << "nothing after the NUL is lost";
    EXPECT_EQ(editor.SelLength(), 5);

    setCaret(5);
    insert(nul + QStringLiteral("e"));
    EXPECT_EQ(editor.text(), QStringLiteral("AB") + nul + QStringLiteral("CD") + nul + QStringLiteral("e"));
    EXPECT_EQ(caret(), 7);

    const QString path = dir.filePath(QStringLiteral("nul.htm"));
    writeFile(path, QByteArray("x\0y\0z", 5));
    editor.OpenFile(path);
    EXPECT_EQ(editor.text(), QStringLiteral("x") + nul + QStringLiteral("y") + nul + QStringLiteral("z"));
    editor.SaveFile(path, true);
    EXPECT_EQ(readFile(path), QByteArray("x\0y\0z", 5));
}

TEST_F(CodeMaxTest, LineCountAndTextLengthInCharacters)
{
    struct Case { QString text; int lines; int length; };
    for (const Case& c : {Case{"", 1, 0}, Case{"a", 1, 1}, Case{"a\r\nb", 2, 4}, Case{"a\r\n", 2, 3},
                          Case{"a\r\nb\r\nc", 3, 7}, Case{"\r\n\r\n", 3, 4},
                          Case{QStringLiteral("a\u00E9\u20AC\r\n"), 2, 5}}) {  // a, e acute, euro, CR, LF
        editor.setText(c.text);
        EXPECT_EQ(editor.LineCount(), c.lines) << visible(c.text);
        EXPECT_EQ(editor.TextLength(), c.length) << visible(c.text);
    }
}

TEST_F(CodeMaxTest, DeleteSelRemovesOnlyTheSelection)
{
    editor.setText(QStringLiteral("keep drop keep"));
    select(4, 9);
    editor.DeleteSel();
    EXPECT_EQ(editor.text(), QStringLiteral("keep keep"));
    editor.DeleteSel();
    EXPECT_EQ(editor.text(), QStringLiteral("keep keep")) << "nothing selected, nothing removed";
}

// ---- Big texts -----------------------------------------------------------------------------
// Above a megabyte the editor counts characters from the notices before each change and tells
// Change once the change is done; the count must stay what the editor itself counts.

namespace {
// 21 characters in 25 bytes.
const QString bigLine = QStringLiteral(u"<p>café € naïve</p>\r\n");
constexpr int bigLines = 48000;  // 1.2 MB

long ownCount(const CodeMax& e)
{
    return e.SendScintilla(Sci::SCI_COUNTCHARACTERS, 0UL, e.SendScintilla(Sci::SCI_GETLENGTH));
}

void key(CodeMax& e, int code, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&e, &press);
}
}

TEST_F(CodeMaxTest, ABigTextIsCountedAndToldOfAsItChanges)
{
    editor.setLineNumbering(true);
    QSignalSpy changed(&editor, &CodeMax::Change);
    editor.setText(bigLine.repeated(bigLines));
    EXPECT_TRUE(editor.isQuiet());
    EXPECT_EQ(changed.count(), 1) << "assigning the text is told once, at once";
    EXPECT_EQ(editor.TextLength(), 21 * bigLines);
    EXPECT_EQ(editor.LineCount(), bigLines + 1);

    // Keys are told at once, each by itself: the status line follows the user's typing.
    setCaret(21 * 100 + 3);
    changed.clear();
    type(QStringLiteral(u"é€x"));
    EXPECT_EQ(changed.count(), 3);
    key(editor, Qt::Key_Return);
    key(editor, Qt::Key_Backspace);
    key(editor, Qt::Key_Backspace);
    EXPECT_EQ(changed.count(), 6);
    EXPECT_EQ(editor.TextLength(), 21 * bigLines + 2);
    EXPECT_EQ(editor.TextLength(), ownCount(editor));

    // Edits by code are told once the turn of the event loop is over, once for all of them.
    changed.clear();
    const int widthBefore = editor.marginWidth(0);
    editor.SendScintilla(Sci::SCI_INSERTTEXT, 0UL, "\xe2\x82\xac\xf0\x9f\x98\x80");
    editor.SendScintilla(Sci::SCI_DELETERANGE, bytePos(21 * 10), 25L);
    editor.SendScintilla(Sci::SCI_INSERTTEXT, 0UL, QByteArray("\r\n").repeated(60000).constData());
    EXPECT_EQ(changed.count(), 0) << "not told while the change may still go on";
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(editor.TextLength(), 21 * bigLines + 2 + 2 - 21 + 2 * 60000);
    EXPECT_EQ(editor.TextLength(), ownCount(editor));
    EXPECT_GT(editor.marginWidth(0), widthBefore) << "the line numbers grew by a digit";

    // Undo and redo, and a replacement by setSelText, which is told at once.
    for (int i = 0; i < 3; ++i)
        editor.undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.TextLength(), 21 * bigLines + 2);
    editor.redo();
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.TextLength(), ownCount(editor));
    select(5, 30);
    changed.clear();
    editor.setSelText(QStringLiteral(u"ünï"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(editor.TextLength(), ownCount(editor));

    // Shrunk below the line, the editor hears QScintilla's own notices again.
    select(100, editor.TextLength());
    editor.DeleteSel();
    QCoreApplication::processEvents();
    EXPECT_FALSE(editor.isQuiet());
    EXPECT_EQ(editor.TextLength(), 100);
    changed.clear();
    editor.SendScintilla(Sci::SCI_INSERTTEXT, 0UL, "\xc3\xa9");
    EXPECT_EQ(changed.count(), 1) << "a small text is told of at once";
    EXPECT_EQ(editor.TextLength(), 101);
}

TEST_F(CodeMaxTest, RandomEditsAroundTheLineKeepTheCount)
{
    // Starts just below the line, so the walk crosses it both ways.
    const int lines = static_cast<int>((CodeMax::quietAbove - 2000) / 25);
    editor.setText(bigLine.repeated(lines));
    editor.SendScintilla(Sci::SCI_EMPTYUNDOBUFFER);
    const char* pieces[] = {"a", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x98\x80", "\r\n", "<p>"};
    std::mt19937 random(20261124);
    auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    bool sawQuiet = false, sawPlain = false;
    for (int step = 0; step < 300; ++step) {
        const int chars = editor.TextLength();
        const bool growing = step < 150;
        switch (below(5)) {
        case 0:
        case 1: {
            if (!growing && below(2))
                break;
            QByteArray text;
            for (int n = below(400) + 1; n > 0; --n)
                text += pieces[below(6)];
            editor.SendScintilla(Sci::SCI_INSERTTEXT, bytePos(below(chars + 1)), text.constData());
            break;
        }
        case 2: {
            if (growing && below(2))
                break;
            const int from = below(chars + 1);
            const int to = qMin(chars, from + below(1200));
            editor.SendScintilla(Sci::SCI_DELETERANGE, bytePos(from), bytePos(to) - bytePos(from));
            break;
        }
        case 3: {
            const int from = below(chars + 1);
            select(from, qMin(chars, from + below(50)));
            editor.setSelText(QString::fromUtf8(pieces[below(6)]).repeated(below(30)));
            break;
        }
        default:
            if (below(2))
                editor.undo();
            else
                editor.redo();
        }
        if (step % 7 == 0) {
            QCoreApplication::processEvents();
            ASSERT_EQ(editor.TextLength(), ownCount(editor)) << "after step " << step;
            (editor.isQuiet() ? sawQuiet : sawPlain) = true;
        }
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.TextLength(), ownCount(editor));
    EXPECT_TRUE(sawQuiet && sawPlain) << "the walk stayed on one side of the line";
}

TEST_F(CodeMaxTest, ABigInsertionIsOneChangeCountedRightAndOneUndo)
{
    // 2.6 MB of cells of 13 characters, two of them beyond ASCII, over the selected word: in
    // one piece, and in pieces cut inside a character.
    const QByteArray cells = QByteArray("<td>\xc3\xa9\xe2\x82\xac</td>\r\n").repeated(200000);
    const auto cut = [&](qsizetype size) {
        TextPieces pieces;
        for (qsizetype at = 0; at < cells.size(); at += size)
            pieces.push_back(cells.mid(at, size));
        return pieces;
    };
    const struct {
        const char* name;
        std::function<void()> insert;
    } ways[] = {
        {"whole", [&] { editor.setSelUtf8(cells); }},
        {"pieces of 1 MiB + 1", [&] { editor.setSelPieces(cut((1 << 20) + 1)); }},
        {"pieces of 5", [&] { editor.setSelPieces(cut(5)); }},
    };
    for (const auto& way : ways) {
        editor.setText(QStringLiteral("<p>h\u00e9llo</p>"));
        select(3, 8);
        QSignalSpy changed(&editor, &CodeMax::Change);
        way.insert();
        EXPECT_EQ(changed.count(), 1) << way.name;
        EXPECT_EQ(editor.TextLength(), 3 + 13 * 200000 + 4) << way.name;
        EXPECT_EQ(editor.TextLength(), ownCount(editor)) << way.name;
        EXPECT_EQ(editor.utf8Text(), "<p>" + cells + "</p>") << way.name;
        EXPECT_EQ(editor.SelText().size(), 13 * 200000) << way.name << ": the new text stays selected";
        editor.undo();
        QCoreApplication::processEvents();
        EXPECT_EQ(editor.text(), QStringLiteral("<p>h\u00e9llo</p>")) << way.name;
        EXPECT_EQ(editor.TextLength(), 12) << way.name;
        EXPECT_FALSE(editor.isUndoAvailable()) << way.name << ": the insertion was one step";
    }
}

TEST_F(CodeMaxTest, ABigInsertionUndoesAndRedoesAmongOtherEditsByEveryWay)
{
    // The insertion is kept packed outside the editor's history and put back or taken out
    // after the editor's own undo: by a call, by the keys, and by the editor's message alone.
    const QByteArray cells = QByteArray("<td>\xe2\x82\xac</td>\r\n").repeated(150000);
    const QByteArray table = "<p>" + cells + "</p>";
    const auto key = [this](int k) {
        QKeyEvent press(QEvent::KeyPress, k, Qt::ControlModifier);
        QCoreApplication::sendEvent(&editor, &press);
    };
    const auto message = [this](int m) {
        editor.SendScintilla(m);
        QCoreApplication::processEvents();
    };
    const struct {
        const char* name;
        std::function<void()> undo, redo;
    } ways[] = {
        {"calls", [&] { editor.undo(); }, [&] { editor.redo(); }},
        {"keys", [&] { key(Qt::Key_Z); }, [&] { key(Qt::Key_Y); }},
        {"messages", [&] { message(Sci::SCI_UNDO); }, [&] { message(Sci::SCI_REDO); }},
    };
    for (const auto& way : ways) {
        editor.setText(QStringLiteral("<p>h\u00e9llo</p>"));
        select(3, 8);
        editor.setSelPieces(TextPieces::of(cells));
        setCaret(0);
        type(QStringLiteral("X"));
        ASSERT_EQ(editor.utf8Text(), "X" + table) << way.name;
        const struct {
            const std::function<void()>& step;
            QByteArray text;
            int caret;
        } steps[] = {
            {way.undo, table, 0},
            {way.undo, "<p>h\xc3\xa9llo</p>", 8},
            {way.redo, table, 3 + 12 * 150000},
            {way.redo, "X" + table, 1},
            {way.undo, table, 0},
        };
        for (const auto& step : steps) {
            step.step();
            EXPECT_EQ(editor.utf8Text(), step.text) << way.name;
            EXPECT_EQ(editor.TextLength(), ownCount(editor)) << way.name;
            EXPECT_EQ(caret(), step.caret) << way.name;
        }
        EXPECT_TRUE(editor.isUndoAvailable() && editor.isRedoAvailable()) << way.name;
        // A new edit drops what was left to redo.
        type(QStringLiteral("Y"));
        way.undo();
        way.redo();
        EXPECT_EQ(editor.utf8Text(), "Y" + table) << way.name;
        EXPECT_FALSE(editor.isRedoAvailable()) << way.name;
    }

    // Two undos straight after each other, the second of an edit before the table: the table
    // is taken out where that edit left it.
    editor.setText(QStringLiteral("<p>h\u00e9llo</p>"));
    setCaret(0);
    type(QStringLiteral("X"));
    select(4, 9);
    editor.setSelPieces(TextPieces::of(cells));
    ASSERT_EQ(editor.utf8Text(), "X" + table);
    editor.SendScintilla(Sci::SCI_UNDO);
    editor.SendScintilla(Sci::SCI_UNDO);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.utf8Text(), "<p>h\xc3\xa9llo</p>");
    EXPECT_EQ(editor.TextLength(), ownCount(editor));
}

TEST_F(CodeMaxTest, ABigFileIsReadInPiecesAsTheWholeFile)
{
    // Characters cut by the end of the first 16 MiB piece: a UTF-8 euro sign in one file, a
    // Windows-1252 e acute followed by a UTF-8 euro sign in the other.
    const qsizetype piece = 16 << 20;
    struct Case { QByteArray tail; QByteArray shown; int characters; };
    const Case cases[] = {
        {"\xe2\x82\xac tail\r\n", "\xe2\x82\xac tail\r\n", 8},
        {"\xe9\xe2\x82\xac\x80", "\xc3\xa9\xe2\x82\xac\xe2\x82\xac", 3},
    };
    for (const Case& c : cases) {
        const QString path = dir.filePath(QStringLiteral("big.htm"));
        // Short lines: one line of 16 MiB would cost its layout, not its reading.
        writeFile(path, QByteArray("0123456789abcd\r\n").repeated(piece / 16).chopped(1) + c.tail);
        CodeMax big;
        QSignalSpy changed(&big, &CodeMax::Change);
        big.OpenFile(path);
        EXPECT_EQ(changed.count(), 1) << "the pieces are one change";
        EXPECT_TRUE(big.isQuiet());
        const QByteArray text = big.utf8Text();
        EXPECT_EQ(text.size(), piece - 1 + c.shown.size());
        EXPECT_EQ(text.mid(piece - 3), "d\r" + c.shown);
        EXPECT_EQ(big.TextLength(), piece - 1 + c.characters);
        EXPECT_EQ(big.TextLength(), ownCount(big));
        EXPECT_EQ(big.SendScintilla(Sci::SCI_GETCURRENTPOS), 0L);
        EXPECT_FALSE(big.isUndoAvailable()) << "loading is no edit to undo";
    }
}

TEST_F(CodeMaxTest, WithoutAScreenReaderTheEditorIsAPlainAccessibleWidget)
{
    ASSERT_FALSE(QAccessible::isActive());
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&editor);
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->role(), QAccessible::EditableText);
    EXPECT_EQ(face->textInterface(), nullptr) << "no text interface that counts to the caret at every move";
}

TEST_F(CodeMaxTest, AReadThatFailsHalfWayIsDeviceErrorAndLeavesNoCutText)
{
    // A file of 40 MiB whose disk goes away after the first piece.
    class FailingDisk : public QIODevice {
    public:
        qint64 size() const override { return 40 << 20; }
        bool isSequential() const override { return false; }

    protected:
        qint64 readData(char* data, qint64 max) override
        {
            if (served > 0)
                return -1;
            std::fill(data, data + max, 'a');
            served += max;
            return max;
        }
        qint64 writeData(const char*, qint64) override { return -1; }

    private:
        qint64 served = 0;
    } disk;
    ASSERT_TRUE(disk.open(QIODevice::ReadOnly));
    editor.setText(QStringLiteral("before"));
    QSignalSpy changed(&editor, &CodeMax::Change);
    expectRuntimeError(57, [&] { editor.load(disk); }, "a read that fails");
    EXPECT_EQ(editor.SendScintilla(Sci::SCI_GETLENGTH), 0L) << "no part of the file stays";
    EXPECT_EQ(editor.TextLength(), 0);
    EXPECT_EQ(changed.count(), 1);
    editor.SendScintilla(Sci::SCI_ADDTEXT, 1UL, "x");
    EXPECT_TRUE(editor.isUndoAvailable()) << "undo is collected again";
}
