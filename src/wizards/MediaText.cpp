#include "wizards/MediaText.h"

namespace MediaText {

QString sound(const Sound& f)
{
    return QStringLiteral("<bgsound src=\"") + f.mlocation + QStringLiteral("\" loop=") + f.mloop + QStringLiteral("></bgsound>");
}

QString movie(const Movie& f)
{
    const QString head = QStringLiteral("<embed src=") + f.vlocation + QStringLiteral(" width=") + f.mwidth +
                         QStringLiteral(" height=") + f.mheight + QStringLiteral(" border=") + f.mborder;
    if (f.loop)
        return head + QStringLiteral("loop=true  align=") + f.Combo1 + QStringLiteral(">");
    return head + QStringLiteral(" align=") + f.Combo1 + QStringLiteral(" >");
}

QStringList alignments() { return {QStringLiteral("top"), QStringLiteral("middle"), QStringLiteral("bottom")}; }

}
