#include "wizards/ImageText.h"

#include "platform/RuntimeError.h"
#include "wizards/Html.h"

#include <cmath>

namespace ImageText {

QString fragment(const Fields& f)
{
    if (f.absolute) {
        const QString size = f.percent
            ? QStringLiteral("width=") + f.picwidth + QStringLiteral("% height=") + f.picheight + QStringLiteral("%")
            : QStringLiteral(" width=") + f.picwidth + QStringLiteral(" height=") + f.picheight;
        return QStringLiteral("<p><img border=") + f.picborder + QStringLiteral(" src=\"") + f.Location +
               QStringLiteral("\" style=position: absolute; left: ") + f.txleft + QStringLiteral(" Top: ") + f.txtop +
               QStringLiteral(" ") + size + QStringLiteral("></img></p>");
    }
    const QString size = f.percent
        ? QStringLiteral(" width=") + f.picwidth + QStringLiteral("% height=") + f.picheight + QStringLiteral("%")
        : QStringLiteral(" width=") + f.picwidth + QStringLiteral(" height=") + f.picheight;
    return QStringLiteral("<p align=") + f.align + QStringLiteral("><img border=") + f.picborder + QStringLiteral(" src=\"") +
           f.Location + QStringLiteral("\"") + size + QStringLiteral("></p>");
}

QString naturalSize(int pixels) { return Html::number(pixels * 15.0 / 15.15); }

std::optional<QString> keptHeight(const QString& picwidth, const QString& picheight1, const QString& picwidth1)
{
    try {
        const double width = Html::value(picwidth);
        const double height1 = Html::value(picheight1);
        const double width1 = Html::value(picwidth1);
        if (width1 == 0)
            return std::nullopt;  // division by zero (or the overflow of 0 / 0)
        const double height = width * (height1 / width1);
        if (!std::isfinite(height))
            return std::nullopt;  // overflow
        return Html::number(height);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

}
