#pragma once
#include "wizards/BulletText.h"
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Bullets ::": a one-item list at the caret. Only the bullets box decides the kind of list;
// the numbers, italic and bold boxes are shown and never read.
class bulletform : public WizardDialog {
    Q_OBJECT
public:
    explicit bulletform(QWidget* parent = nullptr);
    BulletText::Fields fields() const;

    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr;
    QComboBox* Combo2 = nullptr;
    QCheckBox *Check1 = nullptr, *Check2 = nullptr, *Check3 = nullptr, *Check4 = nullptr;
    QLabel *Label2 = nullptr, *Label3 = nullptr;  // "Bullets", "1) Numbered"
    ColourSwatch* Shape1 = nullptr;
    QPushButton *Command1 = nullptr, *Command4 = nullptr, *Command5 = nullptr;  // "Load", font, colour

protected:
    QString fragment() const override { return BulletText::fragment(fields()); }
};
