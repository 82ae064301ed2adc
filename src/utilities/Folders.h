#pragma once
#include "platform/Forms.h"

#include <QDialog>

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStatusBar;

// "Folder Manipulation ::": a small file manager for the web folder. Create, delete and rename
// folders, delete files; the folder browser starts on the desktop or in the documents.
class Folders : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Folders(QWidget* parent = nullptr);
    void Form_Load() override;

    void Command1_Click();  // create folder
    void Command2_Click();  // delete folder
    void Command3_Click();  // rename folder
    void Command4_Click();  // delete file

    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr;
    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    QLabel* Panel1 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr,
                *SmartNetButton3 = nullptr, *SmartNetButton4 = nullptr;

private:
    void showFileCount();
};

// "Folder Dialog": picks or makes a folder and hands its path to the field of the caller.
class frmFolder : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmFolder(QWidget* parent = nullptr);
    // Shows the dialog for a caller's field, which takes the chosen path.
    void chooseInto(QLineEdit* field);

    QLineEdit* txtnfolder = nullptr;
    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    // Use this folder, cancel, desktop, documents, create.
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton2 = nullptr, *SmartNetButton3 = nullptr,
                *SmartNetButton4 = nullptr, *SmartNetButton5 = nullptr;

private:
    QLineEdit* callerField = nullptr;
};

// "Execute": a command line and the window style to run it in; it only closes.
class Execute : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Execute(QWidget* parent = nullptr);
    QLineEdit* Text1 = nullptr;
    class QComboBox* Combo1 = nullptr;
    QPushButton* Command2 = nullptr;
};
