#pragma once
#include "platform/Forms.h"

#include <QDialog>

class FtpEngine;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "Advanced Settings": the view on the FTP engine, with its socket details, the server's
// replies, the listing, one file up and one file down. The upload window drives it.
class ftpadvanced : public QDialog, public Form {
    Q_OBJECT
public:
    explicit ftpadvanced(QWidget* parent = nullptr);
    ~ftpadvanced() override;
    void Form_Load() override;

    void Command1_Click();   // Connect, with the upload window's account
    void Command5_Click();   // Cut Connection
    void Command6_Click();   // View Files
    void Command7_Click();   // Send File
    void inputdata1_Click(); // Retrieve

    FtpEngine* engine() const { return ftp; }

    // The server port the windows connect to: 21, always, except in tests.
    static void setPortForTesting(quint16 port);

    QLineEdit* Text1 = nullptr;   // FTP connection
    QLineEdit* Text3 = nullptr;   // local IP
    QLineEdit* Text4 = nullptr;   // remote host IP
    QLineEdit* Text5 = nullptr;   // local port
    QLineEdit* Text6 = nullptr;   // remote port
    QLineEdit* Text10 = nullptr;  // bytes received
    QLineEdit* Text12 = nullptr;  // socket handle
    QPlainTextEdit* Text2 = nullptr;  // server responses
    QPlainTextEdit* Text7 = nullptr;  // files on the server
    QLineEdit* Text8 = nullptr;   // source file
    QLineEdit* Text11 = nullptr;  // new file name
    QPlainTextEdit* Text9 = nullptr;  // the retrieve command
    QLineEdit* Text13 = nullptr;  // local location (read by nothing)
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command5 = nullptr;
    QPushButton* Command6 = nullptr;
    QPushButton* Command7 = nullptr;
    QPushButton* inputdata1 = nullptr;

private:
    bool busy() const;
    void appendLog(const QString& line);
    void refreshDetails();
    FtpEngine* ftp = nullptr;
};
