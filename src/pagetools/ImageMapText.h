#pragma once
#include <QRect>
#include <QString>

// The image map's HTML as the designer builds it, line by line: the head with the map's name,
// one area line per shape, and the end with the picture that uses the map.
namespace ImageMapText {

enum class Shape { Circle, Rect, Poly };

QString head(const QString& mapName);
// An area line. The COORDS value has no opening quote mark: that is the line's form.
QString areaLine(Shape shape, const QString& coords, const QString& address);
QString tail(const QString& imageTitle, const QString& mapName, const QString& width, const QString& height);

// The circle inside an outline: the centre (whole parts of the outline's middle) and a radius
// four less than half the outline's width, so the circle lies just inside.
struct CircleArea {
    long long x, y, radius;
};
CircleArea circleIn(const QRect& outline);
// Its coordinates as the area line takes them.
QString circleCoords(const QRect& outline);
// The corners of a box: left, top, right (left + width), bottom (top + height).
QString rectCoords(const QRect& outline);
// A polygon's gathered points ("x,y," for each) without the last comma.
QString polygonCoords(const QString& gathered);
}
