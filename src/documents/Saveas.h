#pragma once
#include "platform/Forms.h"

#include <QDialog>

class DirListBox;
class DriveListBox;
class FileListBox;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Save A File From Velloro 2002": the active document into a folder under a name and type.
class Saveas : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Saveas(QWidget* parent = nullptr);
    void Form_Load() override;

    void Command1_Click();
    // The target of a save: the folder, the name and the extension, without a doubled separator.
    QString target() const;

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QLineEdit *Location = nullptr, *filename = nullptr;
    QComboBox* Combo1 = nullptr;
    QCheckBox* Check3 = nullptr;
    QPushButton *Command1 = nullptr, *SmartNetButton1 = nullptr, *SmartNetButton2 = nullptr, *SmartNetButton3 = nullptr;

private:
    void SaveCode();
    bool hasFolderAndName();  // says so when either is missing
    void SaveRichText();
    // The exists check and the question; false when the user keeps the old file.
    bool mayWrite(const QString& path);
    void afterSave();
};
