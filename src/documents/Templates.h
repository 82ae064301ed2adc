#pragma once
#include "platform/Forms.h"

#include <QDialog>

class FileListBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class WebBrowser;

// "Velloro 2002 Templates": the pre-made pages of the application folder in a tree, each shown
// in a preview on a click, the chosen one opened as a new web page.
class Templates : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Templates(QWidget* parent = nullptr);
    void Form_Load() override;

    // The node data that holds a node's key.
    static constexpr int KeyRole = Qt::UserRole;
    static QString keyOf(const QTreeWidgetItem* node);
    // The node of a key, or null.
    QTreeWidgetItem* node(const QString& key) const;

    // Clears the tree and fills it from the two template folders; a missing folder ends the
    // fill with the nodes added so far.
    void fillTree();
    void Tree_NodeClick(QTreeWidgetItem* node);
    void Command2_Click();  // Open
    // The key of the last file node chosen; "" until one is.
    QString currentTemplate() const { return currenttemplate; }

    QTreeWidget* Tree = nullptr;
    FileListBox* File1 = nullptr;  // hidden: it walks the folders
    WebBrowser* WebBrowser1 = nullptr;
    QLabel *Label1 = nullptr, *Label2 = nullptr, *Label7 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;

private:
    QString currenttemplate;
};
