#pragma once
#include "platform/Forms.h"
#include "platform/WindowCounter.h"

#include <QWidget>

class DirListBox;
class DriveListBox;
class FileListBox;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

// "Quick Menu ::": a small floating window, kept above the others, with the code tree, the
// character grid and a file opener on its pages. It writes into whichever document is active
// at the moment of the click.
class sidebar : public QWidget, public Form {
    Q_OBJECT
public:
    explicit sidebar(QWidget* parent = nullptr);
    void Form_Load() override;

    void TreeView1_NodeClick(QTreeWidgetItem* node);
    void TreeView1_DblClick(QTreeWidgetItem* node);
    void Command1_Click();
    void Flex_Click(int row);
    void Flex_DblClick(int row);
    void Command4_Click();
    void Command3_Click();
    void Combo1_Click();
    void Command2_Click();

    // Whether the window stays above the others.
    bool isTopmost() const;
    // Clears the state and sets it again, for a window manager that has lost it.
    void StayOnTop();

    QTabWidget* SSTab1 = nullptr;
    QTreeWidget* TreeView1 = nullptr;
    QLineEdit* Text1 = nullptr;
    QPushButton* Command1 = nullptr;
    QLabel* Label3 = nullptr;
    QTableWidget* Flex = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* Text2 = nullptr;
    QPushButton* Command4 = nullptr;
    QLabel* Label1 = nullptr;
    QPushButton* Command3 = nullptr;
    QFrame* Frame1 = nullptr;
    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton* Command2 = nullptr;

private:
    // A page of a list: the hint above it, the chosen code and its Insert button below.
    QWidget* listPage(QLabel*& hint, const QString& hintName, QWidget* list, QLineEdit*& text, const QString& textName,
                      QPushButton*& insert, const QString& insertName);
    QWidget* filePage();
    void addOnTopStrip(QVBoxLayout* outer);
    void setTopmost(bool on);

    // This window's own counts of the windows it opens.
    WindowCounter pages, notepads;
};
