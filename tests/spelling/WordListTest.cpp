// The list file: CR LF lines read in 64 KiB pieces with their edges, the missing file, the
// appending of added words.
#include "platform/RuntimeError.h"
#include "spelling/SpellEngine.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
class WordList : public ::testing::Test {
protected:
    void SetUp() override { modMain::resetForTesting(); }

    QString write(const QByteArray& bytes)
    {
        QFile f(path());
        EXPECT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
        return path();
    }
    QString path() const { return dir.path() + QStringLiteral("/dictionary.txt"); }
    QByteArray read() const
    {
        QFile f(path());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }
    static QStringList bucketOf(const QString& word)
    {
        const WordBucket* b = modMain::WordTree().GetCodeNode(modMain::WordCode(word));
        return b ? b->toList() : QStringList();
    }
    // n bytes: one long word of "a"s and its CR LF.
    static QByteArray filler(qsizetype n) { return QByteArray(n - 2, 'a') + "\r\n"; }
    static QString fillerWord(qsizetype n) { return QString(n - 2, u'a'); }

    QTemporaryDir dir;
};
}

TEST_F(WordList, LinesBecomeWordsAndTheLastWordStandsTwice)
{
    modMain::LoadWordList(write("apple\r\nbanana\r\nBerlin\r\n"));
    EXPECT_EQ(bucketOf(QStringLiteral("apple")), QStringList{QStringLiteral("apple")});
    EXPECT_EQ(bucketOf(QStringLiteral("banana")), QStringList{QStringLiteral("banana")});
    EXPECT_EQ(bucketOf(QStringLiteral("Berlin")), (QStringList{QStringLiteral("Berlin"), QStringLiteral("Berlin")}));
    EXPECT_EQ(modMain::WordTree().Count(), 3);
    EXPECT_FALSE(modMain::state().DictionaryMissing);
}

TEST_F(WordList, ALastLineWithoutCrLfIsLost)
{
    modMain::LoadWordList(write("apple\r\nbanana"));
    EXPECT_EQ(bucketOf(QStringLiteral("apple")), (QStringList{QStringLiteral("apple"), QStringLiteral("apple")}));
    EXPECT_TRUE(bucketOf(QStringLiteral("banana")).isEmpty());
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("banana")));
}

TEST_F(WordList, EmptyLinesAndBareLineFeeds)
{
    modMain::LoadWordList(write("one\r\n\r\ntwo\nthree\r\n"));
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("000 "))->toList(), QStringList{QString()});
    EXPECT_EQ(bucketOf(QStringLiteral("two\nthree")),
              (QStringList{QStringLiteral("two\nthree"), QStringLiteral("two\nthree")}));
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("two")));
}

TEST_F(WordList, AnEmptyFileLeavesOnlyTheEmptyLastWord)
{
    // Nothing was read, so the word added once more at the end is the empty one.
    modMain::LoadWordList(write(""));
    EXPECT_EQ(modMain::WordTree().Count(), 1);
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("000 "))->toList(), QStringList{QString()});
}

TEST_F(WordList, EncodedWords)
{
    modMain::LoadWordList(write("caf\xc3\xa9\r\nna\xefve\r\nend\r\n"));
    EXPECT_TRUE(Spelling::isCorrectWord(modMain::WordTree(), QString::fromUtf8("Caf\xc3\xa9")));
    EXPECT_TRUE(Spelling::isCorrectWord(modMain::WordTree(), QString::fromUtf8("na\xc3\xafve")));
}

TEST_F(WordList, PieceOf65535BytesWithItsLastByteACr)
{
    const QByteArray bytes = filler(65533) + "y\r";
    ASSERT_EQ(bytes.size(), 65535);
    modMain::LoadWordList(write(bytes));
    EXPECT_TRUE(bucketOf(QStringLiteral("y")).isEmpty()) << "a last line without its LF is lost";
    EXPECT_EQ(bucketOf(fillerWord(65533)).count(fillerWord(65533)), 2);
}

TEST_F(WordList, ExactlyOnePieceOf65536Bytes)
{
    QByteArray bytes = filler(65530) + "last\r\n";
    ASSERT_EQ(bytes.size(), 65536);
    modMain::LoadWordList(write(bytes));
    EXPECT_EQ(bucketOf(QStringLiteral("last")), (QStringList{QStringLiteral("last"), QStringLiteral("last")}));

    // The CR of an empty line on byte 65,536 is the single last character: dropped.
    bytes = filler(65535) + "\r";
    ASSERT_EQ(bytes.size(), 65536);
    modMain::LoadWordList(write(bytes));
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("000 ")), nullptr);
    EXPECT_EQ(modMain::WordTree().Count(), 1);
}

TEST_F(WordList, TheDroppedCrMakesTheLineFeedStartTheNextWord)
{
    // Byte 65,536 is the CR of an empty line; its LF opens the second piece.
    const QByteArray bytes = filler(65535) + "\r" + "\nnext\r\n";
    modMain::LoadWordList(write(bytes));
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("000 ")), nullptr) << "no empty word";
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("\n523"))->toList(),
              (QStringList{QStringLiteral("\nnext"), QStringLiteral("\nnext")}));
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("next")));
}

