// Arbitrary bytes as a comma-separated and as a tab-delimited file, through the file table's
// builder. The builder walks the text once by hand; here the same table is made the slow,
// obvious way (whole-string replaces and splits) and the two must agree to the character.
#include "platform/TextFiles.h"
#include "wizards/CsvTableText.h"

#include <QByteArray>
#include <QStringList>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* what, QChar separator)
{
    std::fprintf(stderr, "fuzz_csv_table: %s (separator %d)\n", what, separator.unicode());
    std::abort();
}

QString expectedTable(const QString& text, QChar separator)
{
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (lines.endsWith(QLatin1Char('\n')))
        lines.chop(1);
    const QStringList all = text.isEmpty() ? QStringList() : lines.split(QLatin1Char('\n'));
    const qsizetype maxCells = (all.isEmpty() ? 0 : all.first().count(separator)) + 2;

    QString out = QStringLiteral("<table border=1 cellspacing=0 bordercolor=\"#000000\" width=100% id=AutoNumber1 "
                                 "align=Center bgcolor=\"#FFFFFF\">\r\n");
    for (const QString& line : all) {
        out += QStringLiteral("\r\n<tr>\r\n");
        const QStringList fields = line.isEmpty() ? QStringList() : line.split(separator);
        for (qsizetype j = 0; j < fields.size() && j < maxCells; ++j)
            out += QStringLiteral("<td>") + fields[j] + QStringLiteral("</td>\r\n");
        out += QStringLiteral("</tr>\r\n");
    }
    return out + QStringLiteral("</table>\r\n");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The file as the editor reads it, in UTF-8, as the wizard hands it to the builder.
    const QByteArray bytes = TextFiles::toEditorText(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const QString text = QString::fromUtf8(bytes);
    for (QChar separator : {QChar(QLatin1Char(CsvTableText::comma)), QChar(QLatin1Char(CsvTableText::tab))}) {
        const QByteArray table = CsvTableText::fragment({}, bytes, separator.toLatin1());
        if (table != expectedTable(text, separator).toUtf8())
            fail("the table differs from the one made by plain splits", separator);
        if (table.capacity() > table.size() + 64)
            fail("the table was not measured before it was built", separator);
    }
    return 0;
}
