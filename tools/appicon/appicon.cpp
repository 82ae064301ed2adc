// Draws Velloro's program icon: a page in the heading blue with a folded corner, angle brackets
// and a pen stroke, at the sizes desktops ask for (PNG) and as a scalable SVG. Both come from
// the same shapes on a 256-unit grid, so the sizes agree.
//   usage: appicon OUTPUT_FOLDER      (writes hicolor/<n>x<n>/apps/velloro.png and
//                                     hicolor/scalable/apps/velloro.svg under it)
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cstdio>

namespace {
const QColor blue(52, 129, 211), dark(25, 74, 140), paper(255, 255, 255), fold(193, 210, 238), ink(255, 196, 0);

// The page: a rounded rectangle with its top right corner folded down.
QPainterPath pageShape()
{
    QPainterPath p;
    p.moveTo(40, 28);
    p.lineTo(168, 28);
    p.lineTo(220, 80);
    p.lineTo(220, 216);
    p.quadTo(220, 232, 204, 232);
    p.lineTo(52, 232);
    p.quadTo(36, 232, 36, 216);
    p.lineTo(36, 44);
    p.quadTo(36, 28, 52, 28);
    p.closeSubpath();
    return p;
}

QPainterPath foldShape()
{
    QPainterPath p;
    p.moveTo(168, 28);
    p.lineTo(168, 68);
    p.quadTo(168, 80, 180, 80);
    p.lineTo(220, 80);
    p.closeSubpath();
    return p;
}

// "<" and ">" as strokes, and a slash between them.
QPainterPath bracketsShape()
{
    QPainterPath p;
    p.moveTo(102, 118);
    p.lineTo(68, 150);
    p.lineTo(102, 182);
    p.moveTo(154, 118);
    p.lineTo(188, 150);
    p.lineTo(154, 182);
    p.moveTo(138, 110);
    p.lineTo(118, 190);
    return p;
}

void draw(QPainter& g, double size)
{
    g.setRenderHint(QPainter::Antialiasing);
    g.scale(size / 256.0, size / 256.0);
    g.fillPath(pageShape(), blue);
    g.strokePath(pageShape(), QPen(dark, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    g.fillPath(foldShape(), fold);
    g.strokePath(foldShape(), QPen(dark, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    g.strokePath(bracketsShape(), QPen(paper, size < 24 ? 26 : 18, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    // A pen's stroke under the brackets: the page being written.
    g.strokePath([] {
        QPainterPath p;
        p.moveTo(70, 206);
        p.lineTo(186, 206);
        return p;
    }(), QPen(ink, 12, Qt::SolidLine, Qt::RoundCap));
}

QString svgPath(const QPainterPath& path)
{
    QString d;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement: d += QStringLiteral("M%1 %2 ").arg(e.x).arg(e.y); break;
        case QPainterPath::LineToElement: d += QStringLiteral("L%1 %2 ").arg(e.x).arg(e.y); break;
        case QPainterPath::CurveToElement: {
            const QPainterPath::Element c2 = path.elementAt(i + 1), end = path.elementAt(i + 2);
            d += QStringLiteral("C%1 %2 %3 %4 %5 %6 ").arg(e.x).arg(e.y).arg(c2.x).arg(c2.y).arg(end.x).arg(end.y);
            i += 2;
            break;
        }
        default: break;
        }
    }
    return d.trimmed();
}

QByteArray svg()
{
    const QString page = svgPath(pageShape()), folded = svgPath(foldShape()), brackets = svgPath(bracketsShape());
    return QStringLiteral(
               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 256 256\">\n"
               "  <path d=\"%1 Z\" fill=\"%4\" stroke=\"%5\" stroke-width=\"8\" stroke-linejoin=\"round\"/>\n"
               "  <path d=\"%2 Z\" fill=\"%6\" stroke=\"%5\" stroke-width=\"8\" stroke-linejoin=\"round\"/>\n"
               "  <path d=\"%3\" fill=\"none\" stroke=\"#ffffff\" stroke-width=\"18\" stroke-linecap=\"round\" "
               "stroke-linejoin=\"round\"/>\n"
               "  <path d=\"M70 206 L186 206\" stroke=\"%7\" stroke-width=\"12\" stroke-linecap=\"round\"/>\n"
               "</svg>\n")
        .arg(page, folded, brackets, blue.name(), dark.name(), fold.name(), ink.name())
        .toUtf8();
}
}

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: appicon OUTPUT_FOLDER\n");
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString folder = out + QStringLiteral("/hicolor/%1x%1/apps").arg(size);
        QDir().mkpath(folder);
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter g(&image);
        draw(g, size);
        g.end();
        if (!image.save(folder + QStringLiteral("/velloro.png"))) {
            std::fprintf(stderr, "appicon: cannot write %s\n", qPrintable(folder));
            return 1;
        }
    }
    const QString scalable = out + QStringLiteral("/hicolor/scalable/apps");
    QDir().mkpath(scalable);
    QFile f(scalable + QStringLiteral("/velloro.svg"));
    if (!f.open(QIODevice::WriteOnly) || f.write(svg()) < 0)
        return 1;
    return 0;
}
