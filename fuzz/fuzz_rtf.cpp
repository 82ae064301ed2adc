// Arbitrary bytes through the notepad's rich text reader: never a crash or a hang; a file that
// was read writes out again as a rich text file that reads back to the same text.
#include "platform/Rtf.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QTextDocument>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_rtf: %s\n", what);
    std::abort();
}

// Text documents need the font machinery of a GUI application, not a screen.
void application()
{
    static int argc = 1;
    static char name[] = "fuzz_rtf";
    static char* argv[] = {name, nullptr};
    static QGuiApplication* app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QGuiApplication(argc, argv);
    }();
    (void)app;
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    application();
    // Most inputs should be rich text, so the reader's inside is reached: a prefix is given.
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    if (!bytes.isEmpty() && (bytes[0] & 1))
        bytes.prepend("{\\rtf1\\ansi ");
    QTextDocument doc;
    doc.setPlainText(QStringLiteral("before"));
    const bool ok = Rtf::read(bytes, &doc);
    if (ok != Rtf::looksLikeRtf(bytes))
        fail("read and looksLikeRtf disagree");
    if (!ok) {
        if (doc.toPlainText() != QStringLiteral("before"))
            fail("a refused file changed the document");
        return 0;
    }
    const QByteArray written = Rtf::write(doc);
    for (const char c : written)
        if (static_cast<unsigned char>(c) > 0x7f)
            fail("the written file is not 7-bit ASCII");
    QTextDocument again;
    if (!Rtf::read(written, &again))
        fail("the written file is not read back");
    if (again.toPlainText() != doc.toPlainText())
        fail("the text changed on the way out and back");
    return 0;
}
