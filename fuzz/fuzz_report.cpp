// Arbitrary text through the report: the direct walk must agree with the token string and its
// engine, the token string must hold exactly its separators, and every text gives 16 rows.
#include "report/ReportEngine.h"

#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_report: %s\n", what);
    std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // Raw UTF-16 reaches characters (lone surrogates, NULs) that UTF-8 decoding would replace.
    const QString text = (size % 2 == 0 && size > 0 && data[0] & 1)
        ? QString(reinterpret_cast<const QChar*>(data), qsizetype(size / 2))
        : QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));

    const Report::TokenString tokens = Report::buildTokenString(text);
    if (tokens.text.count(QLatin1Char(',')) != tokens.separators)
        fail("separator count differs from the commas of the token string");
    qsizetype last = -1;
    const Report::Counts direct = Report::countPage(text, [&](qsizetype value, qsizetype maximum) {
        if (maximum != tokens.separators + 1 || value < last || value > maximum)
            fail("progress out of order or beyond its maximum");
        last = value;
    });
    if (last != tokens.separators + 1)
        fail("progress did not end at its maximum");
    if (!(direct == Report::countTokens(tokens.text, tokens.separators)))
        fail("direct walk and token string disagree");
    if (Report::rows(direct).size() != 16)
        fail("not 16 rows");
    return 0;
}
