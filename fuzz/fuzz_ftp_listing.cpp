// Arbitrary listing bytes on the data channel, cut into arrivals at points the input chooses:
// the text shown must be the same however the bytes were cut, and valid UTF-16 throughout.
#include "ftp/FtpReply.h"

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_ftp_listing: %s\n", what);
    std::abort();
}

QString listed(const QByteArray& bytes, qsizetype step)
{
    FtpReply::Listing listing;
    QString text;
    for (qsizetype i = 0; i < bytes.size(); i += step)
        text += listing.append(bytes.mid(i, step));
    return text + listing.finish();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    // The first byte picks the size of the arrivals; the rest is what the server sent.
    const qsizetype step = 1 + data[0] % 7;
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));
    const QString whole = listed(bytes, qMax<qsizetype>(1, bytes.size()));
    const QString cut = listed(bytes, step);
    if (cut != whole)
        fail("the listing depends on how the bytes arrived");
    if (!whole.isValidUtf16())
        fail("the listing is not valid text");
    if (whole.size() > bytes.size())
        fail("the listing has more characters than bytes");
    FtpReply::Listing reused;
    reused.append(bytes.left(1));
    reused.clear();
    if (reused.append(bytes) + reused.finish() != whole)
        fail("a cleared listing remembers its last arrival");
    return 0;
}
