#include "wizards/BulletText.h"

#include "wizards/Html.h"

namespace BulletText {

QString fragment(const Fields& f)
{
    const QString list = f.bullets ? QStringLiteral("ul") : QStringLiteral("ol");
    return QStringLiteral("<p><font color=") + f.Text3 + QStringLiteral(" face=\"") + f.Text2 + QStringLiteral("\" size=") +
           Html::sizeDigit(f.Combo2) + QStringLiteral("><") + list + QStringLiteral(">") + Html::crlf +
           QStringLiteral("<li>") + f.Text1 + QStringLiteral("</li>") + Html::crlf + QStringLiteral("</") + list +
           QStringLiteral("></font></p>") + Html::crlf;
}

}
