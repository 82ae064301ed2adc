#pragma once
#include "wizards/HyperlinkText.h"
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

// "Hyperlink ::": a link at the caret. A link with its own colour is left selected; one without
// goes in by the insertion rule. The address and the text start empty again after each link.
class Hyperlink1 : public WizardDialog {
    Q_OBJECT
public:
    explicit Hyperlink1(QWidget* parent = nullptr);
    HyperlinkText::Fields fields() const;

    QLineEdit *Link = nullptr, *text = nullptr, *target = nullptr, *textsize = nullptr, *textfont = nullptr,
              *Text1 = nullptr;
    QListWidget* List1 = nullptr;  // the common targets
    ColourSwatch* Shape1 = nullptr;
    QCheckBox* Check1 = nullptr;   // the link's own colour
    QLabel* Label5 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr;  // "Find", "LOAD", "Choose" x2

protected:
    bool checkFields() override;
    QString fragment() const override { return HyperlinkText::fragment(fields()); }
    Delivery delivery() const override;
    void afterDelivery() override;
};
