#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Velloro 2002 Template": the active notepad's text as a template file.
class tmplsave : public QDialog, public Form {
    Q_OBJECT
public:
    explicit tmplsave(QWidget* parent = nullptr);
    void Command1_Click();

    QLineEdit* Text1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QCheckBox *Check1 = nullptr, *Check2 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;
};
