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

    QLineEdit* Text1 = nullptr;
    ColourSwatch* Shape1 = nullptr;
    QPushButton* Command2 = nullptr;
    QComboBox* align = nullptr;
    QComboBox* barwidth = nullptr;
    QLineEdit* barsize = nullptr;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command3 = nullptr;

protected:
    QString fragment() const override { return LineText::fragment(fields()); }
};
