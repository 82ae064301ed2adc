// Arbitrary bytes through the settings field reader and its conversions. Anything but a
// RuntimeError with one of the expected numbers, or a field that breaks the reader's rules,
// is a finding.
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/FieldReader.h"

#include <QByteArray>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* what, const QString& field)
{
    std::fprintf(stderr, "fuzz_field_reader: %s: [%s]\n", what, field.toUtf8().constData());
    std::abort();
}

void expectNumber(const RuntimeError& e, std::initializer_list<int> allowed, const QString& field)
{
    for (int n : allowed)
        if (e.number == n)
            return;
    fail(qPrintable(QStringLiteral("unexpected run-time error %1").arg(e.number)), field);
}

void checkConversions(const QString& field)
{
    bool longOk = false;
    qint32 asLong = 0;
    try {
        asLong = FieldReader::toLong(field);
        longOk = true;
    } catch (const RuntimeError& e) {
        expectNumber(e, {6, 13}, field);
    }
    try {
        const qint16 asInteger = FieldReader::toInteger(field);
        if (!longOk || asInteger != asLong)
            fail("toInteger disagrees with toLong", field);
    } catch (const RuntimeError& e) {
        expectNumber(e, {6, 13}, field);
        if (longOk && asLong >= -32768 && asLong <= 32767)
            fail("toInteger fails on a value in range", field);
    }
    try {
        const int check = FieldReader::toCheckValue(field);
        if (check < 0 || check > 2 || !longOk || check != asLong)
            fail("check value out of 0..2 or unlike the long", field);
    } catch (const RuntimeError& e) {
        expectNumber(e, {6, 13, 380}, field);
        if (longOk && asLong >= 0 && asLong <= 2)
            fail("toCheckValue fails on 0..2", field);
    }
}

// A field holding a quote was unquoted, so it cannot hold what only a quoted field can.
void checkShape(const QString& field)
{
    if (field.startsWith(QLatin1Char('"')))
        fail("field starts with a quote", field);
    if (field.contains(QLatin1Char('"'))
        && (field.contains(QLatin1Char(',')) || field.contains(QLatin1Char('\r')) || field.contains(QLatin1Char('\n'))))
        fail("field holds a quote and a delimiter", field);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextFiles::decode(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    FieldReader in(text);
    qsizetype fields = 0;
    try {
        for (;;) {
            const QString field = in.next();
            ++fields;
            // Every field consumes at least one character, so the reader always reaches the end.
            if (fields > text.size())
                fail("more fields than characters", field);
            if (field.size() > text.size())
                fail("field longer than the text", field);
            checkShape(field);
            checkConversions(field);
        }
    } catch (const RuntimeError& e) {
        if (e.number != 62)
            fail(qPrintable(QStringLiteral("reader raised %1").arg(e.number)), QString());
        if (!in.atEnd())
            fail("input past end before the end", QString());
    }
    if (in.fieldsRead() != fields)
        fail("fieldsRead disagrees with the fields returned", QString());
    return 0;
}
