#pragma once
#include "wizards/LineText.h"
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

// "Line Properties ::": a horizontal rule at the caret.
class lineform : public WizardDialog {
    Q_OBJECT
public:
    explicit lineform(QWidget* parent = nullptr);
    LineText::Fields fields() const;

    QLineEdit *Text1 = nullptr, *barsize = nullptr;
    ColourSwatch* Shape1 = nullptr;
    QComboBox *align = nullptr, *barwidth = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;  // "Pixels", "%"
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;  // "Load", "Choose", close

protected:
    QString fragment() const override { return LineText::fragment(fields()); }
};
