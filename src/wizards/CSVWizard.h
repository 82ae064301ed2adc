#pragma once
#include "wizards/WizardDialog.h"
#include "wizards/WizardRows.h"

#include <QChar>

class QLabel;
class QLineEdit;
class QPushButton;

// "Table Wizard": a table from a comma-separated or tab-delimited text file. The menu entry
// that opens it hands over the chosen file in the property "sourceFile"; its format decides
// which of the two buttons is active.
class CSVWizard : public WizardDialog {
    Q_OBJECT
public:
    explicit CSVWizard(QWidget* parent = nullptr);

    QLineEdit *txtlocation = nullptr, *txtWidth = nullptr, *txtbo = nullptr, *txtba = nullptr;
    QComboBox* coAlign = nullptr;
    QLabel* Label1 = nullptr;
    // "Find"; the comma and the tab button; the two "Choose".
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command6 = nullptr;

protected:
    QString fragment() const override;
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    // The file the menu handed over, taken once: into txtlocation, and its button made the
    // active one. False when there was none.
    bool takeSourceFile();
    void setActive(bool comma, bool tab);
    void insertWith(QChar separator);
    WizardRows::TableStyle style;
    QChar separator;
};
