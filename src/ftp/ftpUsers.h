#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// The FTP profile keeper: named accounts as small files under Options/FTP, offered in a tree.
class ftpUsers : public QDialog, public Form {
    Q_OBJECT
public:
    explicit ftpUsers(QWidget* parent = nullptr);
    void Form_Load() override;

    void Command3_Click();        // New Account
    void Command1_Click();        // Save
    void SmartNetButton2_Click(); // Update
    void Command2_Click();        // Delete
    void SmartNetButton1_Click(); // Help
    void Tree_NodeClick(QTreeWidgetItem* node);

    QLineEdit* txtProfile = nullptr;
    QLineEdit* txtAddress = nullptr;
    QLineEdit* txtUsername = nullptr;
    QLineEdit* txtPassword = nullptr;
    QLineEdit* txtDate = nullptr;
    QTreeWidget* Tree = nullptr;
    // Plain, TLS if offered, TLS required: kept beside the profile's file.
    QComboBox* cboSecurity = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QPushButton* SmartNetButton1 = nullptr;
    QPushButton* SmartNetButton2 = nullptr;

    // Clears the four account fields and puts the current date and time in txtDate.
    void clearForNew();
};

// Rebuilds the profile tree of ftpUsers and then that of the upload window.
void RefreshProfiles();
// Fills a profile tree: the root, "<CURRENT>", one node per line of Main.DAT. A missing or
// unreadable index leaves the two fixed nodes.
void fillProfileTree(QTreeWidget* tree);
// A node's key (the profile name for the nodes from the third on).
QString nodeKey(const QTreeWidgetItem* node);
// The nodes from the third on, in order.
QList<QTreeWidgetItem*> profileNodes(QTreeWidget* tree);
// The security choice as both FTP windows offer it, in the order of FtpSecurity.
QComboBox* securityBox(QWidget* parent);
// The date text of a new profile.
QString profileDate();
