#pragma once
#include <QColor>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <functional>

// Every picture is drawn on a 16 by 16 grid; the grid is scaled for the larger sizes. Whole
// numbers are pixel edges at 16 px, so outlines are filled one-cell bands, not strokes, and stay
// sharp at 16 and 32.
class Canvas {
public:
    Canvas(QPainter& painter, QColor accent) : p(painter), accent(accent) {}
    QPainter& p;
    QColor accent;

    void fill(const QPainterPath& path, QColor c);
    void stroke(const QPainterPath& path, QColor c, qreal width = 1, bool round = false);
    void box(qreal x0, qreal y0, qreal x1, qreal y1, QColor c);  // filled cells x0..x1, y0..y1
    // A one-cell outline in `line` around a `fill` interior.
    void frame(qreal x0, qreal y0, qreal x1, qreal y1, QColor fill, QColor line);
    void line(qreal x1, qreal y1, qreal x2, qreal y2, QColor c, qreal width = 1, bool round = false);
    void polygon(std::initializer_list<QPointF> points, QColor fill);
    void circle(qreal cx, qreal cy, qreal r, QColor c);
    void ring(qreal cx, qreal cy, qreal r, QColor c, qreal width = 1);
    // Text made a path and centred on its own ink, so letters sit in the middle of the box.
    enum Style { Sans = 0, Bold = 1, Slanted = 2, Mono = 4, Serif = 8 };
    void text(const QRectF& box, const QString& s, QColor c, qreal pixelSize, int style = Bold);
    // The 3 by 5 digits of the program's own pixel font, cell-aligned at 16 px.
    void digits(int x, int y, const QString& s, QColor c);
    static int digitsWidth(const QString& s) { return int(s.size()) * 4 - 1; }
};

struct IconDef {
    QString name;   // file name without ".ico"
    QString shows;  // what the picture shows, for the manifest
    QColor accent;
    std::function<void(Canvas&)> draw;
};

QList<IconDef> allIcons();
QImage renderIcon(const IconDef& icon, int size);
