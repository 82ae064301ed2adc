// The word walk: where words end, the sentence state, and the stops of one check step.
#include "spelling/WordWalker.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {
int divider(const char* text, int start)
{
    WordWalker w;
    return w.getNextWordDivider(QString::fromLatin1(text), start);
}

struct Stop {
    Spelling::WordStop::Kind kind;
    QString word;
    int start;
    int length;
    bool operator==(const Stop& o) const
    {
        return kind == o.kind && word == o.word && start == o.start && length == o.length;
    }
};
void PrintTo(const Stop& s, std::ostream* os)
{
    *os << (s.kind == Spelling::WordStop::Misspelt ? "misspelt " : "capital ") << s.word.toStdString() << " @"
        << s.start << "+" << s.length;
}

// Every stop of a whole walk from the caret to the end, going on after each stop as Ignore
// does: from the end of the selected word.
std::vector<Stop> walk(const QString& text, const QSet<QString>& known, int caret = 0)
{
    WordWalker walker;
    std::vector<Stop> stops;
    int start = caret, end = -1;
    const int length = static_cast<int>(text.size());
    for (int guard = 0; guard < 1000; ++guard) {
        const Spelling::WordStop s = Spelling::checkNextWord(
            walker, text, start, end, [&](int at) { return std::clamp(at, 0, length); },
            [&](QStringView w) { return known.contains(w.toString().toLower()); });
        if (s.kind == Spelling::WordStop::None)
            return stops;
        stops.push_back({s.kind, s.word, s.start, s.length});
        start = s.start + std::min(s.length, length - s.start);
    }
    ADD_FAILURE() << "the walk does not end";
    return stops;
}

constexpr auto Misspelt = Spelling::WordStop::Misspelt;
constexpr auto Capital = Spelling::WordStop::MissingCapital;
}

TEST(WordDivider, WordsApostrophesAndAbbreviations)
{
    struct Case { const char* text; int start; int divider; };
    const Case cases[] = {
        {"hello world", 1, 5}, {"hello world", 0, 5},  // 0 counts as 1
        {"hello world", 7, 12},                        // to the end: length plus 1
        {" lead", 1, 0}, {"well-known fact", 1, 10}, {"abc123 x", 1, 6},
        {"caf\xe9 x", 1, 3},                           // only the ASCII letters are word characters
        {"don't stop", 1, 5}, {"dogs' toys", 1, 4}, {"'tis", 1, 0}, {"e.g. this", 1, 4},
        {"U.S.A. now", 1, 5},                          // the first two dots pass by the pattern
        {"i.e.", 1, 5},                                // the skip may run past the end
        {"a.b c", 1, 1}, {"1.2. x", 1, 1},             // digits are no letters for the pattern
        // "[A-z]" takes the six characters between the capitals and the small letters.
        {"`'x", 2, 4}, {"~'x", 2, 1}};
    for (const Case& c : cases)
        EXPECT_EQ(divider(c.text, c.start), c.divider) << c.text << " from " << c.start;
}

TEST(WordDivider, SentenceStateLastsForTheWordAfterFullStopBlank)
{
    const QString text = QStringLiteral("end. next word");
    WordWalker w;
    EXPECT_EQ(w.getNextWordDivider(text, 1), 3);
    EXPECT_FALSE(w.sentenceStart);
    EXPECT_TRUE(w.previousWasFullStop);
    EXPECT_EQ(w.getNextWordDivider(text, 5), 4);  // the blank after the stop
    EXPECT_TRUE(w.sentenceStart);
    EXPECT_EQ(w.getNextWordDivider(text, 6), 9);  // end of "next": still set
    EXPECT_TRUE(w.sentenceStart);
    EXPECT_EQ(w.getNextWordDivider(text, 11), 15);  // "word" runs to the end: unchanged
    EXPECT_TRUE(w.sentenceStart);
    EXPECT_EQ(w.previousDivider, 10);

    WordWalker v;
    const QString longer = QStringLiteral("end. next word more");
    v.getNextWordDivider(longer, 1);
    v.getNextWordDivider(longer, 5);
    v.getNextWordDivider(longer, 6);
    v.getNextWordDivider(longer, 11);  // the divider after "word" clears it
    EXPECT_FALSE(v.sentenceStart);
}

