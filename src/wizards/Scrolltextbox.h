#pragma once
#include "wizards/TextAreaText.h"
#include "wizards/WizardDialog.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "Scrolling Text Box ::": a multi-line form field at the caret. The one wizard with a failure
// message: with no document at all it says so, and on every failure it stays on the screen.
class Scrolltextbox : public WizardDialog {
    Q_OBJECT
public:
    explicit Scrolltextbox(QWidget* parent = nullptr);
    TextAreaText::Fields fields() const;

    QPlainTextEdit* Text1 = nullptr;
    QLineEdit *Text2 = nullptr, *Text3 = nullptr, *Text4 = nullptr;
    QComboBox* Combo1 = nullptr;
    QLabel* Label5 = nullptr;
    QPushButton* Command1 = nullptr;  // "LOAD"

protected:
    QString fragment() const override { return TextAreaText::fragment(fields()); }
    void failed(const RuntimeError& error) override;
};
