#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QLabel;
class QPushButton;
class WebBrowser;

// "Full Screen Preview": a page in a browser that fills the window, with Back, Forward, Close
// and the address of the link under the mouse. The document windows load the page into
// WebBrowser1 before they show it.
class FullPreview : public QDialog, public Form {
    Q_OBJECT
public:
    explicit FullPreview(QWidget* parent = nullptr);
    void Form_Load() override;

    WebBrowser* WebBrowser1 = nullptr;
    QLabel* linkpreview = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton4 = nullptr, *SmartNetButton5 = nullptr;

protected:
    void showEvent(QShowEvent* e) override;
};
