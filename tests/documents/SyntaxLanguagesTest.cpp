// The syntax languages: their word lists and fields, the once-only definitions, and the
// colouring they give in a real code editor.
#include "common/TestSupport.h"

#include "documents/RecordLexer.h"
#include "documents/SyntaxLanguages.h"
#include "documents/frmDocument.h"
#include "platform/CodeMax.h"

#include <Qsci/qscilexersql.h>

#include <QComboBox>
#include <QSet>

namespace {
const LanguageRecord& record(const char* name)
{
    DefinePhpLanguage();
    DefineJavaScriptLanguage();
    DefineDelphiLanguage();
    DefineBasicLanguage();
    const LanguageRecord* r = languageRecord(QString::fromLatin1(name));
    if (!r)
        throw std::runtime_error(std::string("language not defined: ") + name);
    return *r;
}

QStringList words(std::initializer_list<const char*> list)
{
    QStringList l;
    for (const char* w : list)
        l << QString::fromLatin1(w);
    return l;
}
}

// ---- The records --------------------------------------------------------------------------

TEST(SyntaxRecords, EntryCountsOfEveryList)
{
    struct Count { const char* language; QString LanguageRecord::*field; const char* fieldName; qsizetype entries; };
    const Count counts[] = {
        {"PHP", &LanguageRecord::Operators, "Operators", 21},
        {"PHP", &LanguageRecord::Keywords, "Keywords", 1467},
        {"PHP", &LanguageRecord::TagElementNames, "TagElementNames", 59},
        {"PHP", &LanguageRecord::TagAttributeNames, "TagAttributeNames", 70},
        {"PHP", &LanguageRecord::TagEntities, "TagEntities", 4},
        {"JavaScript", &LanguageRecord::Operators, "Operators", 42},
        {"JavaScript", &LanguageRecord::Keywords, "Keywords", 224},
        {"JavaScript", &LanguageRecord::TagElementNames, "TagElementNames", 0},
        {"JavaScript", &LanguageRecord::TagAttributeNames, "TagAttributeNames", 2},
        {"JavaScript", &LanguageRecord::TagEntities, "TagEntities", 0},
        {"Delphi", &LanguageRecord::Operators, "Operators", 22},
        {"Delphi", &LanguageRecord::Keywords, "Keywords", 585},
        {"Delphi", &LanguageRecord::TagElementNames, "TagElementNames", 0},
        {"Delphi", &LanguageRecord::TagAttributeNames, "TagAttributeNames", 101},
        {"Delphi", &LanguageRecord::TagEntities, "TagEntities", 454},
    };
    for (const Count& c : counts)
        EXPECT_EQ(listEntries(record(c.language).*c.field).size(), c.entries) << c.language << " " << c.fieldName;
}

TEST(SyntaxRecords, ShortListsInTheirDefinitionOrder)
{
    EXPECT_EQ(listEntries(record("PHP").Operators),
              words({"<", ">", "=", "+", "-", "*", "/", "%", ".", "&", "|", "and", "or", "xor", "{", "}", "^",
                     "~", "!", "@", "`"}));
    EXPECT_EQ(listEntries(record("PHP").TagEntities), words({"<?php", "?>", "<?php", "<?"}));
    EXPECT_EQ(listEntries(record("JavaScript").Operators),
              words({"!", "!=", "!==", "%", "%=", "&", "&=", "&&", "*", "*=", "+", "++", "+=", ".", "-", "--",
                     "-=", "/", "/=", "<", "<", "<<=", "<=", "=", "==", "===", ">", ">=", ">>", ">>=", ">>>",
                     ">>>=", "?:", "~", "|", "{", "}", ";", "|=", "||", "^", "^="}));
    EXPECT_EQ(listEntries(record("JavaScript").TagAttributeNames), words({"<%", "%>"}));
    EXPECT_EQ(listEntries(record("Delphi").Operators),
              words({"@", "not", "^", "*", "/", "div", "mod", "and", "as", "+", "-", "or", "xor", "=", ">", "<",
                     "in", "is", ":", "(", ")", ";"}));
}

