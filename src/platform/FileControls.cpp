#include "platform/FileControls.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QStorageInfo>

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent)
{
    for (const QStorageInfo& v : QStorageInfo::mountedVolumes())
        if (v.isValid() && v.isReady())
            addItem(v.rootPath());
    if (findText(QDir::rootPath()) < 0)
        insertItem(0, QDir::rootPath());
    setCurrentIndex(findText(QDir::rootPath()));
    connect(this, &QComboBox::currentTextChanged, this, &DriveListBox::Change);
}

QString DriveListBox::Drive() const { return currentText(); }

void DriveListBox::setDrive(const QString& drive)
{
    const QString root = QStorageInfo(drive).isValid() ? QStorageInfo(drive).rootPath() : QDir::rootPath();
    int i = findText(root);
    if (i < 0) {
        addItem(root);
        i = count() - 1;
    }
    setCurrentIndex(i);
}

DirListBox::DirListBox(QWidget* parent) : QTreeView(parent)
{
    model = new QFileSystemModel(this);
    model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    model->setRootPath(QDir::rootPath());
    setModel(model);
    for (int c = 1; c < model->columnCount(); ++c)
        hideColumn(c);
    header()->hide();
    setPath(QDir::homePath());
    // The model reads folders in the background: show the chosen one once its parents are in.
    connect(model, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (current.startsWith(loaded))
            reveal();
    });
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { setPath(model->filePath(index)); });
}

void DirListBox::setPath(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return;
    const QString clean = QDir::cleanPath(info.absoluteFilePath());
    const bool changed = clean != current;
    current = clean;
    reveal();
    if (changed)
        Q_EMIT Change(current);
}

void DirListBox::reveal()
{
    const QModelIndex index = model->index(current);
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index, QAbstractItemView::PositionAtCenter);
    expand(index);
}

FileListBox::FileListBox(QWidget* parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        Q_EMIT fileChosen(QDir(folder).filePath(item->text()));
    });
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        Q_EMIT fileActivated(QDir(folder).filePath(item->text()));
    });
}

void FileListBox::setPath(const QString& path)
{
    if (!QFileInfo(path).isDir())
        return;
    folder = QDir::cleanPath(path);
    refresh();
}

void FileListBox::setPattern(const QString& p)
{
    pattern = p.isEmpty() ? QStringLiteral("*.*") : p;
    refresh();
}

QString FileListBox::FileName() const
{
    const QListWidgetItem* item = currentItem();
    return item && item->isSelected() ? item->text() : QString();
}

void FileListBox::refresh()
{
    clear();
    if (folder.isEmpty())
        return;
    // "*.*" means every file, whether its name has a dot or not.
    QStringList filters;
    for (const QString& f : pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        filters << (f.trimmed() == QLatin1String("*.*") ? QStringLiteral("*") : f.trimmed());
    QDir dir(folder);
    dir.setNameFilters(filters);
    dir.setFilter(QDir::Files | QDir::Hidden);
    dir.setSorting(QDir::Name | QDir::IgnoreCase);
    addItems(dir.entryList());
}

#include <QStandardPaths>

void chainFileControls(DriveListBox* drive, DirListBox* dir, FileListBox* files)
{
    QObject::connect(drive, &DriveListBox::Change, dir, [dir](const QString& d) { dir->setPath(d); });
    QObject::connect(dir, &DirListBox::Change, files, [files](const QString& p) { files->setPath(p); });
    files->setPath(dir->Path());
}

QString desktopFolder() { return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation); }
QString documentsFolder() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }

#include <QGridLayout>
#include <QLabel>

FilePicker addFilePicker(QGridLayout* grid, QWidget* parent)
{
    FilePicker p{new DriveListBox(parent), new DirListBox(parent), new FileListBox(parent)};
    p.Drive1->setObjectName(QStringLiteral("Drive1"));
    p.Dir1->setObjectName(QStringLiteral("Dir1"));
    p.File1->setObjectName(QStringLiteral("File1"));
    grid->addWidget(new QLabel(QStringLiteral("Drive :"), parent), 0, 0);
    grid->addWidget(p.Drive1, 0, 1);
    grid->addWidget(p.Dir1, 1, 0, 1, 2);
    grid->addWidget(p.File1, 0, 2, 2, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    chainFileControls(p.Drive1, p.Dir1, p.File1);
    return p;
}

void followFolders(DriveListBox* drive, DirListBox* dir, FileListBox* files, QString& driveMemory, QString& dirMemory,
                   QString& filesMemory)
{
    drive->setDrive(driveMemory);
    dir->setPath(dirMemory);
    files->setPath(filesMemory);
    QObject::connect(dir, &DirListBox::Change, files, [drive, &driveMemory, &dirMemory, &filesMemory](const QString& path) {
        dirMemory = path;
        filesMemory = path;
        driveMemory = drive->Drive();
    });
}
