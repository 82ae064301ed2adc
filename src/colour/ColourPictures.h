#pragma once
#include "colour/ColourMixing.h"

#include <QImage>
#include <QWidget>

// The colour finder's palette picture: hues across, white to black down. It tells the mouse's
// press, moves and release with the colour under the pointer.
class PalettePicture : public QWidget {
    Q_OBJECT
public:
    explicit PalettePicture(const QString& name, QWidget* parent = nullptr);
    // The platform colour value at a point of the picture.
    int colourAt(const QPoint& p) const;
    QSize sizeHint() const override { return {256, 160}; }

Q_SIGNALS:
    void MouseDown(int colour);
    void MouseMove(int colour);
    void MouseUp(int colour);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    QImage picture;
};

// The shade bar: 20 bands drawn bottom up, band 1 at the bottom. A click is told with its
// position on the screen.
class ShadeBar : public QWidget {
    Q_OBJECT
public:
    explicit ShadeBar(const QString& name, QWidget* parent = nullptr);
    void setBands(const std::array<ColourMixing::Channels, ColourMixing::bandCount>& bands);
    const std::array<ColourMixing::Channels, ColourMixing::bandCount>& bands() const { return shown; }
    // The rectangle of band i (1 to 20) in the bar's own coordinates.
    QRect bandRect(int i) const;
    QSize sizeHint() const override { return {36, 160}; }

Q_SIGNALS:
    void Click(const QPoint& global);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    std::array<ColourMixing::Channels, ColourMixing::bandCount> shown{};
};