TEST(SyntaxRecords, LongListsKeepTheirEndsDuplicatesAndMisspellings)
{
    struct Ends { const char* language; QString LanguageRecord::*field; const char* first; const char* last; };
    const Ends ends[] = {
        {"PHP", &LanguageRecord::Keywords, "call_user_method", "new"},
        {"PHP", &LanguageRecord::TagElementNames, "__FILE__", "$REMOTE_USER"},
        {"PHP", &LanguageRecord::TagAttributeNames, "absolute", "while"},
        {"JavaScript", &LanguageRecord::Keywords, "@cc_on", "writeln"},
        {"Delphi", &LanguageRecord::Keywords, "Abort", "Win32Check"},
        {"Delphi", &LanguageRecord::TagAttributeNames, "array", "writeonly"},
        {"Delphi", &LanguageRecord::TagEntities, "EAbort", "TRDSConnection"},
    };
    for (const Ends& e : ends) {
        const QStringList l = listEntries(record(e.language).*e.field);
        ASSERT_FALSE(l.isEmpty()) << e.language;
        EXPECT_EQ(l.first(), QLatin1String(e.first)) << e.language;
        EXPECT_EQ(l.last(), QLatin1String(e.last)) << e.language;
    }

    const QStringList js = listEntries(record("JavaScript").Keywords);
    for (const char* odd : {"calee", "cherAt", "decsription", "Compileconcat", "righContext", "undefinited",
                            "ScrriptEngineBuildVersion", "AQRT2"})
        EXPECT_TRUE(js.contains(QLatin1String(odd))) << odd;
    for (const char* proper : {"callee", "charAt", "description", "rightContext"})
        EXPECT_FALSE(js.contains(QLatin1String(proper))) << proper << " is not in the list";
    EXPECT_EQ(js.count(QStringLiteral("for")), 2);
    EXPECT_EQ(js.count(QStringLiteral("while")), 2);
    EXPECT_EQ(js.indexOf(QStringLiteral("calee")), 21);
    EXPECT_EQ(QSet<QString>(js.begin(), js.end()).size(), 222) << "two words stand twice";

    const QStringList php = listEntries(record("PHP").Keywords);
    EXPECT_EQ(php.count(QStringLiteral("die")), 2);
    EXPECT_EQ(QSet<QString>(php.begin(), php.end()).size(), 1466) << "one word stands twice";
    EXPECT_EQ(php.mid(1463), words({"print", "die", "echo", "new"}));

    const QStringList delphi = listEntries(record("Delphi").Keywords);
    EXPECT_EQ(delphi.mid(0, 4), words({"Abort", "Abs", "Action support", "AddExitProc"}));
    EXPECT_EQ(QSet<QString>(delphi.begin(), delphi.end()).size(), 585);
}

TEST(SyntaxRecords, FieldValuesOfTheThreeLanguages)
{
    struct Fields { const char* language; bool caseSensitive; const char* open; const char* close; const char* delims;
                    const char* escape; const char* terminator; };
    // Delphi's string delimiter is the apostrophe alone, with no line feed.
    const Fields fields[] = {{"PHP", false, "/*", "*/", "\"\n'\n", "\\", ""},
                             {"JavaScript", true, "/*", "*/", "\"\n'\n", "\\", ";"},
                             {"Delphi", false, "{", "}", "'", "", ""}};
    for (const Fields& f : fields) {
        const LanguageRecord& r = record(f.language);
        SCOPED_TRACE(f.language);
        EXPECT_EQ(r.CaseSensitive, f.caseSensitive);
        EXPECT_EQ(r.Style, 0);
        EXPECT_EQ(r.SingleLineComments, QStringLiteral("//"));
        EXPECT_TRUE(r.ScopeKeywords1.isEmpty());
        EXPECT_TRUE(r.ScopeKeywords2.isEmpty());
        EXPECT_EQ(r.MultiLineComments1, QLatin1String(f.open));
        EXPECT_EQ(r.MultiLineComments2, QLatin1String(f.close));
        EXPECT_EQ(r.StringDelims, QLatin1String(f.delims));
        EXPECT_EQ(r.EscapeChar, QLatin1String(f.escape));
        EXPECT_EQ(r.TerminatorChar, QLatin1String(f.terminator));
    }
    EXPECT_TRUE(record("JavaScript").TagElementNames.isEmpty());
    EXPECT_TRUE(record("JavaScript").TagEntities.isEmpty());
    EXPECT_TRUE(record("Delphi").TagElementNames.isEmpty());
}

