#include "platform/TextFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {
// Windows-1252 differs from Latin-1 only in 0x80..0x9F.
constexpr char16_t cp1252High[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

QChar cp1252(unsigned char b) { return (b >= 0x80 && b < 0xA0) ? QChar(cp1252High[b - 0x80]) : QChar(b); }

// The length of the well-formed UTF-8 sequence at p (1 to 4), or 0 when the bytes there are
// not one (overlong forms, surrogates and values past U+10FFFF included).
int utf8Sequence(const unsigned char* p, qsizetype left)
{
    const unsigned char b = p[0];
    auto cont = [&](int i) { return i < left && (p[i] & 0xC0) == 0x80; };
    if (b < 0x80)
        return 1;
    if (b >= 0xC2 && b <= 0xDF)
        return cont(1) ? 2 : 0;
    if (b >= 0xE0 && b <= 0xEF) {
        if (!cont(1) || !cont(2))
            return 0;
        if (b == 0xE0 && p[1] < 0xA0)
            return 0;
        if (b == 0xED && p[1] >= 0xA0)
            return 0;
        return 3;
    }
    if (b >= 0xF0 && b <= 0xF4) {
        if (!cont(1) || !cont(2) || !cont(3))
            return 0;
        if (b == 0xF0 && p[1] < 0x90)
            return 0;
        if (b == 0xF4 && p[1] >= 0x90)
            return 0;
        return 4;
    }
    return 0;
}

void appendUtf8(QByteArray& out, char16_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Each well-formed sequence as it is, each byte that is not one as Windows-1252.
QByteArray repaired(const QByteArray& bytes)
{
    QByteArray out;
    out.reserve(bytes.size() + bytes.size() / 8);
    const auto* p = reinterpret_cast<const unsigned char*>(bytes.constData());
    const qsizetype n = bytes.size();
    for (qsizetype i = 0; i < n;) {
        const int len = utf8Sequence(p + i, n - i);
        if (len == 0) {
            appendUtf8(out, cp1252(p[i]).unicode());
            ++i;
        } else {
            out.append(bytes.constData() + i, len);
            i += len;
        }
    }
    return out;
}

// Where a last sequence starts that the bytes end before it is complete (the size when none).
qsizetype incompleteTail(const QByteArray& bytes)
{
    const qsizetype n = bytes.size();
    for (qsizetype back = 1; back <= 3 && back <= n; ++back) {
        const auto b = static_cast<unsigned char>(bytes[n - back]);
        if ((b & 0xC0) == 0x80)
            continue;
        const int need = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : b >= 0xC0 ? 2 : 1;
        return need > back ? n - back : n;
    }
    return n;
}
}

namespace TextFiles {

QByteArray toEditorText(QByteArray bytes, QByteArray* held)
{
    if (held) {
        const qsizetype cut = incompleteTail(bytes);
        *held = bytes.mid(cut);
        bytes.truncate(cut);
    }
    if (QByteArrayView(bytes).isValidUtf8())
        return bytes;
    return repaired(bytes);
}

QString decode(const QByteArray& bytes) { return QString::fromUtf8(toEditorText(bytes)); }

QByteArray encode(const QString& text) { return text.toUtf8(); }

bool exists(const QString& path) { return QFileInfo(path).isFile(); }

bool createIfMissing(const QString& path)
{
    if (exists(path))
        return true;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return exists(path);
    f.close();
    return true;
}

QByteArray readBytes(const QString& path, bool* ok)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        if (ok)
            *ok = false;
        return {};
    }
    if (ok)
        *ok = true;
    return f.readAll();
}

QString readText(const QString& path, bool* ok) { return decode(readBytes(path, ok)); }

namespace {
bool save(const QString& path, const QByteArray& bytes, QString* error, bool ownerOnly)
{
    QSaveFile f(path);
    const auto fail = [&] {
        if (error)
            *error = f.errorString();
        f.cancelWriting();
        return false;
    };
    if (!f.open(QIODevice::WriteOnly))
        return fail();
    if (ownerOnly && !f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return fail();
    // A short write of what was buffered shows only in the flush: commit itself would not see
    // it and would put a cut file in place of the old one.
    if (f.write(bytes) != bytes.size() || !f.flush())
        return fail();
    if (!f.commit()) {
        if (error)
            *error = f.errorString();
        return false;
    }
    return true;
}
}

bool writeBytes(const QString& path, const QByteArray& bytes, QString* error) { return save(path, bytes, error, false); }

bool writePrivate(const QString& path, const QByteArray& bytes, QString* error) { return save(path, bytes, error, true); }

bool writeScratch(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    // What stays in the buffer fails only when it is flushed.
    return f.write(bytes) == bytes.size() && f.flush();
}

bool writeText(const QString& path, const QString& text, QString* error)
{
    return writeBytes(path, encode(text), error);
}

} // namespace TextFiles
