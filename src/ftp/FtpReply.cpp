#include "ftp/FtpReply.h"

#include "platform/TextFiles.h"

#include <cmath>

namespace FtpReply {

QList<QString> Buffer::append(const QByteArray& bytes)
{
    QList<QString> lines;
    buffer.append(bytes);
    qsizetype start = 0;
    qsizetype from = scanned;
    for (;;) {
        const qsizetype end = buffer.indexOf("\r\n", from);
        if (end < 0)
            break;
        lines.append(TextFiles::decode(buffer.mid(start, end - start)));
        start = end + 2;
        from = start;
    }
    if (start > 0)
        buffer.remove(0, start);
    // A CR at the very end may be the first half of a CR LF still to come.
    scanned = buffer.isEmpty() ? 0 : buffer.size() - 1;
    return lines;
}

void Buffer::clear()
{
    buffer.clear();
    scanned = 0;
}

namespace {
bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

// The numeric value of text by the rule of leading digits: blanks first, an optional sign, then
// as many digits as follow. Returns 0 when there are none.
double leadingValue(QStringView s)
{
    qsizetype i = 0;
    while (i < s.size() && isBlank(s[i]))
        ++i;
    bool negative = false;
    if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+'))) {
        negative = s[i] == QLatin1Char('-');
        ++i;
    }
    double value = 0;
    bool any = false;
    while (i < s.size() && s[i] >= QLatin1Char('0') && s[i] <= QLatin1Char('9')) {
        value = value * 10 + (s[i].unicode() - '0');
        any = true;
        ++i;
        if (value > 1e15)  // beyond any port; the range check refuses it
            break;
    }
    if (!any)
        return 0;
    return negative ? -value : value;
}
}

qint16 replyCode(const QString& line)
{
    return static_cast<qint16>(leadingValue(QStringView(line).left(3)));
}

QString verbOf(const QString& command)
{
    const qsizetype blank = command.indexOf(QLatin1Char(' '));
    return blank >= 0 ? command.left(blank) : command.left(4);
}

VerbEntry lookUp(const QString& verb)
{
    struct Row {
        const char* verb;
        qint16 awaited;
        qint16 second;
        const char* tag;
        qint16 alike = 0;
    };
    static const Row table[] = {
        {"PASV", 227, 0, ""}, {"LIST", 226, 0, "LIST"}, {"RETR", 226, 0, "RETR"}, {"CWD", 250, 530, ""},
        {"USER", 331, 0, ""}, {"REST", 350, 0, ""},     {"SYST", 215, 0, ""},     {"PWD", 257, 0, ""},
        {"TYPE", 200, 0, ""}, {"STOR", 150, 0, "", 125},     {"DELE", 250, 0, ""},
    };
    for (const Row& r : table) {
        if (verb == QLatin1String(r.verb))
            return {r.awaited, r.second, r.alike, QString::fromLatin1(r.tag)};
    }
    return {};
}

Passive parsePassive(const QString& line)
{
    Passive p;
    const qsizetype open = line.indexOf(QLatin1Char('('));
    const qsizetype close = open >= 0 ? line.indexOf(QLatin1Char(')'), open + 1) : -1;
    const QStringList fields = close >= 0 ? line.mid(open + 1, close - open - 1).split(QLatin1Char(',')) : QStringList();
    if (fields.size() < 6) {
        p.errorNumber = 9;
        p.errorDescription = QStringLiteral("Subscript out of range");
        return p;
    }
    const double port = 256 * leadingValue(fields[4]) + leadingValue(fields[5]);
    if (!(port >= 0 && port <= 65535)) {
        p.errorNumber = 380;
        p.errorDescription = QStringLiteral("Invalid property value");
        return p;
    }
    p.ok = true;
    p.port = static_cast<quint16>(port);
    return p;
}

QString Listing::append(const QByteArray& bytes)
{
    return QString::fromUtf8(TextFiles::toEditorText(held + bytes, &held));
}

QString Listing::finish()
{
    const QString rest = QString::fromUtf8(TextFiles::toEditorText(held));
    held.clear();
    return rest;
}
}