TEST(SyntaxRecords, WordListsEndWithOneLineFeedAndHoldNoEmptyEntry)
{
    for (const char* language : {"PHP", "JavaScript", "Delphi", "Basic"}) {
        const LanguageRecord& r = record(language);
        for (const QString* list : {&r.Keywords, &r.Operators, &r.TagElementNames, &r.TagAttributeNames, &r.TagEntities}) {
            if (list->isEmpty())
                continue;
            EXPECT_TRUE(list->endsWith(QLatin1Char('\n'))) << language;
            EXPECT_FALSE(list->contains(QStringLiteral("\n\n"))) << language;
            EXPECT_FALSE(list->startsWith(QLatin1Char('\n'))) << language;
        }
    }
    EXPECT_EQ(listEntries(QStringLiteral("a\nb\n")), words({"a", "b"}));
    EXPECT_EQ(listEntries(QStringLiteral("'")), words({"'"}));
    EXPECT_TRUE(listEntries(QString()).isEmpty());
}

TEST(SyntaxRecords, SecondDefineChangesNothing)
{
    const LanguageRecord& before = record("PHP");
    const LanguageRecord kept = before;

    // Put something else under the name: a second definition must leave it there.
    CodeMax::registerLanguage(QStringLiteral("PHP"), [](QObject* p) { return new QsciLexerSQL(p); });
    DefinePhpLanguage();
    CodeMax editor;
    editor.setLanguage(QStringLiteral("PHP"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "SQL") << "the second call ran its body";
    EXPECT_EQ(languageRecord(QStringLiteral("PHP")), &before);
    EXPECT_EQ(before.Keywords, kept.Keywords);

    registerRecordLanguage(kept);
    editor.setLanguage(QStringLiteral("PHP"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "PHP");
    EXPECT_EQ(languageRecord(QStringLiteral("PHP")), &before) << "re-registering keeps the record's place";
}

TEST(SyntaxRecords, UndefinedNameHasNoRecord)
{
    record("PHP");
    EXPECT_EQ(languageRecord(QStringLiteral("HTML")), nullptr);
    EXPECT_EQ(languageRecord(QStringLiteral("php")), nullptr) << "names match exactly";
    EXPECT_EQ(languageRecord(QString()), nullptr);
}

// ---- Colouring in the editor --------------------------------------------------------------

namespace {
using L = RecordLexer;

// A piece of the text, which of its occurrences, and the style every character of it has.
struct Styled {
    const char* piece;
    int style;
    int occurrence = 0;
};

class SyntaxColouring : public ::testing::Test {
protected:
    static void SetUpTestSuite() { record("PHP"); }

    // Shows text in a language and colours all of it.
    void colour(const char* language, const QString& text)
    {
        editor.setLanguage(QString::fromLatin1(language));
        editor.setText(text);
        editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L);
    }
    int styleAt(long pos) const { return static_cast<int>(editor.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, pos)); }
    long find(const QString& piece, int occurrence) const
    {
        const QString text = editor.text();
        long at = -1;
        for (int i = 0; i <= occurrence; ++i) {
            at = text.indexOf(piece, at + 1);
            if (at < 0)
                return -1;
        }
        return at;
    }
    // The style of every character of the n-th occurrence of piece (test texts are ASCII),
    // -1 if they differ, -2 if the piece is not there.
    int styleOf(const QString& piece, int occurrence = 0) const
    {
        const long at = find(piece, occurrence);
        if (at < 0)
            return -2;
        const int first = styleAt(at);
        for (long i = 1; i < piece.size(); ++i)
            if (styleAt(at + i) != first)
                return -1;
        return first;
    }
    int styleOf(const char* piece, int occurrence = 0) const { return styleOf(QString::fromLatin1(piece), occurrence); }
    void expectStyles(std::initializer_list<Styled> list) const
    {
        for (const Styled& s : list)
            EXPECT_EQ(styleOf(s.piece, s.occurrence), s.style) << visible(QString::fromLatin1(s.piece)) << " #" << s.occurrence;
    }

    CodeMax editor;
};
}

