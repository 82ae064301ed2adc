#include "documents/PageText.h"

#include "platform/TextFiles.h"

namespace PageText {
namespace {
using TextFiles::crlf;
const QString Q = QStringLiteral("\"");

QString head()
{
    return QStringLiteral("<html>") + crlf + crlf + QStringLiteral("<head>") + crlf
           + QStringLiteral("<meta name=") + Q + QStringLiteral("GENERATOR") + Q + QStringLiteral(" content=") + Q
           + QStringLiteral("Velloro 2002") + Q + QStringLiteral(">") + crlf
           + QStringLiteral("<meta name=") + Q + QStringLiteral("AUTHOR") + Q + QStringLiteral(" content=") + Q
           + QStringLiteral("Ansel Corby") + Q + QStringLiteral(">") + crlf;
}

QString bodyOpen(const QString& text, const QString& back)
{
    return QStringLiteral("<body text=") + text + QStringLiteral(" bgColor=") + back + QStringLiteral(">");
}
}

QString plainPage(const Fields& f)
{
    return head() + QStringLiteral("<title> ") + f.title + QStringLiteral(" </title>") + crlf + f.Text1 + crlf
           + QStringLiteral("</head> ") + crlf + crlf + bodyOpen(f.Text3, f.Text4) + crlf.repeated(6)
           + QStringLiteral("</body>") + crlf + crlf + QStringLiteral("</html>");
}

QString styledPage(const Fields& f)
{
    return head() + QStringLiteral("<title>") + f.title + QStringLiteral("</title>") + crlf + f.Text1 + crlf
           + QStringLiteral("<style>") + crlf
           + QStringLiteral("<!-- A:link  {color:") + f.Text7 + QStringLiteral("; text-decoration:") + f.Combo7 + QStringLiteral(" }") + crlf
           + QStringLiteral("A:visited {color:") + f.Text8 + QStringLiteral("; text-decoration:") + f.Combo8 + QStringLiteral(" }") + crlf
           + QStringLiteral("A:active {color:") + f.Text9 + QStringLiteral("; text-decoration:") + f.Combo9 + QStringLiteral("}") + crlf
           + QStringLiteral("A:hover {color:") + f.Text10 + QStringLiteral(";text-decoration:") + f.Combo10 + QStringLiteral("} -->") + crlf
           + QStringLiteral("</style>") + crlf + crlf + QStringLiteral("</head>") + crlf + crlf
           + bodyOpen(f.Text3, f.Text4) + crlf.repeated(6) + QStringLiteral("</body>") + crlf + crlf
           + QStringLiteral("</html>");
}

QString startupPage()
{
    return head() + QStringLiteral("<title> New Page </title>") + crlf + QStringLiteral("</head> ") + crlf + crlf
           + bodyOpen(Q + QStringLiteral("#000000") + Q, Q + QStringLiteral("ffffff") + Q) + crlf.repeated(8)
           + QStringLiteral("</body>") + crlf + crlf + QStringLiteral("</html>");
}

QString soundTag(const QString& mlocation, const QString& mloop, const QString& current)
{
    if (mlocation.isEmpty())
        return current;
    const QString loop = mloop == QLatin1String("0") ? QStringLiteral("-1") : mloop;
    return QStringLiteral("<bgsound src=") + Q + mlocation + Q + QStringLiteral(" loop=") + loop + QStringLiteral(">");
}
}