TEST_F(WordList, ACrLfSplitByThePieceEdgeJoinsTwoLines)
{
    // "ab" CR ends the first piece and is carried; the LF and "cd" follow in the second.
    const QByteArray bytes = filler(65533) + "ab\r" + "\ncd\r\n";
    modMain::LoadWordList(write(bytes));
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("A123"))->toList(),
              (QStringList{QStringLiteral("ab\r\ncd"), QStringLiteral("ab\r\ncd")}));
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("ab")));
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("cd")));
}

TEST_F(WordList, FileOf65537BytesWhoseLastLfIsAPieceOfItsOwn)
{
    const QByteArray bytes = filler(65534) + "x\r" + "\n";
    ASSERT_EQ(bytes.size(), 65537);
    modMain::LoadWordList(write(bytes));
    EXPECT_TRUE(bucketOf(QStringLiteral("x")).isEmpty()) << "the carried line never meets its LF";
    EXPECT_EQ(bucketOf(fillerWord(65534)).count(fillerWord(65534)), 2);
}

TEST_F(WordList, WordsAcrossThePieceEdge)
{
    // Two characters left at the edge are carried into the next piece.
    modMain::LoadWordList(write(filler(65534) + "abcd\r\n"));
    EXPECT_EQ(bucketOf(QStringLiteral("abcd")), (QStringList{QStringLiteral("abcd"), QStringLiteral("abcd")}));
    // One character left at the edge is dropped.
    modMain::LoadWordList(write(filler(65535) + "qrst\r\n"));
    EXPECT_EQ(bucketOf(QStringLiteral("rst")), (QStringList{QStringLiteral("rst"), QStringLiteral("rst")}));
    EXPECT_FALSE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("qrst")));
    // A line longer than a piece: the piece without CR LF replaces what was carried.
    modMain::LoadWordList(write("pre\r\n" + QByteArray(65531, 'b') + QByteArray(65536, 'c') + "tail\r\n"));
    const QString joined = QString(65536, u'c') + QStringLiteral("tail");
    EXPECT_EQ(bucketOf(joined), (QStringList{joined, joined}));
    EXPECT_TRUE(bucketOf(QStringLiteral("b")).isEmpty());
}

TEST_F(WordList, TheBytesLoaderReadsAsTheFileLoaderDoes)
{
    const QByteArray bytes = filler(65533) + "ab\r" + "\ncd\r\nlast";
    modMain::LoadWordList(write(bytes));
    const QStringList fromFile = modMain::WordTree().GetCodeNode(QStringLiteral("A123"))->toList();
    const int buckets = modMain::WordTree().Count();
    modMain::loadWordBytes(bytes);
    EXPECT_EQ(modMain::WordTree().GetCodeNode(QStringLiteral("A123"))->toList(), fromFile);
    EXPECT_EQ(modMain::WordTree().Count(), buckets);
}

TEST_F(WordList, AMissingFileSetsTheFlagAndRaises)
{
    try {
        modMain::LoadWordList(dir.path() + QStringLiteral("/none.txt"));
        FAIL() << "no error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 53);
        EXPECT_EQ(e.description, QStringLiteral("File not found"));
        EXPECT_EQ(e.source, QStringLiteral("vbwSpellCheck"));
    }
    EXPECT_TRUE(modMain::state().DictionaryMissing);
    EXPECT_EQ(modMain::WordTree().Count(), 0) << "the old tree is replaced before the file is opened";

    // A folder is no list either, but it is not missing.
    try {
        modMain::LoadWordList(dir.path());
        FAIL() << "no error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.source, QStringLiteral("vbwSpellCheck"));
        EXPECT_NE(e.number, 53);
    }
    EXPECT_FALSE(modMain::state().DictionaryMissing);
}

TEST_F(WordList, SavingAppendsTheAddedWordsEveryTime)
{
    write("apple\r\n");
    modMain::state().CustomWords << QStringLiteral("Velloro") << QStringLiteral("qwerty");
    modMain::SaveCustomWords(path());
    EXPECT_EQ(read(), QByteArray("apple\r\nVelloro\r\nqwerty\r\n"));
    modMain::SaveCustomWords(path());
    EXPECT_EQ(read(), QByteArray("apple\r\nVelloro\r\nqwerty\r\nVelloro\r\nqwerty\r\n"));
    modMain::LoadWordList(path());
    EXPECT_EQ(bucketOf(QStringLiteral("Velloro")), (QStringList{QStringLiteral("Velloro"), QStringLiteral("Velloro")}));
}

TEST_F(WordList, NothingIsSavedWhenTheListWasMissing)
{
    modMain::state().CustomWords << QStringLiteral("word");
    modMain::state().DictionaryMissing = true;
    modMain::SaveCustomWords(path());
    EXPECT_FALSE(QFile::exists(path()));
    // Element 0 is never written.
    modMain::state().DictionaryMissing = false;
    modMain::state().CustomWords = QStringList{QStringLiteral("zero")};
    modMain::SaveCustomWords(path());
    EXPECT_EQ(read(), QByteArray());
}