TEST_F(SyntaxColouring, JavaScriptKeywordsAsListedAndWithCase)
{
    colour("JavaScript", QStringLiteral("x.calee; x.callee; s.cherAt(1); s.charAt(1);\nArray array ARRAY atan2 @cc_on"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "JavaScript");
    // JavaScript matches with case; a word with a digit is one word.
    expectStyles({{"calee", L::Keyword}, {"callee", L::Default}, {"cherAt", L::Keyword}, {"charAt", L::Default},
                  {"Array", L::Keyword}, {"array", L::Default}, {"ARRAY", L::Default}, {"atan2", L::Keyword},
                  {"@cc_on", L::Keyword}});
}

TEST_F(SyntaxColouring, PhpAndDelphiMatchRegardlessOfCase)
{
    colour("PHP", QStringLiteral("<?php echo ECHO Echo $this $THIS FUNCTION $thisone ?>"));
    // A longer variable is no constant.
    expectStyles({{"echo", L::Keyword}, {"ECHO", L::Keyword}, {"Echo", L::Keyword}, {"$this", L::ElementName},
                  {"$THIS", L::ElementName}, {"FUNCTION", L::AttributeName}, {"$thisone", L::Default},
                  {"<?php", L::Entity}, {"?>", L::Entity}});

    colour("Delphi", QStringLiteral("BEGIN s := INTTOSTR(n) + inttostr(m) + IntToStr(k); X: TBUTTON; end"));
    expectStyles({{"BEGIN", L::AttributeName}, {"INTTOSTR", L::Keyword}, {"inttostr", L::Keyword},
                  {"IntToStr", L::Keyword}, {"TBUTTON", L::Entity}, {"end", L::AttributeName}});
}

TEST_F(SyntaxColouring, OperatorsAreSymbolsOrWholeWords)
{
    colour("JavaScript", QStringLiteral("a !== b; c >>>= 2; d ?: e"));
    expectStyles({{"!==", L::Operator}, {">>>=", L::Operator}, {";", L::Operator}, {"?:", L::Operator}, {"2", L::Number}});

    // A word operator needs a whole word.
    colour("PHP", QStringLiteral("$a and $b AND android"));
    expectStyles({{"and", L::Operator}, {"AND", L::Operator}, {"android", L::Default}});

    // "div" is an operator and a reserved word: the operator list comes first.
    colour("Delphi", QStringLiteral("x := y div z; q := p mod 2;"));
    expectStyles({{"div", L::Operator}, {"mod", L::Operator}, {":", L::Operator}});
}

TEST_F(SyntaxColouring, StringsHonourTheEscapeCharacterAndEndAtTheLine)
{
    // The escaped quote does not close; an open string stops at the line end.
    colour("JavaScript", QStringLiteral("s = \"a\\\"b var\" + 'c\\'d'; var\nt = \"open var\nvar"));
    expectStyles({{"\"a\\\"b var\"", L::String}, {"'c\\'d'", L::String}, {"+", L::Operator}, {"var", L::Keyword, 1},
                  {"\"open var", L::String}, {"var", L::Keyword, 3}});

    // An escaped escape leaves the quote closing.
    colour("PHP", QStringLiteral("$s = 'it\\'s echo'; echo \"\\\\\"; echo"));
    expectStyles({{"'it\\'s echo'", L::String}, {"\"\\\\\"", L::String}, {"echo", L::Keyword, 2}});
}

TEST_F(SyntaxColouring, DelphiStringsUseTheApostropheOnly)
{
    colour("Delphi", QStringLiteral("s := \"begin\"; t := 'begin'; u := 'a\\' begin"));
    EXPECT_EQ(styleAt(find(QStringLiteral("\""), 0)), L::Default) << "a double quote opens nothing";
    // No escape character: the backslash is text.
    expectStyles({{"begin", L::AttributeName}, {"'begin'", L::String}, {"'a\\'", L::String}, {"begin", L::AttributeName, 2}});
}

TEST_F(SyntaxColouring, CommentsToTheLineEndAndAcrossLines)
{
    colour("JavaScript", QStringLiteral("var a; /* one\r\nvar two\r\n*/ var // var { '\r\nvar"));
    expectStyles({{"var", L::Keyword}, {"/* one\r\nvar two\r\n*/", L::BlockComment}, {"var", L::Keyword, 2},
                  {"// var { '", L::LineComment}, {"var", L::Keyword, 4}});

    // The first closer ends a comment; a closer without an opener is text; a brace in a line
    // comment opens nothing.
    colour("Delphi", QStringLiteral("{ begin\nbegin // }\nbegin } begin\n// {\nbegin"));
    expectStyles({{"{ begin\nbegin // }", L::BlockComment}, {"begin", L::AttributeName, 2}, {"}", L::Default, 1},
                  {"// {", L::LineComment}, {"begin", L::AttributeName, 4}});

    colour("JavaScript", QStringLiteral("'/* no comment' var"));
    EXPECT_EQ(styleOf("var"), L::Keyword);
}

TEST_F(SyntaxColouring, ResumesMidDocumentFromTheLineBefore)
{
    colour("JavaScript", QStringLiteral("var a;\n/* start\nvar inside\nvar inside\n*/ var\n"));
    const long line3 = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, 3UL);
    const long length = editor.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    // Wipe the styles from line 3 on, then colour from the middle of that line only.
    editor.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, static_cast<unsigned long>(line3), 0L);
    editor.SendScintilla(QsciScintillaBase::SCI_SETSTYLING, static_cast<unsigned long>(length - line3), 0L);
    ASSERT_EQ(styleOf("var", 2), L::Default);
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, static_cast<unsigned long>(line3 + 5), -1L);
    expectStyles({{"var inside", L::BlockComment, 1}, {"var", L::Keyword, 3}});

    // Closing the comment earlier: the following lines lose their comment colour, and the old
    // closer is two operators now.
    const long insideAt = find(QStringLiteral("var inside"), 0);
    editor.SendScintilla(QsciScintillaBase::SCI_INSERTTEXT, static_cast<unsigned long>(insideAt), "*/");
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, static_cast<unsigned long>(insideAt), -1L);
    expectStyles({{"var", L::Keyword, 1}, {"var", L::Keyword, 2}, {"*/", L::Operator, 1}});
}

