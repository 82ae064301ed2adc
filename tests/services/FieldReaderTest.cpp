// The sequential field reader of the settings files and its conversions.
#include "common/QtPrinters.h"
#include "platform/RuntimeError.h"
#include "services/FieldReader.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

// Reads fields until the reader raises; the error must be "Input past end of file".
QStringList readAll(const QString& text)
{
    FieldReader in(text);
    QStringList fields;
    for (;;) {
        try {
            fields << in.next();
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, 62);
            EXPECT_EQ(e.description, QStringLiteral("Input past end of file"));
            return fields;
        }
        if (fields.size() > 100000) {
            ADD_FAILURE() << "reader does not reach the end";
            return fields;
        }
    }
}

int errorNumberOf(const std::function<void()>& f)
{
    try {
        f();
    } catch (const RuntimeError& e) {
        return e.number;
    }
    return 0;
}

// The run-time error a conversion of each text raises: its number and its description.
void expectError(std::initializer_list<const char*> texts, const std::function<void(const QString&)>& convert,
                 int number, const char* description)
{
    for (const char* s : texts) {
        try {
            convert(QString::fromLatin1(s));
            ADD_FAILURE() << "no error for " << s;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, number) << s;
            EXPECT_EQ(e.description, QString::fromLatin1(description)) << s;
        }
    }
}

} // namespace

// --- Fields --------------------------------------------------------------------------------

namespace {
struct ReadCase {
    const char* rule;
    QString text;
    QStringList fields;
};
void expectFields(std::initializer_list<ReadCase> cases)
{
    for (const ReadCase& c : cases)
        EXPECT_EQ(readAll(c.text), c.fields) << c.rule;
}
} // namespace

TEST(FieldReader, UnquotedFields)
{
    expectFields({
        {"one field per line", "abc\r\ndef\r\n", {"abc", "def"}},
        {"leading blanks are skipped", "   abc\r\n  \"q\"\r\n", {"abc", "q"}},
        // The plain form writes a number with a blank before and behind it; it must read back bare.
        {"a number in the plain form reads without its blanks", " 3470 \r\n 1 \r\n", {"3470", "1"}},
        {"a comma splits a line", ".htm,.html,.asp\r\nnext\r\n", {".htm", ".html", ".asp", "next"}},
        {"a comma at the line end leaves an empty field", "a,\r\nb\r\n", {"a", "", "b"}},
        {"an empty line is an empty field", "a\r\n\r\nb\r\n", {"a", "", "b"}},
        {"a last line without a line end is still a field", "a\r\nb", {"a", "b"}},
        {"CR LF ends a field", "one\r\ntwo\r\nthree\r\n", {"one", "two", "three"}},
        {"LF ends a field", "one\ntwo\nthree\n", {"one", "two", "three"}},
        {"CR ends a field", "one\rtwo\rthree\r", {"one", "two", "three"}},
        {"the three line ends mixed", "one\rtwo\nthree\r\n", {"one", "two", "three"}},
        // Only a quote at the start of a field opens a quoted value.
        {"a stray quote inside a field is kept", "ab\"cd\r\nx\r\n", {"ab\"cd", "x"}},
        {"backslashes are ordinary characters", "\"c:\\Velloro\\\"\r\nc:\\x\\\r\n", {"c:\\Velloro\\", "c:\\x\\"}},
    });
}

TEST(FieldReader, QuotedFields)
{
    expectFields({
        {"commas and blanks are kept", "\" .htm,.html , .asp \"\r\nx\r\n", {" .htm,.html , .asp ", "x"}},
        {"the rest of the line after the closing quote is dropped", "\"a\",\"b\",c\r\nd\r\n", {"a", "d"}},
        {"the rest of the line is dropped up to a CR too", "\"a\"  junk\rd\r", {"a", "d"}},
        {"an empty quoted field", "\"\"\r\n\"\"\r\n", {"", ""}},
        {"a quoted field runs across line ends to the next quote", "\"a\r\nb\"\r\nc\r\n", {"a\r\nb", "c"}},
        {"an unclosed quote runs to the end of the text", "x\r\n\"abc\r\ndef", {"x", "abc\r\ndef"}},
        {"a lone quote is one empty field", "\"", {""}},
    });
}

// --- End of input ----------------------------------------------------------------------------

