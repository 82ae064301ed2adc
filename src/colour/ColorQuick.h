#pragma once
#include "platform/Forms.h"

#include <QPoint>
#include <QWidget>
#include <array>

class QPushButton;

// The quick palette: a small window without a title bar, 56 colour buttons that each drop their
// quoted "#RRGGBB" at the caret of the active document, and a way on to the colour finder. It
// hides as soon as it is no longer the active window.
class ColorQuick : public QWidget, public Form {
    Q_OBJECT
public:
    explicit ColorQuick(QWidget* parent = nullptr);
    void Form_Load() override;

    // Colour button n (1 to 56), with errors ignored: no document or a notepad does nothing.
    void colour_Click(int n);
    void SmartNetButton65_Click();

    std::array<QPushButton*, 56> SmartNetButton{};  // SmartNetButton1 to SmartNetButton56
    QPushButton* SmartNetButton65 = nullptr;

protected:
    bool event(QEvent* e) override;
    // A press and drag on the window's own surface moves it, as a title bar would.
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    bool dragging = false;
    QPoint grabOffset;
};
