#pragma once
#include <QColor>
#include <QImage>
#include <QLine>
#include <QRect>
#include <QVector>
#include <QWidget>
#include <optional>

class QLabel;

// The image map designer's drawing surface (`picDesign`): the picture at its own size, one
// picture pixel to one unit of the pointer's position (also on a high-DPI screen), the marks
// drawn on it, the circle and box outlines (`crcl`, `rect`) that the user places, the guide
// lines through the pointer with the position labels `txtX` and `txtY`, and a line from the
// last polygon point to the pointer while a polygon is in progress.
class MapSurface : public QWidget {
    Q_OBJECT
public:
    explicit MapSurface(QWidget* parent = nullptr);

    // A picture, or none (zero size).
    void setPicture(const QImage& picture);
    bool hasPicture() const { return !picture.isNull(); }

    enum class Outline { None, Circle, Box };
    void showOutline(Outline which);
    Outline outline() const { return shown; }
    QRect crcl, rect;  // the two outlines, in picture pixels

    // Marks stay on the surface until it is cleared; they are kept as shapes, not pixels, so a
    // big picture costs no second copy.
    void drawLine(QPoint from, QPoint to, const QColor& colour);
    void drawSquare(QPoint centre, const QColor& colour);  // a filled 5 x 5 square
    void drawEllipse(const QRect& box, const QColor& colour);
    void drawBox(const QRect& box, const QColor& colour);
    void clearMarks();
    int markCount() const { return int(marks.size()); }

    // The polygon's last point while one is in progress (a live line runs from it to the pointer).
    void setPendingPoint(std::optional<QPoint> point);

    QLabel *txtX = nullptr, *txtY = nullptr;

Q_SIGNALS:
    void pressed(Qt::MouseButton button, QPoint at);
    // The pointer moved over the picture, with the buttons held.
    void moved(QPoint at, Qt::MouseButtons buttons);
    void arrowPressed(int key);

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    struct Mark {
        enum Kind { Line, Square, Ellipse, Box } kind;
        QLine line;
        QRect box;
        QColor colour;
    };
    void showGuides(std::optional<QPoint> at);
    QImage picture;
    QVector<Mark> marks;
    Outline shown = Outline::None;
    std::optional<QPoint> guide, pending;
};

// A ruler along the picture (`picTopRule`, `picLeftRule`): a tick every 10 pixels, a number
// every 50.
class MapRuler : public QWidget {
    Q_OBJECT
public:
    MapRuler(Qt::Orientation orientation, QWidget* parent = nullptr);
    void setLength(int pixels);
    int length() const { return extent; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    Qt::Orientation orientation;
    int extent = 0;
};
