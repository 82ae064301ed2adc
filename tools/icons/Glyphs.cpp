// The icon set: a few dozen shapes on the 16-cell grid, combined per picture name. Each menu
// group has one accent colour; everything else is ink, white and two greys.
#include "Glyphs.h"

#include <QtMath>

namespace {
const QColor ink(0x37, 0x47, 0x4F);
const QColor mid(0x78, 0x90, 0x9C);
const QColor soft(0xB0, 0xBE, 0xC5);
const QColor pale(0xE3, 0xE8, 0xEB);
const QColor white(Qt::white);
const QColor red(0xE0, 0x3A, 0x3A);
const QColor green(0x3C, 0xA0, 0x4A);
const QColor yellow(0xF9, 0xC2, 0x2E);
const QColor paleYellow(0xFF, 0xF3, 0xB0);

// Group accents.
const QColor cFile(0x1E, 0x78, 0xD2);
const QColor cEdit(0xEB, 0x7A, 0x16);
const QColor cView(0x0E, 0x9C, 0x96);
const QColor cInsert(0x2E, 0x9D, 0x48);
const QColor cText(0x8B, 0x52, 0xCC);
const QColor cMacro(0xD8, 0x41, 0x2F);
const QColor cTools(0xC2, 0x85, 0x0C);
const QColor cWindow(0x47, 0x59, 0xCC);
const QColor cHelp(0xC2, 0x30, 0x6F);
const QColor cNet(0x17, 0x8F, 0xC4);

QColor dark(QColor c) { return c.darker(150); }
QColor light(QColor c) { return c.lighter(135); }

using Draw = std::function<void(Canvas&)>;

// Draws `d` mirrored left to right.
void mirrored(Canvas& c, const Draw& d)
{
    c.p.save();
    c.p.translate(16, 0);
    c.p.scale(-1, 1);
    d(c);
    c.p.restore();
}

void shifted(Canvas& c, qreal dx, qreal dy, qreal scale, const Draw& d)
{
    c.p.save();
    c.p.translate(dx, dy);
    c.p.scale(scale, scale);
    d(c);
    c.p.restore();
}

QPainterPath poly(std::initializer_list<QPointF> pts, bool close = true)
{
    QPainterPath path;
    bool first = true;
    for (const QPointF& pt : pts) {
        if (first)
            path.moveTo(pt);
        else
            path.lineTo(pt);
        first = false;
    }
    if (close)
        path.closeSubpath();
    return path;
}

// Fills a shape and outlines it on the half cells of its edge.
void shape(Canvas& c, const QPainterPath& path, QColor fill, QColor line)
{
    c.fill(path, fill);
    c.stroke(path, line, 1);
}

// ---- paper ------------------------------------------------------------------------------

void page(Canvas& c, qreal x0 = 2, qreal y0 = 0, qreal x1 = 14, qreal y1 = 16, qreal fold = 4, QColor fill = white)
{
    shape(c, poly({{x0 + .5, y0 + .5}, {x1 - fold, y0 + .5}, {x1 - .5, y0 + fold}, {x1 - .5, y1 - .5}, {x0 + .5, y1 - .5}}), fill, ink);
    QPainterPath ear = poly({{x1 - fold, y0 + .5}, {x1 - fold, y0 + fold}, {x1 - .5, y0 + fold}});
    c.fill(ear, pale);
    c.stroke(poly({{x1 - fold + .5, y0 + .5}, {x1 - fold + .5, y0 + fold - .5}, {x1 - .5, y0 + fold - .5}}, false), ink, 1);
}

void textLines(Canvas& c, qreal x0, qreal x1, std::initializer_list<qreal> ys, QColor col = soft)
{
    int i = 0;
    for (qreal y : ys) {
        c.box(x0, y, (i % 2 == 1) ? x1 - 2 : x1, y + 1, col);
        ++i;
    }
}

void linedPage(Canvas& c)
{
    page(c);
    textLines(c, 4, 12, {6, 8, 10, 12});
}

void stickyNote(Canvas& c, qreal x0 = 1, qreal y0 = 1, qreal x1 = 15, qreal y1 = 15)
{
    const QColor edge(0xC9, 0x96, 0x00);
    shape(c, poly({{x0 + .5, y0 + .5}, {x1 - .5, y0 + .5}, {x1 - .5, y1 - 4}, {x1 - 4, y1 - .5}, {x0 + .5, y1 - .5}}), yellow, edge);
    c.fill(poly({{x1 - .5, y1 - 4}, {x1 - 4, y1 - 4}, {x1 - 4, y1 - .5}}), paleYellow);
    c.box(x0 + 3, y0 + 4, x1 - 3, y0 + 5, edge);
    c.box(x0 + 3, y0 + 7, x1 - 5, y0 + 8, edge);
}

// ---- badges in the lower right corner ---------------------------------------------------

void badge(Canvas& c, QColor col)
{
    c.circle(12, 12, 4.8, white);
    c.circle(12, 12, 4, col);
}

void badgePlus(Canvas& c, QColor col = green)
{
    badge(c, col);
    c.box(10, 11.25, 14, 12.75, white);
    c.box(11.25, 10, 12.75, 14, white);
}

void badgeMinus(Canvas& c, QColor col = red)
{
    badge(c, col);
    c.box(10, 11.25, 14, 12.75, white);
}

void badgeCross(Canvas& c, QColor col = red)
{
    badge(c, col);
    c.line(10.2, 10.2, 13.8, 13.8, white, 1.5);
    c.line(13.8, 10.2, 10.2, 13.8, white, 1.5);
}

void badgeCheck(Canvas& c, QColor col = green)
{
    badge(c, col);
    c.stroke(poly({{9.8, 12.1}, {11.4, 13.7}, {14.2, 10.5}}, false), white, 1.5);
}

// Direction: 0 up, 1 right, 2 down, 3 left.
void badgeArrow(Canvas& c, QColor col, int direction)
{
    badge(c, col);
    c.p.save();
    c.p.translate(12, 12);
    c.p.rotate(90 * direction);
    c.polygon({{0, -3}, {2.6, -0.2}, {-2.6, -0.2}}, white);
    c.box(-0.8, -0.5, 0.8, 2.8, white);
    c.p.restore();
}

void lightning(Canvas& c, qreal dx = 0, qreal dy = 0)
{
    QPainterPath bolt = poly({{12.5 + dx, 6.5 + dy}, {8.5 + dx, 12 + dy}, {11.2 + dx, 12 + dy}, {10 + dx, 16 + dy},
                              {15 + dx, 10 + dy}, {12.2 + dx, 10 + dy}, {14.3 + dx, 6.5 + dy}});
    c.stroke(bolt, white, 1.6);
    c.fill(bolt, yellow);
    c.stroke(bolt, QColor(0xB0, 0x7A, 0x00), 0.7);
}

QPainterPath starPath(qreal cx, qreal cy, qreal r)
{
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const qreal a = -M_PI / 2 + i * M_PI / 5;
        const qreal rr = (i % 2) ? r * 0.45 : r;
        const QPointF pt(cx + rr * qCos(a), cy + rr * qSin(a));
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    path.closeSubpath();
    return path;
}

void badgeStar(Canvas& c)
{
    QPainterPath s = starPath(12, 12.3, 4.2);
    c.stroke(s, white, 1.6);
    c.fill(s, yellow);
    c.stroke(s, QColor(0xB0, 0x7A, 0x00), 0.7);
}

void badgeInfo(Canvas& c, QColor col)
{
    badge(c, col);
    c.box(11.25, 9.5, 12.75, 10.75, white);
    c.box(11.25, 11.5, 12.75, 14.5, white);
}

// ---- things -----------------------------------------------------------------------------

void folder(Canvas& c, QColor col, bool open, qreal y0 = 2, qreal y1 = 14)
{
    shape(c, poly({{.5, y0 + .5}, {5.5, y0 + .5}, {7, y0 + 2}, {15.5, y0 + 2}, {15.5, y1 - .5}, {.5, y1 - .5}}), dark(col).lighter(110), dark(col));
    if (open) {
        shape(c, poly({{3, y0 + 5.5}, {15.5, y0 + 5.5}, {13.5, y1 - .5}, {.5, y1 - .5}}), col, dark(col));
    } else {
        shape(c, poly({{.5, y0 + 3.5}, {15.5, y0 + 3.5}, {15.5, y1 - .5}, {.5, y1 - .5}}), col, dark(col));
    }
}

void floppy(Canvas& c, QColor col)
{
    shape(c, poly({{1.5, 1.5}, {12.5, 1.5}, {14.5, 3.5}, {14.5, 14.5}, {1.5, 14.5}}), col, dark(col));
    c.box(4, 2, 11, 6, pale);
    c.box(8, 3, 10, 5, mid);
    c.frame(3, 8, 13, 15, white, dark(col));
    c.box(5, 10, 11, 11, soft);
    c.box(5, 12, 11, 13, soft);
}

void printer(Canvas& c, QColor col)
{
    c.frame(4, 1, 12, 7, white, ink);
    shape(c, poly({{1.5, 5.5}, {14.5, 5.5}, {14.5, 11.5}, {1.5, 11.5}}), col, dark(col));
    c.box(12, 7, 13, 8, yellow);
    c.frame(4, 9, 12, 15, white, ink);
    c.box(6, 11, 10, 12, soft);
    c.box(6, 13, 10, 14, soft);
}

void scissors(Canvas& c, QColor col)
{
    c.line(5.5, 9.5, 11.5, 1, ink, 1.5, true);
    c.line(10.5, 9.5, 4.5, 1, ink, 1.5, true);
    c.ring(4.5, 12.3, 2.8, col, 1.6);
    c.ring(11.5, 12.3, 2.8, col, 1.6);
    c.circle(8, 6.9, 0.8, mid);
}

void twoPages(Canvas& c)
{
    page(c, 1, 0, 11, 12, 3);
    textLines(c, 3, 9, {5, 7, 9});
    page(c, 5, 4, 15, 16, 3);
    textLines(c, 7, 13, {9, 11, 13});
}

void clipboard(Canvas& c, QColor col, bool withPaper = true)
{
    shape(c, poly({{2.5, 2.5}, {13.5, 2.5}, {13.5, 15.5}, {2.5, 15.5}}), col, dark(col));
    if (withPaper) {
        c.box(4, 5, 12, 14, white);
        textLines(c, 5, 11, {7, 9, 11});
    } else {
        c.box(4, 5, 12, 14, light(col));
    }
    c.frame(5, 1, 11, 5, pale, ink);
}

void curvedArrow(Canvas& c, QColor col)
{
    QPainterPath arc;
    arc.moveTo(13.5, 13.5);
    arc.cubicTo(14, 7.5, 10, 5, 5, 5.5);
    c.stroke(arc, col, 2.2, true);
    c.polygon({{0.8, 5.6}, {6, 1.2}, {6, 10}}, col);
}

void magnifier(Canvas& c, qreal cx = 6.5, qreal cy = 6.5, qreal r = 4.8, QColor glass = white)
{
    c.line(cx + r * 0.7, cy + r * 0.7, cx + r * 0.7 + 4, cy + r * 0.7 + 4, ink, 2.6, true);
    c.circle(cx, cy, r, glass);
    c.ring(cx, cy, r, ink, 1.6);
}

void globe(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal r = 7)
{
    c.circle(cx, cy, r, col);
    const QColor grid = light(col).lighter(130);
    QPainterPath meridian;
    meridian.addEllipse(QPointF(cx, cy), r * 0.42, r - 0.3);
    c.stroke(meridian, grid, 0.9);
    c.line(cx, cy - r + 0.3, cx, cy + r - 0.3, grid, 0.9);
    c.line(cx - r + 0.3, cy, cx + r - 0.3, cy, grid, 0.9);
    c.line(cx - r * 0.86, cy - r * 0.45, cx + r * 0.86, cy - r * 0.45, grid, 0.8);
    c.line(cx - r * 0.86, cy + r * 0.45, cx + r * 0.86, cy + r * 0.45, grid, 0.8);
    c.ring(cx, cy, r, dark(col), 1);
}

void envelope(Canvas& c, QColor col, qreal x0 = 1, qreal y0 = 3, qreal x1 = 15, qreal y1 = 13)
{
    c.frame(x0, y0, x1, y1, white, ink);
    c.stroke(poly({{x0 + 1, y0 + 1}, {(x0 + x1) / 2, (y0 + y1) / 2 + 1}, {x1 - 1, y0 + 1}}, false), col, 1.4);
}

void gear(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal r = 7)
{
    QPainterPath teeth;
    for (int i = 0; i < 4; ++i) {
        QPainterPath tooth;
        tooth.addRect(QRectF(-r * 0.22, -r, r * 0.44, r * 2));
        QTransform t;
        t.translate(cx, cy);
        t.rotate(i * 45 + 22.5);
        teeth = teeth.united(t.map(tooth));
    }
    QPainterPath body;
    body.addEllipse(QPointF(cx, cy), r * 0.68, r * 0.68);
    QPainterPath hole;
    hole.addEllipse(QPointF(cx, cy), r * 0.28, r * 0.28);
    QPainterPath all = body.united(teeth).subtracted(hole);
    c.fill(all, col);
    c.stroke(all, dark(col), 0.7);
}

void clock(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal r = 7)
{
    c.circle(cx, cy, r, white);
    c.ring(cx, cy, r, col, 1.5);
    c.line(cx, cy, cx, cy - r * 0.62, ink, 1.3, true);
    c.line(cx, cy, cx + r * 0.45, cy + r * 0.3, ink, 1.3, true);
}

void calendar(Canvas& c, QColor col)
{
    c.frame(1, 2, 15, 15, white, ink);
    c.box(1, 2, 15, 6, col);
    c.box(4, 1, 5, 4, ink);
    c.box(11, 1, 12, 4, ink);
    for (int row = 0; row < 3; ++row)
        for (int col2 = 0; col2 < 4; ++col2)
            c.box(3 + col2 * 3, 7 + row * 2.5, 5 + col2 * 3, 8.5 + row * 2.5, (row == 1 && col2 == 2) ? col : soft);
}

void windowShape(Canvas& c, QColor col, qreal x0 = 1, qreal y0 = 2, qreal x1 = 15, qreal y1 = 14, QColor body = white)
{
    c.frame(x0, y0, x1, y1, body, ink);
    c.box(x0, y0, x1, y0 + 3, col);
    c.box(x0, y0, x1, y0 + 0.001, ink);
}

void tableGrid(Canvas& c, QColor col, int hiRow = -1, int hiCol = -1, bool header = true)
{
    c.frame(1, 2, 15, 14, white, ink);
    if (header)
        c.box(1, 2, 15, 6, col);
    if (hiRow >= 0)
        c.box(2, 2 + hiRow * 4, 14, 6 + hiRow * 4, light(col).lighter(140));
    if (hiCol >= 0)
        c.box(2 + hiCol * 4.5 - (hiCol > 0 ? 0.5 : 0), 6, 2 + (hiCol + 1) * 4.5 - 0.5, 13, light(col).lighter(140));
    c.box(1, 2, 15, 3, ink);
    c.box(1, 6, 15, 7, ink);
    c.box(1, 10, 15, 11, ink);
    c.box(5.5, 6, 6.5, 14, ink);
    c.box(9.5, 6, 10.5, 14, ink);
    if (!header) {
        c.box(5.5, 2, 6.5, 6, ink);
        c.box(9.5, 2, 10.5, 6, ink);
    }
}

void picture(Canvas& c, QColor col, qreal x0 = 1, qreal y0 = 2, qreal x1 = 15, qreal y1 = 14)
{
    c.frame(x0, y0, x1, y1, white, ink);
    c.circle(x1 - 4, y0 + 3.6, 1.6, yellow);
    const qreal b = y1 - 1;
    c.polygon({{x0 + 1, b}, {x0 + 1, b - 2}, {x0 + 4.5, b - 6.5}, {x0 + 8.5, b - 1.8}, {x0 + 10.2, b - 3.8}, {x1 - 1, b}}, col);
}

void musicNote(Canvas& c, QColor col)
{
    c.polygon({{5, 3}, {14, 1}, {14, 4}, {5, 6}}, col);
    c.box(5, 3, 6.5, 13, col);
    c.box(12.5, 1, 14, 11, col);
    QPainterPath h1, h2;
    h1.addEllipse(QPointF(3.7, 13), 2.5, 2);
    h2.addEllipse(QPointF(11.2, 11), 2.5, 2);
    c.fill(h1, col);
    c.fill(h2, col);
}

void film(Canvas& c, QColor col)
{
    c.box(2, 1, 14, 15, ink);
    for (int y = 2; y < 15; y += 3) {
        c.box(3, y, 4.5, y + 1.5, white);
        c.box(11.5, y, 13, y + 1.5, white);
    }
    c.box(5.5, 2, 10.5, 7.5, col);
    c.box(5.5, 8.5, 10.5, 14, light(col));
}

void speaker(Canvas& c, QColor col)
{
    shape(c, poly({{1.5, 5.5}, {4.5, 5.5}, {8.5, 1.5}, {8.5, 14.5}, {4.5, 10.5}, {1.5, 10.5}}), col, dark(col));
    QPainterPath w1, w2;
    w1.arcMoveTo(QRectF(6.5, 4.5, 5, 7), 50);
    w1.arcTo(QRectF(6.5, 4.5, 5, 7), 50, -100);
    w2.arcMoveTo(QRectF(6, 2, 9, 12), 55);
    w2.arcTo(QRectF(6, 2, 9, 12), 55, -110);
    c.stroke(w1, ink, 1.3, true);
    c.stroke(w2, ink, 1.3, true);
}

void chain(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal s = 1)
{
    c.p.save();
    c.p.translate(cx, cy);
    c.p.scale(s, s);
    c.p.rotate(-45);
    QPainterPath a, b;
    a.addRoundedRect(QRectF(-7.6, -2.6, 8.6, 5.2), 2.6, 2.6);
    b.addRoundedRect(QRectF(-1, -2.6, 8.6, 5.2), 2.6, 2.6);
    c.stroke(a, col, 1.9);
    c.stroke(b, dark(col), 1.9);
    c.p.restore();
}

// "<" and ">" with something between them: the sign of a tag insertion.
void brackets(Canvas& c, QColor col = ink)
{
    c.stroke(poly({{4.2, 3.5}, {1, 8}, {4.2, 12.5}}, false), col, 1.5, true);
    c.stroke(poly({{11.8, 3.5}, {15, 8}, {11.8, 12.5}}, false), col, 1.5, true);
}

void tagLetter(Canvas& c, const QString& letter, int style = Canvas::Bold, qreal px = 11)
{
    brackets(c);
    c.text(QRectF(4, 2, 8, 12), letter, c.accent, px, style);
}

// "{ }" drawn as two strokes, filling `area`.
void codeBraces(Canvas& c, QColor col, QRectF area = QRectF(1, 1, 14, 14), qreal = 0)
{
    const qreal w = area.width(), h = area.height(), x = area.left(), y = area.top();
    const qreal bw = qMin(w * 0.3, h * 0.35), pen = qMax(1.2, h / 9);
    auto brace = [&](qreal x0, qreal dir) {
        QPainterPath b;
        const qreal xo = x0, xi = x0 + dir * bw * 0.5, xt = x0 + dir * bw;
        b.moveTo(xt, y + pen / 2);
        b.quadTo(xi, y + pen / 2, xi, y + h * 0.2);
        b.lineTo(xi, y + h * 0.38);
        b.quadTo(xi, y + h / 2, xo, y + h / 2);
        b.quadTo(xi, y + h / 2, xi, y + h * 0.62);
        b.lineTo(xi, y + h * 0.8);
        b.quadTo(xi, y + h - pen / 2, xt, y + h - pen / 2);
        c.stroke(b, col, pen, true);
    };
    brace(x + pen / 2, 1);
    brace(x + w - pen / 2, -1);
}

void field(Canvas& c, qreal x0, qreal y0, qreal x1, qreal y1)
{
    c.frame(x0, y0, x1, y1, white, ink);
}

void bubble(Canvas& c, QColor fill, QColor line, qreal x0 = 1, qreal y0 = 2, qreal x1 = 15, qreal y1 = 11)
{
    QPainterPath b;
    b.addRoundedRect(QRectF(x0 + .5, y0 + .5, x1 - x0 - 1, y1 - y0 - 1), 2, 2);
    QPainterPath tail = poly({{x0 + 3, y1 - 1}, {x0 + 3, y1 + 3.5}, {x0 + 7, y1 - 1}});
    QPainterPath all = b.united(tail);
    shape(c, all, fill, line);
}

void server(Canvas& c, QColor col)
{
    for (int i = 0; i < 2; ++i) {
        const qreal y = 1 + i * 6;
        c.frame(2, y, 14, y + 5, col, dark(col));
        c.box(4, y + 2, 8, y + 3, light(col).lighter(140));
        c.box(11, y + 2, 12, y + 3, yellow);
    }
    c.box(7.5, 13, 8.5, 15, ink);
    c.box(3, 14.5, 13, 15.5, ink);
}

void eye(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal s = 1)
{
    QPainterPath almond;
    almond.moveTo(cx - 7 * s, cy);
    almond.quadTo(cx, cy - 8 * s, cx + 7 * s, cy);
    almond.quadTo(cx, cy + 8 * s, cx - 7 * s, cy);
    shape(c, almond, white, ink);
    c.circle(cx, cy, 2.7 * s, col);
    c.circle(cx, cy, 1.1 * s, ink);
}

void pencil(Canvas& c, QColor col, qreal cx = 8, qreal cy = 8, qreal s = 1)
{
    c.p.save();
    c.p.translate(cx, cy);
    c.p.scale(s, s);
    c.p.rotate(-45);
    c.box(-4, -2, 6.5, 2, col);
    c.box(-4, -2, 6.5, -1.2, dark(col));
    c.box(6.5, -2, 8.5, 2, soft);
    c.polygon({{-4, -2}, {-8.5, 0}, {-4, 2}}, QColor(0xF1, 0xD3, 0xA0));
    c.polygon({{-6.6, -0.85}, {-8.5, 0}, {-6.6, 0.85}}, ink);
    c.p.restore();
}

void trash(Canvas& c, QColor col, qreal x = 0, qreal y = 0)
{
    c.box(x + 2, y + 3, x + 14, y + 4.5, ink);
    c.box(x + 6, y + 1, x + 10, y + 3, ink);
    shape(c, poly({{x + 3.5, y + 5}, {x + 12.5, y + 5}, {x + 11.5, y + 15.5}, {x + 4.5, y + 15.5}}), col, dark(col));
    c.box(x + 6, y + 7, x + 7, y + 14, white);
    c.box(x + 9, y + 7, x + 10, y + 14, white);
}

void book(Canvas& c, QColor col, qreal x0 = 2, qreal y0 = 1, qreal x1 = 14, qreal y1 = 15)
{
    c.frame(x0, y0, x1, y1, col, dark(col));
    c.box(x0 + 2, y1 - 3, x1, y1 - 1, white);
    c.box(x0 + 2, y1 - 1, x1, y1, dark(col));
    c.box(x0 + 2, y0, x0 + 3, y1 - 3, dark(col));
    c.box(x0 + 5, y0 + 3, x1 - 2, y0 + 4, white);
}

void refreshArrows(Canvas& c, QColor col)
{
    QPainterPath a, b;
    a.arcMoveTo(QRectF(2.5, 2.5, 11, 11), 160);
    a.arcTo(QRectF(2.5, 2.5, 11, 11), 160, -130);
    b.arcMoveTo(QRectF(2.5, 2.5, 11, 11), -20);
    b.arcTo(QRectF(2.5, 2.5, 11, 11), -20, -130);
    c.stroke(a, col, 2, false);
    c.stroke(b, col, 2, false);
    c.polygon({{15.5, 5}, {13.2, 9.5}, {10, 5.3}}, col);
    c.polygon({{0.5, 11}, {2.8, 6.5}, {6, 10.7}}, col);
}

void sliders(Canvas& c, QColor col)
{
    for (int i = 0; i < 3; ++i) {
        const qreal y = 3 + i * 5;
        c.box(1, y - 1, 15, y, mid);
        const qreal x = i == 0 ? 5 : i == 1 ? 11 : 7;
        c.frame(x - 2, y - 3, x + 2, y + 2, col, dark(col));
    }
}

void layoutPanels(Canvas& c, QColor col)
{
    windowShape(c, col, 1, 1, 15, 15);
    c.box(2, 4, 6, 14, light(col).lighter(150));
    c.box(6, 4, 7, 14, ink);
    c.box(8, 6, 14, 7, soft);
    c.box(8, 8, 13, 9, soft);
    c.box(8, 10, 14, 11, soft);
}

void sitemap(Canvas& c, QColor col)
{
    c.frame(5, 1, 11, 5, col, dark(col));
    c.box(7.5, 5, 8.5, 8, ink);
    c.box(3, 7.5, 13, 8.5, ink);
    c.box(2.5, 8, 3.5, 10, ink);
    c.box(12.5, 8, 13.5, 10, ink);
    c.box(7.5, 8, 8.5, 10, ink);
    c.frame(0, 10, 6, 15, white, ink);
    c.frame(5, 10, 11, 15, white, ink);
    c.frame(10, 10, 16, 15, white, ink);
}

void cube(Canvas& c, QColor col)
{
    const QPointF top(8, 1), left(1.5, 4.5), right(14.5, 4.5), mid2(8, 8), bl(1.5, 11.5), br(14.5, 11.5), bottom(8, 15);
    c.polygon({top, right, mid2, left}, light(col));
    c.polygon({left, mid2, bottom, bl}, col);
    c.polygon({mid2, right, br, bottom}, dark(col));
    c.stroke(poly({top, right, br, bottom, bl, left}), dark(col), 0.8);
}

void checkBox(Canvas& c, QColor col, qreal x0 = 2, qreal y0 = 2, qreal x1 = 14, qreal y1 = 14)
{
    c.frame(x0, y0, x1, y1, white, ink);
    const qreal w = x1 - x0;
    c.stroke(poly({{x0 + w * 0.22, y0 + w * 0.52}, {x0 + w * 0.42, y0 + w * 0.72}, {x0 + w * 0.8, y0 + w * 0.28}}, false), col, w / 6, false);
}

void radio(Canvas& c, QColor col)
{
    c.circle(8, 8, 6.5, white);
    c.ring(8, 8, 6.5, ink, 1);
    c.circle(8, 8, 3, col);
}

void pushButton(Canvas& c, QColor col, const QString& label = QString())
{
    QPainterPath b;
    b.addRoundedRect(QRectF(0.5, 3.5, 15, 9), 2.5, 2.5);
    shape(c, b, col, dark(col));
    if (label.isEmpty())
        c.box(4, 7.5, 12, 8.5, white);
    else
        c.text(QRectF(1, 4, 14, 8), label, white, 7, Canvas::Bold);
}

void dropDown(Canvas& c, QColor col)
{
    c.frame(0, 4, 16, 12, white, ink);
    c.box(11, 4, 16, 12, col);
    c.frame(11, 4, 16, 12, col, ink);
    c.polygon({{12, 7}, {15, 7}, {13.5, 9}}, white);
    c.box(2, 7.5, 9, 8.5, soft);
}

void scrollbar(Canvas& c, QColor col)
{
    c.frame(5, 0, 11, 16, pale, ink);
    c.polygon({{8, 1.8}, {10, 4}, {6, 4}}, ink);
    c.polygon({{8, 14.2}, {10, 12}, {6, 12}}, ink);
    c.box(6, 6, 10, 10, col);
}

void terminal(Canvas& c, QColor col)
{
    c.frame(1, 2, 15, 14, QColor(0x26, 0x32, 0x38), ink);
    c.box(1, 2, 15, 4, col);
    c.stroke(poly({{3.5, 6.5}, {6, 8.5}, {3.5, 10.5}}, false), white, 1.2);
    c.box(7, 10, 11, 11, white);
}

void tooltip(Canvas& c)
{
    bubble(c, paleYellow, QColor(0xB0, 0x90, 0x20), 1, 2, 15, 11);
    c.box(4, 5, 12, 6, mid);
    c.box(4, 7, 10, 8, mid);
}

void person(Canvas& c, QColor col, qreal cx, qreal cy, qreal s)
{
    c.circle(cx, cy - 2.2 * s, 2 * s, col);
    QPainterPath body;
    body.addEllipse(QPointF(cx, cy + 3 * s), 3.6 * s, 2.8 * s);
    QPainterPath clip;
    clip.addRect(QRectF(cx - 4 * s, cy + 0.6 * s, 8 * s, 2.6 * s));
    c.fill(body.intersected(clip), col);
}

void windowArrow(Canvas& c, QColor col, int direction)
{
    windowShape(c, col, 0, 1, 12, 11);
    badgeArrow(c, col, direction);
}

void caseLetters(Canvas& c, QColor col, bool upper)
{
    c.text(QRectF(0, 1, 11, 14), upper ? QStringLiteral("A") : QStringLiteral("a"), ink, upper ? 14 : 13, Canvas::Bold);
    c.p.save();
    c.p.translate(13, 8);
    if (!upper)
        c.p.rotate(180);
    c.polygon({{0, -6.5}, {3, -2.5}, {-3, -2.5}}, col);
    c.box(-0.8, -3, 0.8, 6, col);
    c.p.restore();
}

void playTriangle(Canvas& c, QColor col, qreal x0 = 2, qreal y0 = 1, qreal h = 13)
{
    QPainterPath t = poly({{x0 + .5, y0 + .5}, {x0 + h * 0.85, y0 + h / 2}, {x0 + .5, y0 + h - .5}});
    shape(c, t, col, dark(col));
}

void macroPlay(Canvas& c, int number)
{
    playTriangle(c, cMacro, 0, 0, 13);
    const QString n = QString::number(number);
    const int w = Canvas::digitsWidth(n);
    // A cell of white on each side keeps the digits off the frame.
    c.frame(16 - w - 4, 7, 16, 16, white, ink);
    c.digits(16 - w - 2, 9, n, ink);
}

void thumbnails(Canvas& c, QColor col)
{
    for (int i = 0; i < 4; ++i) {
        const qreal x = (i % 2) * 8, y = (i / 2) * 8;
        c.frame(x, y, x + 7, y + 7, white, ink);
        c.polygon({{x + 1, y + 6}, {x + 3, y + 3}, {x + 6, y + 6}}, i % 3 == 0 ? col : light(col));
    }
}

void bricks(Canvas& c, QColor col)
{
    const qreal rowsY[6] = {10, 10, 10, 5, 5, 0};
    for (int i = 0; i < 6; ++i) {
        const qreal x = i < 3 ? 0.5 + i * 5 : i < 5 ? 3 + (i - 3) * 5 : 5.5;
        const qreal y = rowsY[i] + 0.5;
        c.frame(x, y, x + 5, y + 5, i % 2 ? light(col) : col, dark(col));
    }
}

void priceTag(Canvas& c, QColor col)
{
    QPainterPath tag = poly({{1.5, 8}, {5.5, 3.5}, {14.5, 3.5}, {14.5, 12.5}, {5.5, 12.5}});
    shape(c, tag, col, dark(col));
    c.circle(5, 8, 1.2, white);
    c.box(8, 7.5, 13, 8.5, white);
}

void door(Canvas& c, QColor col)
{
    c.frame(2, 1, 11, 15, light(col).lighter(150), ink);
    c.polygon({{2, 1}, {7.5, 3}, {7.5, 16}, {2, 15}}, col);
    c.box(6, 8, 7, 9, white);
    c.box(9, 7.25, 13, 8.75, ink);
    c.polygon({{12, 4.5}, {16, 8}, {12, 11.5}}, ink);
}

void treeDiagram(Canvas& c, QColor col)
{
    c.frame(1, 1, 6, 5, col, dark(col));
    c.box(3, 5, 4, 13, ink);
    c.box(3, 7.5, 8, 8.5, ink);
    c.box(3, 12, 8, 13, ink);
    c.frame(8, 6, 15, 10, light(col), dark(col));
    c.frame(8, 10.5, 15, 14.5, light(col), dark(col));
}

void rgbCircles(Canvas& c)
{
    c.p.save();
    c.p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    c.circle(8, 5.5, 4.5, QColor(230, 60, 60, 220));
    c.circle(5.2, 10.3, 4.5, QColor(60, 170, 80, 220));
    c.circle(10.8, 10.3, 4.5, QColor(40, 110, 220, 220));
    c.p.restore();
}

void pipette(Canvas& c, QColor col)
{
    c.p.save();
    c.p.translate(8, 8);
    c.p.rotate(45);
    c.box(-1.4, -7.5, 1.4, -4, ink);
    c.box(-2.6, -4.5, 2.6, -3, ink);
    c.frame(-1.5, -3, 1.5, 5, white, ink);
    c.box(-0.5, 0, 0.5, 4, col);
    c.polygon({{-0.8, 5}, {0.8, 5}, {0, 7.5}}, ink);
    c.p.restore();
    c.circle(3, 13.5, 1.6, col);
}

void keyboardKey(Canvas& c, QColor col, const QString& letter)
{
    QPainterPath k;
    k.addRoundedRect(QRectF(1.5, 1.5, 13, 13), 2.5, 2.5);
    shape(c, k, white, ink);
    c.box(2, 12, 14, 14, pale);
    c.text(QRectF(2, 2, 12, 10), letter, col, 9, Canvas::Bold);
}

void markedLines(Canvas& c, QColor col, int markRow, QColor mark)
{
    for (int i = 0; i < 4; ++i) {
        const qreal y = 2 + i * 3.5;
        c.box(1, y, i % 2 ? 11 : 15, y + 1.5, i == markRow ? mark : soft);
    }
    (void)col;
}
}

