#include "stylesheets/DesignerText.h"

#include "platform/TextFiles.h"

namespace {
const QString crlf = QStringLiteral("\r\n");

bool isBinary(const QByteArray& bytes)
{
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 && b != '\t' && b != '\r' && b != '\n')
            return true;
    }
    return false;
}
}

namespace DesignerText {

PropertyList readPropertyList(const QByteArray& bytes)
{
    PropertyList list;
    if (isBinary(bytes)) {
        list.fault = QStringLiteral("it is not a text file");
        return list;
    }
    QString text = TextFiles::decode(bytes);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    QStringList lines = text.split(QLatin1Char('\n'));
    // The line end behind the last line starts no line of its own.
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    list.rows.reserve(lines.size());
    for (QString line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        const QStringList f = line.split(QLatin1Char('|'));
        const auto field = [&f](int i) { return i < f.size() ? f[i] : QString(); };
        list.rows.append({field(0), field(1), field(2), field(3)});
    }
    return list;
}

QString propertyListPath(const QString& appPath) { return appPath + QStringLiteral("/Options/CSS/IE6.DAT"); }
QString declarationPagePath(const QString& appPath) { return appPath + QStringLiteral("/Options/CSS/Sample.htm"); }
QString sheetPagePath(const QString& appPath) { return appPath + QStringLiteral("/Options/CSS/CSSPreview.htm"); }

QString cellName(const QString& name) { return QStringLiteral("    ") + name; }

QString declaration(const QString& column0, const QString& value)
{
    return column0 + QStringLiteral(": ") + value + QStringLiteral(";");
}

QString numberValue(const QString& text) { return text.isEmpty() ? QString() : text + QStringLiteral("px"); }

QString leadingNumber(const QString& value)
{
    const QString v = value.trimmed();
    qsizetype i = 0;
    if (i < v.size() && (v[i] == QLatin1Char('-') || v[i] == QLatin1Char('+')))
        ++i;
    const qsizetype digitsFrom = i;
    bool point = false;
    while (i < v.size() && (v[i].isDigit() || (v[i] == QLatin1Char('.') && !point))) {
        point = point || v[i] == QLatin1Char('.');
        ++i;
    }
    if (i == digitsFrom || (i == digitsFrom + 1 && point))
        return {};
    return v.left(i);
}

QStringList choices(const QString& extra) { return extra.split(QLatin1Char(',')); }

QString declarationPage(const QString& declaration)
{
    return QStringLiteral("<html><head><title>Velloro 2002 CSS Preview</title><style type=text/css>.tspreview{") +
           crlf + declaration + crlf +
           QStringLiteral("}</style></head><body><p align=center><div class=tspreview>Sample Text</div></p>"
                          "</body></html>");
}

Selectors selectors(const QString& sheet)
{
    Selectors s;
    QString names;
    bool outside = true;
    for (const QChar c : sheet) {
        if (c == QLatin1Char('{'))
            outside = false;
        if (outside)
            names += c;
        if (c == QLatin1Char('}')) {
            outside = true;
            names += QLatin1Char(',');
            ++s.count;
        }
    }
    // A sheet typed or opened here may end its lines with LF alone: those go as well.
    names.remove(crlf);
    names.remove(QLatin1Char('\n'));
    names.remove(QLatin1Char('\r'));
    s.names = names.split(QLatin1Char(','));
    return s;
}

namespace {
// The name, with a blank in front, with blanks on both sides, with a blank behind.
bool isSpelling(const QString& name, const QString& word)
{
    const QString blank = QStringLiteral(" ");
    return name == word || name == blank + word || name == blank + word + blank || name == word + blank;
}
}

QString sheetPage(const QString& sheet, const QString& homePage)
{
    QString page = QStringLiteral("<html><head><title>Preview</title>") + crlf + QStringLiteral("<style type=text/css>") +
                   crlf + sheet + crlf + QStringLiteral("</style>") + crlf + QStringLiteral("</head>") + crlf +
                   QStringLiteral("<body>") + crlf;
    const Selectors s = selectors(sheet);
    bool link = false;
    bool heading[6] = {};
    for (int i = 0; i < s.count && i < s.names.size(); ++i) {
        const QString& name = s.names[i];
        bool known = false;
        for (const char* state : {"a:visited", "a:link", "a:active", "a:hover"})
            if (isSpelling(name, QLatin1String(state)))
                known = link = true;
        for (int h = 0; h < 6; ++h)
            if (isSpelling(name, QStringLiteral("h%1").arg(h + 1)))
                known = heading[h] = true;
        if (known)
            continue;
        QString cls = name;
        cls.remove(QLatin1Char('.'));
        page += crlf + QStringLiteral("<p><div class=") + cls + QStringLiteral(">Class ") + cls +
                QStringLiteral("</div></p>") + crlf;
    }
    if (link)
        page += QStringLiteral("<a href=") + homePage + QStringLiteral(" target=_blank>Element a</a><br>") + crlf;
    for (int h = 0; h < 6; ++h)
        if (heading[h])
            page += QStringLiteral("<H%1>Element H%1</H%1><br>").arg(h + 1) + crlf;
    page += QStringLiteral("<p align=center><font size=2><a href=") + homePage +
            QStringLiteral(" target=_blank>Created By Velloro 2002</a></font></p>") + crlf +
            QStringLiteral("</body></html>");
    return page;
}

QString homePage() { return QStringLiteral("https://velloro.example/"); }

QString newSheet() { return QStringLiteral(".line{           }"); }

}
