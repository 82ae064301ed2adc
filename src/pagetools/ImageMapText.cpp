#include "pagetools/ImageMapText.h"

#include "wizards/Html.h"

#include <cmath>

namespace ImageMapText {
using Html::crlf;

QString head(const QString& mapName)
{
    return QStringLiteral("<!-- START IMAGE MAP COPY HERE -->") + crlf + crlf + QStringLiteral("<MAP NAME=\"") + mapName +
           QStringLiteral("\">") + crlf;
}

QString areaLine(Shape shape, const QString& coords, const QString& address)
{
    const QString kind = shape == Shape::Circle ? QStringLiteral("CIRCLE") : shape == Shape::Rect ? QStringLiteral("RECT")
                                                                                                    : QStringLiteral("POLY");
    return QStringLiteral("    <AREA SHAPE=\"") + kind + QStringLiteral("\" COORDS=") + coords + QStringLiteral("\"   HREF=\"") +
           address + QStringLiteral("\">") + crlf;
}

QString tail(const QString& imageTitle, const QString& mapName, const QString& width, const QString& height)
{
    return QStringLiteral("</map>") + crlf + QStringLiteral("<P ALIGN=\"CENTER\">") + crlf + QStringLiteral("<IMG SRC=\"") +
           imageTitle + QStringLiteral("\" BORDER=\"0\" USEMAP=\"#") + mapName + QStringLiteral("\" WIDTH=\"") + width +
           QStringLiteral("\" HEIGHT=\"") + height + QStringLiteral("\">") + crlf + QStringLiteral("</p>") + crlf + crlf +
           QStringLiteral("<!-- End Image Map Copy Here -->");
}

CircleArea circleIn(const QRect& outline)
{
    // Whole parts, as the floor takes them (an outline may stand partly left of the picture).
    const auto whole = [](double v) { return static_cast<long long>(std::floor(v)); };
    const double halfWidth = outline.width() / 2.0, halfHeight = outline.height() / 2.0;
    return {whole(outline.left() + halfWidth), whole(outline.top() + halfHeight), whole(halfWidth - 4)};
}

QString circleCoords(const QRect& outline)
{
    const CircleArea c = circleIn(outline);
    return QStringLiteral("%1,%2,%3").arg(c.x).arg(c.y).arg(c.radius);
}

QString rectCoords(const QRect& outline)
{
    return QStringLiteral("%1,%2,%3,%4")
        .arg(outline.left())
        .arg(outline.top())
        .arg(outline.left() + outline.width())
        .arg(outline.top() + outline.height());
}

QString polygonCoords(const QString& gathered) { return gathered.left(qMax<qsizetype>(0, gathered.size() - 1)); }
}
