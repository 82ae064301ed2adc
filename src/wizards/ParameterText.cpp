#include "wizards/ParameterText.h"

#include "wizards/Html.h"

namespace ParameterText {

QString parameter(const QString& name, const QString& value)
{
    return QStringLiteral("<PARAM NAME=\"") + name + QStringLiteral("\" VALUE=\"") + value + QStringLiteral("\">");
}

QStringList steps(const QString& opening, const QStringList& lines, const QString& closing)
{
    QStringList all;
    all.reserve(lines.size() + 2);
    all << opening + Html::crlf;
    for (const QString& line : lines)
        all << line + Html::crlf;
    all << closing + Html::crlf;
    return all;
}

QStringList applet(const Applet& f)
{
    return steps(QStringLiteral("<APPLET CODEBASE=") + f.txtcodebase + QStringLiteral(" CODE=") + f.txtcode +
                     QStringLiteral(" ALT=") + f.txtalternative + QStringLiteral(" NAME=") + f.txtname +
                     QStringLiteral(" HEIGHT=") + f.txtheight + QStringLiteral(" WIDTH=") + f.txtWidth + QStringLiteral(">"),
                 f.List1, QStringLiteral("</APPLET>"));
}

QStringList alignments()
{
    return {QStringLiteral("Top"),    QStringLiteral("AbsBottom"), QStringLiteral("AbsMidlle"),
            QStringLiteral("Baseline"), QStringLiteral("Bottom"),  QStringLiteral("Left"),
            QStringLiteral("Middle"), QStringLiteral("Right"),     QStringLiteral("TextTop")};
}

QStringList realAudio(const Audio& f)
{
    return steps(QStringLiteral("<EMBED SRC=") + f.txtfile + QStringLiteral(" NAME=") + f.txtname +
                     QStringLiteral(" type=audio/x-pn-realaudio-plugin ALIGN=") + f.coallignment + QStringLiteral(" HEIGHT=") +
                     f.txtheight + QStringLiteral(" WIDTH=") + f.txtWidth + QStringLiteral(" CONTROLS=all") +
                     (f.autostart ? QStringLiteral(" AUTOSTART=TRUE") : QStringLiteral(" AUTOSTART=FALSE")) +
                     QStringLiteral(" NOLABELS=TRUE"),
                 f.List1, QStringLiteral(">"));
}

QStringList object(const Object& f)
{
    return steps(QStringLiteral("<OBJECT CODEBASE=") + f.txtcodebase + QStringLiteral(" NAME=") + f.txtname +
                     QStringLiteral(" CLASSID=") + f.txtclass + QStringLiteral(" ALIGN=") + f.coallignment +
                     QStringLiteral(" HEIGHT=") + f.txtheight + QStringLiteral(" WIDTH=") + f.txtWidth + QStringLiteral(">"),
                 f.List1, QStringLiteral("</OBJECT>"));
}

}
