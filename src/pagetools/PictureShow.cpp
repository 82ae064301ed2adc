#include "pagetools/PictureShow.h"

#include "wizards/DropDownScript.h"
#include "wizards/Html.h"

namespace PictureShow {
namespace {
using Html::crlf;

// The index, then one block per picture and the page's end; `intro` opens the body.
QString body(const QStringList& items, Layout layout)
{
    const QString count = QString::number(items.size());
    QString out;
    out.reserve(items.size() * 200 + 400);
    if (layout == Layout::Bullets) {
        out += QStringLiteral("<a name=TOP><p>There are ") + count + QStringLiteral(" pictures in this page.</p>") + crlf;
        out += QStringLiteral("<ul>") + crlf;
        for (const QString& item : items)
            out += QStringLiteral("<li><a href=#") + address(item) + QLatin1Char('>') + shown(item) + QStringLiteral("</a></li>") + crlf;
        out += QStringLiteral("</ul>") + crlf;
    } else {
        out += QStringLiteral("<p>There are ") + count + QStringLiteral(" pictures in this page.</p>") + crlf;
        out += QStringLiteral("<a name=TOP><p align=Center><input type=Button value=Go name=B3 onclick=DropDownMenu(D1) >"
                              "<select size=1 name=D1>") + crlf;
        for (const QString& item : items)
            out += QStringLiteral("<option value=#") + address(item) + QLatin1Char('>') + shown(item) + QStringLiteral("</option>") + crlf;
        out += QStringLiteral("</select></p>") + crlf;
    }
    for (const QString& item : items) {
        const QString a = address(item);
        out += QStringLiteral("<a name=") + a + QStringLiteral("><br><p align=Center>") + shown(item) +
               QStringLiteral(" <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=") + a + QStringLiteral("></p>") + crlf;
    }
    out += QStringLiteral("<br><p align=Center>Made by Velloro 2002 Pro</p>") + crlf;
    out += QStringLiteral("</body>") + crlf + QStringLiteral("</html>") + crlf;
    return out;
}

bool keptInAddress(char16_t c)
{
    if (c <= 0x20 || c >= 0x7F)
        return false;
    switch (c) {
    case u'"': case u'\'': case u'<': case u'>': case u'=': case u'`': case u'#': case u'%': case u'&':
        return false;
    default:
        return true;
    }
}
}

QString bulletHead()
{
    return QStringLiteral("<html>") + crlf + crlf + QStringLiteral("<head>") + crlf +
           QStringLiteral("<meta name=\"GENERATOR\" content=\"Velloro 2002\">") + crlf +
           QStringLiteral("<meta name=\"AUTHOR\" content=\"Ansel Corby\">") + crlf +
           QStringLiteral("<title> Pictures </title>") + crlf + QStringLiteral("</head> ") + crlf + crlf +
           QStringLiteral("<body text=\"#000000\" bgColor=\"ffffff\">") + crlf;
}

QString dropDownHead() { return bulletHead() + QLatin1Char(' ') + DropDownScript::text() + crlf; }

QString page(const QStringList& items, Layout layout)
{
    return (layout == Layout::Bullets ? bulletHead() : dropDownHead()) + body(items, layout);
}

QString address(const QString& item)
{
    QString out;
    out.reserve(item.size());
    for (qsizetype i = 0; i < item.size();) {
        const char16_t c = item[i].unicode();
        if (keptInAddress(c)) {
            out += QChar(c);
            ++i;
            continue;
        }
        // A whole code point at a time, so a letter beyond the basic plane keeps its pair.
        const qsizetype n = item[i].isHighSurrogate() && i + 1 < item.size() && item[i + 1].isLowSurrogate() ? 2 : 1;
        for (const char byte : item.mid(i, n).toUtf8())
            out += QLatin1Char('%') + QString::number(static_cast<unsigned char>(byte), 16).toUpper().rightJustified(2, QLatin1Char('0'));
        i += n;
    }
    return out;
}

QString shown(const QString& item)
{
    QString out = item;
    out.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
    out.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
    out.replace(QLatin1Char('>'), QStringLiteral("&gt;"));
    return out;
}
}
