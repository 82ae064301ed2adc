// Arbitrary bytes as the style sheet designer's property list, and arbitrary text as the sheet it
// previews: one row per line and four fields each, or a fault and no rows; one rule per closing
// brace, and a preview page that always has its head and its footer.
#include "stylesheets/DesignerText.h"

#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_css_designer: %s\n", what);
    std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const DesignerText::PropertyList list = DesignerText::readPropertyList(bytes);
    if (!list.fault.isEmpty() && !list.rows.isEmpty())
        fail("a faulty list has rows");
    if (list.fault.isEmpty()) {
        const qsizetype lines = bytes.count('\n') + (bytes.isEmpty() || bytes.endsWith('\n') ? 0 : 1);
        if (list.rows.size() != lines)
            fail("not one row per line");
        for (const DesignerText::PropertyRow& r : list.rows)
            for (const QString& f : {r.name, r.value, r.type, r.extra})
                if (f.contains(QLatin1Char('|')) || f.contains(QLatin1Char('\n')))
                    fail("a field holds a separator");
    }

    // Raw UTF-16 reaches characters (lone surrogates, NULs) that UTF-8 decoding would replace.
    const QString sheet = (size % 2 == 0 && size > 0 && data[0] & 1)
        ? QString(reinterpret_cast<const QChar*>(data), qsizetype(size / 2))
        : QString::fromUtf8(bytes);
    const DesignerText::Selectors s = DesignerText::selectors(sheet);
    if (s.count < 0 || s.names.size() < s.count + 1)
        fail("fewer names than rules");
    const QString page = DesignerText::sheetPage(sheet, DesignerText::homePage());
    if (!page.startsWith(QStringLiteral("<html><head><title>Preview</title>\r\n<style type=text/css>\r\n") + sheet))
        fail("the page does not begin with the sheet");
    if (!page.endsWith(QStringLiteral(" target=_blank>Created By Velloro 2002</a></font></p>\r\n</body></html>")))
        fail("the page has no footer");
    return 0;
}
