#include "services/FieldReader.h"

#include "platform/RuntimeError.h"

#include <cmath>

namespace {
bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }
bool isLineEnd(QChar c) { return c == QLatin1Char('\r') || c == QLatin1Char('\n'); }
}

FieldReader::FieldReader(QString t) : text(std::move(t)) {}

bool FieldReader::atEnd() const { return pos >= text.size(); }

void FieldReader::skipLineEnd()
{
    if (pos < text.size() && text[pos] == QLatin1Char('\r'))
        ++pos;
    if (pos < text.size() && text[pos] == QLatin1Char('\n'))
        ++pos;
}

QString FieldReader::next()
{
    if (atEnd())
        throw RuntimeError::pastEndOfFile(QStringLiteral("Input #"));
    const qsizetype n = text.size();
    while (pos < n && isBlank(text[pos]))
        ++pos;
    ++count;
    if (pos < n && text[pos] == QLatin1Char('"')) {
        const qsizetype start = pos + 1;
        qsizetype close = text.indexOf(QLatin1Char('"'), start);
        if (close < 0)
            close = n;
        QString value = text.mid(start, close - start);
        // Drop the rest of the line.
        pos = close < n ? close + 1 : n;
        while (pos < n && !isLineEnd(text[pos]))
            ++pos;
        skipLineEnd();
        return value;
    }
    const qsizetype start = pos;
    while (pos < n && text[pos] != QLatin1Char(',') && !isLineEnd(text[pos]))
        ++pos;
    QString value = text.mid(start, pos - start);
    while (!value.isEmpty() && isBlank(value.back()))
        value.chop(1);
    if (pos < n && text[pos] == QLatin1Char(','))
        ++pos;
    else
        skipLineEnd();
    return value;
}

qint32 FieldReader::toLong(const QString& field)
{
    QString s = field.trimmed();
    if (s.isEmpty())
        return 0;
    static const QString suffixes = QStringLiteral("&%!#@");
    if (suffixes.contains(s.back()))
        s.chop(1);
    bool ok = false;
    const qlonglong whole = s.toLongLong(&ok);
    double value = static_cast<double>(whole);
    if (!ok) {
        value = s.toDouble(&ok);
        if (!ok || !std::isfinite(value))
            throw RuntimeError::typeMismatch(QStringLiteral("Input #"));
        value = std::nearbyint(value);  // rounds half to even, as the platform does
    }
    if (value < -2147483648.0 || value > 2147483647.0)
        throw RuntimeError::overflow(QStringLiteral("Input #"));
    return static_cast<qint32>(value);
}

qint16 FieldReader::toInteger(const QString& field)
{
    const qint32 v = toLong(field);
    if (v < -32768 || v > 32767)
        throw RuntimeError::overflow(QStringLiteral("Input #"));
    return static_cast<qint16>(v);
}

int FieldReader::toCheckValue(const QString& field)
{
    const int v = toInteger(field);
    if (v < 0 || v > 2)
        throw RuntimeError::invalidProperty(QStringLiteral("CheckBox.Value"));
    return v;
}
