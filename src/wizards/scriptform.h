#pragma once
#include "wizards/ScriptText.h"
#include "wizards/WizardDialog.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// "Scripts ::": a script block at the caret, in JavaScript or VBScript (or server code). "Other"
// with no name writes JavaScript; with a name it takes the failure path and inserts nothing.
class scriptform : public WizardDialog {
    Q_OBJECT
public:
    explicit scriptform(QWidget* parent = nullptr);
    ScriptText::Fields fields() const;

    QRadioButton *optJS = nullptr, *optVBS = nullptr, *optOther = nullptr;
    QCheckBox* chkServer = nullptr;
    QLineEdit* txtOther = nullptr;
    QGroupBox* Frame1 = nullptr;  // "Text Input ..."
    QPlainTextEdit* txtScript = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;  // "LOAD", "Cancel"

protected:
    QString fragment() const override { return ScriptText::fragment(fields()); }
};
