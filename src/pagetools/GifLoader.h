#pragma once
#include "platform/Forms.h"

#include <QDialog>

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

// "Index Picture Generator": finds the pictures of the chosen types in one folder and writes
// "PictureShow.html", every picture under an index, into a folder the user names; the page then
// opens as a web page.
class GifLoader : public QDialog, public Form {
    Q_OBJECT
public:
    explicit GifLoader(QWidget* parent = nullptr);

    void Command2_Click();  // search
    void Command3_Click();  // build the page
    void Command4_Click();  // add the typed pattern
    void Command5_Click();  // add the chosen known pattern
    void Command6_Click();  // remove the chosen pattern

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QListWidget *List1 = nullptr, *List2 = nullptr, *List3 = nullptr;
    QLineEdit *Text1 = nullptr, *txtfolder = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;
    QLabel* Label3 = nullptr;
    QPushButton *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr, *Command6 = nullptr;
};
