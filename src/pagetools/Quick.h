#pragma once
#include "platform/Forms.h"

#include <QDialog>

class CodeMax;
class FileListBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QProgressBar;
class QPushButton;
class QRadioButton;

// "View/Save Quick Note's": small pieces of code kept under a name in the notes folder, found
// again by a search over the names, opened with a double click.
class Quick : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Quick(QWidget* parent = nullptr);
    void Form_Load() override;

    // The notes folder of the application folder.
    static QString folder();
    // Both lists anew from the folder's files.
    void fillLists();
    void List2_DblClick();
    void SmartNetButton1_Click();  // save the new note
    void SmartNetButton2_Click();  // search
    void SmartNetButton3_Click();  // help

    QListWidget *List1 = nullptr, *List2 = nullptr;
    FileListBox* File1 = nullptr;
    QLineEdit *Text1 = nullptr, *txtname = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;
    QProgressBar* Bar = nullptr;
    CodeMax *CodeMax1 = nullptr, *CodeMax2 = nullptr;
    QMenu *SmartMenuXP1 = nullptr, *SmartMenuXP2 = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton2 = nullptr, *SmartNetButton3 = nullptr;
    // The count line beside each editor.
    QLabel *count1 = nullptr, *count2 = nullptr;

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMenu* editingMenu(const QString& name, CodeMax* editor);
    static void showCount(QLabel* line, const CodeMax* editor);
};
