#pragma once
#include <QByteArray>
#include <QString>
#include <ostream>

// GoogleTest finds these by argument-dependent lookup, so failed comparisons of Qt strings show
// the text (with line ends made visible) instead of raw bytes.
namespace velloro_test_detail {
inline void printEscaped(const QByteArray& utf8, std::ostream* os)
{
    *os << '"';
    for (const char c : utf8) {
        switch (c) {
        case '\r': *os << "\\r"; break;
        case '\n': *os << "\\n"; break;
        case '\t': *os << "\\t"; break;
        case '"': *os << "\\\""; break;
        case '\\': *os << "\\\\"; break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                static const char hex[] = "0123456789ABCDEF";
                *os << "\\x" << hex[(c >> 4) & 0xF] << hex[c & 0xF];
            } else {
                *os << c;
            }
        }
    }
    *os << '"';
}
}

inline void PrintTo(const QString& s, std::ostream* os) { velloro_test_detail::printEscaped(s.toUtf8(), os); }
inline void PrintTo(const QByteArray& b, std::ostream* os) { velloro_test_detail::printEscaped(b, os); }
