// The phonetic code, the tree's buckets, the word test and the suggestion rows.
#include "spelling/SpellEngine.h"

#include <gtest/gtest.h>

using modMain::WordCode;

namespace {
QString code(const char* word) { return WordCode(QString::fromUtf8(word)); }

QStringList bucket(const clsWordTree& tree, const QString& code)
{
    const WordBucket* b = tree.GetCodeNode(code);
    return b ? b->toList() : QStringList{QStringLiteral("<no bucket>")};
}
}

TEST(WordCode, ExamplesAndRepeats)
{
    EXPECT_EQ(code("Robert"), QStringLiteral("R163"));
    EXPECT_EQ(code("robert"), QStringLiteral("R163"));
    EXPECT_EQ(code("Hello"), QStringLiteral("H400"));
    EXPECT_EQ(code("a"), QStringLiteral("A000"));
    EXPECT_EQ(code(""), QStringLiteral("000 "));
    // C, K and S each write a 2: only the same letter twice in a row is a repeat.
    EXPECT_EQ(code("Jackson"), QStringLiteral("J222"));
    EXPECT_EQ(code("Anna"), QStringLiteral("A500"));
    EXPECT_EQ(code("Anan"), QStringLiteral("A550"));
    EXPECT_EQ(code("Bell"), QStringLiteral("B400"));
    EXPECT_EQ(code("BELL"), QStringLiteral("B400"));
    EXPECT_EQ(code("Bel'l"), QStringLiteral("B440")) << "the apostrophe ends the repeat";
    EXPECT_EQ(code("o'clock"), QStringLiteral("O242"));
    // The first letter is the previous letter at the start: "Pf" repeats nothing, "Pp" does.
    EXPECT_EQ(code("Ppb"), QStringLiteral("P100"));
    EXPECT_EQ(code("Pfb"), QStringLiteral("P110"));
}

TEST(WordCode, StopsAtTheFourthCharacterAndCodesOnlyTheLetterSets)
{
    EXPECT_EQ(code("Washington"), QStringLiteral("W252"));
    EXPECT_EQ(code("Tymczak"), QStringLiteral("T522"));
    EXPECT_EQ(code("bfpv"), QStringLiteral("B111"));
    EXPECT_EQ(code("xlmnr"), QStringLiteral("X455"));
    EXPECT_EQ(code("3d"), QStringLiteral("3300"));
    EXPECT_EQ(code("a-e-i"), QStringLiteral("A000"));
    EXPECT_EQ(code("caf\xc3\xa9s"), QStringLiteral("C120")) << "an accented letter writes nothing";
    EXPECT_EQ(code("\xc3\xa9t\xc3\xa9"), QString::fromUtf8("\xc3\x89" "300")) << "the first letter upper-cased";
    EXPECT_EQ(code("\nnext"), QStringLiteral("\n523"));
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
    for (const char* w : {"paris", "London", "3D", "o'clock", "\xc3\xa9t\xc3\xa9"})
        tree.addWord(QString::fromUtf8(w));
    auto ok = [&](const char* w) { return Spelling::isCorrectWord(tree, QString::fromUtf8(w)); };
    // A list entry in small letters matches in any case; one with a capital only exactly.
    EXPECT_TRUE(ok("paris"));
    EXPECT_TRUE(ok("Paris"));
    EXPECT_TRUE(ok("PARIS"));
    EXPECT_TRUE(ok("London"));
    EXPECT_FALSE(ok("london"));
    EXPECT_FALSE(ok("LONDON"));
    // An entry that begins with a digit is compared exactly.
    EXPECT_TRUE(ok("3D"));
    EXPECT_FALSE(ok("3d"));
    EXPECT_TRUE(ok("O'Clock"));
    EXPECT_TRUE(ok("\xc3\x89T\xc3\x89"));
    // Blanks are trimmed; an empty word is not correct.
    EXPECT_TRUE(ok("  paris "));
    EXPECT_FALSE(ok(""));
    EXPECT_FALSE(ok("   "));
    // Numbers as a whole pass without the tree.
    for (const char* n : {"12", "1.5", "1e3", "-4", "+2.5E-3", ".5", "7."})
        EXPECT_TRUE(ok(n)) << n;
    for (const char* n : {"1e", "12th", "1.2.3", "e3", "-", "."})
        EXPECT_FALSE(ok(n)) << n;
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
    using Spelling::leadingValue;
    EXPECT_EQ(leadingValue(u"12th"), 12);
    EXPECT_EQ(leadingValue(u"3d"), 3);
    EXPECT_EQ(leadingValue(u"0x"), 0);
    EXPECT_EQ(leadingValue(u"abc"), 0);
    EXPECT_EQ(leadingValue(u"1e3x"), 1000);
    EXPECT_EQ(leadingValue(u".5a"), 0.5);
    EXPECT_EQ(leadingValue(u"-2-3"), -2);
    EXPECT_EQ(leadingValue(u"1 2"), 12);
    EXPECT_EQ(leadingValue(u"-"), 0);
    EXPECT_EQ(leadingValue(u""), 0);
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
