#pragma once
#include "wizards/TextInputText.h"
#include "wizards/WizardDialog.h"

class CodeMax;
class ColourSwatch;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Text Input Section ::": a formatted paragraph at the caret. Bold and italic are written into
// the text field itself before the paragraph is made; the field is emptied afterwards, also
// when the delivery fails.
class Textinput : public WizardDialog {
    Q_OBJECT
public:
    explicit Textinput(QWidget* parent = nullptr);
    TextInputText::Fields fields() const;

    CodeMax* CodeMax1 = nullptr;
    QLineEdit *Text2 = nullptr, *Text3 = nullptr;
    QCheckBox *Check1 = nullptr, *Check2 = nullptr;  // "Bold", "Italic"
    QComboBox *Combo1 = nullptr, *Combo2 = nullptr;  // position, size
    ColourSwatch* Shape1 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;  // "Load", "Choose Font", "Choose"

protected:
    void beforeDelivery() override;
    QString fragment() const override;
    void closingStep() override;
};
