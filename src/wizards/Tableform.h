#pragma once
#include "wizards/TableText.h"
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

// "Table Properties ::": a blank table of so many rows and columns at the caret.
class Tableform : public WizardDialog {
    Q_OBJECT
public:
    explicit Tableform(QWidget* parent = nullptr);
    TableText::Fields fields() const;

    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr, *Text4 = nullptr, *Text5 = nullptr, *Text6 = nullptr,
              *Text7 = nullptr, *Text8 = nullptr, *Text9 = nullptr, *Text10 = nullptr;
    // The invisible working strings: one cell, one row, all rows.
    QLineEdit *Text11 = nullptr, *Text12 = nullptr, *Text13 = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;  // "Pixels", "%"
    QComboBox* Combo1 = nullptr;
    ColourSwatch *Shape1 = nullptr, *Shape2 = nullptr, *Shape3 = nullptr, *Shape4 = nullptr;
    // The four "Choose" buttons, "Insert" and "Cancel".
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr,
                *Command6 = nullptr;

protected:
    void beforeDelivery() override;
    QString fragment() const override { return whole; }
    void afterDelivery() override;

private:
    QString whole;
};
