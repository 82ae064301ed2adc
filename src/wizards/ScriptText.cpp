#include "wizards/ScriptText.h"

#include "platform/RuntimeError.h"
#include "wizards/Html.h"

namespace ScriptText {

QString fragment(const Fields& f)
{
    const QString& s = f.txtScript;
    switch (f.language) {
    case Language::JavaScript:
        return QStringLiteral("<script language=\"JavaScript\"><!--") + Html::crlf + s + Html::crlf +
               QStringLiteral("// --></script>");
    case Language::VBScript:
        if (f.server)
            return QStringLiteral("<%") + s + QStringLiteral("%>");
        return QStringLiteral("<script language=\"VBScript\"><!--") + Html::crlf + s + Html::crlf + QStringLiteral("--></script>");
    case Language::Other:
        break;
    }
    if (!f.txtOther.isEmpty())
        throw RuntimeError::noSuchMember(QStringLiteral("HTMLtext"));
    return QStringLiteral("<script language=\"JavaScript\">") + s + QStringLiteral("</script>");
}

}
