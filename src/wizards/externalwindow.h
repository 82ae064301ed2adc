#pragma once
#include "wizards/ExternalWindowText.h"
#include "wizards/WizardDialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "External Window": a link that opens a page in a window of the given size.
class externalwindow : public WizardDialog {
    Q_OBJECT
public:
    explicit externalwindow(QWidget* parent = nullptr);
    ExternalWindowText::Fields fields() const;

    QLineEdit *Location = nullptr, *location1 = nullptr;  // the page as shown, its full path
    QCheckBox* Check1 = nullptr;                         // "Shorten location length"
    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr;  // width, height, link text
    QLabel* Label5 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;  // "Load", close, "Find"

protected:
    bool checkFields() override;
    QString fragment() const override { return ExternalWindowText::fragment(fields()); }
};