TEST(CheckStep, CapitalsAtTheStartOfTheTextAndAfterFullStops)
{
    const QSet<QString> known{QStringLiteral("hi"), QStringLiteral("there"), QStringLiteral("now"),
                              QStringLiteral("am"), QStringLiteral("y"), QStringLiteral("z")};
    EXPECT_EQ(walk(QStringLiteral("Hi. there now"), known), (std::vector<Stop>{{Capital, QStringLiteral("there"), 4, 5}}));
    EXPECT_EQ(walk(QStringLiteral("hi there"), known), (std::vector<Stop>{{Capital, QStringLiteral("hi"), 0, 2}}));
    EXPECT_TRUE(walk(QStringLiteral("Hi! there? now"), known).empty()) << "only a full stop starts a sentence";
    // The full stop marks the next divider, which sets the state for the word before it.
    EXPECT_EQ(walk(QStringLiteral("Hi.there now"), known), (std::vector<Stop>{{Capital, QStringLiteral("there"), 3, 5}}));
    EXPECT_TRUE(walk(QStringLiteral("i am"), known).empty()) << "a one-letter first word is passed over";
    EXPECT_EQ(walk(QStringLiteral("x. y z"), known), (std::vector<Stop>{{Capital, QStringLiteral("y"), 3, 1}}));
    // After two blanks the divider behind the word no longer follows ". ": no test.
    EXPECT_TRUE(walk(QStringLiteral("Hi.  there now"), known).empty());
}

TEST(CheckStep, MisspeltWordsNumbersAndTheWordAtTheEnd)
{
    const QSet<QString> known{QStringLiteral("the"), QStringLiteral("cat")};
    EXPECT_EQ(walk(QStringLiteral("The cta sat"), known),
              (std::vector<Stop>{{Misspelt, QStringLiteral("cta"), 4, 3}, {Misspelt, QStringLiteral("sat"), 8, 4}}))
        << "the last word's length counts one past the text";
    // A word with a leading number is skipped unless that number is 0.
    EXPECT_EQ(walk(QStringLiteral("The 12th 3d 0x -5x cat"), known),
              (std::vector<Stop>{{Misspelt, QStringLiteral("0x"), 12, 2}}));
    EXPECT_EQ(walk(QStringLiteral("The cat's  don't"), known),
              (std::vector<Stop>{{Misspelt, QStringLiteral("cat's"), 4, 5}, {Misspelt, QStringLiteral("don't"), 11, 6}}));
    // Going on after a stop searches from the word's last character: the abbreviation's last
    // dot is then a full stop of its own, and the next word needs a capital.
    EXPECT_EQ(walk(QStringLiteral("The e.g. cat"), known),
              (std::vector<Stop>{{Misspelt, QStringLiteral("e.g."), 4, 4}, {Capital, QStringLiteral("cat"), 9, 4}}));
    EXPECT_TRUE(walk(QStringLiteral("The e.g. cat"), known + QSet<QString>{QStringLiteral("e.g.")}).empty());
    EXPECT_TRUE(walk(QString(), known).empty());
    EXPECT_TRUE(walk(QStringLiteral("  ...  "), known).empty());
}

TEST(CheckStep, FromTheCaretThePartWordIsPassedOver)
{
    const QSet<QString> known{QStringLiteral("hello")};
    // The caret inside "wrold": the walk goes on after that word.
    EXPECT_EQ(walk(QStringLiteral("hello wrold xyz"), known, 8), (std::vector<Stop>{{Misspelt, QStringLiteral("xyz"), 12, 4}}));
    // The caret inside the first word: no capital test there.
    EXPECT_EQ(walk(QStringLiteral("hello wrold"), known, 2), (std::vector<Stop>{{Misspelt, QStringLiteral("wrold"), 6, 6}}));
}

TEST(CheckStep, TheEndBoundsTheWalk)
{
    WordWalker walker;
    const QString text = QStringLiteral("aa bb cc dd");
    int start = 0, end = 4;
    auto step = [&] {
        return Spelling::checkNextWord(walker, text, start, end, [](int at) { return at; },
                                       [](QStringView) { return false; });
    };
    EXPECT_EQ(step().word, QStringLiteral("aa"));
    start = 2;
    EXPECT_EQ(step().word, QStringLiteral("bb")) << "a word that starts at or before the end is tested";
    start = 5;
    EXPECT_EQ(step().kind, Spelling::WordStop::None);
    int start2 = 0, unset = -1;
    Spelling::checkNextWord(walker, text, start2, unset, [](int at) { return at; }, [](QStringView) { return false; });
    EXPECT_EQ(unset, 11) << "-1 becomes the text's length";
}
