#include "wizards/DropDownScript.h"

#include "wizards/Html.h"

#include <QStringList>

namespace DropDownScript {
QString text()
{
    // Kept byte for byte, trailing blanks and all: pages made before rely on the same text.
    static const QStringList lines = {
        QStringLiteral("<script>"),
        QStringLiteral("function DropDownMenu(entered)"),
        QStringLiteral("{"),
        QStringLiteral("with (entered)"),
        QStringLiteral("{"),
        QStringLiteral("ref=options[selectedIndex].value; "),
        QStringLiteral("splitcharacter=ref.lastIndexOf(\"&\"); "),
        QStringLiteral("if (splitcharacter!=-1) {loc=ref.substring(0,splitcharacter);   "
                       "target=ref.substring(splitcharacter+1,1000).toLowerCase();}"),
        QStringLiteral("else {loc=ref; target=\"_self\";};"),
        QStringLiteral("lowloc=loc.toLowerCase(); "),
        QStringLiteral("if (lowloc==\"false\") {return;} "),
        QStringLiteral("if (target==\"_self\") {document.location=loc;} "),
        QStringLiteral("else {if (target==\"_top\") {top.location=loc;} "),
        QStringLiteral("else {if (target==\"_blank\") {window.open(loc);} "),
        QStringLiteral("else{if (target==\"_parent\") {parent.location=loc;}"),
        QStringLiteral("else {parent.frames[target].location=loc;}; "),
        QStringLiteral("}}}}"),
        QStringLiteral("}"),
        QStringLiteral("</script>"),
    };
    return lines.join(Html::crlf);
}
}