TEST(FieldReader, EmptyTextRaisesInputPastEndOfFile)
{
    FieldReader in(QString{});
    EXPECT_TRUE(in.atEnd());
    try {
        in.next();
        FAIL() << "no error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 62);
        EXPECT_EQ(runtimeErrorText(e), QStringLiteral("Run-time error '62':\n\nInput past end of file"));
    }
}

TEST(FieldReader, ReadingPastTheLastFieldRaises62AndKeepsRaising)
{
    FieldReader in(QStringLiteral("1\r\n2\r\n"));
    EXPECT_EQ(in.next(), QStringLiteral("1"));
    EXPECT_FALSE(in.atEnd());
    EXPECT_EQ(in.next(), QStringLiteral("2"));
    EXPECT_TRUE(in.atEnd());
    EXPECT_EQ(errorNumberOf([&] { in.next(); }), 62);
    EXPECT_EQ(errorNumberOf([&] { in.next(); }), 62);
    EXPECT_EQ(in.fieldsRead(), 2);
}

TEST(FieldReader, HugeSingleLine)
{
    const QString big(2'000'000, QLatin1Char('x'));
    EXPECT_EQ(readAll(big + QStringLiteral("\r\nend")), (QStringList{big, QStringLiteral("end")}));

    // Many commas on one line: one field each, and the reader must not slow down per field.
    QString line;
    for (int i = 0; i < 50000; ++i)
        line += QString::number(i) + QLatin1Char(',');
    const QStringList fields = readAll(line);
    ASSERT_EQ(fields.size(), 50000);
    EXPECT_EQ(fields.front(), QStringLiteral("0"));
    EXPECT_EQ(fields.back(), QStringLiteral("49999"));
}

// --- Conversions -----------------------------------------------------------------------------

TEST(FieldReaderConversion, LongTakesDigitsAndTheTypeSuffix)
{
    for (const auto& [text, value] : {std::pair{"255&", 255}, {"16711680", 16711680}, {" 65280 ", 65280}, {"-1", -1},
                                      {"2147483647", 2147483647}, {"-2147483648", -2147483647 - 1}})
        EXPECT_EQ(FieldReader::toLong(QString::fromLatin1(text)), value) << text;
}

TEST(FieldReaderConversion, EmptyFieldIsZero)
{
    EXPECT_EQ(FieldReader::toLong(QString()), 0);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("   ")), 0);
    EXPECT_EQ(FieldReader::toCheckValue(QString()), 0);
}

TEST(FieldReaderConversion, WordsAreTypeMismatch)
{
    expectError({"abc", ".asp", "#FF0000", "12abc", "&", "1 2", "nan", "inf"}, [](const QString& s) { FieldReader::toLong(s); },
                13, "Type mismatch");
}

TEST(FieldReaderConversion, OutOfRangeIsOverflow)
{
    expectError({"2147483648", "-2147483649", "99999999999999999999", "1e12"}, [](const QString& s) { FieldReader::toLong(s); },
                6, "Overflow");
    EXPECT_EQ(errorNumberOf([] { FieldReader::toInteger(QStringLiteral("32768")); }), 6);
    EXPECT_EQ(errorNumberOf([] { FieldReader::toInteger(QStringLiteral("-32769")); }), 6);
    EXPECT_EQ(FieldReader::toInteger(QStringLiteral("32767")), 32767);
    EXPECT_EQ(FieldReader::toInteger(QStringLiteral("-32768")), -32768);
}

TEST(FieldReaderConversion, CheckValueIsZeroToTwo)
{
    for (const auto& [text, value] : {std::pair{"0", 0}, {"1", 1}, {" 1 ", 1}, {"2", 2}})
        EXPECT_EQ(FieldReader::toCheckValue(QString::fromLatin1(text)), value) << text;
    expectError({"3", "-1", "255"}, [](const QString& s) { FieldReader::toCheckValue(s); }, 380, "Invalid property value");
    EXPECT_EQ(errorNumberOf([] { FieldReader::toCheckValue(QStringLiteral(".asp")); }), 13);
}

TEST(FieldReaderConversion, FieldsStraightFromTheReaderConvert)
{
    FieldReader in(QStringLiteral("0\r\n255&\r\n\"1\"\r\n 1 \r\n"));
    EXPECT_EQ(FieldReader::toCheckValue(in.next()), 0);
    EXPECT_EQ(FieldReader::toLong(in.next()), 255);
    EXPECT_EQ(FieldReader::toCheckValue(in.next()), 1);
    EXPECT_EQ(FieldReader::toCheckValue(in.next()), 1);
}
