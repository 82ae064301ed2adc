#include "pagetools/GifLoader.h"

#include "documents/DocumentWindow.h"
#include "documents/OpenSave.h"
#include "pagetools/PictureShow.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/ListRows.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

// Where the search starts: the user's pictures, or home when there is no such folder.
QString startFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
}
}

GifLoader::GifLoader(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("GifLoader"));
    setWindowTitle(QStringLiteral("Index Picture Generator"));
    resize(860, 520);

    // The folder to search.
    Drive1 = Look::named(new DriveListBox(this), QStringLiteral("Drive1"));
    Dir1 = Look::named(new DirListBox(this), QStringLiteral("Dir1"));
    File1 = Look::named(new FileListBox(this), QStringLiteral("File1"));
    File1->hide();
    auto* folderBox = new QGroupBox(QStringLiteral("Folder to search :"), this);
    auto* folderColumn = new QVBoxLayout(folderBox);
    folderColumn->addWidget(Drive1);
    folderColumn->addWidget(Dir1, 1);

    // The picture types: the known ones, and the ones the search uses.
    List2 = Look::named(new QListWidget(this), QStringLiteral("List2"));
    List2->addItems({QStringLiteral("*.gif"), QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"), QStringLiteral("*.wmf"),
                     QStringLiteral("*.bmp")});
    List3 = Look::named(new QListWidget(this), QStringLiteral("List3"));
    for (const QString& pattern : {QStringLiteral("*.gif"), QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"), QStringLiteral("*.png")}) {
        auto* row = new QListWidgetItem(pattern, List3);
        row->setFlags(row->flags() | Qt::ItemIsEditable);
    }
    List3->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    Text1 = Look::named(new QLineEdit(this), QStringLiteral("Text1"));
    Text1->setPlaceholderText(QStringLiteral("*.png"));
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("Add"), this);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Add >>"), this);
    Command6 = Look::faceButton(QStringLiteral("Command6"), QStringLiteral("Remove"), this);
    auto* typesBox = new QGroupBox(QStringLiteral("Picture types :"), this);
    auto* types = new QGridLayout(typesBox);
    types->addWidget(new QLabel(QStringLiteral("Known :"), this), 0, 0);
    types->addWidget(new QLabel(QStringLiteral("Search for :"), this), 0, 2);
    types->addWidget(List2, 1, 0);
    auto* middle = new QVBoxLayout;
    middle->addStretch();
    middle->addWidget(Command5);
    middle->addWidget(Command6);
    middle->addStretch();
    types->addLayout(middle, 1, 1);
    types->addWidget(List3, 1, 2);
    auto* typed = new QHBoxLayout;
    typed->addWidget(Text1, 1);
    typed->addWidget(Command4);
    types->addLayout(typed, 2, 0, 1, 3);

    // What was found.
    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Search"), this);
    Label3 = Look::named(new QLabel(this), QStringLiteral("Label3"));
    auto* foundBox = new QGroupBox(QStringLiteral("Pictures found :"), this);
    auto* foundColumn = new QVBoxLayout(foundBox);
    foundColumn->addWidget(List1, 1);
    auto* progress = new QHBoxLayout;
    progress->addWidget(new QLabel(QStringLiteral("Search Progress :"), this));
    progress->addWidget(Label3, 1);
    progress->addWidget(Command2);
    foundColumn->addLayout(progress);

    // The page.
    Option1 = Look::named(new QRadioButton(QStringLiteral("Output List In bullets"), this), QStringLiteral("Option1"));
    Option2 = Look::named(new QRadioButton(QStringLiteral("Output List In Drop Down Box"), this), QStringLiteral("Option2"));
    Option1->setChecked(true);
    txtfolder = Look::named(new QLineEdit(this), QStringLiteral("txtfolder"));
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Create Page"), this);
    auto* pageBox = new QGroupBox(QStringLiteral("Page :"), this);
    auto* pageRows = new QGridLayout(pageBox);
    pageRows->addWidget(Option1, 0, 0);
    pageRows->addWidget(Option2, 0, 1);
    pageRows->addWidget(new QLabel(QStringLiteral("Folder Location :"), this), 1, 0);
    pageRows->addWidget(txtfolder, 1, 1, 1, 2);
    pageRows->addWidget(Command3, 1, 3);
    pageRows->setColumnStretch(2, 1);

    auto* grid = new QGridLayout(this);
    grid->addWidget(folderBox, 0, 0);
    grid->addWidget(typesBox, 0, 1);
    grid->addWidget(foundBox, 0, 2);
    grid->addWidget(pageBox, 1, 0, 1, 3);
    grid->setColumnStretch(2, 1);

    for (QPushButton* b : {Command2, Command3, Command4, Command5, Command6})
        b->setAutoDefault(false);
    connect(Drive1, &DriveListBox::Change, Dir1, [this](const QString& drive) { Dir1->setPath(drive); });
    connect(Dir1, &DirListBox::Change, Drive1, [this](const QString& path) { Drive1->setDrive(path); });
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command6, &QPushButton::clicked, this, Event([this] { Command6_Click(); }));
    connect(Text1, &QLineEdit::returnPressed, this, Event([this] { Command4_Click(); }));
    connect(List2, &QListWidget::itemDoubleClicked, this, Event([this] { Command5_Click(); }));
    connect(List3, &QListWidget::itemDoubleClicked, this, Event([this] { Command6_Click(); }));
    Dir1->setPath(startFolder());
}