TEST_F(SyntaxColouring, StylesOnlyTheRangeAskedFor)
{
    editor.setLanguage(QStringLiteral("JavaScript"));
    editor.setText(QStringLiteral("var a;\nvar b;\nvar c;\n"));
    const long line1 = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, 1UL);
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, static_cast<long>(line1));
    expectStyles({{"var", L::Keyword}, {"var", L::Default, 1}, {"var", L::Default, 2}});
    EXPECT_EQ(editor.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED), line1);
}

TEST_F(SyntaxColouring, EntriesWithBlanksAndOtherSigns)
{
    colour("Delphi", QStringLiteral("Action support; Action; Date/Time routines; Date"));
    expectStyles({{"Action support", L::Keyword}, {"Action", L::Default, 1}, {"Date/Time routines", L::Keyword},
                  {"Date", L::Keyword, 1}});

    colour("JavaScript", QStringLiteral("<% x %> <%= y"));
    expectStyles({{"<%", L::AttributeName}, {"%>", L::AttributeName}});

    // "<?php" needs a word end, "<?" does not.
    colour("PHP", QStringLiteral("<?phpinfo <? x"));
    expectStyles({{"<?", L::Entity}, {"phpinfo", L::Keyword}, {"<?", L::Entity, 1}});
}

TEST_F(SyntaxColouring, BasicHasItsOwnDefinition)
{
    colour("Basic", QStringLiteral("DIM x As Integer ' If Then\nRem If Then\nRemove = vbCrLf & \"If\"\n"));
    ASSERT_NE(editor.lexer(), nullptr);
    // Rem starts a comment only as a word.
    expectStyles({{"DIM", L::Keyword}, {"Integer", L::Keyword}, {"' If Then", L::LineComment},
                  {"Rem If Then", L::LineComment}, {"Remove", L::Default}, {"vbCrLf", L::ElementName},
                  {"&", L::Operator}, {"\"If\"", L::String}});
}

