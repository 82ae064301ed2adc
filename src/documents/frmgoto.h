#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

// Moves the active page's editor to a line.
class frmgoto : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmgoto(QWidget* parent = nullptr);
    void Form_Load() override;

    // Goes to the line in Text1 when the editor has that many lines; otherwise nothing.
    void Command1_Click();

    QLineEdit* Text1 = nullptr;
    QPushButton* Command1 = nullptr;
};
