#include "wizards/TextAreaText.h"

#include "wizards/Html.h"

namespace TextAreaText {

QString fragment(const Fields& f)
{
    return QStringLiteral("<p align=") + f.Combo1 + QStringLiteral("><textarea rows=") + f.Text4 + QStringLiteral(" name=") +
           f.Text2 + QStringLiteral(" cols=") + f.Text3 + QStringLiteral(" >") + f.Text1 + QStringLiteral("</textarea></p>") +
           Html::crlf;
}

}
