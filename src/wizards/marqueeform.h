#pragma once
#include "wizards/MarqueeText.h"
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

// "Marquee Properties ::": scrolling text at the caret. The behaviour list, the repeat tick and
// its count are collected and shown but never reach the markup.
class marqueeform : public WizardDialog {
    Q_OBJECT
public:
    explicit marqueeform(QWidget* parent = nullptr);
    MarqueeText::Fields fields() const;

    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr, *Text4 = nullptr, *Text5 = nullptr,
              *Text6 = nullptr, *mcolor = nullptr;
    ColourSwatch* Shape1 = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;  // "Left", "Right "
    QComboBox* Combo1 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton *Command1 = nullptr, *command2 = nullptr;  // "Choose", "Load"

protected:
    QString fragment() const override { return MarqueeText::fragment(fields()); }
    // The text to scroll starts empty again.
    void afterDelivery() override;
};
