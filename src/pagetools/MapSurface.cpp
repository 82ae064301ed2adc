#include "pagetools/MapSurface.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace {
constexpr int rulerBreadth = 18;

QPoint pixelOf(const QPointF& p) { return QPoint(int(std::floor(p.x())), int(std::floor(p.y()))); }
}

MapSurface::MapSurface(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("picDesign"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(0, 0);
    for (QLabel** label : {&txtX, &txtY}) {
        *label = new QLabel(this);
        (*label)->setStyleSheet(QStringLiteral("background: #FFFFE0; border: 1px solid #808080; padding: 0 2px;"));
        (*label)->hide();
    }
    txtX->setObjectName(QStringLiteral("txtX"));
    txtY->setObjectName(QStringLiteral("txtY"));
}

void MapSurface::setPicture(const QImage& image)
{
    picture = image;
    // One picture pixel to one unit: the painter draws the picture at its own size in units.
    picture.setDevicePixelRatio(1.0);
    setFixedSize(picture.size());
    clearMarks();
}

void MapSurface::showOutline(Outline which)
{
    shown = which;
    update();
}

void MapSurface::drawLine(QPoint from, QPoint to, const QColor& colour)
{
    marks.append({Mark::Line, QLine(from, to), {}, colour});
    update();
}

void MapSurface::drawSquare(QPoint centre, const QColor& colour)
{
    marks.append({Mark::Square, {}, QRect(centre - QPoint(2, 2), centre + QPoint(2, 2)), colour});
    update();
}

void MapSurface::drawEllipse(const QRect& box, const QColor& colour)
{
    marks.append({Mark::Ellipse, {}, box, colour});
    update();
}

void MapSurface::drawBox(const QRect& box, const QColor& colour)
{
    marks.append({Mark::Box, {}, box, colour});
    update();
}

void MapSurface::clearMarks()
{
    marks.clear();
    pending.reset();
    update();
}

void MapSurface::setPendingPoint(std::optional<QPoint> point)
{
    pending = point;
    update();
}

void MapSurface::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    if (!picture.isNull())
        p.drawImage(0, 0, picture);
    for (const Mark& m : marks) {
        p.setPen(QPen(m.colour, 1));
        switch (m.kind) {
        case Mark::Line: p.drawLine(m.line); break;
        case Mark::Square: p.fillRect(m.box, m.colour); break;
        case Mark::Ellipse: p.setBrush(Qt::NoBrush); p.drawEllipse(m.box); break;
        case Mark::Box: p.setBrush(Qt::NoBrush); p.drawRect(m.box); break;
        }
    }
    // The outline the user places: dashed, in black and white so it shows on any picture.
    if (shown != Outline::None) {
        const QRect r = shown == Outline::Circle ? crcl : rect;
        for (const auto& [colour, offset] : {std::pair{QColor(Qt::white), 0}, std::pair{QColor(Qt::black), 4}}) {
            QPen pen(colour, 1, Qt::CustomDashLine);
            pen.setDashPattern({4, 4});
            pen.setDashOffset(offset);
            p.setPen(pen);
            p.setBrush(Qt::NoBrush);
            shown == Outline::Circle ? p.drawEllipse(r) : p.drawRect(r);
        }
    }
    if (guide) {
        p.setPen(QPen(QColor(52, 129, 211), 1, Qt::DotLine));
        p.drawLine(guide->x(), 0, guide->x(), height());
        p.drawLine(0, guide->y(), width(), guide->y());
        if (pending) {
            p.setPen(QPen(Qt::black, 1, Qt::DashLine));
            p.drawLine(*pending, *guide);
        }
    }
}

void MapSurface::showGuides(std::optional<QPoint> at)
{
    guide = at;
    txtX->setVisible(at.has_value());
    txtY->setVisible(at.has_value());
    if (at) {
        txtX->setText(QString::number(at->x()));
        txtY->setText(QString::number(at->y()));
        txtX->adjustSize();
        txtY->adjustSize();
        // Beside the pointer, kept inside the picture.
        const int x = qMin(at->x() + 8, qMax(0, width() - txtX->width()));
        const int y = qMin(at->y() + 2, qMax(0, height() - txtX->height() - txtY->height()));
        txtX->move(x, y);
        txtY->move(x, y + txtX->height());
    }
    update();
}

void MapSurface::mousePressEvent(QMouseEvent* e)
{
    if (picture.isNull())
        return;
    setFocus(Qt::MouseFocusReason);
    Q_EMIT pressed(e->button(), pixelOf(e->position()));
}

void MapSurface::mouseMoveEvent(QMouseEvent* e)
{
    if (picture.isNull())
        return;
    const QPoint at = pixelOf(e->position());
    if (!QWidget::rect().contains(at)) {
        showGuides(std::nullopt);
        return;
    }
    showGuides(at);
    Q_EMIT moved(at, e->buttons());
}

void MapSurface::leaveEvent(QEvent* e)
{
    showGuides(std::nullopt);
    QWidget::leaveEvent(e);
}

void MapSurface::keyPressEvent(QKeyEvent* e)
{
    switch (e->key()) {
    case Qt::Key_Left: Q_EMIT arrowPressed(37); return;
    case Qt::Key_Up: Q_EMIT arrowPressed(38); return;
    case Qt::Key_Right: Q_EMIT arrowPressed(39); return;
    case Qt::Key_Down: Q_EMIT arrowPressed(40); return;
    default: QWidget::keyPressEvent(e);
    }
}

MapRuler::MapRuler(Qt::Orientation orientation, QWidget* parent) : QWidget(parent), orientation(orientation)
{
    setObjectName(orientation == Qt::Horizontal ? QStringLiteral("picTopRule") : QStringLiteral("picLeftRule"));
    setLength(0);
}

void MapRuler::setLength(int pixels)
{
    extent = pixels;
    if (orientation == Qt::Horizontal)
        setFixedSize(pixels, rulerBreadth);
    else
        setFixedSize(rulerBreadth, pixels);
    update();
}

void MapRuler::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(QWidget::rect(), QColor(255, 255, 240));
    p.setPen(QColor(80, 80, 80));
    QFont f = font();
    f.setPointSizeF(f.pointSizeF() * 0.75);
    p.setFont(f);
    for (int at = 0; at < extent; at += 10) {
        const int tick = at % 50 == 0 ? rulerBreadth : at % 10 == 0 ? rulerBreadth / 3 : 0;
        if (orientation == Qt::Horizontal) {
            p.drawLine(at, rulerBreadth - tick, at, rulerBreadth);
            if (at % 50 == 0)
                p.drawText(at + 2, 10, QString::number(at));
        } else {
            p.drawLine(rulerBreadth - tick, at, rulerBreadth, at);
            if (at % 50 == 0)
                p.drawText(1, at + 10, QString::number(at));
        }
    }
}
