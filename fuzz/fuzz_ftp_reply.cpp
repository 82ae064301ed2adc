// Arbitrary control-channel bytes through the reply buffer, cut into arrivals at points the
// input chooses, and every complete line through the reply code and the passive parse. The
// lines must be the same however the bytes were cut, and a port is always in range.
#include "ftp/FtpReply.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_ftp_reply: %s\n", what);
    std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    // The first byte picks the size of the arrivals; the rest is what the server sent.
    const qsizetype step = 1 + data[0] % 17;
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));

    FtpReply::Buffer whole;
    const QList<QString> expected = whole.append(bytes);
    FtpReply::Buffer pieces;
    QList<QString> got;
    for (qsizetype i = 0; i < bytes.size(); i += step)
        got += pieces.append(bytes.mid(i, step));
    if (got != expected)
        fail("lines depend on how the bytes arrived");
    if (pieces.pending() != whole.pending())
        fail("the remainder depends on how the bytes arrived");
    if (pieces.pending().contains("\r\n"))
        fail("a complete line was left in the buffer");

    for (const QString& line : got) {
        const qint16 code = FtpReply::replyCode(line);
        if (code < -99 || code > 999)
            fail("a reply code outside three characters");
        const FtpReply::Passive p = FtpReply::parsePassive(line);
        if (p.ok == (p.errorNumber != 0))
            fail("a passive parse both succeeded and failed");
        if (!p.ok && p.errorNumber != 9 && p.errorNumber != 380)
            fail("an unexpected error number");
        (void)FtpReply::lookUp(FtpReply::verbOf(line));
    }
    return 0;
}
