// The phonetic code, the tree's buckets, the word test and the suggestion rows.
#include "spelling/SpellEngine.h"

#include <gtest/gtest.h>

#include <vector>

using modMain::WordCode;

// Characters outside the first plane, in UTF-8: an emoji, and a letter with a small and a
// capital form (the two forms share their first UTF-16 half, the emoji with the next one too).
#define EMOJI "\xf0\x9f\x98\x80"
#define EMOJI_NEXT "\xf0\x9f\x98\x81"
#define DESERET_SMALL "\xf0\x90\x90\xa8"
#define DESERET_CAPITAL "\xf0\x90\x90\x80"

namespace {
QString code(const char* word) { return WordCode(QString::fromUtf8(word)); }

QStringList bucket(const clsWordTree& tree, const QString& code)
{
    const WordBucket* b = tree.GetCodeNode(code);
    return b ? b->toList() : QStringList{QStringLiteral("<no bucket>")};
}
}

TEST(WordCode, ExamplesRepeatsAndTheFourthCharacter)
{
    // C, K and S each write a 2: only the same letter twice in a row is a repeat, and the
    // apostrophe ends one. The first letter is the previous letter at the start: "Pf" repeats
    // nothing, "Pp" does. An accented letter writes nothing; the first is upper-cased. A
    // character outside the first plane is one character: in the code, in the repeat and in
    // the count up to the fourth.
    const std::pair<const char*, const char*> codes[] = {
        {"Robert", "R163"}, {"robert", "R163"}, {"Hello", "H400"}, {"a", "A000"}, {"", "000 "},
        {"Jackson", "J222"}, {"Anna", "A500"}, {"Anan", "A550"}, {"Bell", "B400"}, {"BELL", "B400"},
        {"Bel'l", "B440"}, {"o'clock", "O242"}, {"Ppb", "P100"}, {"Pfb", "P110"},
        {"Washington", "W252"}, {"Tymczak", "T522"}, {"bfpv", "B111"}, {"xlmnr", "X455"}, {"3d", "3300"},
        {"a-e-i", "A000"}, {"caf\xc3\xa9s", "C120"}, {"\xc3\xa9t\xc3\xa9", "\xc3\x89" "300"}, {"\nnext", "\n523"},
        {EMOJI "bob", EMOJI "110"}, {EMOJI "bdlr", EMOJI "134"}, {EMOJI, EMOJI "000"}, {"b" EMOJI "b", "B100"},
        {DESERET_SMALL DESERET_SMALL "l", DESERET_CAPITAL "400"}};
    for (const auto& [word, expected] : codes)
        EXPECT_EQ(code(word), QString::fromUtf8(expected)) << word;
}

