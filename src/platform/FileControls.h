#pragma once
#include <QComboBox>
#include <QListWidget>
#include <QTreeView>

class QFileSystemModel;

// The drive, folder and file lists of the open and save windows, chained by their owners:
// a drive change sets the folder, a folder change sets the file list's path.

// The mounted volumes.
class DriveListBox : public QComboBox {
    Q_OBJECT
public:
    explicit DriveListBox(QWidget* parent = nullptr);
    QString Drive() const;
    void setDrive(const QString& drive);  // a volume's root, or any path on it
Q_SIGNALS:
    void Change(const QString& drive);
};

// The folders: a tree of the file system that follows and reports one selected folder.
class DirListBox : public QTreeView {
    Q_OBJECT
public:
    explicit DirListBox(QWidget* parent = nullptr);
    QString Path() const { return current; }
    // A folder that does not exist is ignored.
    void setPath(const QString& path);
Q_SIGNALS:
    void Change(const QString& path);

private:
    void reveal();
    QFileSystemModel* model = nullptr;
    QString current;
};

// The files of one folder that match a pattern ("*.htm", or several split by ";").
class FileListBox : public QListWidget {
    Q_OBJECT
public:
    explicit FileListBox(QWidget* parent = nullptr);
    QString Path() const { return folder; }
    void setPath(const QString& path);
    QString Pattern() const { return pattern; }
    void setPattern(const QString& pattern);
    QString FileName() const;  // the selected file's name, or ""
    void refresh();
Q_SIGNALS:
    void fileChosen(const QString& fullPath);     // a click on a file
    void fileActivated(const QString& fullPath);  // a double click

private:
    QString folder;
    QString pattern = QStringLiteral("*.*");
};

// Chains the three: a drive change sets the folder, a folder change sets the file list's path.
void chainFileControls(DriveListBox* drive, DirListBox* dir, FileListBox* files);
// The desktop's and the documents' folders of the user.
QString desktopFolder();
QString documentsFolder();

class QGridLayout;

// The drive, folder and file lists as the open and save windows lay them out: the drive list
// with its label on top, the folders below it, the files beside both; created, named and
// chained.
struct FilePicker {
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
};
FilePicker addFilePicker(QGridLayout* grid, QWidget* parent);
// Puts the lists on a remembered drive and folders, and keeps the memory up to date as the user
// moves to another folder (the memory must outlive the lists: it is the program's settings).
void followFolders(DriveListBox* drive, DirListBox* dir, FileListBox* files, QString& driveMemory, QString& dirMemory,
                   QString& filesMemory);
