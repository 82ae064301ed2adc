#include "wizards/LineText.h"

namespace LineText {

QString fragment(const Fields& f)
{
    return QStringLiteral("<hr color=") + f.Text1 + QStringLiteral("align=") + f.align + QStringLiteral(" width=") +
           f.barwidth + (f.pixels ? QString() : QStringLiteral("%")) + QStringLiteral(" size=") + f.barsize +
           QStringLiteral(">");
}

}
