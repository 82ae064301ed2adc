#include "documents/SourcePlace.h"

#include <algorithm>

namespace SourcePlace {
namespace {
bool endsName(QStringView source, qsizetype at)
{
    if (at >= source.size())
        return true;
    const QChar c = source.at(at);
    return c.isSpace() || c == QLatin1Char('/') || c == QLatin1Char('>');
}

// How far the text node's start is looked for after its element's tag: a node further away
// is some other node with the same words.
constexpr qsizetype textReach = 64 * 1024;
// Enough of the node's start to tell it apart.
constexpr qsizetype keyLength = 40;
}

qsizetype tagStart(QStringView source, QStringView tag, int index)
{
    if (tag.isEmpty() || index < 0)
        return -1;
    int seen = 0;
    for (qsizetype at = source.indexOf(QLatin1Char('<')); at >= 0; at = source.indexOf(QLatin1Char('<'), at + 1)) {
        if (source.mid(at, 4) == QLatin1String("<!--")) {
            const qsizetype end = source.indexOf(QLatin1String("-->"), at + 4);
            if (end < 0)
                return -1;
            at = end + 2;
            continue;
        }
        if (source.mid(at + 1, tag.size()).compare(tag, Qt::CaseInsensitive) == 0 && endsName(source, at + 1 + tag.size())) {
            if (seen == index)
                return at;
            ++seen;
        }
    }
    return -1;
}

qsizetype offsetOf(QStringView source, QStringView tag, int index, QStringView text, int offset)
{
    const qsizetype start = tagStart(source, tag, index);
    if (start < 0)
        return -1;
    // The text before its first entity, if any, is written in the source as the page shows it.
    const qsizetype entity = text.indexOf(QLatin1Char('&'));
    const QStringView key = text.left(entity >= 0 ? std::min(entity, keyLength) : keyLength);
    if (key.trimmed().isEmpty())
        return start;
    const qsizetype found = source.mid(start, textReach).indexOf(key);
    if (found < 0)
        return start;
    return start + found + std::clamp<qsizetype>(offset, 0, text.size());
}
}
