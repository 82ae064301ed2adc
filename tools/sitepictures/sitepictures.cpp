// Draws the pictures of the personal site template: a header picture, a mountain ridge, two snow
// scenes and a climber for the left of the home page. Every picture comes from a fixed seed, so a
// second run writes the same files.
//
//   sitepictures <Personal site folder>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>

namespace {

// A small generator of our own: the standard library's distributions differ between library
// versions, and the pictures must not.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : state_(seed ? seed : 1u) {}
    double next()  // 0 <= x < 1
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 17;
        state_ ^= state_ << 5;
        return double(state_) / 4294967296.0;
    }
    double between(double lo, double hi) { return lo + (hi - lo) * next(); }

private:
    std::uint32_t state_;
};

// A skyline across the width by midpoint displacement: heights[i] is the y of the ridge at x = i.
QList<double> ridge(int width, double left, double right, double roughness, Dice& dice)
{
    int n = 1;
    while (n < width)
        n *= 2;
    QList<double> h(n + 1, 0.0);
    h[0] = left;
    h[n] = right;
    double spread = roughness;
    for (int step = n; step > 1; step /= 2) {
        for (int i = 0; i + step <= n; i += step)
            h[i + step / 2] = (h[i] + h[i + step]) / 2 + dice.between(-spread, spread);
        spread *= 0.55;
    }
    h.resize(width + 1);
    return h;
}

QPainterPath areaBelow(const QList<double>& heights, int bottom)
{
    QPainterPath path;
    path.moveTo(0, bottom);
    for (int x = 0; x < heights.size(); ++x)
        path.lineTo(x, heights[x]);
    path.lineTo(heights.size() - 1, bottom);
    path.closeSubpath();
    return path;
}

void sky(QPainter& p, const QRect& r, QColor top, QColor bottom)
{
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, top);
    g.setColorAt(1, bottom);
    p.fillRect(r, g);
}

void cloud(QPainter& p, double x, double y, double w, Dice& dice, QColor colour)
{
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 7; ++i) {
        const double cx = x + dice.between(0, w), cy = y + dice.between(-w * 0.06, w * 0.06);
        const double rx = dice.between(w * 0.12, w * 0.25), ry = rx * dice.between(0.35, 0.55);
        QRadialGradient g(cx, cy, rx);
        QColor inner = colour, outer = colour;
        outer.setAlpha(0);
        g.setColorAt(0, inner);
        g.setColorAt(1, outer);
        p.setBrush(g);
        p.drawEllipse(QPointF(cx, cy), rx, ry);
    }
}

void pine(QPainter& p, double x, double base, double height, QColor needles, QColor snow)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(70, 50, 35));
    p.drawRect(QRectF(x - height * 0.03, base - height * 0.12, height * 0.06, height * 0.12));
    for (int tier = 0; tier < 4; ++tier) {
        const double y0 = base - height * (0.1 + 0.22 * tier), w = height * (0.32 - 0.06 * tier);
        QPolygonF t({QPointF(x - w, y0), QPointF(x + w, y0), QPointF(x, y0 - height * 0.38)});
        p.setBrush(needles);
        p.drawPolygon(t);
        p.setBrush(snow);
        p.drawPolygon(QPolygonF({QPointF(x - w * 0.45, y0 - height * 0.2), QPointF(x + w * 0.45, y0 - height * 0.2),
                                 QPointF(x, y0 - height * 0.38)}));
    }
}

