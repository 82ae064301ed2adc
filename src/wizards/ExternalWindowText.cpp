#include "wizards/ExternalWindowText.h"

#include "wizards/Html.h"

#include <QStringList>

namespace ExternalWindowText {

QString fragment(const Fields& f)
{
    return QStringList{
        QStringLiteral("<script LANGUAGE=JavaScript>"),
        QStringLiteral("<!--//hide script from old browsers"),
        QStringLiteral("function launch() { "),
        QStringLiteral("open('") + f.Location +
            QStringLiteral("', 'tipofday', 'resizable=no, toolbar=no, location=no, directories=no, status=no, menubar=no, "
                           "scrollbars=yes, width=") +
            f.Text1 + QStringLiteral(", height=") + f.Text2 + QStringLiteral("') }"),
        QStringLiteral("document.write('<p align=center><A HREF=javascript:launch()>") + f.Text3 + QStringLiteral("!</A>')"),
        QStringLiteral("//end hiding contents -->"),
        QStringLiteral("</script>"),
    }.join(Html::crlf);
}

}
