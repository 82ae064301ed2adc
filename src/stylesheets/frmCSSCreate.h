#pragma once
#include "platform/Forms.h"

#include <QDialog>
#include <QIcon>

class CodeMax;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class WebBrowser;

// The up-down arrows beside the number editor: a click on the upper half adds one to its buddy's
// number, on the lower half takes one away. It takes no focus, so the number keeps it.
class UpDown : public QWidget {
    Q_OBJECT
public:
    UpDown(const QString& name, QWidget* parent);
    void setBuddy(QLineEdit* buddy) { this->buddy = buddy; }
    void step(int by);

Q_SIGNALS:
    void stepped();

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    QLineEdit* buddy = nullptr;
};

// "Velloro 2002 CSS Creator + Editor": a whole style sheet in a code editor beside the property
// list, a value editor chosen by the property's type, the single declaration previewed on
// sample text, and the sheet's own preview page.
class frmCSSCreate : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmCSSCreate(QWidget* parent = nullptr);
    void Form_Load() override;

    // Column numbers of the grid.
    enum Column { NameColumn, ValueColumn, TypeColumn, ExtraColumn };

    void Flex_Click(int row);
    void Combo1_Click();
    void txtinput_Change();
    void txtnum_Change();
    void lblResult_Change();
    void Command1_Click();  // reset the declaration
    void Command2_Click();  // insert the declaration at the caret
    void Command3_Click();  // the sheet preview
    void Command4_Click();  // open
    void Command5_Click();  // new
    void Command6_Click();  // save
    void Check1_Click();
    void SmartNetButton1_Click();  // the style sheet guide

    void declarationPreview();
    void sheetPreview();
    bool changed() const { return changedFlag; }
    int editedRow() const { return edited; }

    CodeMax* CodeMax1 = nullptr;
    WebBrowser *WebBrowser1 = nullptr, *Webb = nullptr;
    QLineEdit *lblResult = nullptr, *txtfile = nullptr, *txtinput = nullptr, *txtnum = nullptr;
    QTableWidget* Flex = nullptr;
    QComboBox* Combo1 = nullptr;
    UpDown* UpDown1 = nullptr;
    QCheckBox *ChkUpdate = nullptr, *Check1 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr,
                *Command5 = nullptr, *Command6 = nullptr, *SmartNetButton1 = nullptr;
    QLabel* Label4 = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillFlex();
    void toggleGroup(int row);
    void placeOverCell(QWidget* editor, int row, int width, QWidget* beside = nullptr);
    void hideEditors();
    void setValue(const QString& value);
    void refreshDeclaration();
    QString cell(int row, int column) const;

    int edited = -1;
    bool changedFlag = false;
    bool previewing = false;
    QIcon minus, plus;
};
