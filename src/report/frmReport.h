#pragma once
#include "platform/Forms.h"

#include <QDialog>

class CodeMax;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTextEdit;

// The HTML report checker: counts a page's tags and shows 16 result rows with an explanation
// for the clicked one. Opened empty from the main window, or with a web page's text.
class frmReport : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmReport(QWidget* parent = nullptr);
    void Form_Load() override;

    void Command1_Click();        // Start
    void SmartNetButton1_Click(); // Open
    void Flex_Click(int row);

    CodeMax* CodeMax1 = nullptr;
    QLineEdit* txtlocation = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* SmartNetButton1 = nullptr;
    QTableWidget* Flex = nullptr;
    QTextEdit* RichBox = nullptr;
    QLabel* lblAction = nullptr;
    QProgressBar* PBar = nullptr;

private:
    void clearFlex(const QString& header);
};

// Registers frmReport and lets web page windows hand it their text.

