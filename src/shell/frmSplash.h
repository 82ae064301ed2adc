#pragma once
#include "platform/Forms.h"

#include <QWidget>

class QLabel;

// The splash window shown during the long start-up step; a key or a click closes it.
class frmSplash : public QWidget, public Form {
    Q_OBJECT
public:
    explicit frmSplash(QWidget* parent = nullptr);
    void Form_Load() override;

    QLabel* lblVersion = nullptr;
    QLabel* lblProductName = nullptr;
    QLabel* lblCompanyProduct = nullptr;
    QLabel* lblPlatform1 = nullptr;
    QLabel* Label1 = nullptr;

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
};
