#pragma once
#include "platform/Forms.h"

#include <QDialog>
#include <QPair>

class DirListBox;
class DriveListBox;
class FileListBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;

// "FTP Client": the account, the queue of files in a grid, and the progress of an upload that
// the engine works off one file at a time. It holds no socket itself.
class ftpnormal : public QDialog, public Form {
    Q_OBJECT
public:
    explicit ftpnormal(QWidget* parent = nullptr);
    void Form_Load() override;

    void upload_Click();          // Connect to FTP Server
    void Command1_Click();        // Disconnect from FTP Server
    void Command2_Click();        // Upload File's
    void Command3_Click();        // Clear the list
    void Command4_Click();        // advanced options
    void Command5_Click();        // Close
    void SmartNetButton1_Click(); // Add Profile
    void SmartNetButton2_Click(); // Delete 1 file from list
    void File1_DblClick();
    void Combo1_Click();
    void Tree_NodeClick(QTreeWidgetItem* node);

    // Adds one file to the queue as a row: name, size, path.
    void addFile(const QString& name, const QString& path);
    // Adds a project's files (name and path of each node after the project's own), then shows
    // the window.
    void addProject(const QList<QPair<QString, QString>>& files);

    // What the engine's events do to this window.
    void onSendProgress(qint64 bytesSent, qint64 bytesRemaining);
    void onSendComplete();
    void onDataError();
    void setServerShape(int colour);
    int serverShapeColour() const { return shapeColour; }
    QString panelText(int panel) const;
    void setPanelText(int panel, const QString& text);
    // The grid's current row counted as the platform does: 0 is the header, 1 the first file.
    int currentRow() const;
    // Moves to the next row; false past the last one.
    bool moveNext();

    QLineEdit* ftpaddress = nullptr;
    QLineEdit* username = nullptr;
    QLineEdit* password = nullptr;
    // How the connection is made; a profile's click sets it.
    QComboBox* cboSecurity = nullptr;
    QTreeWidget* Tree = nullptr;
    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QTableWidget* Flex = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QProgressBar* ProgressBar2 = nullptr;
    QLabel* lblfileuploading = nullptr;
    QLabel* lblsize = nullptr;
    QLabel* Label3 = nullptr;
    QPlainTextEdit* Text2 = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    QFrame* Shape1 = nullptr;
    QPushButton* upload = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QPushButton* Command5 = nullptr;
    QPushButton* SmartNetButton1 = nullptr;
    QPushButton* SmartNetButton2 = nullptr;
    QPushButton* Command6 = nullptr;  // Internet settings

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void clearFlex();
    QString cell(int row, int column) const;
    QLabel* panels[3] = {};
    int shapeColour = 255;
    // The byte bar in bytes: files beyond the bar's int range are shown in proportion.
    qint64 bytesValue = 0;
    qint64 bytesMaximum = 0;
    void showBytes();
};

// The project panel's "Upload Project To FTP Server": queues each (name, path) and shows the
// upload window.
void uploadProjectToFtp(const QList<QPair<QString, QString>>& files);
