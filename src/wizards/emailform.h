#pragma once
#include "wizards/EmailText.h"
#include "wizards/WizardDialog.h"

class QComboBox;
class QLineEdit;
class QPushButton;

// "Email ::": a mail link at the caret.
class emailform : public WizardDialog {
    Q_OBJECT
public:
    explicit emailform(QWidget* parent = nullptr);
    EmailText::Fields fields() const;

    QLineEdit *Text1 = nullptr, *address = nullptr, *subject = nullptr;
    QComboBox* align = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;  // "Load", close

protected:
    QString fragment() const override { return EmailText::fragment(fields()); }
    // The link's three texts start empty again; the position stays.
    void afterDelivery() override;
};
