#include "documents/PageText.h"

namespace PageText {
namespace {
const QString CRLF = QStringLiteral("\r\n");
const QString Q = QStringLiteral("\"");

QString head()
{
    return QStringLiteral("<html>") + CRLF + CRLF + QStringLiteral("<head>") + CRLF
           + QStringLiteral("<meta name=") + Q + QStringLiteral("GENERATOR") + Q + QStringLiteral(" content=") + Q
           + QStringLiteral("Velloro 2002") + Q + QStringLiteral(">") + CRLF
           + QStringLiteral("<meta name=") + Q + QStringLiteral("AUTHOR") + Q + QStringLiteral(" content=") + Q
           + QStringLiteral("Ansel Corby") + Q + QStringLiteral(">") + CRLF;
}

QString bodyOpen(const QString& text, const QString& back)
{
    return QStringLiteral("<body text=") + text + QStringLiteral(" bgColor=") + back + QStringLiteral(">");
}
}

QString plainPage(const Fields& f)
{
    return head() + QStringLiteral("<title> ") + f.title + QStringLiteral(" </title>") + CRLF + f.Text1 + CRLF
           + QStringLiteral("</head> ") + CRLF + CRLF + bodyOpen(f.Text3, f.Text4) + CRLF.repeated(6)
           + QStringLiteral("</body>") + CRLF + CRLF + QStringLiteral("</html>");
}

QString styledPage(const Fields& f)
{
    return head() + QStringLiteral("<title>") + f.title + QStringLiteral("</title>") + CRLF + f.Text1 + CRLF
           + QStringLiteral("<style>") + CRLF
           + QStringLiteral("<!-- A:link  {color:") + f.Text7 + QStringLiteral("; text-decoration:") + f.Combo7 + QStringLiteral(" }") + CRLF
           + QStringLiteral("A:visited {color:") + f.Text8 + QStringLiteral("; text-decoration:") + f.Combo8 + QStringLiteral(" }") + CRLF
           + QStringLiteral("A:active {color:") + f.Text9 + QStringLiteral("; text-decoration:") + f.Combo9 + QStringLiteral("}") + CRLF
           + QStringLiteral("A:hover {color:") + f.Text10 + QStringLiteral(";text-decoration:") + f.Combo10 + QStringLiteral("} -->") + CRLF
           + QStringLiteral("</style>") + CRLF + CRLF + QStringLiteral("</head>") + CRLF + CRLF
           + bodyOpen(f.Text3, f.Text4) + CRLF.repeated(6) + QStringLiteral("</body>") + CRLF + CRLF
           + QStringLiteral("</html>");
}

QString startupPage()
{
    return head() + QStringLiteral("<title> New Page </title>") + CRLF + QStringLiteral("</head> ") + CRLF + CRLF
           + bodyOpen(Q + QStringLiteral("#000000") + Q, Q + QStringLiteral("ffffff") + Q) + CRLF.repeated(8)
           + QStringLiteral("</body>") + CRLF + CRLF + QStringLiteral("</html>");
}

QString soundTag(const QString& mlocation, const QString& mloop, const QString& current)
{
    if (mlocation.isEmpty())
        return current;
    const QString loop = mloop == QLatin1String("0") ? QStringLiteral("-1") : mloop;
    return QStringLiteral("<bgsound src=") + Q + mlocation + Q + QStringLiteral(" loop=") + loop + QStringLiteral(">");
}
}
