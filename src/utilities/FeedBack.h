#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "Send Feedback": writes \Options\FeedBack.dat from the form and hands it, as an attachment
// of a new mail to the feedback address, to the desktop's mail program.
class FeedBack : public QDialog, public Form {
    Q_OBJECT
public:
    explicit FeedBack(QWidget* parent = nullptr);

    void Command1_Click();
    // Where the feedback file is written.
    static QString feedbackFile();

    QLineEdit *txtname = nullptr, *txtemail = nullptr, *txtcountry = nullptr, *txtage = nullptr;
    QPlainTextEdit *txtcomment = nullptr, *txtchanges = nullptr;
    QComboBox* coscale = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;
};