TEST_F(SyntaxColouring, NoneAndUnknownNamesShowPlainText)
{
    for (const char* name : {"", "<none>", "Nonsense", "javascript"}) {
        colour(name, QStringLiteral("var x = 'a'; // c\n/* d */ 42"));
        EXPECT_EQ(editor.lexer(), nullptr) << name;
        for (long i = 0; i < editor.text().size(); ++i)
            ASSERT_EQ(styleAt(i), 0) << name << " at " << i;
    }
    colour("JavaScript", QStringLiteral("var"));
    EXPECT_EQ(styleOf("var"), L::Keyword) << "colouring comes back";
}

TEST_F(SyntaxColouring, StylesAreDistinctAndKeepTheEditorsFont)
{
    editor.setLanguage(QStringLiteral("PHP"));
    QsciLexer* lexer = editor.lexer();
    ASSERT_NE(lexer, nullptr);
    const QString family = editor.font().family();
    QSet<QRgb> colours;
    for (int s = 0; s < RecordLexer::StyleCount; ++s) {
        EXPECT_FALSE(lexer->description(s).isEmpty()) << s;
        EXPECT_EQ(lexer->font(s).family(), family) << s;
        EXPECT_EQ(lexer->paper(s), QColor(Qt::white)) << s;
        if (s != RecordLexer::BlockComment && s != RecordLexer::Operator)
            colours.insert(lexer->color(s).rgb());
    }
    EXPECT_EQ(colours.size(), RecordLexer::StyleCount - 2) << "each kind of word has a colour of its own";
    EXPECT_TRUE(lexer->font(RecordLexer::Keyword).bold()) << "bold survives the editor's font";
    EXPECT_TRUE(lexer->font(RecordLexer::AttributeName).bold());
    EXPECT_FALSE(lexer->font(RecordLexer::Default).bold());
    EXPECT_TRUE(lexer->description(RecordLexer::StyleCount).isEmpty());
}

// ---- Start-up ------------------------------------------------------------------------------

namespace {
class SyntaxStartup : public WindowTest {};
}

TEST_F(SyntaxStartup, StartUpRegistersTheLanguages)
{
    startWithoutPage();
    const QStringList known = CodeMax::languages();
    for (const char* name : {"PHP", "JavaScript", "Delphi", "Basic", "HTML"})
        EXPECT_TRUE(known.contains(QLatin1String(name))) << name;
    EXPECT_NE(languageRecord(QStringLiteral("Delphi")), nullptr);

    // The web page window's language list reaches them by name.
    frmDocument* doc = newPage(QStringLiteral("begin end"));
    Q_EMIT doc->SYNTAXTYPE()->textActivated(QStringLiteral("Delphi"));
    ASSERT_NE(doc->CodeMax1()->lexer(), nullptr);
    EXPECT_STREQ(doc->CodeMax1()->lexer()->language(), "Delphi");
    doc->CodeMax1()->SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L);
    EXPECT_EQ(doc->CodeMax1()->SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, 0UL), RecordLexer::AttributeName);
}
