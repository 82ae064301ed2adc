#pragma once
#include "wizards/WizardDialog.h"
#include "wizards/WizardRows.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

// "TableWizard :": a table from a grid whose cells the user fills; the heading row and column
// are cells of the table like all others.
class TableWizard : public WizardDialog {
    Q_OBJECT
public:
    explicit TableWizard(QWidget* parent = nullptr);

    // The grid's members by their usual names.
    int Rows() const;
    int Cols() const;
    QString TextMatrix(int row, int col) const;

    QTableWidget* Flex = nullptr;
    QLineEdit* txtinput = nullptr;
    QCheckBox* ckAuto = nullptr;
    QLabel *lbrows = nullptr, *lbcols = nullptr;
    QLineEdit *txtWidth = nullptr, *txtbo = nullptr, *txtba = nullptr;
    QComboBox* coAlign = nullptr;
    QPlainTextEdit* txtresult = nullptr;
    // "Update"; "Add" and "Delete" for rows, then for columns; "Insert"; the two "Change".
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr,
                *Command6 = nullptr, *Command7 = nullptr, *Command8 = nullptr;

protected:
    void beforeDelivery() override;
    QString fragment() const override;

private:
    // "Update": the current cell becomes the selection and takes the cell editor's text.
    void update();
    // The grid's Rows and Cols; it can go no lower than one of each.
    void resize(int rows, int cols);
    void showCounts();
    WizardRows::TableStyle style;
    // The working text as txtresult shows it, with its own CR LF (the field shows lines).
    QString result;
};