// The table of pictures, in the order of the menus, then the other windows' pictures.
QList<IconDef> allIcons()
{
    QList<IconDef> list;
    auto add = [&list](const char* name, const char* shows, QColor accent, Draw d) {
        list.append({QString::fromUtf8(name), QString::fromUtf8(shows), accent, std::move(d)});
    };

    // -- Top-level menus and the submenu keys ----------------------------------------------
    add("keyFile", "File menu: a closed folder", cFile, [](Canvas& c) { folder(c, c.accent, false); });
    add("KeyFile", "File menu, second part: a lined page", cFile, [](Canvas& c) { linedPage(c); });
    add("keyEdit", "Edit menu: a pencil", cEdit, [](Canvas& c) { pencil(c, c.accent); });
    add("KeyEdit", "Edit menu, second part: a pencil on a page", cEdit, [](Canvas& c) { linedPage(c); pencil(c, c.accent, 10, 10, 0.7); });
    add("keyView", "View menu: an eye", cView, [](Canvas& c) { eye(c, c.accent); });
    add("KeyView", "View menu, second part: a window with an eye", cView, [](Canvas& c) { windowShape(c, c.accent); eye(c, c.accent, 8, 9.5, 0.65); });
    add("keyInsert", "Insert menu: a page with a plus", cInsert, [](Canvas& c) { linedPage(c); badgePlus(c, c.accent); });
    add("KeyInsert", "Insert menu, second part: a caret and a plus", cInsert, [](Canvas& c) {
        c.box(5, 1, 6.5, 15, ink); c.box(2.5, 1, 9, 2.5, ink); c.box(2.5, 13.5, 9, 15, ink); badgePlus(c, c.accent); });
    add("keyText", "Text menu: a capital A over a bar", cText, [](Canvas& c) {
        c.text(QRectF(1, 0, 14, 12), QStringLiteral("A"), ink, 13, Canvas::Bold); c.box(1, 13, 15, 16, c.accent); });
    add("keyMacro", "Macro menu: a record dot and a play triangle", cMacro, [](Canvas& c) {
        c.circle(4.5, 8, 4, c.accent); playTriangle(c, dark(c.accent), 8, 2, 12); });
    add("keyTools", "Tools menu: a gear", cTools, [](Canvas& c) { gear(c, c.accent); });
    add("keyWindow", "Window menu: two overlapping windows", cWindow, [](Canvas& c) {
        windowShape(c, light(c.accent), 0, 1, 11, 10); windowShape(c, c.accent, 5, 6, 16, 15); });
    add("keyHelp", "Help menu: a question mark in a circle", cHelp, [](Canvas& c) {
        c.circle(8, 8, 7.5, c.accent); c.text(QRectF(1, 1, 14, 14), QStringLiteral("?"), white, 12, Canvas::Bold); });
    add("KeyExtras", "Extras submenu: a sparkle", cInsert, [](Canvas& c) {
        QPainterPath s = poly({{8, 0.5}, {9.6, 6.4}, {15.5, 8}, {9.6, 9.6}, {8, 15.5}, {6.4, 9.6}, {0.5, 8}, {6.4, 6.4}});
        shape(c, s, c.accent, dark(c.accent)); });
    add("KeyForm", "Form submenu: a form with two fields and a button", cInsert, [](Canvas& c) {
        c.frame(0, 0, 16, 16, pale, ink); field(c, 2, 2, 14, 5); field(c, 2, 6, 14, 9); c.box(7, 11, 14, 14, c.accent); });
    add("KeyMedia", "MultiMedia submenu: a film strip with a note", cInsert, [](Canvas& c) {
        film(c, c.accent); badge(c, ink); c.box(12, 9.5, 13.2, 13.5, white); c.circle(11.2, 13.5, 1.3, white); });
    add("KeyTable", "Table submenu: a table with a heading row", cInsert, [](Canvas& c) { tableGrid(c, c.accent); });
    add("KeyFormat", "Format Text submenu: large and small letters", cText, [](Canvas& c) {
        c.text(QRectF(0, 1, 10, 14), QStringLiteral("A"), ink, 14, Canvas::Bold);
        c.text(QRectF(9, 5, 7, 10), QStringLiteral("a"), c.accent, 10, Canvas::Bold); });
    add("KeyPhysical", "Physical Styles submenu: a bold A in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("A")); });
    add("KeyLogical", "Logical Styles submenu: a slanted A in tag brackets", cText, [](Canvas& c) {
        tagLetter(c, QStringLiteral("A"), Canvas::Bold | Canvas::Slanted); });
    add("KeyParagraph", "Paragraph Styles submenu: a pilcrow", cText, [](Canvas& c) {
        c.text(QRectF(1, 0, 14, 16), QString(QChar(0x00B6)), c.accent, 15, Canvas::Bold); });
    add("KeyOther", "Other Styles submenu: an ellipsis in tag brackets", cText, [](Canvas& c) {
        brackets(c); for (int i = 0; i < 3; ++i) c.box(5 + i * 2.25, 9, 6.5 + i * 2.25, 10.5, c.accent); });
    add("KeyAdvanced", "Advanced Files submenu: a page with a gear", cFile, [](Canvas& c) {
        linedPage(c); c.circle(12, 12, 4.8, white); gear(c, c.accent, 12, 12, 4); });
    add("KeyTemplates", "Templates submenu: a page with a layout of blocks", cFile, [](Canvas& c) {
        page(c); c.box(4, 5, 12, 8, light(c.accent)); c.box(4, 9, 7, 14, soft); c.box(8, 9, 12, 10, soft); c.box(8, 11, 12, 12, soft); c.box(8, 13, 11, 14, soft); });
    add("KeyFTP", "Upload Via FTP submenu: a server with an up arrow", cNet, [](Canvas& c) { server(c, c.accent); badgeArrow(c, green, 0); });
    add("KeyToolbarAlign", "Toolbar Align submenu: a window with bars at the top and bottom", cView, [](Canvas& c) {
        c.frame(1, 1, 15, 15, white, ink); c.box(2, 2, 14, 5, c.accent); c.box(2, 11, 14, 14, light(c.accent));
        c.polygon({{8, 6}, {10, 8}, {6, 8}}, ink); c.polygon({{8, 10}, {10, 8.5}, {6, 8.5}}, ink); });

    // -- File --------------------------------------------------------------------------------
    add("keyNew", "New: a page with a plus", cFile, [](Canvas& c) { linedPage(c); badgePlus(c); });
    add("KeyOpen", "Open: an open folder", cFile, [](Canvas& c) { folder(c, c.accent, true); });
    add("keyOpen", "Open (the submenu's parent key): an open folder with a page", cFile, [](Canvas& c) {
        folder(c, c.accent, false); page(c, 4, 0, 12, 9, 3); folder(c, c.accent, true, 2, 15); });
    add("Web", "Web: a globe", cNet, [](Canvas& c) { globe(c, c.accent); });
    add("Save", "Save: a floppy disk", cFile, [](Canvas& c) { floppy(c, c.accent); });
    add("Save As", "Save As: a floppy disk with a pencil", cFile, [](Canvas& c) {
        floppy(c, c.accent); c.circle(12, 12, 4.8, white); pencil(c, cEdit, 12, 12, 0.55); });
    add("Properties", "Page Properties: a page with an information badge", cFile, [](Canvas& c) { linedPage(c); badgeInfo(c, c.accent); });
    add("Printsetup", "Print Setup: a page with dashed margins", cFile, [](Canvas& c) {
        page(c);
        for (int y = 5; y < 14; y += 2) { c.box(4, y, 5, y + 1, c.accent); c.box(11, y, 12, y + 1, c.accent); }
        for (int x = 6; x < 11; x += 2) c.box(x, 13, x + 1, 14, c.accent);
        textLines(c, 6, 10, {6, 8, 10}); });
    add("Print", "Print: a printer", cFile, [](Canvas& c) { printer(c, c.accent); });
    add("Close", "Close: a page with a red cross", cFile, [](Canvas& c) { linedPage(c); badgeCross(c); });
    add("Close All", "Close All: two pages with a red cross", cFile, [](Canvas& c) { twoPages(c); badgeCross(c); });
    add("Exit", "Exit: a door with an arrow leaving", cFile, [](Canvas& c) { door(c, c.accent); });

    add("Main New Window", "StartUp Window: a window with a star", cFile, [](Canvas& c) { windowShape(c, c.accent, 0, 1, 14, 13); badgeStar(c); });
    add("Site Managment", "Site Managment Solution: a site map of pages", cFile, [](Canvas& c) { sitemap(c, c.accent); });
    add("Quick html Page", "Quick html Page: a page with tag brackets and a lightning bolt", cFile, [](Canvas& c) {
        page(c, 0, 0, 12, 16); c.stroke(poly({{4.5, 5}, {2.5, 7.5}, {4.5, 10}}, false), c.accent, 1.3);
        c.stroke(poly({{7.5, 5}, {9.5, 7.5}, {7.5, 10}}, false), c.accent, 1.3); lightning(c); });
    add("Quick Split html Page", "Quick Split html Page: a page split into code and preview, with a lightning bolt", cFile, [](Canvas& c) {
        page(c, 0, 0, 13, 16); c.box(6, 4, 7, 15, ink); textLines(c, 2, 6, {5, 7, 9, 11});
        c.box(8, 5, 11, 9, light(c.accent)); lightning(c); });
    add("Quick Notepad", "Quick Notepad: a spiral notepad with a lightning bolt", cFile, [](Canvas& c) {
        c.frame(1, 2, 13, 16, white, ink); for (int x = 3; x < 12; x += 3) c.box(x, 0, x + 1, 4, ink);
        textLines(c, 3, 11, {6, 8, 10, 12}); lightning(c); });
    add("Quick Note", "Quick Note: a yellow sticky note", cFile, [](Canvas& c) { stickyNote(c); });
    add("CSS Document", "Create + Edit .CSS Documents: a page with braces", cFile, [](Canvas& c) {
        page(c); codeBraces(c, c.accent, QRectF(4.5, 5, 7, 9)); });

    add("From Files", "From Files: an open folder with a page", cFile, [](Canvas& c) {
        folder(c, c.accent, false); page(c, 4, 0, 12, 9, 3); folder(c, c.accent, true, 2, 15); });
    add("From Templates", "From Templates: a template page with an arrow", cFile, [](Canvas& c) {
        page(c); c.box(4, 5, 12, 8, light(c.accent)); c.box(4, 9, 7, 14, soft); badgeArrow(c, c.accent, 1); });
    add("From Note's", "From Quick Note's: a sticky note with an arrow", cFile, [](Canvas& c) { stickyNote(c, 0, 0, 13, 13); badgeArrow(c, c.accent, 1); });
    add("From Internet", "Open From Internet: a globe with a down arrow", cNet, [](Canvas& c) { globe(c, c.accent, 7, 7, 6.5); badgeArrow(c, green, 2); });

    add("Top", "Top: a window with its bar at the top", cView, [](Canvas& c) {
        c.frame(1, 1, 15, 15, white, ink); c.box(2, 2, 14, 5, c.accent); textLines(c, 3, 13, {7, 9, 11}); });
    add("Bottom", "Bottom: a window with its bar at the bottom", cView, [](Canvas& c) {
        c.frame(1, 1, 15, 15, white, ink); c.box(2, 11, 14, 14, c.accent); textLines(c, 3, 13, {3, 5, 7}); });
    add("EasyRGB", "EasyRGB.com: three overlapping colour circles", cNet, [](Canvas& c) { rgbCircles(c); });
    add("Developerfusion", "Developerfusion.com: a globe with braces", cNet, [](Canvas& c) {
        globe(c, c.accent, 7, 7, 6.5); badge(c, ink); codeBraces(c, white, QRectF(9.3, 9.5, 5.4, 5)); });
    add("MSDN", "Microsoft MSDN: a globe with a book", cNet, [](Canvas& c) {
        globe(c, c.accent, 7, 7, 6.5); c.box(8, 8, 16, 16, white); book(c, cHelp, 9, 8.5, 15.5, 16); });
    add("Create FTP Profile's", "Create FTP Profile's: a server with a person", cNet, [](Canvas& c) {
        server(c, c.accent); c.circle(12, 12, 4.8, white); c.circle(12, 12, 4, ink); person(c, white, 12, 12.3, 0.85); });

    add("Velloro Templates", "Velloro Templates: stacked template pages with a star", cFile, [](Canvas& c) {
        page(c, 0, 0, 10, 12, 3); page(c, 3, 3, 13, 15, 3); c.box(5, 7, 11, 9, light(c.accent)); c.box(5, 10, 8, 13, soft); badgeStar(c); });
    add("Load Own Templates", "Load Own Templates: a template page from a folder", cFile, [](Canvas& c) {
        page(c, 4, 0, 16, 12, 3); c.box(6, 4, 13, 6, light(c.accent)); c.box(6, 7, 9, 10, soft);
        shifted(c, 0, 6, 0.62, [](Canvas& c2) { folder(c2, c2.accent, true); }); });
    add("Create Templates", "Create/Save Own Templates: a template page with a plus", cFile, [](Canvas& c) {
        page(c); c.box(4, 5, 12, 8, light(c.accent)); c.box(4, 9, 7, 14, soft); badgePlus(c); });

    add("Insert .CSV File", "Insert .CSV File: a page of comma-separated values", cFile, [](Canvas& c) {
        page(c); for (int y = 5; y <= 11; y += 3) { c.box(4, y, 7, y + 1, soft); c.box(9, y, 12, y + 1, soft); c.box(7.5, y, 8.5, y + 2, c.accent); } });
    add("Insert TAB File", "Insert Tab-delimited File: a page with tab arrows", cFile, [](Canvas& c) {
        page(c); for (int y = 5; y <= 11; y += 3) { c.box(4, y + .5, 8, y + 1.5, c.accent); c.polygon({{8, y - .5}, {10, y + 1.0}, {8, y + 2.5}}, c.accent); c.box(10, y - .5, 11, y + 2.5, c.accent); } });
    add("Email File", "Email File: an envelope with a page", cFile, [](Canvas& c) { page(c, 3, 0, 13, 10, 3); envelope(c, c.accent, 1, 6, 15, 15); });
    add("Delete Current File", "Delete Current File: a page with a bin", cFile, [](Canvas& c) {
        linedPage(c); c.box(7, 6, 16, 16, white); shifted(c, 8, 7, 0.56, [](Canvas& c2) { trash(c2, red); }); });
    add("Delete Files", "Delete Files: two pages with a bin", cFile, [](Canvas& c) {
        twoPages(c); c.box(7, 6, 16, 16, white); shifted(c, 8, 7, 0.56, [](Canvas& c2) { trash(c2, red); }); });

    // -- Edit --------------------------------------------------------------------------------
    add("Undo", "Undo: an arrow turning back to the left", cEdit, [](Canvas& c) { curvedArrow(c, c.accent); });
    add("Redo", "Redo: an arrow turning forward to the right", cEdit, [](Canvas& c) { mirrored(c, [](Canvas& c2) { curvedArrow(c2, c2.accent); }); });
    add("Cut", "Cut: scissors", cEdit, [](Canvas& c) { scissors(c, c.accent); });
    add("Copy", "Copy: two pages", cEdit, [](Canvas& c) { twoPages(c); c.box(7, 9, 13, 10, c.accent); });
    add("Paste", "Paste: a clipboard with a page", cEdit, [](Canvas& c) { clipboard(c, c.accent); });
    add("Select All", "Select All: lines of text inside a dashed selection", cEdit, [](Canvas& c) {
        for (int i = 0; i < 16; i += 2) { c.box(i, 0, i + 1, 1, ink); c.box(i + 1, 15, i + 2, 16, ink); c.box(0, i + 1, 1, i + 2, ink); c.box(15, i, 16, i + 1, ink); }
        for (int y = 3; y < 13; y += 3) c.box(3, y, 13, y + 2, light(c.accent)); });
    add("Delete Selected", "Delete Selected: a selection with a red cross", cEdit, [](Canvas& c) {
        for (int i = 0; i < 12; i += 2) { c.box(i, 0, i + 1, 1, ink); c.box(0, i + 1, 1, i + 2, ink); }
        c.box(3, 3, 12, 5, light(c.accent)); c.box(3, 6, 9, 8, light(c.accent)); badgeCross(c); });
    add("Delete Current Line", "Delete Current Line: lines of text, one struck out in red", cEdit, [](Canvas& c) {
        markedLines(c, c.accent, 1, red); c.box(0, 6.25, 16, 7.25, red); });
    add("Clear Clipboard", "Clear Clipboard: an empty clipboard with a cross", cEdit, [](Canvas& c) {
        clipboard(c, c.accent, false); badgeCross(c); });
    add("Find + Replace", "Find + Replace: a magnifier with two arrows", cEdit, [](Canvas& c) {
        magnifier(c, 6, 6, 4.8); badge(c, c.accent);
        c.stroke(poly({{9.8, 11}, {13.8, 11}}, false), white, 1.2); c.polygon({{14.6, 11}, {12.6, 9.4}, {12.6, 12.6}}, white);
        c.stroke(poly({{14.2, 13.4}, {10.2, 13.4}}, false), white, 1.2); });
    add("GoTo Line", "GoTo Line: an arrow pointing at one line of text", cEdit, [](Canvas& c) {
        for (int i = 0; i < 4; ++i) c.box(6, 2 + i * 3.5, i % 2 ? 13 : 16, 3.5 + i * 3.5, i == 2 ? c.accent : soft);
        c.polygon({{0, 6.5}, {4.5, 10}, {0, 13.5}}, c.accent); });
    add("Previous Line", "Previous Line: lines of text with an up arrow", cEdit, [](Canvas& c) {
        markedLines(c, c.accent, 1, c.accent); badgeArrow(c, c.accent, 0); });
    add("Next Line", "Next Line: lines of text with a down arrow", cEdit, [](Canvas& c) {
        markedLines(c, c.accent, 2, c.accent); badgeArrow(c, c.accent, 2); });

    // -- View --------------------------------------------------------------------------------
    add("Tooltip Box", "Tooltip Box: a yellow tooltip with text", cView, [](Canvas& c) { tooltip(c); });
    auto quickBar = [](Canvas& c) {
        c.frame(0, 1, 14, 15, white, ink); c.box(9, 2, 13, 14, light(c.accent));
        c.box(9, 2, 10, 14, ink); textLines(c, 2, 8, {4, 6, 8, 10}); lightning(c, 1, 0); };
    add("Quick Bar", "Quick Bar: a window with a side bar and a lightning bolt", cView, quickBar);
    add("Preview in Velloro", "Preview in Velloro: a window with an eye", cView, [](Canvas& c) { windowShape(c, c.accent); eye(c, c.accent, 8, 9.5, 0.65); });
    add("Preview .html Files In Explorer", "Preview .html Files In Explorer: a browser window with a globe", cView, [](Canvas& c) {
        windowShape(c, c.accent); globe(c, cNet, 8, 9.5, 3.8); });
    add("Open in Default App", "Open in Default App: a window with an arrow leaving it", cView, [](Canvas& c) {
        c.frame(0, 3, 13, 16, white, ink); c.box(0, 3, 13, 5, c.accent); c.box(8, 0, 16, 8, white);
        c.line(7, 9, 14, 2, ink, 1.6); c.polygon({{9.5, 1}, {15, 1}, {15, 6.5}}, ink); });
    add("Left Margin", "Left Margin: a page with a coloured left margin", cView, [](Canvas& c) {
        c.frame(1, 0, 15, 16, white, ink); c.box(2, 1, 5, 15, c.accent); textLines(c, 7, 13, {3, 6, 9, 12}); });
    add("Margin Numbers", "Margin Numbers: numbered lines", cView, [](Canvas& c) {
        c.frame(0, 0, 16, 16, white, ink); c.box(1, 1, 6, 15, c.accent);
        c.digits(2, 2, QStringLiteral("1"), white); c.digits(2, 9, QStringLiteral("2"), white);
        c.box(8, 4, 14, 5, soft); c.box(8, 11, 13, 12, soft); });
    add("White Spaces", "White Spaces: dots between words and a pilcrow", cView, [](Canvas& c) {
        c.box(1, 3, 5, 5, soft); c.box(6, 4, 7, 5, c.accent); c.box(9, 3, 14, 5, soft);
        c.box(1, 8, 3, 10, soft); c.box(4, 9, 5, 10, c.accent); c.box(7, 8, 10, 10, soft);
        c.text(QRectF(10, 6, 6, 10), QString(QChar(0x00B6)), c.accent, 9, Canvas::Bold);
        c.box(1, 13, 8, 15, soft); });
    add("Save Layout", "Save Layout: a panel layout with a down arrow", cView, [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { layoutPanels(c2, c2.accent); }); badgeArrow(c, c.accent, 2); });
    add("Load Layout", "Load Layout: a panel layout with an up arrow", cView, [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { layoutPanels(c2, c2.accent); }); badgeArrow(c, c.accent, 0); });

    // -- Insert ------------------------------------------------------------------------------
    add("Text", "Text: a capital T with a caret", cInsert, [](Canvas& c) {
        c.text(QRectF(0, 1, 12, 14), QStringLiteral("T"), ink, 15, Canvas::Bold | Canvas::Serif); c.box(13, 3, 14.5, 15, c.accent); });
    add("Image", "Image: a picture of a hill and the sun", cInsert, [](Canvas& c) { picture(c, c.accent); });
    add("Email", "Email: an envelope", cInsert, [](Canvas& c) { envelope(c, c.accent); });
    auto marquee = [](Canvas& c) {
        c.frame(0, 3, 16, 13, white, ink); c.box(5, 7, 14, 9, soft);
        c.polygon({{1.5, 8}, {4, 5.5}, {4, 10.5}}, c.accent); };
    add("Marquee", "Marquee: a band of text moving left", cInsert, marquee);
    add("Break", "Break: a line-break arrow", cInsert, [](Canvas& c) {
        c.stroke(poly({{13.5, 2}, {13.5, 10.5}, {4, 10.5}}, false), c.accent, 2.2); c.polygon({{0.8, 10.5}, {5.5, 6}, {5.5, 15}}, c.accent); });
    add("Script", "Script: a page of code in braces", cInsert, [](Canvas& c) { codeBraces(c, c.accent, QRectF(1.5, 1, 13, 14)); });
    add("Hyperlink", "Hyperlink: two chain links", cInsert, [](Canvas& c) { chain(c, c.accent); });
    add("Horizontal Line", "Horizontal Line: a rule between lines of text", cInsert, [](Canvas& c) {
        c.box(1, 2, 15, 3.5, soft); c.box(1, 5, 11, 6.5, soft); c.box(0, 7.5, 16, 9.5, c.accent); c.box(1, 11, 15, 12.5, soft); c.box(1, 14, 10, 15.5, soft); });
    add("Inline Frame", "Inline Frame: a page holding a small window", cInsert, [](Canvas& c) {
        page(c); textLines(c, 4, 12, {5}); windowShape(c, c.accent, 4, 7, 12, 14); });
    add("Table Wizard", "Table Wizard: a table with a star", cInsert, [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { tableGrid(c2, c2.accent); }); badgeStar(c); });
    add("CSV Table Wizard", "CSV Table Wizard: a table with a comma", cInsert, [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { tableGrid(c2, c2.accent); }); badge(c, ink);
        c.text(QRectF(8, 7, 8, 8), QStringLiteral(","), white, 11, Canvas::Bold); });
    add("Table", "Table: a table with a heading row", cInsert, [](Canvas& c) { tableGrid(c, c.accent); });
    add("Insert Column", "Insert Column: a table with a marked column and a plus", cInsert, [](Canvas& c) {
        tableGrid(c, c.accent, -1, 1, false); badgePlus(c); });
    add("Insert Row", "Insert Row: a table with a marked row and a plus", cInsert, [](Canvas& c) {
        tableGrid(c, c.accent, 1, -1, false); badgePlus(c); });
    add("Insert Heading Cell", "Insert Heading Cell: a table with one heading cell marked", cInsert, [](Canvas& c) {
        tableGrid(c, c.accent, -1, -1, false); c.box(2, 3, 5.5, 6, c.accent); badgePlus(c); });
    add("Colour Finder", "Colour Finder: a colour pipette", cInsert, [](Canvas& c) { pipette(c, cHelp); });
    add("Add Time", "Add Time: a clock", cInsert, [](Canvas& c) { clock(c, c.accent); });
    add("Add Date", "Add Date: a calendar", cInsert, [](Canvas& c) { calendar(c, c.accent); });
    auto lastUpdated = [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { calendar(c2, c2.accent); }); c.circle(12, 12, 4.8, white); clock(c, ink, 12, 12, 4); };
    add("Last Updated", "Last Updated: a calendar with a clock", cInsert, lastUpdated);
    add("Hyperlink Drop Down Menu", "Hyperlink Drop Down Menu: a drop-down box with a link", cInsert, [](Canvas& c) {
        shifted(c, 0, -3, 1, [](Canvas& c2) { dropDown(c2, c2.accent); }); c.box(8, 8, 16, 16, white); chain(c, c.accent, 12, 12, 0.5); });
    add("External Window Script", "External Window Script: a small window opening from a larger one", cInsert, [](Canvas& c) {
        windowShape(c, light(c.accent), 0, 0, 11, 11); windowShape(c, c.accent, 6, 6, 16, 16);
        c.line(3, 8, 6, 5, ink, 1.2); c.polygon({{7, 3.5}, {7, 6.5}, {4.5, 4}}, ink); });
    add("External Style Sheet", "External Style Sheet: a page with braces and a link", cInsert, [](Canvas& c) {
        page(c, 0, 0, 12, 16); codeBraces(c, c.accent, QRectF(2, 4, 7, 7)); c.circle(12, 12, 4.8, white); chain(c, c.accent, 12, 12, 0.5); });

    add("Form", "Form: a form with two fields and a button", cInsert, [](Canvas& c) {
        c.frame(0, 0, 16, 16, pale, ink); field(c, 2, 2, 14, 5); field(c, 2, 6, 14, 9); c.box(7, 11, 14, 14, c.accent); });
    add("ListForm", "List Form: a list box with a scroll bar", cInsert, [](Canvas& c) {
        c.frame(1, 1, 15, 15, white, ink); c.box(2, 3, 11, 5, c.accent); c.box(3, 7, 10, 8, soft); c.box(3, 10, 9, 11, soft);
        c.box(11, 2, 12, 14, ink); c.box(12, 4, 14, 8, soft); });
    add("ListField", "List Field: a field of list items with bullets", cInsert, [](Canvas& c) {
        c.frame(0, 1, 16, 15, white, ink); for (int i = 0; i < 3; ++i) { c.box(2, 3.5 + i * 3.5, 4, 5.5 + i * 3.5, c.accent); c.box(5.5, 4 + i * 3.5, 13, 5 + i * 3.5, soft); } });
    auto textBox = [](Canvas& c) { field(c, 0, 4, 16, 12); c.box(3, 6, 4, 10, ink); c.box(2, 6, 5, 6.8, ink); c.box(2, 9.2, 5, 10, ink); c.box(6, 8, 12, 9, soft); c.box(0, 11, 16, 12, c.accent); };
    add("1 Line Text Box", "Text Box: a one-line field with a caret", cInsert, textBox);
    auto textArea = [](Canvas& c) { c.frame(0, 1, 16, 15, white, ink); textLines(c, 2, 11, {3.5, 6, 8.5, 11}); c.box(12, 1, 13, 15, ink); c.box(13, 3, 15, 7, c.accent); };
    add("Scrolling TextBox", "Text Area: a field of several lines with a scroll bar", cInsert, textArea);
    auto passwordBox = [](Canvas& c) { field(c, 0, 4, 16, 12); for (int i = 0; i < 4; ++i) c.circle(3.5 + i * 3, 8, 1.2, c.accent); };
    add("Password Box", "Password Box: a field of hidden characters", cInsert, passwordBox);
    add("File Upload", "File Upload: a field with a browse button and an up arrow", cInsert, [](Canvas& c) {
        field(c, 0, 1, 11, 7); c.frame(11, 1, 16, 7, pale, ink); c.box(12.5, 4, 13.5, 5, ink); c.box(14, 4, 15, 5, ink); badgeArrow(c, c.accent, 0); });
    add("Radio Button", "Radio Button: a chosen round option", cInsert, [](Canvas& c) { radio(c, c.accent); });
    add("Check Button", "Check Button: a ticked box", cInsert, [](Canvas& c) { checkBox(c, c.accent); });
    add("Push Button", "Push Button: a button", cInsert, [](Canvas& c) { pushButton(c, c.accent); });
    add("Drop Menu", "Drop Menu: a drop-down box", cInsert, [](Canvas& c) { dropDown(c, c.accent); });
    add("Label", "Label: a tag", cInsert, [](Canvas& c) { priceTag(c, c.accent); });

    add("Insert Sound", "Insert Sound: musical notes", cInsert, [](Canvas& c) { musicNote(c, c.accent); });
    add("Insert Movie", "Insert Movie: a film strip", cInsert, [](Canvas& c) { film(c, c.accent); });
    add("Insert Object", "Insert Object: a cube", cInsert, [](Canvas& c) { cube(c, c.accent); });
    add("Insert Java Applet", "Insert Java Applet: a window with a J", cInsert, [](Canvas& c) {
        windowShape(c, c.accent); c.text(QRectF(2, 5, 12, 9), QStringLiteral("J"), ink, 9, Canvas::Bold); });
    add("Insert RealAudio", "Insert RealAudio: a speaker with sound waves", cInsert, [](Canvas& c) { speaker(c, c.accent); });

    // -- Text --------------------------------------------------------------------------------
    add("Insert Text", "Insert Text: lines of text with a caret", cText, [](Canvas& c) {
        textLines(c, 1, 15, {2, 5, 8}); c.box(1, 11, 8, 12, soft); c.box(9, 9, 10.5, 15, c.accent); });
    auto bullets = [](Canvas& c) {
        for (int i = 0; i < 3; ++i) { c.circle(2.5, 3 + i * 5, 1.6, c.accent); c.box(6, 2.5 + i * 5 - 0.5, i == 1 ? 13 : 15, 3.5 + i * 5 + 0.5, ink); } };
    add("Insert Tabbed Text", "Insert Tabbed Text: a list with bullets", cText, bullets);
    add("Insert Comment", "Insert Comment: a speech bubble", cText, [](Canvas& c) {
        bubble(c, white, ink); for (int i = 0; i < 3; ++i) c.box(4 + i * 3, 6, 5.5 + i * 3, 7.5, c.accent); });
    add("Insert Bookmark", "Insert Bookmark: a bookmark ribbon", cText, [](Canvas& c) {
        shape(c, poly({{3.5, 0.5}, {12.5, 0.5}, {12.5, 15.5}, {8, 11}, {3.5, 15.5}}), c.accent, dark(c.accent)); });
    add("Insert Strike", "Insert Strike: a struck-out S", cText, [](Canvas& c) {
        c.text(QRectF(1, 1, 14, 14), QStringLiteral("S"), ink, 14, Canvas::Bold); c.box(0, 7.5, 16, 9, c.accent); });
    add("Insert Blink", "Insert Blink: a letter with rays", cText, [](Canvas& c) {
        c.text(QRectF(4, 4, 8, 9), QStringLiteral("A"), ink, 9, Canvas::Bold);
        for (int i = 0; i < 8; ++i) { const qreal a = i * M_PI / 4; c.line(8 + 5.6 * qCos(a), 8.5 + 5.6 * qSin(a), 8 + 7.6 * qCos(a), 8.5 + 7.6 * qSin(a), c.accent, 1.4, true); } });
    add("To Upper Case", "To Upper Case: a capital A with an up arrow", cText, [](Canvas& c) { caseLetters(c, c.accent, true); });
    add("To Lower Case", "To Lower Case: a small a with a down arrow", cText, [](Canvas& c) { caseLetters(c, c.accent, false); });
    add("Format Main", "Format Main: a letter A over a colour bar", cText, [](Canvas& c) {
        c.text(QRectF(1, 0, 14, 12), QStringLiteral("A"), ink, 13, Canvas::Serif | Canvas::Bold);
        c.box(1, 13, 5.5, 16, cFile); c.box(5.5, 13, 10.5, 16, c.accent); c.box(10.5, 13, 15, 16, cEdit); });

    add("Bold", "Bold: a bold B in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("B")); });
    add("Italic", "Italic: a slanted I in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("I"), Canvas::Bold | Canvas::Slanted | Canvas::Serif); });
    add("Underline", "Underline: an underlined U in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.text(QRectF(4, 2, 8, 10), QStringLiteral("U"), c.accent, 9.5, Canvas::Bold); c.box(5, 12, 11, 13.3, ink); });
    add("Strikethrough", "Strikethrough: a struck-out S in tag brackets", cText, [](Canvas& c) {
        tagLetter(c, QStringLiteral("S")); c.box(4.5, 7.5, 11.5, 8.8, ink); });
    add("Subscript", "Subscript: x with a lowered 2 in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.text(QRectF(3.5, 3, 5, 8), QStringLiteral("x"), c.accent, 9, Canvas::Bold); c.digits(8, 9, QStringLiteral("2"), ink); });
    add("Superscript", "Superscript: x with a raised 2 in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.text(QRectF(3.5, 6, 5, 8), QStringLiteral("x"), c.accent, 9, Canvas::Bold); c.digits(8, 2, QStringLiteral("2"), ink); });
    add("Typewriter", "Typewriter: a monospaced T in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("T"), Canvas::Mono, 11); });

    add("Citation", "Citation: quotation marks in tag brackets", cText, [](Canvas& c) { tagLetter(c, QString(QChar(0x201C)), Canvas::Bold | Canvas::Serif, 13); });
    add("Code", "Code: braces in tag brackets", cText, [](Canvas& c) { brackets(c); c.text(QRectF(4, 2, 8, 12), QStringLiteral("{}"), c.accent, 9, Canvas::Bold | Canvas::Mono); });
    add("Emphasis", "Emphasis: a slanted e in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("e"), Canvas::Slanted | Canvas::Serif); });
    add("StrongEmphasis", "Strong Emphasis: a bold E in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("E")); });
    add("Footnote", "Footnote: a raised 1 over a line in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.digits(7, 3, QStringLiteral("1"), c.accent); c.box(5, 10, 11, 11, ink); c.box(5, 12, 9, 13, ink); });
    add("Keyboard", "Keyboard: a key cap", cText, [](Canvas& c) { keyboardKey(c, c.accent, QStringLiteral("K")); });
    add("Sample", "Sample: a monospaced s in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("s"), Canvas::Mono | Canvas::Bold, 12); });
    add("Variable", "Variable: a slanted x in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("x"), Canvas::Slanted | Canvas::Serif | Canvas::Bold); });

    add("Address", "Address: an at sign in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("@"), Canvas::Bold, 10); });
    add("Comment", "Comment: an exclamation mark in tag brackets", cText, [](Canvas& c) { tagLetter(c, QStringLiteral("!"), Canvas::Bold, 11); });
    add("Division", "Division: a block in tag brackets", cText, [](Canvas& c) { brackets(c); c.frame(5, 4, 11, 12, light(c.accent), c.accent); });
    add("Paragraph", "Paragraph: a pilcrow in tag brackets", cText, [](Canvas& c) { tagLetter(c, QString(QChar(0x00B6)), Canvas::Bold, 11); });
    add("Preformated Text", "Preformated Text: ragged lines of fixed text in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.box(5, 4, 11, 5.5, c.accent); c.box(6.5, 7, 11, 8.5, c.accent); c.box(5, 10, 9, 11.5, c.accent); });
    add("Span", "Span: a highlighted piece of a line in tag brackets", cText, [](Canvas& c) {
        brackets(c); c.box(5, 6, 11, 10, light(c.accent).lighter(130)); c.box(5, 7.5, 11, 8.5, c.accent); });

    // -- Macro -------------------------------------------------------------------------------
    add("Record Macro", "Record Macro: a red record dot", cMacro, [](Canvas& c) {
        c.circle(8, 8, 7, white); c.ring(8, 8, 7.5, dark(c.accent), 1); c.circle(8, 8, 4.5, c.accent); });
    for (int i = 1; i <= 10; ++i) {
        const QByteArray name = "PlayM" + QByteArray::number(i);
        const QByteArray shows = "Play Macro " + QByteArray::number(i) + ": a play triangle with the number " + QByteArray::number(i);
        list.append({QString::fromLatin1(name), QString::fromLatin1(shows), cMacro, [i](Canvas& c) { macroPlay(c, i); }});
    }

    // -- Tools -------------------------------------------------------------------------------
    add("Program Options", "Program Options: three sliders", cTools, [](Canvas& c) { sliders(c, c.accent); });
    add("Page Properties", "Page Properties (Tools menu): a page with an information badge", cTools, [](Canvas& c) { linedPage(c); badgeInfo(c, c.accent); });
    add("Folder Sort1", "Folder Sort: a folder with a sorting arrow", cTools, [](Canvas& c) {
        folder(c, c.accent, false, 1, 13); badgeArrow(c, ink, 2); });
    add("CheckTags", "Check HTML Tags: tag brackets with a tick", cTools, [](Canvas& c) {
        c.stroke(poly({{4.2, 1.5}, {1, 6}, {4.2, 10.5}}, false), ink, 1.5, true); c.stroke(poly({{8.8, 1.5}, {12, 6}, {8.8, 10.5}}, false), ink, 1.5, true);
        c.box(6, 2, 7.5, 10, c.accent); badgeCheck(c); });
    add("Create External Stlye Sheet", "Create External Stlye Sheet: a page with braces and a plus", cTools, [](Canvas& c) {
        page(c, 0, 0, 12, 16); codeBraces(c, c.accent, QRectF(2, 4, 7, 7)); badgePlus(c); });
    add("Create ScrollBar Color Code", "Create ScrollBar Color Code: a coloured scroll bar", cTools, [](Canvas& c) { scrollbar(c, c.accent); });
    add("Image Map Generator", "Image Map Generator: a picture with a dashed region", cTools, [](Canvas& c) {
        picture(c, cInsert); for (int x = 3; x < 10; x += 2) { c.box(x, 4, x + 1, 5, c.accent); c.box(x, 10, x + 1, 11, c.accent); }
        for (int y = 4; y < 11; y += 2) { c.box(3, y, 4, y + 1, c.accent); c.box(9, y, 10, y + 1, c.accent); } });
    add("Index Picture Generator", "Index Picture Generator: four thumbnails", cTools, [](Canvas& c) { thumbnails(c, c.accent); });
    add("Style Link Wizard", "Style Link Wizard: a chain link with a star", cTools, [](Canvas& c) {
        chain(c, c.accent, 7, 7, 0.85); badgeStar(c); });
    add("Colour Finder1", "Colour Finder (Tools menu): a colour pipette", cTools, [](Canvas& c) { pipette(c, cHelp); });
    add("Spell Checker", "Spell Checker: letters with a tick", cTools, [](Canvas& c) {
        c.text(QRectF(0, 0, 12, 10), QStringLiteral("abc"), ink, 8, Canvas::Bold); c.box(0, 10, 10, 11, red); badgeCheck(c); });
    add("Quick Bar1", "Quick Bar (Tools menu): a window with a side bar and a lightning bolt", cTools, quickBar);
    add("Find Files", "Find Files: a magnifier over a page", cTools, [](Canvas& c) {
        page(c, 0, 0, 12, 15); textLines(c, 2, 10, {5, 7, 9}); magnifier(c, 10, 10, 3.6); });
    add("RegEdit", "RegEdit: a stack of blocks", cTools, [](Canvas& c) { bricks(c, c.accent); });
    add("Explorer", "Explorer: a folder tree", cTools, [](Canvas& c) { treeDiagram(c, c.accent); });
    add("Run", "Run: a command window with a prompt", cTools, [](Canvas& c) { terminal(c, c.accent); });

    // -- Window ------------------------------------------------------------------------------
    add("Cascade", "Cascade: three cascading windows", cWindow, [](Canvas& c) {
        windowShape(c, light(c.accent), 0, 0, 10, 8); windowShape(c, light(c.accent), 3, 3, 13, 11); windowShape(c, c.accent, 6, 7, 16, 15); });
    add("Tile Horizontal", "Tile Horizontal: two windows one above the other", cWindow, [](Canvas& c) {
        windowShape(c, c.accent, 1, 0, 15, 8); windowShape(c, c.accent, 1, 8, 15, 16); });
    add("Tile Vertical", "Tile Vertical: two windows side by side", cWindow, [](Canvas& c) {
        windowShape(c, c.accent, 0, 1, 8, 15); windowShape(c, c.accent, 8, 1, 16, 15); });
    add("Arrange Icons", "Arrange Icons: a row of small windows along the bottom", cWindow, [](Canvas& c) {
        c.frame(0, 0, 16, 16, white, ink); for (int i = 0; i < 3; ++i) c.box(2 + i * 4.3, 11, 5.5 + i * 4.3, 14, c.accent); });
    add("Next Window", "Next Window: a window with a right arrow", cWindow, [](Canvas& c) { windowArrow(c, c.accent, 1); });
    add("Previous Window", "Previous Window: a window with a left arrow", cWindow, [](Canvas& c) { windowArrow(c, c.accent, 3); });
    add("Split Window", "Split Window: a window split in two panes", cWindow, [](Canvas& c) {
        windowShape(c, c.accent); c.box(7.5, 5, 8.5, 13, ink); textLines(c, 3, 7, {7, 9, 11}); c.box(10, 6, 13, 10, light(c.accent)); });

    // -- Help --------------------------------------------------------------------------------
    add("Contents", "Contents: a book", cHelp, [](Canvas& c) { book(c, c.accent); });
    add("Search for Help on...", "Search for Help on...: a book with a magnifier", cHelp, [](Canvas& c) {
        book(c, c.accent, 0, 0, 11, 14); c.box(7, 7, 16, 16, white); magnifier(c, 10.5, 10.5, 3.2); });
    add("Online", "Online: a globe with a question mark", cHelp, [](Canvas& c) {
        globe(c, cNet, 7, 7, 6.5); badge(c, c.accent); c.text(QRectF(8, 8, 8, 8), QStringLiteral("?"), white, 7, Canvas::Bold); });
    add("Send Feedback", "Send Feedback: a speech bubble with an envelope", cHelp, [](Canvas& c) {
        bubble(c, c.accent, dark(c.accent), 0, 0, 13, 9); c.box(3, 3, 10, 4, white); c.box(3, 5, 8, 6, white);
        envelope(c, c.accent, 7, 9, 16, 16); });
    add("About", "About: an i in a circle", cHelp, [](Canvas& c) {
        c.circle(8, 8, 7.5, c.accent); c.box(7, 3, 9, 5, white); c.box(7, 6.5, 9, 13, white); c.box(6, 6.5, 7, 7.5, white); c.box(6, 12, 10, 13, white); });
    add("Check Version", "Update Velloro ...: circular arrows with a down arrow", cHelp, [](Canvas& c) {
        shifted(c, 0, 0, 0.85, [](Canvas& c2) { refreshArrows(c2, c2.accent); }); badgeArrow(c, green, 2); });
    add("Velloro Online", "Velloro Online: a globe with a star", cHelp, [](Canvas& c) { globe(c, cNet, 7, 7, 6.5); badgeStar(c); });

    // -- Context menus of the page windows and the quick notes editors ------------------------
    add("Delete", "Delete: a bin", cEdit, [](Canvas& c) { trash(c, red); });
    add("In", "Insert >> (context menu): a page with a plus", cInsert, [](Canvas& c) { linedPage(c); badgePlus(c, c.accent); });
    add("html", "Insert Form >> (context menu): a form with two fields and a button", cInsert, [](Canvas& c) {
        c.frame(0, 0, 16, 16, pale, ink); field(c, 2, 2, 14, 5); field(c, 2, 6, 14, 9); c.box(7, 11, 14, 14, c.accent); });
    add("Image1", "Image (context menu): a picture of a hill and the sun", cInsert, [](Canvas& c) { picture(c, c.accent); });
    add("SelectAll", "Select All (context menu): lines of text inside a dashed selection", cEdit, [](Canvas& c) {
        for (int i = 0; i < 16; i += 2) { c.box(i, 0, i + 1, 1, ink); c.box(i + 1, 15, i + 2, 16, ink); c.box(0, i + 1, 1, i + 2, ink); c.box(15, i, 16, i + 1, ink); }
        for (int y = 3; y < 13; y += 3) c.box(3, y, 13, y + 2, light(c.accent)); });
    add("Editor Properties", "Editor Properties: a code window with a gear", cEdit, [](Canvas& c) {
        windowShape(c, c.accent, 0, 0, 14, 13); textLines(c, 2, 10, {5, 7, 9}); c.circle(12, 12, 4.8, white); gear(c, c.accent, 12, 12, 4); });
    add("Format Text", "Format Text (context menu): large and small letters", cText, [](Canvas& c) {
        c.text(QRectF(0, 1, 10, 14), QStringLiteral("A"), ink, 14, Canvas::Bold);
        c.text(QRectF(9, 5, 7, 10), QStringLiteral("a"), c.accent, 10, Canvas::Bold); });
    add("InsertNow", "Insert >> (context menu key): a page with a plus", cInsert, [](Canvas& c) { linedPage(c); badgePlus(c, c.accent); });
    add("Tabbed Text", "Tabbed Text (context menu): a list with bullets", cText, bullets);

    // -- Report rows, grid groups ------------------------------------------------------------
    add("Ok", "a passed test: a white tick on a green circle", green, [](Canvas& c) {
        c.circle(8, 8, 7.5, c.accent); c.stroke(poly({{4, 8.3}, {6.8, 11}, {12, 5.2}}, false), white, 2, false); });
    add("Info", "a failed test, for information: a white i on a blue circle", cFile, [](Canvas& c) {
        c.circle(8, 8, 7.5, c.accent); c.box(7, 3, 9, 5, white); c.box(7, 6.5, 9, 13, white); c.box(6, 6.5, 7, 7.5, white); c.box(6, 12, 10, 13, white); });
    add("minus", "an open group: a minus in a small box", ink, [](Canvas& c) { c.frame(3, 3, 12, 12, white, mid); c.box(5, 7, 10, 8, ink); });
    add("plus", "a closed group: a plus in a small box", ink, [](Canvas& c) {
        c.frame(3, 3, 12, 12, white, mid); c.box(5, 7, 10, 8, ink); c.box(7, 5, 8, 10, ink); });

    // -- Main window panels and bars --------------------------------------------------------
    add("Open Files", "Open Files panel button: an open folder", cFile, [](Canvas& c) { folder(c, c.accent, true); });
    add("Show the Library", "Show the Library panel button: books on a shelf", cFile, [](Canvas& c) {
        c.frame(1, 2, 4, 15, cHelp, dark(cHelp)); c.frame(4, 1, 8, 15, c.accent, dark(c.accent));
        c.frame(8, 3, 11, 15, cInsert, dark(cInsert)); c.p.save(); c.p.translate(12.5, 15); c.p.rotate(-15);
        c.frame(-1.5, -12, 1.5, 0, cTools, dark(cTools)); c.p.restore(); c.box(0, 15, 16, 16, ink); });
    add("Character List", "Character List panel button: an omega in a grid cell", cFile, [](Canvas& c) {
        c.frame(0, 0, 16, 16, white, ink); c.text(QRectF(1, 1, 14, 14), QString(QChar(0x03A9)), c.accent, 12, Canvas::Bold); });
    add("Javascript examples", "Javascript examples panel button: braces with a star", cFile, [](Canvas& c) {
        codeBraces(c, c.accent, QRectF(0.5, 0.5, 12, 12)); badgeStar(c); });
    add("Project window", "Project window panel button: a briefcase", cFile, [](Canvas& c) {
        c.frame(5, 1, 11, 5, white, ink); c.box(6, 2, 10, 4, Qt::transparent);
        c.frame(0, 4, 16, 15, c.accent, dark(c.accent)); c.box(1, 8, 15, 9, dark(c.accent)); c.box(7, 7, 9, 10, yellow); });
    add("Refresh Directory Structure", "Refresh Directory Structure: circular arrows", cFile, [](Canvas& c) { refreshArrows(c, c.accent); });
    add("Close Bar", "Close Bar: a side bar with an arrow pushing it closed", cView, [](Canvas& c) {
        c.frame(9, 0, 16, 16, light(c.accent).lighter(140), ink); c.polygon({{9, 8}, {3, 3}, {3, 13}}, c.accent); c.box(0, 3, 2, 13, ink); });
    add("Close Tool Tip Window", "Close Tool Tip Window: a tooltip with a red cross", cView, [](Canvas& c) { tooltip(c); badgeCross(c); });
    add("Move Menu In", "Move Menu In: arrows pointing left", cView, [](Canvas& c) {
        c.stroke(poly({{8, 3}, {3, 8}, {8, 13}}, false), c.accent, 2.2); c.stroke(poly({{13, 3}, {8, 8}, {13, 13}}, false), c.accent, 2.2); });
    add("Move Menu Out", "Move Menu Out: arrows pointing right", cView, [](Canvas& c) {
        c.stroke(poly({{3, 3}, {8, 8}, {3, 13}}, false), c.accent, 2.2); c.stroke(poly({{8, 3}, {13, 8}, {8, 13}}, false), c.accent, 2.2); });
    add("Insert", "Insert button of the panels: an arrow into a text caret", cInsert, [](Canvas& c) {
        c.box(12, 1, 13.5, 15, ink); c.box(9.5, 1, 16, 2.5, ink); c.box(9.5, 13.5, 16, 15, ink);
        c.box(0, 7, 6, 9, c.accent); c.polygon({{5, 3.5}, {10, 8}, {5, 12.5}}, c.accent); });
    add("Upload Project To FTP Server", "Upload Project To FTP Server: a server with an up arrow", cNet, [](Canvas& c) { server(c, c.accent); badgeArrow(c, green, 0); });
    add("ProjectLoad", "load a project: a briefcase from an open folder", cFile, [](Canvas& c) {
        folder(c, c.accent, true); badgeArrow(c, green, 0); });
    add("ProjectNew", "new project: a briefcase with a plus", cFile, [](Canvas& c) {
        c.frame(4, 1, 9, 4, white, ink); c.frame(0, 3, 13, 12, c.accent, dark(c.accent)); c.box(1, 6, 12, 7, dark(c.accent)); badgePlus(c); });
    add("ProjectAdd", "add a page to the project: a page with a plus", cFile, [](Canvas& c) { linedPage(c); badgePlus(c); });
    add("ProjectDelete", "remove a page from the project: a page with a minus", cFile, [](Canvas& c) { linedPage(c); badgeMinus(c); });
    add("Find", "Find button: a magnifier", cEdit, [](Canvas& c) { magnifier(c, 6.5, 6.5, 5); });
    add("Indent", "Indent (blockquote): lines moved right with an arrow", cText, [](Canvas& c) {
        c.box(0, 1, 16, 2.5, soft); c.box(7, 5, 16, 6.5, ink); c.box(7, 9, 16, 10.5, ink); c.box(0, 13.5, 16, 15, soft);
        c.polygon({{0, 4.5}, {4.5, 7.75}, {0, 11}}, c.accent); });
    add("Outdent", "Outdent (end of blockquote): lines moved left with an arrow", cText, [](Canvas& c) {
        c.box(0, 1, 16, 2.5, soft); c.box(7, 5, 16, 6.5, ink); c.box(7, 9, 16, 10.5, ink); c.box(0, 13.5, 16, 15, soft);
        c.polygon({{5, 4.5}, {0.5, 7.75}, {5, 11}}, c.accent); });
    add("Ordered List", "Ordered List: numbered lines", cText, [](Canvas& c) {
        for (int i = 0; i < 2; ++i) { c.digits(1, 2 + i * 7, QString::number(i + 1), c.accent); c.box(6, 3.5 + i * 7, i == 1 ? 13 : 16, 5 + i * 7, ink); } });

    // Right bar of form fields and styles.
    add("Check Box", "Check Box: a ticked box", cInsert, [](Canvas& c) { checkBox(c, c.accent); });
    add("Button", "Button: a button", cInsert, [](Canvas& c) { pushButton(c, c.accent); });
    add("Submit", "Submit: a button with an arrow", cInsert, [](Canvas& c) {
        pushButton(c, c.accent, QString()); c.box(3, 7.25, 11, 8.75, c.accent);
        c.stroke(poly({{4, 8}, {11, 8}}, false), white, 1.5); c.polygon({{13, 8}, {10, 5.5}, {10, 10.5}}, white); });
    add("Text Box Area", "Text Box Area: a field of several lines with a scroll bar", cInsert, textArea);
    add("Hidden Box", "Hidden Box: a dashed empty field", cInsert, [](Canvas& c) {
        for (int x = 0; x < 16; x += 3) { c.box(x, 4, x + 2, 5, mid); c.box(x, 11, x + 2, 12, mid); }
        for (int y = 4; y < 12; y += 3) { c.box(0, y, 1, y + 2, mid); c.box(15, y, 16, y + 2, mid); }
        c.box(4, 7.5, 12, 8.5, c.accent); });
    add("Marquee Text", "Marquee Text: a band of text moving left", cInsert, marquee);
    add("Drop Down Menu", "Drop Down Menu: a drop-down box", cInsert, [](Canvas& c) { dropDown(c, c.accent); });

    // -- Trees: the library, scripts and projects --------------------------------------------
    add("Branch", "tree branch, closed: a closed folder", cTools, [](Canvas& c) { folder(c, yellow.darker(108), false); });
    add("Branch Open", "tree branch, open: an open folder", cTools, [](Canvas& c) { folder(c, yellow.darker(108), true); });
    add("Leaf", "tree leaf: a small page with a tag", cFile, [](Canvas& c) {
        page(c); c.stroke(poly({{7, 6.5}, {5, 9}, {7, 11.5}}, false), c.accent, 1.2); c.stroke(poly({{9, 6.5}, {11, 9}, {9, 11.5}}, false), c.accent, 1.2); });
    add("Web Link", "tree web link: a small globe", cNet, [](Canvas& c) { globe(c, c.accent, 8, 8, 6.5); });
    add("Script Leaf", "tree script leaf: a page with braces", cInsert, [](Canvas& c) { page(c); codeBraces(c, c.accent, QRectF(4.5, 5, 7, 9)); });
    return list;
}
