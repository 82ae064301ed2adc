#include "wizards/TextInputText.h"

#include "wizards/Html.h"

namespace TextInputText {

QString styledText(const QString& text, bool bold, bool italic)
{
    QString t = text;
    if (bold)
        t = QStringLiteral("<B>") + t + QStringLiteral("</b>");
    if (italic)
        t = QStringLiteral("<I>") + t + QStringLiteral("</I>");
    return t;
}

QString fragment(const Fields& f)
{
    return QStringLiteral("<p align=\"") + f.Combo1 + QStringLiteral("\"><font color=") + f.Text3 +
           QStringLiteral(" face=\"") + f.Text2 + QStringLiteral("\" size=") + Html::sizeDigit(f.Combo2) +
           QStringLiteral(">") + styledText(f.CodeMax1, f.bold, f.italic) + QStringLiteral("</a></font></p>") + Html::crlf;
}

}
