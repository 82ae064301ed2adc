#include "wizards/MarqueeText.h"

namespace MarqueeText {

QString fragment(const Fields& f)
{
    return QStringLiteral("<marquee scrollamount=") + f.Text2 + QStringLiteral(" scrolldelay=") + f.Text3 +
           QStringLiteral(" bgcolor=") + f.mcolor + QStringLiteral(" height=") + f.Text5 + QStringLiteral(" width=") +
           f.Text4 + QStringLiteral("%direction=") + (f.right ? QStringLiteral("Right") : QStringLiteral("Left")) +
           QStringLiteral(">") + f.Text1 + QStringLiteral("</marquee></p>");
}

}
