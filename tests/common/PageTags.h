#pragma once
// A small reader of the markup of the pages the program ships: the tags in order and a check
// that every element is closed in order, for the tests that read those pages.
#include <QList>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

struct Tag {
    QString name;                    // lower case; "/p" for a closing tag
    QMap<QString, QString> attrs;    // lower-case names, values without their quotes
    bool selfClosing = false;        // written "<name ... />", as the drawings in the pages are
    QString body;                    // of a script or a style element: its text
};

// The tags of a page in order, comments skipped and the bodies of script and style kept as
// text. Text such as "&lt;frame src=x&gt;" is text, not a tag. Fails with a message on a
// malformed page.
inline QList<Tag> tagsOf(const QString& page, QString* fault)
{
    static const QRegularExpression tagName(QStringLiteral("^<(/?)([a-zA-Z][a-zA-Z0-9-]*)"));
    static const QRegularExpression attr(QStringLiteral(R"re(([a-zA-Z][a-zA-Z0-9_:-]*)(?:\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'>]+)))?)re"));
    QList<Tag> tags;
    qsizetype i = 0;
    while ((i = page.indexOf(QLatin1Char('<'), i)) >= 0) {
        if (page.mid(i, 4) == QLatin1String("<!--")) {
            const qsizetype end = page.indexOf(QStringLiteral("-->"), i + 4);
            if (end < 0) {
                *fault = QStringLiteral("unclosed comment");
                return {};
            }
            i = end + 3;
            continue;
        }
        if (page.mid(i, 9).compare(QLatin1String("<!doctype"), Qt::CaseInsensitive) == 0) {
            i = page.indexOf(QLatin1Char('>'), i) + 1;
            continue;
        }
        const auto m = tagName.match(page.mid(i, 40));
        const qsizetype close = page.indexOf(QLatin1Char('>'), i);
        if (!m.hasMatch() || close < 0) {
            *fault = QStringLiteral("a bare '<' at %1").arg(i);
            return {};
        }
        Tag tag;
        tag.name = m.captured(1) + m.captured(2).toLower();
        const QString inside = page.mid(i + m.capturedLength(), close - i - m.capturedLength());
        for (auto a = attr.globalMatch(inside); a.hasNext();) {
            const auto am = a.next();
            const QString value = !am.captured(2).isNull() ? am.captured(2)
                                  : !am.captured(3).isNull() ? am.captured(3) : am.captured(4);
            tag.attrs.insert(am.captured(1).toLower(), value);
        }
        tag.selfClosing = inside.trimmed().endsWith(QLatin1Char('/'));
        tags << tag;
        i = close + 1;
        if (tag.name == QLatin1String("script") || tag.name == QLatin1String("style")) {
            const qsizetype end = page.indexOf(QStringLiteral("</") + tag.name, i, Qt::CaseInsensitive);
            if (end < 0) {
                *fault = QStringLiteral("unclosed <%1>").arg(tag.name);
                return {};
            }
            tags.last().body = page.mid(i, end - i);
            i = end;
        }
    }
    return tags;
}

// Every element other than a void one is closed, in order. Returns the first fault, or "".
inline QString checkNesting(const QList<Tag>& tags)
{
    static const QSet<QString> voids = {"area", "base", "br", "col", "embed", "frame", "hr", "img", "input",
                                        "link", "meta", "source", "track", "wbr"};
    QStringList open;
    for (const Tag& t : tags) {
        if (t.name.startsWith(QLatin1Char('/'))) {
            const QString name = t.name.mid(1);
            if (open.isEmpty() || open.last() != name)
                return QStringLiteral("</%1> closes <%2>").arg(name, open.isEmpty() ? QString() : open.last());
            open.removeLast();
        } else if (!voids.contains(t.name) && !t.selfClosing) {
            open << t.name;
        }
    }
    if (!open.isEmpty())
        return QStringLiteral("unclosed <%1>").arg(open.last());
    return {};
}
