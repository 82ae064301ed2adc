#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

// "Add File": adds a page to the loaded project. The file is not copied anywhere: the project
// simply points at it.
class ProjAdd : public QDialog, public Form {
    Q_OBJECT
public:
    explicit ProjAdd(QWidget* parent = nullptr);

    void Command2_Click();  // Find
    void Command3_Click();  // Add

    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;

protected:
    // On activation the project file is the panel's.
    void showEvent(QShowEvent* e) override;
};
