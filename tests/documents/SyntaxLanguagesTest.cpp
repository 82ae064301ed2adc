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
    const LanguageRecord& php = record("PHP");
    const LanguageRecord& js = record("JavaScript");
    const LanguageRecord& delphi = record("Delphi");

    EXPECT_FALSE(php.CaseSensitive);
    EXPECT_TRUE(js.CaseSensitive);
    EXPECT_FALSE(delphi.CaseSensitive);
    for (const LanguageRecord* r : {&php, &js, &delphi}) {
        EXPECT_EQ(r->Style, 0) << r->name.toStdString();
        EXPECT_EQ(r->SingleLineComments, QStringLiteral("//"));
        EXPECT_TRUE(r->ScopeKeywords1.isEmpty());
        EXPECT_TRUE(r->ScopeKeywords2.isEmpty());
    }
    EXPECT_EQ(php.MultiLineComments1, QStringLiteral("/*"));
    EXPECT_EQ(php.MultiLineComments2, QStringLiteral("*/"));
    EXPECT_EQ(js.MultiLineComments1, QStringLiteral("/*"));
    EXPECT_EQ(js.MultiLineComments2, QStringLiteral("*/"));
    EXPECT_EQ(delphi.MultiLineComments1, QStringLiteral("{"));
    EXPECT_EQ(delphi.MultiLineComments2, QStringLiteral("}"));

    EXPECT_EQ(php.StringDelims, QStringLiteral("\"\n'\n"));
    EXPECT_EQ(js.StringDelims, QStringLiteral("\"\n'\n"));
    EXPECT_EQ(delphi.StringDelims, QStringLiteral("'")) << "the apostrophe alone, no line feed";

    EXPECT_EQ(php.EscapeChar, QStringLiteral("\\"));
    EXPECT_EQ(js.EscapeChar, QStringLiteral("\\"));
    EXPECT_TRUE(delphi.EscapeChar.isEmpty());

    EXPECT_EQ(php.TerminatorChar, QString());
    EXPECT_EQ(js.TerminatorChar, QStringLiteral(";"));
    EXPECT_EQ(delphi.TerminatorChar, QString());

    EXPECT_TRUE(js.TagElementNames.isEmpty());
    EXPECT_TRUE(js.TagEntities.isEmpty());
    EXPECT_TRUE(delphi.TagElementNames.isEmpty());
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

    CodeMax editor;
};
}

