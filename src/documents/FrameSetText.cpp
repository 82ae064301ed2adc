#include "documents/FrameSetText.h"

#include "platform/TextFiles.h"

namespace FrameSetText {
using TextFiles::crlf;

namespace {
QString framePage(const QString& titleLine, const QString& colour)
{
    return head(titleLine) + QStringLiteral("<body bgColor=") + colour + QLatin1Char('>') + crlf.repeated(4) +
           QStringLiteral("</body>") + crlf.repeated(2) + QStringLiteral("</html>");
}
}

QString head(const QString& titleLine)
{
    return QStringLiteral("<html>") + crlf + QStringLiteral("<head>") + crlf +
           QStringLiteral("<meta name=\"GENERATOR\" content=\"Velloro 2002\">") + crlf +
           QStringLiteral("<meta name=\"AUTHOR\" content=\"Ansel Corby\">") + crlf + titleLine + crlf +
           QStringLiteral("</head>") + crlf + crlf;
}

QStringList pages(Layout layout, const Fields& f)
{
    const bool columns = layout == Layout::Columns;
    const QString frameset = columns ? QStringLiteral("frameset") : QStringLiteral("Frameset");
    const QStringList index = {
        QLatin1Char('<') + frameset + QStringLiteral(" framespacing=") + f.frsp + QStringLiteral(" border=") + f.bo +
            QStringLiteral(" frameborder=") + f.frbo + (columns ? QStringLiteral(" cols=") : QStringLiteral(" rows=")) + f.frco +
            QStringLiteral(",*>"),
        columns ? QStringLiteral("<frame name=contents target=main src=contents.html>")
                : QStringLiteral("<frame name=Header target=main src=Header.html>"),
        QStringLiteral("<frame name=main src=main.html>"),
        QStringLiteral("<noframes>"),
        QString(),
        QStringLiteral("<body>"),
        QString(),
        QString(),
        QStringLiteral("</body>"),
        QStringLiteral("</noframes>"),
        QStringLiteral("</") + frameset + QLatin1Char('>'),
        QStringLiteral("</html>"),
    };
    return {head(QStringLiteral("<title> Index </title>")) + index.join(crlf),
            framePage(columns ? QStringLiteral("<title> Content Menu </title>") : QStringLiteral("<title> Header Menu </title>"),
                      f.Text5),
            framePage(QStringLiteral("<title> Main Document </title>"), f.Text5)};
}
}
