#include "Glyphs.h"

#include <QFont>

void Canvas::fill(const QPainterPath& path, QColor c)
{
    p.fillPath(path, c);
}

void Canvas::stroke(const QPainterPath& path, QColor c, qreal width, bool round)
{
    QPen pen(c, width, Qt::SolidLine, round ? Qt::RoundCap : Qt::FlatCap, round ? Qt::RoundJoin : Qt::MiterJoin);
    p.strokePath(path, pen);
}

void Canvas::box(qreal x0, qreal y0, qreal x1, qreal y1, QColor c)
{
    p.fillRect(QRectF(x0, y0, x1 - x0, y1 - y0), c);
}

void Canvas::frame(qreal x0, qreal y0, qreal x1, qreal y1, QColor fillColour, QColor lineColour)
{
    box(x0, y0, x1, y1, lineColour);
    box(x0 + 1, y0 + 1, x1 - 1, y1 - 1, fillColour);
}

void Canvas::line(qreal x1, qreal y1, qreal x2, qreal y2, QColor c, qreal width, bool round)
{
    QPainterPath path;
    path.moveTo(x1, y1);
    path.lineTo(x2, y2);
    stroke(path, c, width, round);
}

void Canvas::polygon(std::initializer_list<QPointF> points, QColor c)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
    fill(path, c);
}

void Canvas::circle(qreal cx, qreal cy, qreal r, QColor c)
{
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), r, r);
    fill(path, c);
}

void Canvas::ring(qreal cx, qreal cy, qreal r, QColor c, qreal width)
{
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), r - width / 2, r - width / 2);
    stroke(path, c, width);
}

void Canvas::text(const QRectF& area, const QString& s, QColor c, qreal pixelSize, int style)
{
    QFont f(QStringLiteral("DejaVu Sans"));
    if (style & Mono)
        f.setFamily(QStringLiteral("DejaVu Sans Mono"));
    if (style & Serif)
        f.setFamily(QStringLiteral("DejaVu Serif"));
    f.setPixelSize(100);  // drawn large, then scaled, so hinting does not bend the shape
    f.setBold(style & Bold);
    f.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, f, s);
    QTransform t;
    t.scale(pixelSize / 100.0, pixelSize / 100.0);
    path = t.map(path);
    if (style & Slanted) {
        QTransform shear;
        shear.shear(-0.22, 0);
        path = shear.map(path);
    }
    const QRectF ink = path.boundingRect();
    path.translate(area.center() - ink.center());
    fill(path, c);
}

namespace {
// 3 by 5 cells per digit, rows top to bottom, bit 2 the left column.
const unsigned char kDigits[10][5] = {
    {7, 5, 5, 5, 7}, {2, 6, 2, 2, 7}, {7, 1, 7, 4, 7}, {7, 1, 7, 1, 7}, {5, 5, 7, 1, 1},
    {7, 4, 7, 1, 7}, {7, 4, 7, 5, 7}, {7, 1, 2, 2, 2}, {7, 5, 7, 5, 7}, {7, 5, 7, 1, 7},
};
}

void Canvas::digits(int x, int y, const QString& s, QColor c)
{
    for (QChar ch : s) {
        const int d = ch.digitValue();
        if (d >= 0)
            for (int row = 0; row < 5; ++row)
                for (int col = 0; col < 3; ++col)
                    if (kDigits[d][row] & (4 >> col))
                        box(x + col, y + row, x + col + 1, y + row + 1, c);
        x += 4;
    }
}

QImage renderIcon(const IconDef& icon, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 16.0, size / 16.0);
    Canvas canvas(painter, icon.accent);
    icon.draw(canvas);
    painter.end();
    return image;
}