TEST(WordTree, BucketsKeepOrderAndDuplicatesAndIgnoreCaseOfKeys)
{
    clsWordTree tree;
    EXPECT_EQ(tree.Count(), 0);
    EXPECT_EQ(tree.GetCodeNode(QStringLiteral("R163")), nullptr);
    tree.Add(QStringLiteral("R163"), QStringLiteral("rupert"));
    tree.Add(QStringLiteral("R163"), QStringLiteral("Robert"));
    tree.Add(QStringLiteral("H400"), QStringLiteral("hello"));
    tree.Add(QStringLiteral("R163"), QStringLiteral("rupert"));
    tree.Add(QStringLiteral("r163"), QStringLiteral("rivard"));
    EXPECT_EQ(tree.Count(), 2) << "buckets, not words";
    EXPECT_EQ(bucket(tree, QStringLiteral("R163")),
              (QStringList{QStringLiteral("rupert"), QStringLiteral("Robert"), QStringLiteral("rupert"), QStringLiteral("rivard")}));
    EXPECT_EQ(tree.GetCodeNode(QStringLiteral("r163")), tree.GetCodeNode(QStringLiteral("R163")));
    EXPECT_EQ(tree.GetCodeNode(QStringLiteral("R163"))->count(), 4);
    // A code of another length is a key like any other.
    tree.Add(QStringLiteral("xy"), QStringLiteral("first"));
    tree.Add(QStringLiteral("XY"), QStringLiteral("second"));
    EXPECT_EQ(tree.Count(), 3);
    EXPECT_EQ(bucket(tree, QStringLiteral("Xy")), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
    EXPECT_EQ(tree.GetCodeNode(QStringLiteral("X")), nullptr);
    // Letter case is ignored by character, also outside the first plane, in a word's code of
    // five units and in a code of one's own of four.
    tree.Add(QString::fromUtf8(DESERET_CAPITAL "400"), QStringLiteral("third"));
    EXPECT_EQ(bucket(tree, QString::fromUtf8(DESERET_SMALL "400")), QStringList{QStringLiteral("third")});
    tree.Add(QString::fromUtf8(DESERET_SMALL "40"), QStringLiteral("fourth"));
    EXPECT_EQ(bucket(tree, QString::fromUtf8(DESERET_CAPITAL "40")), QStringList{QStringLiteral("fourth")});
    EXPECT_EQ(tree.Count(), 5);
}

TEST(WordTree, ManyWordsStayInTheirBuckets)
{
    // Enough words to make every table of the tree grow several times.
    clsWordTree tree;
    QStringList words;
    for (int i = 0; i < 20000; ++i) {
        QString w;
        for (int n = i; n > 0 || w.isEmpty(); n /= 26)
            w.append(QChar(u'a' + n % 26));
        words << w;
        tree.addWord(w);
    }
    for (const QString& w : words) {
        ASSERT_TRUE(tree.accepts(w)) << w.toStdString();
        const WordBucket* b = tree.GetCodeNode(WordCode(w));
        ASSERT_NE(b, nullptr);
        EXPECT_TRUE(b->toList().contains(w));
    }
    EXPECT_EQ(tree.wordCount(), 20000);
    EXPECT_FALSE(tree.accepts(QStringLiteral("notaword")));
}

TEST(WordTest, CapitalRuleTrimAndNumbers)
{
    clsWordTree tree;
    for (const char* w : {"paris", "London", "3D", "o'clock", "\xc3\xa9t\xc3\xa9", DESERET_SMALL "ab", DESERET_CAPITAL "cd",
                          EMOJI "ok"})
        tree.addWord(QString::fromUtf8(w));
    auto ok = [&](const char* w) { return Spelling::isCorrectWord(tree, QString::fromUtf8(w)); };
    // A list entry in small letters matches in any case; one with a capital, or one that begins
    // with a digit, only exactly. Blanks are trimmed; an empty word is not correct. Numbers as
    // a whole pass without the tree.
    for (const char* w : {"paris", "Paris", "PARIS", "London", "3D", "O'Clock", "\xc3\x89T\xc3\x89", "  paris ",
                          "12", "1.5", "1e3", "-4", "+2.5E-3", ".5", "7.", DESERET_CAPITAL "ab", DESERET_CAPITAL "AB",
                          DESERET_SMALL "ab", DESERET_CAPITAL "cd", EMOJI "ok"})
        EXPECT_TRUE(ok(w)) << w;
    for (const char* w : {"london", "LONDON", "3d", "", "   ", "1e", "12th", "1.2.3", "e3", "-", ".", DESERET_SMALL "cd",
                          DESERET_CAPITAL "CD", EMOJI "OK", EMOJI_NEXT "ok"})
        EXPECT_FALSE(ok(w)) << w;
}

TEST(WordTest, OnlyTheBucketOfTheWordsCodeCounts)
{
    clsWordTree tree;
    tree.Add(QStringLiteral("Z999"), QStringLiteral("apple"));
    EXPECT_FALSE(Spelling::isCorrectWord(tree, QStringLiteral("apple")));
    tree.Add(QStringLiteral("a140"), QStringLiteral("apple"));
    EXPECT_TRUE(Spelling::isCorrectWord(tree, QStringLiteral("Apple")));
    // The tree's own exact lookup, as Add uses it.
    EXPECT_TRUE(tree.holdsExactly(QStringLiteral("A140"), u"apple"));
    EXPECT_FALSE(tree.holdsExactly(QStringLiteral("A140"), u"Apple"));
    EXPECT_FALSE(tree.holdsExactly(QStringLiteral("B000"), u"apple"));

    // The empty word of an empty line is an entry like any other.
    clsWordTree empty;
    empty.Add(QStringLiteral("000 "), QString());
    EXPECT_TRUE(empty.holdsExactly(QStringLiteral("000 "), QStringView()));
    EXPECT_FALSE(empty.holdsExactly(QStringLiteral("000 "), u"a"));
    EXPECT_FALSE(Spelling::isCorrectWord(empty, QString()));
}

TEST(NumberRules, LeadingValue)
{
    const std::pair<const char16_t*, double> values[] = {{u"12th", 12}, {u"3d", 3},     {u"0x", 0},   {u"abc", 0},
                                                         {u"1e3x", 1000}, {u".5a", 0.5}, {u"-2-3", -2}, {u"1 2", 12},
                                                         {u"-", 0},       {u"", 0}};
    for (const auto& [text, value] : values)
        EXPECT_EQ(Spelling::leadingValue(text), value) << QString::fromUtf16(text).toStdString();
}

TEST(NumberRules, ProperCase)
{
    EXPECT_EQ(Spelling::properCase(QStringLiteral("hELLO")), QStringLiteral("Hello"));
    EXPECT_EQ(Spelling::properCase(QStringLiteral("o'clock")), QStringLiteral("O'clock"));
    EXPECT_EQ(Spelling::properCase(QStringLiteral("e.g.")), QStringLiteral("E.g."));
    EXPECT_EQ(Spelling::properCase(QStringLiteral("two words")), QStringLiteral("Two Words"));
}

namespace {
clsWordTree rTree(std::initializer_list<const char*> words)
{
    clsWordTree tree;
    for (const char* w : words)
        tree.Add(QStringLiteral("R163"), QString::fromLatin1(w));
    return tree;
}
}

TEST(Suggestions, LongestPrefixWinsAndTheEarliestWinsATie)
{
    const clsWordTree tree = rTree({"robert", "rupert", "rivard"});
    Spelling::Alternates a = Spelling::listAlternates(tree, QStringLiteral("ruport"), false);
    EXPECT_EQ(a.status, Spelling::Alternates::Listed);
    EXPECT_EQ(a.rows, (QStringList{QStringLiteral("robert"), QStringLiteral("rupert"), QStringLiteral("rivard")}));
    EXPECT_EQ(a.selected, 1);
    a = Spelling::listAlternates(tree, QStringLiteral("rabert"), false);
    EXPECT_EQ(a.selected, 0) << "three rows share one letter: the first wins";
}

TEST(Suggestions, AWordOfTheListInOtherCaseStandsAlone)
{
    const clsWordTree tree = rTree({"rupert", "Robert", "rivard"});
    const Spelling::Alternates a = Spelling::listAlternates(tree, QStringLiteral("robert"), false);
    EXPECT_EQ(a.rows, QStringList{QStringLiteral("Robert")});
    EXPECT_EQ(a.selected, 0);
}

TEST(Suggestions, CapitalsShareNothingAndNoSharedLetterSelectsNothing)
{
    Spelling::Alternates a = Spelling::listAlternates(rTree({"Rupert", "rivard"}), QStringLiteral("rupart"), false);
    EXPECT_EQ(a.rows, (QStringList{QStringLiteral("Rupert"), QStringLiteral("rivard")}));
    EXPECT_EQ(a.selected, 1);
    a = Spelling::listAlternates(rTree({"Rupert"}), QStringLiteral("rupart"), false);
    EXPECT_EQ(a.rows, QStringList{QStringLiteral("Rupert")});
    EXPECT_EQ(a.selected, -1);
}

TEST(Suggestions, NoBucketMissingListAndEmptyWord)
{
    const clsWordTree tree = rTree({"robert"});
    Spelling::Alternates a = Spelling::listAlternates(tree, QStringLiteral("zzz"), false);
    EXPECT_EQ(a.status, Spelling::Alternates::NoSuggestions);
    EXPECT_EQ(a.rows, QStringList{QStringLiteral("No Suggestions")});
    EXPECT_EQ(a.selected, -1);
    a = Spelling::listAlternates(tree, QStringLiteral("robert"), true);
    EXPECT_EQ(a.status, Spelling::Alternates::DictionaryNotFound);
    EXPECT_EQ(a.rows, QStringList{QStringLiteral("Dictionary not found")});
    a = Spelling::listAlternates(tree, QString(), false);
    EXPECT_EQ(a.status, Spelling::Alternates::Empty);
    EXPECT_TRUE(a.rows.isEmpty());
}

TEST(Suggestions, CharactersOutsideTheFirstPlaneAreWholeCharacters)
{
    // The words go in by their own codes. A capital shares nothing with the small form of its
    // letter, and a shared first half of a character is no shared character.
    struct Case { std::vector<const char*> bucket; const char* word; std::vector<const char*> rows; int selected; };
    const Case cases[] = {
        {{DESERET_SMALL "ba", DESERET_CAPITAL "b"}, DESERET_SMALL "b", {DESERET_CAPITAL "b"}, 0},
        {{DESERET_CAPITAL "ba"}, DESERET_SMALL "bo", {DESERET_CAPITAL "ba"}, -1},
        {{"ab", "a" EMOJI_NEXT "b"}, "a" EMOJI "b", {"ab", "a" EMOJI_NEXT "b"}, 0},
        {{EMOJI_NEXT "a"}, EMOJI "a", {"No Suggestions"}, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.word);
        clsWordTree tree;
        for (const char* w : c.bucket)
            tree.addWord(QString::fromUtf8(w));
        const Spelling::Alternates a = Spelling::listAlternates(tree, QString::fromUtf8(c.word), false);
        QStringList rows;
        for (const char* r : c.rows)
            rows << QString::fromUtf8(r);
        EXPECT_EQ(a.rows, rows);
        EXPECT_EQ(a.selected, c.selected);
    }
}
