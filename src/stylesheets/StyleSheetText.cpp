#include "stylesheets/StyleSheetText.h"

namespace {
const QString crlf = QStringLiteral("\r\n");
}

namespace StyleSheetText {

QString headLink(const QString& location)
{
    return QStringLiteral("<head>") + crlf + crlf + QStringLiteral("<link rel=\"STYLESHEET\" href=\"") + location +
           QStringLiteral("\" type=text/css>") + crlf;
}

QStringList linkTypes()
{
    return {QStringLiteral("A:link"), QStringLiteral("A:visited"), QStringLiteral("A:active"), QStringLiteral("A:hover")};
}

QStringList effects() { return {QStringLiteral("none"), QStringLiteral("underline")}; }

QString rule(const QString& type, const QString& colour, const QString& effect)
{
    return crlf + type + QStringLiteral("   {color: ") + colour + QStringLiteral("; text-decoration: ") + effect +
           QStringLiteral("}");
}

QString scrollbarBlock(const std::array<QString, 7>& colours)
{
    static const char* const names[] = {"SCROLLBAR-FACE-COLOR",  "SCROLLBAR-HIGHLIGHT-COLOR",
                                        "SCROLLBAR-SHADOW-COLOR", "SCROLLBAR-3DLIGHT-COLOR",
                                        "SCROLLBAR-ARROW-COLOR",  "SCROLLBAR-TRACK-COLOR",
                                        "SCROLLBAR-DARKSHADOW-COLOR"};
    QString block = QStringLiteral("<style><!-- BODY{");
    for (std::size_t i = 0; i < colours.size(); ++i) {
        if (i > 0)
            block += QStringLiteral("; ");
        block += QLatin1String(names[i]) + QStringLiteral(": ") + colours[i];
    }
    return block + QStringLiteral("}--></style>");
}

QString scrollTestPage(const QString& block, const QString& rest)
{
    return QStringLiteral("<html>") + crlf + QStringLiteral("<head>") + crlf +
           QStringLiteral("<meta name=GENERATOR content=Velloro 2002>") + crlf +
           QStringLiteral("<meta name=AUTHOR content=Ansel Corby>") + crlf + QStringLiteral("<title>Tester</title>") +
           crlf + block + crlf + rest;
}

QString scrollTestPath(const QString& appPath)
{
    return appPath + QStringLiteral("/Templates/General/Scroll Test.htm");
}

QString linkBehindHead(const QString& page, const QString& sheetPath, bool* found)
{
    const QString tag = QStringLiteral("</head>");
    // The rich text box's find, which the run uses, does not mind the case.
    const qsizetype at = page.indexOf(tag, 0, Qt::CaseInsensitive);
    if (found)
        *found = at >= 0;
    if (at < 0)
        return page;
    QString out = page;
    out.replace(at, tag.size(), tag + crlf + QStringLiteral("<link rel=stylesheet type=text/css href=") + sheetPath +
                                    QStringLiteral(">"));
    return out;
}

}
