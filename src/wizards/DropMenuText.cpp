#include "wizards/DropMenuText.h"

#include "wizards/DropDownScript.h"
#include "wizards/Html.h"

namespace DropMenuText {

QString options(const QString& first, const QStringList& texts, const QStringList& links)
{
    QString text = first;
    for (qsizetype i = 0; i < texts.size(); ++i)
        text += Html::crlf + QStringLiteral("<option value=") + links.value(i) + QStringLiteral(">") + texts[i] +
                QStringLiteral("</option>");
    return text;
}

namespace {
QString closing() { return Html::crlf + QStringLiteral("</select></p>") + Html::crlf; }
}

namespace Jump {

QString script() { return DropDownScript::text(); }

QString menu(const Fields& f)
{
    const QString first = QStringLiteral("<option value=Menu>") + f.menutext + QStringLiteral("</option>");
    return QStringLiteral("<p align=") + f.Combo2 + QStringLiteral("><input type=Button value=") + f.buttonname +
           QStringLiteral(" name=B3 onclick=DropDownMenu(D1) >         <select size=") + f.Text5 + QStringLiteral(" name=") +
           f.Text3 + QStringLiteral(" style=font-family: ") + f.Text7 + QStringLiteral("; background-color: ") + f.backc +
           QStringLiteral("; color: ") + f.backc1 + QStringLiteral(" > ") + Html::crlf + options(first, f.List1, f.List2) +
           closing();
}

QString fragment(const Fields& f) { return f.Text6 + Html::crlf + menu(f); }

}

namespace Form {

QString fragment(const Fields& f)
{
    return QStringLiteral("<p align=") + f.Combo2 +
           QStringLiteral("><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2>            <select size=") +
           f.Text5 + QStringLiteral(" name=") + f.Text3 + QStringLiteral(">         ") + Html::crlf +
           options(firstOption, f.List1, f.List2) + closing();
}

}
}
