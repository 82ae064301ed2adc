#include "wizards/EmailText.h"

namespace EmailText {

QString target(const Fields& f) { return QStringLiteral("mailto:") + f.address + QStringLiteral("?subject=") + f.subject; }

QString fragment(const Fields& f)
{
    return QStringLiteral("<p align=") + f.align + QStringLiteral("><a href=") + target(f) + QStringLiteral(">") + f.Text1 +
           QStringLiteral("</a></p>");
}

}
