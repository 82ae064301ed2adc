// The sequential field reader of the settings files and its conversions.
#include "common/QtPrinters.h"
#include "platform/RuntimeError.h"
#include "shell/FieldReader.h"

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

} // namespace

// --- Unquoted fields -------------------------------------------------------------------------

TEST(FieldReader, OneFieldPerLine)
{
    EXPECT_EQ(readAll(QStringLiteral("abc\r\ndef\r\n")), (QStringList{QStringLiteral("abc"), QStringLiteral("def")}));
}

TEST(FieldReader, LeadingBlanksAreSkipped)
{
    EXPECT_EQ(readAll(QStringLiteral("   abc\r\n  \"q\"\r\n")), (QStringList{QStringLiteral("abc"), QStringLiteral("q")}));
}

TEST(FieldReader, NumberInPlainFormReadsWithoutItsBlanks)
{
    // The plain form writes a number with a blank before and behind it; it must read back bare.
    EXPECT_EQ(readAll(QStringLiteral(" 3470 \r\n 1 \r\n")), (QStringList{QStringLiteral("3470"), QStringLiteral("1")}));
}

TEST(FieldReader, CommaSplitsOneLineIntoTwoFields)
{
    EXPECT_EQ(readAll(QStringLiteral(".htm,.html,.asp\r\nnext\r\n")),
              (QStringList{QStringLiteral(".htm"), QStringLiteral(".html"), QStringLiteral(".asp"), QStringLiteral("next")}));
}

TEST(FieldReader, CommaAtLineEndLeavesAnEmptyField)
{
    EXPECT_EQ(readAll(QStringLiteral("a,\r\nb\r\n")), (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
}

TEST(FieldReader, EmptyLineIsAnEmptyField)
{
    EXPECT_EQ(readAll(QStringLiteral("a\r\n\r\nb\r\n")), (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")}));
}

TEST(FieldReader, LastLineWithoutLineEndIsStillAField)
{
    EXPECT_EQ(readAll(QStringLiteral("a\r\nb")), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST(FieldReader, AllThreeLineEndsSeparateFields)
{
    const QStringList expected{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    EXPECT_EQ(readAll(QStringLiteral("one\r\ntwo\r\nthree\r\n")), expected);
    EXPECT_EQ(readAll(QStringLiteral("one\ntwo\nthree\n")), expected);
    EXPECT_EQ(readAll(QStringLiteral("one\rtwo\rthree\r")), expected);
    EXPECT_EQ(readAll(QStringLiteral("one\rtwo\nthree\r\n")), expected);
}

TEST(FieldReader, StrayQuoteInsideUnquotedFieldIsKept)
{
    // Only a quote at the start of a field opens a quoted value.
    EXPECT_EQ(readAll(QStringLiteral("ab\"cd\r\nx\r\n")), (QStringList{QStringLiteral("ab\"cd"), QStringLiteral("x")}));
}

TEST(FieldReader, BackslashesAreOrdinaryCharacters)
{
    EXPECT_EQ(readAll(QStringLiteral("\"c:\\Velloro\\\"\r\nc:\\x\\\r\n")),
              (QStringList{QStringLiteral("c:\\Velloro\\"), QStringLiteral("c:\\x\\")}));
}

// --- Quoted fields ---------------------------------------------------------------------------

TEST(FieldReader, QuotedFieldKeepsCommasAndBlanks)
{
    EXPECT_EQ(readAll(QStringLiteral("\" .htm,.html , .asp \"\r\nx\r\n")),
              (QStringList{QStringLiteral(" .htm,.html , .asp "), QStringLiteral("x")}));
}

TEST(FieldReader, RestOfLineAfterClosingQuoteIsDropped)
{
    EXPECT_EQ(readAll(QStringLiteral("\"a\",\"b\",c\r\nd\r\n")), (QStringList{QStringLiteral("a"), QStringLiteral("d")}));
    EXPECT_EQ(readAll(QStringLiteral("\"a\"  junk\rd\r")), (QStringList{QStringLiteral("a"), QStringLiteral("d")}));
}

TEST(FieldReader, EmptyQuotedField)
{
    EXPECT_EQ(readAll(QStringLiteral("\"\"\r\n\"\"\r\n")), (QStringList{QString(), QString()}));
}

TEST(FieldReader, QuotedFieldRunsAcrossLineEndsToTheNextQuote)
{
    EXPECT_EQ(readAll(QStringLiteral("\"a\r\nb\"\r\nc\r\n")), (QStringList{QStringLiteral("a\r\nb"), QStringLiteral("c")}));
}

TEST(FieldReader, UnclosedQuoteRunsToTheEndOfTheText)
{
    EXPECT_EQ(readAll(QStringLiteral("x\r\n\"abc\r\ndef")), (QStringList{QStringLiteral("x"), QStringLiteral("abc\r\ndef")}));
}

TEST(FieldReader, LoneQuoteIsOneEmptyField)
{
    EXPECT_EQ(readAll(QStringLiteral("\"")), QStringList{QString()});
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
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("255&")), 255);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("16711680")), 16711680);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral(" 65280 ")), 65280);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("-1")), -1);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("2147483647")), 2147483647);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("-2147483648")), -2147483647 - 1);
}

TEST(FieldReaderConversion, EmptyFieldIsZero)
{
    EXPECT_EQ(FieldReader::toLong(QString()), 0);
    EXPECT_EQ(FieldReader::toLong(QStringLiteral("   ")), 0);
    EXPECT_EQ(FieldReader::toCheckValue(QString()), 0);
}

TEST(FieldReaderConversion, WordsAreTypeMismatch)
{
    for (const char* s : {"abc", ".asp", "#FF0000", "12abc", "&", "1 2", "nan", "inf"}) {
        SCOPED_TRACE(s);
        try {
            FieldReader::toLong(QString::fromLatin1(s));
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, 13);
            EXPECT_EQ(e.description, QStringLiteral("Type mismatch"));
        }
    }
}

TEST(FieldReaderConversion, OutOfRangeIsOverflow)
{
    for (const char* s : {"2147483648", "-2147483649", "99999999999999999999", "1e12"}) {
        SCOPED_TRACE(s);
        try {
            FieldReader::toLong(QString::fromLatin1(s));
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, 6);
            EXPECT_EQ(e.description, QStringLiteral("Overflow"));
        }
    }
    EXPECT_EQ(errorNumberOf([] { FieldReader::toInteger(QStringLiteral("32768")); }), 6);
    EXPECT_EQ(errorNumberOf([] { FieldReader::toInteger(QStringLiteral("-32769")); }), 6);
    EXPECT_EQ(FieldReader::toInteger(QStringLiteral("32767")), 32767);
    EXPECT_EQ(FieldReader::toInteger(QStringLiteral("-32768")), -32768);
}

TEST(FieldReaderConversion, CheckValueIsZeroToTwo)
{
    EXPECT_EQ(FieldReader::toCheckValue(QStringLiteral("0")), 0);
    EXPECT_EQ(FieldReader::toCheckValue(QStringLiteral("1")), 1);
    EXPECT_EQ(FieldReader::toCheckValue(QStringLiteral(" 1 ")), 1);
    EXPECT_EQ(FieldReader::toCheckValue(QStringLiteral("2")), 2);
    for (const char* s : {"3", "-1", "255"}) {
        SCOPED_TRACE(s);
        try {
            FieldReader::toCheckValue(QString::fromLatin1(s));
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, 380);
            EXPECT_EQ(e.description, QStringLiteral("Invalid property value"));
        }
    }
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
