#include "sites/SiteFiles.h"

#include "platform/TextFiles.h"

#include <QFileInfo>

namespace SiteFiles {

QString header(const Details& d)
{
    const QString lines[] = {startMarker, d.title, d.author, d.date, d.email, endMarker};
    QString text;
    for (const QString& l : lines)
        text += l + TextFiles::crlf;
    return text;
}

QString pathLine(const QString& path) { return path + TextFiles::crlf; }

Project parse(const QByteArray& bytes)
{
    const QString text = TextFiles::decode(bytes);
    Project p;
    qsizetype start = 0;
    int count = 0;
    const qsizetype n = text.size();
    while (start < n) {
        qsizetype end = start;
        while (end < n && text[end] != QLatin1Char('\r') && text[end] != QLatin1Char('\n'))
            ++end;
        const QString line = text.mid(start, end - start);
        if (count <= 5)
            p.header.append(line);
        else
            p.paths.append(line);
        ++count;
        if (end < n && text[end] == QLatin1Char('\r') && end + 1 < n && text[end + 1] == QLatin1Char('\n'))
            ++end;
        start = end + 1;
    }
    return p;
}

QString nodeText(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo info(path);
    return info.isFile() ? info.fileName() : QString();
}

QByteArray withPath(const QByteArray& bytes, const QString& path)
{
    QByteArray out = bytes;
    if (!out.isEmpty() && !out.endsWith('\n') && !out.endsWith('\r'))
        out += TextFiles::encode(TextFiles::crlf);
    return out + TextFiles::encode(pathLine(path));
}
}