TEST_F(SyntaxColouring, JavaScriptKeywordsAsListedAndWithCase)
{
    colour("JavaScript", QStringLiteral("x.calee; x.callee; s.cherAt(1); s.charAt(1);\nArray array ARRAY atan2 @cc_on"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_STREQ(editor.lexer()->language(), "JavaScript");
    EXPECT_EQ(styleOf("calee"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("callee"), RecordLexer::Default);
    EXPECT_EQ(styleOf("cherAt"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("charAt"), RecordLexer::Default);
    EXPECT_EQ(styleOf("Array"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("array"), RecordLexer::Default) << "JavaScript matches with case";
    EXPECT_EQ(styleOf("ARRAY"), RecordLexer::Default);
    EXPECT_EQ(styleOf("atan2"), RecordLexer::Keyword) << "a word with a digit is one word";
    EXPECT_EQ(styleOf("@cc_on"), RecordLexer::Keyword);
}

TEST_F(SyntaxColouring, PhpAndDelphiMatchRegardlessOfCase)
{
    colour("PHP", QStringLiteral("<?php echo ECHO Echo $this $THIS FUNCTION $thisone ?>"));
    EXPECT_EQ(styleOf("echo"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("ECHO"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("Echo"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("$this"), RecordLexer::ElementName);
    EXPECT_EQ(styleOf("$THIS"), RecordLexer::ElementName);
    EXPECT_EQ(styleOf("FUNCTION"), RecordLexer::AttributeName);
    EXPECT_EQ(styleOf("$thisone"), RecordLexer::Default) << "a longer variable is no constant";
    EXPECT_EQ(styleOf("<?php"), RecordLexer::Entity);
    EXPECT_EQ(styleOf("?>"), RecordLexer::Entity);

    colour("Delphi", QStringLiteral("BEGIN s := INTTOSTR(n) + inttostr(m) + IntToStr(k); X: TBUTTON; end"));
    EXPECT_EQ(styleOf("BEGIN"), RecordLexer::AttributeName);
    EXPECT_EQ(styleOf("INTTOSTR"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("inttostr"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("IntToStr"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("TBUTTON"), RecordLexer::Entity);
    EXPECT_EQ(styleOf("end"), RecordLexer::AttributeName);
}

TEST_F(SyntaxColouring, OperatorsAreSymbolsOrWholeWords)
{
    colour("JavaScript", QStringLiteral("a !== b; c >>>= 2; d ?: e"));
    EXPECT_EQ(styleOf("!=="), RecordLexer::Operator);
    EXPECT_EQ(styleOf(">>>="), RecordLexer::Operator);
    EXPECT_EQ(styleOf(";"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("?:"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("2"), RecordLexer::Number);

    colour("PHP", QStringLiteral("$a and $b AND android"));
    EXPECT_EQ(styleOf("and"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("AND"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("android"), RecordLexer::Default) << "a word operator needs a whole word";

    // "div" is an operator and a reserved word: the operator list comes first.
    colour("Delphi", QStringLiteral("x := y div z; q := p mod 2;"));
    EXPECT_EQ(styleOf("div"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("mod"), RecordLexer::Operator);
    EXPECT_EQ(styleOf(":", 0), RecordLexer::Operator);
}

TEST_F(SyntaxColouring, StringsHonourTheEscapeCharacterAndEndAtTheLine)
{
    colour("JavaScript", QStringLiteral("s = \"a\\\"b var\" + 'c\\'d'; var\nt = \"open var\nvar"));
    EXPECT_EQ(styleOf("\"a\\\"b var\""), RecordLexer::String) << "the escaped quote does not close";
    EXPECT_EQ(styleOf("'c\\'d'"), RecordLexer::String);
    EXPECT_EQ(styleOf("+"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("var", 1), RecordLexer::Keyword) << "after the strings";
    EXPECT_EQ(styleOf("\"open var"), RecordLexer::String);
    EXPECT_EQ(styleOf("var", 3), RecordLexer::Keyword) << "an open string stops at the line end";

    colour("PHP", QStringLiteral("$s = 'it\\'s echo'; echo \"\\\\\"; echo"));
    EXPECT_EQ(styleOf("'it\\'s echo'"), RecordLexer::String);
    EXPECT_EQ(styleOf("\"\\\\\""), RecordLexer::String) << "an escaped escape leaves the quote closing";
    EXPECT_EQ(styleOf("echo", 2), RecordLexer::Keyword);
}

TEST_F(SyntaxColouring, DelphiStringsUseTheApostropheOnly)
{
    colour("Delphi", QStringLiteral("s := \"begin\"; t := 'begin'; u := 'a\\' begin"));
    EXPECT_EQ(styleAt(find(QStringLiteral("\""), 0)), RecordLexer::Default) << "a double quote opens nothing";
    EXPECT_EQ(styleOf("begin", 0), RecordLexer::AttributeName);
    EXPECT_EQ(styleOf("'begin'"), RecordLexer::String);
    EXPECT_EQ(styleOf("'a\\'"), RecordLexer::String) << "no escape character: the backslash is text";
    EXPECT_EQ(styleOf("begin", 2), RecordLexer::AttributeName);
}

TEST_F(SyntaxColouring, CommentsToTheLineEndAndAcrossLines)
{
    colour("JavaScript", QStringLiteral("var a; /* one\r\nvar two\r\n*/ var // var { '\r\nvar"));
    EXPECT_EQ(styleOf("var", 0), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("/* one\r\nvar two\r\n*/"), RecordLexer::BlockComment);
    EXPECT_EQ(styleOf("var", 2), RecordLexer::Keyword) << "after the closer";
    EXPECT_EQ(styleOf("// var { '"), RecordLexer::LineComment);
    EXPECT_EQ(styleOf("var", 4), RecordLexer::Keyword) << "the line comment ends with its line";

    colour("Delphi", QStringLiteral("{ begin\nbegin // }\nbegin } begin\n// {\nbegin"));
    EXPECT_EQ(styleOf("{ begin\nbegin // }"), RecordLexer::BlockComment) << "the first closer ends it";
    EXPECT_EQ(styleOf("begin", 2), RecordLexer::AttributeName);
    EXPECT_EQ(styleOf("}", 1), RecordLexer::Default) << "a closer without an opener is text";
    EXPECT_EQ(styleOf("// {"), RecordLexer::LineComment);
    EXPECT_EQ(styleOf("begin", 4), RecordLexer::AttributeName) << "a brace in a line comment opens nothing";

    colour("JavaScript", QStringLiteral("'/* no comment' var"));
    EXPECT_EQ(styleOf("var"), RecordLexer::Keyword);
}

TEST_F(SyntaxColouring, ResumesMidDocumentFromTheLineBefore)
{
    colour("JavaScript", QStringLiteral("var a;\n/* start\nvar inside\nvar inside\n*/ var\n"));
    const long line3 = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, 3UL);
    const long length = editor.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    // Wipe the styles from line 3 on, then colour from the middle of that line only.
    editor.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, static_cast<unsigned long>(line3), 0L);
    editor.SendScintilla(QsciScintillaBase::SCI_SETSTYLING, static_cast<unsigned long>(length - line3), 0L);
    ASSERT_EQ(styleOf("var", 2), RecordLexer::Default);
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, static_cast<unsigned long>(line3 + 5), -1L);
    EXPECT_EQ(styleOf("var inside", 1), RecordLexer::BlockComment) << "the comment goes on from line 2";
    EXPECT_EQ(styleOf("var", 3), RecordLexer::Keyword);

    // Closing the comment earlier: the following lines lose their comment colour.
    const long insideAt = find(QStringLiteral("var inside"), 0);
    editor.SendScintilla(QsciScintillaBase::SCI_INSERTTEXT, static_cast<unsigned long>(insideAt), "*/");
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, static_cast<unsigned long>(insideAt), -1L);
    EXPECT_EQ(styleOf("var", 1), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("var", 2), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("*/", 1), RecordLexer::Operator) << "the old closer is two operators now";
}

TEST_F(SyntaxColouring, StylesOnlyTheRangeAskedFor)
{
    editor.setLanguage(QStringLiteral("JavaScript"));
    editor.setText(QStringLiteral("var a;\nvar b;\nvar c;\n"));
    const long line1 = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, 1UL);
    editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, static_cast<long>(line1));
    EXPECT_EQ(styleOf("var", 0), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("var", 1), RecordLexer::Default) << "line 2 was not asked for";
    EXPECT_EQ(styleOf("var", 2), RecordLexer::Default);
    EXPECT_EQ(editor.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED), line1);
}

TEST_F(SyntaxColouring, EntriesWithBlanksAndOtherSigns)
{
    colour("Delphi", QStringLiteral("Action support; Action; Date/Time routines; Date"));
    EXPECT_EQ(styleOf("Action support"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("Action", 1), RecordLexer::Default);
    EXPECT_EQ(styleOf("Date/Time routines"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("Date", 1), RecordLexer::Keyword);

    colour("JavaScript", QStringLiteral("<% x %> <%= y"));
    EXPECT_EQ(styleOf("<%"), RecordLexer::AttributeName);
    EXPECT_EQ(styleOf("%>"), RecordLexer::AttributeName);

    colour("PHP", QStringLiteral("<?phpinfo <? x"));
    EXPECT_EQ(styleOf("<?", 0), RecordLexer::Entity) << "\"<?php\" needs a word end, \"<?\" does not";
    EXPECT_EQ(styleOf("phpinfo"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("<?", 1), RecordLexer::Entity);
}

TEST_F(SyntaxColouring, BasicHasItsOwnDefinition)
{
    colour("Basic", QStringLiteral("DIM x As Integer ' If Then\nRem If Then\nRemove = vbCrLf & \"If\"\n"));
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_EQ(styleOf("DIM"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("Integer"), RecordLexer::Keyword);
    EXPECT_EQ(styleOf("' If Then"), RecordLexer::LineComment);
    EXPECT_EQ(styleOf("Rem If Then"), RecordLexer::LineComment);
    EXPECT_EQ(styleOf("Remove"), RecordLexer::Default) << "Rem starts a comment only as a word";
    EXPECT_EQ(styleOf("vbCrLf"), RecordLexer::ElementName);
    EXPECT_EQ(styleOf("&"), RecordLexer::Operator);
    EXPECT_EQ(styleOf("\"If\""), RecordLexer::String);
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
    EXPECT_EQ(styleOf("var"), RecordLexer::Keyword) << "colouring comes back";
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
