#pragma once
#include "platform/Forms.h"
#include "platform/WindowCounter.h"

#include <QDialog>

class DirListBox;
class DriveListBox;
class FileListBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Open A File Into Velloro 2002": a file into a web page, split or notepad window.
class Openform : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Openform(QWidget* parent = nullptr);
    void Form_Load() override;

    // The open: the file in Location as Combo3 says, sized as Combo2 says.
    void Command1_Click();
    // The window counter of this routine.
    int nextWindowNumber();

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QComboBox *Combo1 = nullptr, *Combo2 = nullptr, *Combo3 = nullptr;
    QLineEdit* Location = nullptr;
    QPushButton *Command1 = nullptr, *SmartNetButton1 = nullptr, *SmartNetButton3 = nullptr,
                *SmartNetButton4 = nullptr, *SmartNetButton5 = nullptr;

private:
    WindowCounter counter;
};