void GifLoader::Command2_Click()
{
    List1->clear();
    List3->setCurrentRow(0);
    // One pattern after the other, in the list's order: a file two patterns match stands twice.
    QStringList found;
    for (const QString& pattern : rowsOf(List3)) {
        File1->setPattern(pattern);
        File1->setPath(Dir1->Path());
        const QString folder = File1->Path();
        for (const QString& name : rowsOf(File1))
            found << folder + QLatin1Char('/') + name;
    }
    List1->addItems(found);
    Label3->setText(QStringLiteral("Done"));
}

void GifLoader::Command3_Click()
{
    const QStringList items = rowsOf(List1);
    if (items.isEmpty()) {
        MsgBox(QStringLiteral("The Search has resulted in no files being found, select the folder and press Search, then try again."),
               Style::Critical);
        return;
    }
    // An empty folder field would name the root of the file system: not a place to write to.
    const QString folder = txtfolder->text();
    if (folder.isEmpty())
        throw RuntimeError::pathFileAccess(QStringLiteral("GifLoader"));
    const QString path = folder + QStringLiteral("/PictureShow.html");
    const auto layout = Option1->isChecked() ? PictureShow::Layout::Bullets : PictureShow::Layout::DropDown;
    // Over the old page as a whole, or not at all.
    if (!TextFiles::writeBytes(path, TextFiles::encode(PictureShow::page(items, layout))))
        throw RuntimeError::pathFileAccess(QStringLiteral("GifLoader"));
    DocumentWindow* doc = OpenDocument(path, LoadAs::Page, 0);
    doc->setCaption(QFileInfo(path).fileName() + QStringLiteral(" [ ") + path + QStringLiteral(" ]"));
}

void GifLoader::Command4_Click()
{
    if (Text1->text().isEmpty()) {
        MsgBox(QStringLiteral("No extension to add!"));
        return;
    }
    auto* row = new QListWidgetItem(Text1->text(), List3);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
}

void GifLoader::Command5_Click()
{
    if (const QListWidgetItem* known = List2->currentItem()) {
        auto* row = new QListWidgetItem(known->text(), List3);
        row->setFlags(row->flags() | Qt::ItemIsEditable);
    }
}

void GifLoader::Command6_Click()
{
    const int row = List3->currentRow();
    if (row < 0 || List3->count() == 0) {
        MsgBox(QStringLiteral("No file types to remove!"));
        return;
    }
    delete List3->takeItem(row);
}
