#pragma once
#include "wizards/WizardDialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "External Style Sheet's": links one style sheet into the active page's head.
class CSSform : public WizardDialog {
    Q_OBJECT
public:
    explicit CSSform(QWidget* parent = nullptr);

    QLineEdit *Location = nullptr, *location1 = nullptr;  // the sheet as shown, its full path
    QCheckBox* Check1 = nullptr;                         // "Shorten location length"
    QLabel* note = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;  // find the sheet, "Load", close

protected:
    // The head's tag is looked up in the work copy first; the link then goes in at the editor's
    // selection, as the tag's place in the code.
    void beforeDelivery() override;
    QString fragment() const override;
    void afterDelivery() override;
};
