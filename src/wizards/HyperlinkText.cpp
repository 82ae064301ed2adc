#include "wizards/HyperlinkText.h"

#include "wizards/Html.h"

namespace HyperlinkText {

QString fragment(const Fields& f)
{
    const QString link = QStringLiteral("<a href=\"") + f.Link + QStringLiteral("\" target=\"") + f.target + QStringLiteral("\">");
    const QString font = QStringLiteral("<font size=") + f.textsize + QStringLiteral(" face=") + f.textfont;
    if (f.ownColour)
        return link + font + QStringLiteral(" color=") + f.Text1 + QStringLiteral(">") + f.text + QStringLiteral("</font></a>") +
               Html::crlf;
    return font + QStringLiteral(">") + link + f.text + QStringLiteral("</a></font>") + Html::crlf;
}

}
