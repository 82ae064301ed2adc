#pragma once
#include "platform/Forms.h"

#include <QDialog>

class CodeMax;
class IndexPanel;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

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
    void SmartNetButton3_Click();  // help
    // The opened note into the active document at its caret (a page's editor or a notepad's text).
    void loadIntoDocument();

    // The notes' index: List1, List2, File1, Text1, Option1, Option2, Bar and the search
    // button SmartNetButton2.
    IndexPanel* index = nullptr;
    QLineEdit* txtname = nullptr;
    CodeMax *CodeMax1 = nullptr, *CodeMax2 = nullptr;
    QMenu *SmartMenuXP1 = nullptr, *SmartMenuXP2 = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton3 = nullptr, *loadButton = nullptr;
    // The count line beside each editor.
    QLabel *count1 = nullptr, *count2 = nullptr;

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMenu* editingMenu(const QString& name, CodeMax* editor);
    static void showCount(QLabel* line, const CodeMax* editor);
};
