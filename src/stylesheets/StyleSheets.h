#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QLabel;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTextEdit;
class QTreeWidget;
class WebBrowser;

// "CSS Central": the launcher over the style sheet windows.
class CSSCentral : public QDialog, public Form {
    Q_OBJECT
public:
    explicit CSSCentral(QWidget* parent = nullptr);
    // The start button: the chosen item's window, if this build has it.
    void SmartNetButton1_Click();

    QTreeWidget* Tree = nullptr;
    QTextEdit* RichBox = nullptr;
    QLabel* note = nullptr;
    QPushButton* SmartNetButton1 = nullptr;
};

// "Create External Stlye Sheet": a small sheet of link colours, written to a file.
class CSSCREATE : public QDialog, public Form {
    Q_OBJECT
public:
    explicit CSSCREATE(QWidget* parent = nullptr);
    void Form_Load() override;

    void Command1_Click();  // add the default row
    void Command2_Click();  // add the custom row
    void Command3_Click();  // save
    // The sheet under work as it is written: its lines joined by CR LF.
    QString sheet() const;

    QComboBox *Combo1 = nullptr, *Combo2 = nullptr, *Combo3 = nullptr;
    QLineEdit *Text1 = nullptr, *Text2 = nullptr, *Text3 = nullptr, *Text5 = nullptr;
    QPlainTextEdit* Text4 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr,
                *Command5 = nullptr, *Command6 = nullptr;

private:
    void append(const QString& type, const QString& colour, const QString& effect);
};

// "Create ScrollBar Color Code": the coloured scroll bar block and its preview page.
class frmscrollbar : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmscrollbar(QWidget* parent = nullptr);
    void Form_Load() override;
    // Builds the block, writes the preview page and shows it.
    void Command10_Click();

    QLineEdit* Text[7] = {};
    QPushButton* Pick[7] = {};  // Command1 to Command7
    QPlainTextEdit *stylecode = nullptr, *temprest = nullptr;
    WebBrowser* WebBrowser1 = nullptr;
    QPushButton *Command8 = nullptr, *Command9 = nullptr, *Command10 = nullptr;
};

// "Style Link Wizard": links one style sheet into many pages.
class StyleLink : public QDialog, public Form {
    Q_OBJECT
public:
    explicit StyleLink(QWidget* parent = nullptr);

    void chooseSheet();  // the sheet's file dialog
    void choosePage();   // a page's file dialog, into txtadd
    void addPage();      // txtadd into the list
    void process();      // links the sheet into every listed page

    QLineEdit *txtlocationfile = nullptr, *txtlocationfile1 = nullptr, *txtfolderlocation = nullptr, *txtadd = nullptr;
    QListWidget* lifiles = nullptr;
    QPlainTextEdit* RichTextBox1 = nullptr;
    QProgressBar* Bar = nullptr;
    QLabel* lblAction = nullptr;
    QPushButton *cmdSheet = nullptr, *cmdPage = nullptr, *cmdAdd = nullptr, *cmdProcess = nullptr, *cmdClose = nullptr;

protected:
    bool event(QEvent* e) override;
};
