#include "reference/SidebarText.h"

namespace SidebarText {

QString codeFragment(const QString& caption) { return caption + QStringLiteral("\r\n"); }

QStringList patternRows()
{
    return {QStringLiteral("*.*"), QStringLiteral("*.html"), QStringLiteral("*.htm"), QStringLiteral("*.txt"),
            QStringLiteral("*.tmpl")};
}

QString chosenFilePath(const QString& folder, const QString& name) { return folder + QLatin1Char('/') + name; }

TopmostStep topmostStep(const QString& caption)
{
    if (caption == disableCaption)
        return {true, false, enableCaption};
    if (caption == enableCaption)
        return {true, true, disableCaption};
    return {false, false, caption};
}

}