// A person in outline, standing, about h pixels tall, feet at (x, y).
void walker(QPainter& p, double x, double y, double h, QColor colour)
{
    p.setPen(QPen(colour, std::max(1.0, h * 0.12), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(x, y - h * 0.45), QPointF(x - h * 0.15, y));
    p.drawLine(QPointF(x, y - h * 0.45), QPointF(x + h * 0.15, y));
    p.drawLine(QPointF(x, y - h * 0.45), QPointF(x + h * 0.03, y - h * 0.8));
    p.drawLine(QPointF(x + h * 0.02, y - h * 0.72), QPointF(x + h * 0.22, y - h * 0.5));
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawEllipse(QPointF(x + h * 0.04, y - h * 0.9), h * 0.1, h * 0.1);
}

// A knife-edge ridge of dark rock with pinnacles, above green slopes, walkers on the crest.
QImage cribGoch()
{
    Dice dice(0xC0FFEEu);
    QImage img(640, 400, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    sky(p, img.rect(), QColor(74, 128, 196), QColor(208, 226, 240));
    cloud(p, 40, 70, 200, dice, QColor(255, 255, 255, 200));
    cloud(p, 380, 50, 230, dice, QColor(255, 255, 255, 180));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(150, 168, 190));
    p.drawPath(areaBelow(ridge(640, 230, 200, 40, dice), 400));
    p.setBrush(QColor(112, 132, 150));
    p.drawPath(areaBelow(ridge(640, 260, 250, 30, dice), 400));

    // The ridge: a long crest rising from the left to a summit, a steep fall to the right, and
    // sharp teeth along the top.
    QList<double> crest(641);
    for (int x = 0; x <= 640; ++x)
        crest[x] = x < 470 ? 330 - 215 * std::pow(x / 470.0, 1.4) : 115 + 160 * std::pow((x - 470) / 170.0, 0.8);
    for (int tooth = 0; tooth < 26; ++tooth) {
        const int at = int(dice.between(40, 600)), half = int(dice.between(3, 10));
        const double up = dice.between(6, 22);
        for (int x = std::max(0, at - half); x <= std::min(640, at + half); ++x)
            crest[x] -= up * (1.0 - std::abs(x - at) / double(half + 1));
    }
    QLinearGradient rock(0, 0, 640, 0);
    rock.setColorAt(0, QColor(96, 88, 82));
    rock.setColorAt(0.75, QColor(70, 64, 62));
    rock.setColorAt(1, QColor(36, 34, 38));
    p.setBrush(rock);
    p.drawPath(areaBelow(crest, 400));
    // Gullies: dark lines that run from the crest down the face.
    p.setPen(QPen(QColor(44, 40, 42), 3, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 16; ++i) {
        int x = int(dice.between(30, 560));
        QPainterPath gully;
        gully.moveTo(x, crest[x] + 3);
        double y = crest[x] + 3, gx = x;
        while (y < 360) {
            gx += dice.between(-6, 3);
            y += dice.between(12, 24);
            gully.lineTo(gx, y);
        }
        p.setBrush(Qt::NoBrush);
        p.drawPath(gully);
    }
    // Grass and scree below.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(84, 120, 60));
    p.drawPath(areaBelow(ridge(640, 330, 300, 26, dice), 400));
    p.setBrush(QColor(60, 96, 46));
    p.drawPath(areaBelow(ridge(640, 372, 360, 14, dice), 400));
    for (int i = 0; i < 3; ++i) {
        const int x = 300 + i * 22;
        walker(p, x, crest[x] + 1, 11, QColor(200, 40, 30));
    }
    return img;
}

// Snow-covered mountains under a clear sky, a snow field with blue shadows, pines in front.
QImage snowPeaks()
{
    Dice dice(0x5A0021u);
    QImage img(480, 320, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    sky(p, img.rect(), QColor(40, 96, 180), QColor(170, 205, 235));
    p.setPen(Qt::NoPen);
    const QList<double> far = ridge(480, 150, 130, 70, dice);
    QLinearGradient snow(0, 60, 0, 320);
    snow.setColorAt(0, QColor(250, 252, 255));
    snow.setColorAt(1, QColor(196, 212, 232));
    p.setBrush(snow);
    p.drawPath(areaBelow(far, 320));
    // Rock showing through below the crest on the shady side.
    p.setBrush(QColor(120, 130, 150));
    for (int i = 0; i < 14; ++i) {
        const int x = int(dice.between(5, 470));
        const double y = far[x] + dice.between(4, 16);
        p.drawPolygon(QPolygonF({QPointF(x, y), QPointF(x + dice.between(3, 8), y + dice.between(10, 25)),
                                 QPointF(x - dice.between(2, 6), y + dice.between(8, 18))}));
    }
    p.setBrush(QColor(232, 240, 250));
    p.drawPath(areaBelow(ridge(480, 250, 235, 18, dice), 320));
    p.setBrush(QColor(190, 206, 230));
    p.drawPath(areaBelow(ridge(480, 290, 300, 8, dice), 320));
    for (int i = 0; i < 9; ++i) {
        const double x = 20 + i * 52 + dice.between(-10, 10);
        pine(p, x, 318 - dice.between(0, 14), dice.between(60, 95), QColor(30, 70, 50), QColor(240, 246, 255));
    }
    return img;
}

// Dusk on a snowy slope: a hut with a lit window, falling snow.
QImage snowDusk()
{
    Dice dice(0xD05Bu);
    QImage img(480, 320, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    sky(p, img.rect(), QColor(28, 30, 70), QColor(190, 130, 150));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(90, 92, 130));
    p.drawPath(areaBelow(ridge(480, 170, 190, 40, dice), 320));
    QLinearGradient slope(0, 200, 0, 320);
    slope.setColorAt(0, QColor(200, 200, 228));
    slope.setColorAt(1, QColor(150, 156, 196));
    p.setBrush(slope);
    p.drawPath(areaBelow(ridge(480, 250, 215, 14, dice), 320));
    // The hut.
    const QPointF base(300, 248);
    p.setBrush(QColor(92, 60, 40));
    p.drawRect(QRectF(base.x(), base.y() - 38, 70, 38));
    p.setBrush(QColor(236, 238, 250));
    p.drawPolygon(QPolygonF({QPointF(base.x() - 10, base.y() - 36), QPointF(base.x() + 80, base.y() - 36),
                             QPointF(base.x() + 35, base.y() - 66)}));
    QRadialGradient glow(base.x() + 20, base.y() - 20, 30);
    glow.setColorAt(0, QColor(255, 210, 120, 200));
    glow.setColorAt(1, QColor(255, 210, 120, 0));
    p.setBrush(glow);
    p.drawEllipse(QPointF(base.x() + 20, base.y() - 20), 30, 30);
    p.setBrush(QColor(255, 214, 120));
    p.drawRect(QRectF(base.x() + 12, base.y() - 28, 16, 14));
    for (int i = 0; i < 5; ++i)
        pine(p, 40 + i * 45 + dice.between(-8, 8), 300 - i * 6, dice.between(55, 80), QColor(24, 40, 48),
             QColor(214, 218, 240));
    p.setBrush(QColor(255, 255, 255, 210));
    for (int i = 0; i < 260; ++i) {
        const double r = dice.between(0.6, 2.2);
        p.drawEllipse(QPointF(dice.between(0, 480), dice.between(0, 320)), r, r);
    }
    return img;
}

// A climber on a rock face against a warm evening sky, for the narrow strip left of the page.
QImage climbLeft()
{
    Dice dice(0xC11Bu);
    QImage img(200, 480, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    sky(p, img.rect(), QColor(40, 40, 90), QColor(250, 170, 90));
    p.setPen(Qt::NoPen);
    // The wall: its edge runs down the picture, a little ragged.
    QPainterPath wall;
    wall.moveTo(200, 0);
    for (int y = 0; y <= 480; y += 12)
        wall.lineTo(112 + 14 * std::sin(y / 70.0) + dice.between(-5, 5), y);
    wall.lineTo(200, 480);
    wall.closeSubpath();
    p.setBrush(QColor(30, 24, 30));
    p.drawPath(wall);
    // The rope from above, and the climber on the edge.
    p.setPen(QPen(QColor(230, 80, 40), 2));
    p.drawLine(QPointF(104, 0), QPointF(84, 192));
    const QColor body(20, 16, 22);
    p.setPen(QPen(body, 9, Qt::SolidLine, Qt::RoundCap));
    const QPointF hip(70, 240), neck(80, 198);
    p.drawLine(hip, neck);
    p.setPen(QPen(body, 6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(neck, QPointF(96, 176));   // arm up to a hold on the edge
    p.drawLine(QPointF(96, 176), QPointF(108, 158));
    p.drawLine(neck, QPointF(62, 214));   // arm out for balance
    p.drawLine(QPointF(62, 214), QPointF(52, 196));
    p.drawLine(hip, QPointF(96, 258));    // foot bridged on the wall
    p.drawLine(QPointF(96, 258), QPointF(108, 280));
    p.drawLine(hip, QPointF(62, 280));    // leg hanging
    p.drawLine(QPointF(62, 280), QPointF(68, 310));
    p.setPen(Qt::NoPen);
    p.setBrush(body);
    p.drawEllipse(QPointF(82, 185), 9, 10);
    // Stars in the dark top of the sky.
    p.setBrush(QColor(255, 255, 230));
    for (int i = 0; i < 18; ++i) {
        const double x = dice.between(4, 60), y = dice.between(4, 150), r = dice.between(0.5, 1.3);
        p.drawEllipse(QPointF(x, y), r, r);
    }
    return img;
}

// The header of the picture page: morning over a lake, hills and their reflection.
QImage pictureMain()
{
    Dice dice(0x9A1Cu);
    QImage img(640, 400, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const int shore = 250;
    sky(p, QRect(0, 0, 640, shore), QColor(90, 120, 190), QColor(252, 214, 160));
    QRadialGradient sun(430, 200, 70);
    sun.setColorAt(0, QColor(255, 250, 220));
    sun.setColorAt(0.25, QColor(255, 236, 170, 230));
    sun.setColorAt(1, QColor(255, 200, 120, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(sun);
    p.drawEllipse(QPointF(430, 200), 70, 70);
    cloud(p, 60, 60, 220, dice, QColor(255, 236, 220, 170));
    const QList<double> far = ridge(640, 170, 190, 45, dice), near = ridge(640, 215, 200, 30, dice);
    p.setBrush(QColor(120, 110, 150));
    p.drawPath(areaBelow(far, shore));
    p.setBrush(QColor(60, 80, 80));
    p.drawPath(areaBelow(near, shore));
    // The lake mirrors everything above the shore, darker and with ripples.
    QImage water = img.copy(0, 0, 640, shore).mirrored(false, true);
    QPainter w(&water);
    w.fillRect(water.rect(), QColor(20, 40, 70, 90));
    w.setPen(QPen(QColor(255, 255, 255, 60), 1));
    for (int i = 0; i < 70; ++i) {
        const double y = dice.between(4, 150), x = dice.between(0, 600);
        w.drawLine(QPointF(x, y), QPointF(x + dice.between(10, 50), y));
    }
    w.end();
    p.drawImage(0, shore, water, 0, 0, 640, 400 - shore);
    p.setBrush(QColor(40, 56, 48));
    p.drawRect(QRectF(0, shore - 2, 640, 4));
    return img;
}

struct Picture {
    const char* file;
    std::function<QImage()> draw;
};

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: sitepictures <Personal site folder>\n");
        return 2;
    }
    const QString folder = args[1];
    QDir().mkpath(folder);
    const QList<Picture> pictures = {
        {"picmain.jpg", pictureMain}, {"CRIBGOCH.jpg", cribGoch}, {"snow21.jpg", snowPeaks},
        {"snow22.jpg", snowDusk},     {"climbleft.jpg", climbLeft},
    };
    for (const Picture& pic : pictures) {
        const QString path = folder + QLatin1Char('/') + QString::fromLatin1(pic.file);
        QImageWriter writer(path, "jpeg");
        writer.setQuality(82);
        writer.setOptimizedWrite(true);
        if (!writer.write(pic.draw())) {
            std::fprintf(stderr, "sitepictures: cannot write %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
            return 1;
        }
        std::printf("%s\n", qPrintable(path));
    }
    return 0;
}
