#include "utilities/Folders.h"

#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "utilities/FolderSteps.h"
#include "utilities/ModBFF.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {
QLineEdit* line(const QString& name, QWidget* parent) { return Look::named(new QLineEdit(parent), name); }

// The two browse buttons both windows have: the browser's folder, when one was chosen, goes to
// the folder list.
void browseButtons(QWidget* parent, DirListBox* dir, QPushButton*& desktop, QPushButton*& documents)
{
    desktop = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Desktop ..."), parent);
    documents = Look::faceButton(QStringLiteral("SmartNetButton4"), QStringLiteral("My Documents ..."), parent);
    for (auto [button, root] : {std::pair{desktop, ModBFF::desktop}, std::pair{documents, ModBFF::documents}}) {
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, parent, Event([dir, root] {
                             const QString chosen = ModBFF::BrowseForFolder(root);
                             if (!chosen.isEmpty())
                                 dir->setPath(chosen);
                         }));
    }
}
}

Folders::Folders(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Folders"));
    setWindowTitle(QStringLiteral("Folder Manipulation ::"));
    resize(640, 480);

    Drive1 = Look::named(new DriveListBox(this), QStringLiteral("Drive1"));
    Dir1 = Look::named(new DirListBox(this), QStringLiteral("Dir1"));
    File1 = Look::named(new FileListBox(this), QStringLiteral("File1"));
    browseButtons(this, Dir1, SmartNetButton3, SmartNetButton4);
    Text1 = line(QStringLiteral("Text1"), this);
    Text1->setReadOnly(true);
    Text2 = line(QStringLiteral("Text2"), this);
    Text3 = line(QStringLiteral("Text3"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Create Folder"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Delete Folder"), this);
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Rename Folder"), this);
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("Delete File"), this);
    StatusBar1 = Look::named(new QStatusBar(this), QStringLiteral("StatusBar1"));
    Panel1 = Look::named(new QLabel(StatusBar1), QStringLiteral("Panel1"));
    StatusBar1->addWidget(Panel1, 1);

    auto* browse = new QHBoxLayout;
    browse->addWidget(SmartNetButton3);
    browse->addWidget(SmartNetButton4);
    auto* folders = new QVBoxLayout;
    folders->addWidget(Drive1);
    folders->addWidget(Dir1, 1);
    folders->addLayout(browse);
    auto* files = new QVBoxLayout;
    files->addWidget(File1, 1);
    files->addWidget(Command4);

    auto* actions = new QFormLayout;
    actions->addRow(QStringLiteral("Selected Folder :"), Text1);
    auto* create = new QHBoxLayout;
    create->addWidget(Text2, 1);
    create->addWidget(Command1);
    actions->addRow(QStringLiteral("New Folder :"), create);
    auto* rename = new QHBoxLayout;
    rename->addWidget(Text3, 1);
    rename->addWidget(Command3);
    actions->addRow(QStringLiteral("Rename To :"), rename);
    actions->addRow(QString(), Command2);

    auto* top = new QHBoxLayout;
    top->addLayout(folders, 1);
    top->addLayout(files, 1);
    auto* outer = new QVBoxLayout(this);
    outer->addLayout(top, 1);
    outer->addLayout(actions);
    outer->addWidget(StatusBar1);

    for (QPushButton* b : {Command1, Command2, Command3, Command4})
        b->setAutoDefault(false);
    connect(Drive1, &DriveListBox::Change, Dir1, [this](const QString& drive) { Dir1->setPath(drive); });
    connect(Dir1, &DirListBox::Change, this, [this](const QString& path) {
        File1->setPath(path);
        Text1->setText(path);
        showFileCount();
    });
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
}

void Folders::Form_Load()
{
    Dir1->setPath(QDir::homePath());
    File1->setPath(Dir1->Path());
    Text1->setText(Dir1->Path());
    showFileCount();
}

void Folders::showFileCount() { Panel1->setText(QStringLiteral("Files :: ") + QString::number(File1->count())); }

void Folders::Command1_Click()
{
    if (Text2->text().isEmpty()) {
        MsgBox(QStringLiteral("Folder Name Needed!!"));
        return;
    }
    FolderSteps::makeFolder(Dir1->Path(), Text2->text());
    Dir1->setPath(Dir1->Path());
}

void Folders::Command2_Click()
{
    if (Text1->text().isEmpty()) {
        MsgBox(QStringLiteral(" Folder needs to be selected for delete to work!"));
        return;
    }
    if (MsgBox(QStringLiteral("Are you sure you want to delete the folder, all contents will be lost?"), Style::YesNoCancel,
               QStringLiteral("Delete Folder ::")) != Answer::Yes)
        return;
    const QString folder = Text1->text();
    FolderSteps::removeFolder(folder);
    // The list goes to the folder that held it.
    Dir1->setPath(QFileInfo(folder).absolutePath());
}

void Folders::Command3_Click()
{
    if ((Text1->text() + Text3->text()).isEmpty()) {
        MsgBox(QStringLiteral("Location and new folder name needed!"));
        return;
    }
    const QString renamed = FolderSteps::renameFolder(Text1->text(), Text3->text());
    Dir1->setPath(renamed);
    Text1->setText(renamed);
}

void Folders::Command4_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to delete the file?"), Style::YesNoCancel, QStringLiteral("Delete File ::"))
        != Answer::Yes)
        return;
    FolderSteps::deleteFile(QDir(Dir1->Path()).filePath(File1->FileName()));
    File1->refresh();
    Dir1->setPath(Dir1->Path());
    showFileCount();
}

frmFolder::frmFolder(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFolder"));
    setWindowTitle(QStringLiteral("Folder Dialog"));
    resize(420, 460);
    Drive1 = Look::named(new DriveListBox(this), QStringLiteral("Drive1"));
    Dir1 = Look::named(new DirListBox(this), QStringLiteral("Dir1"));
    browseButtons(this, Dir1, SmartNetButton3, SmartNetButton4);
    txtnfolder = line(QStringLiteral("txtnfolder"), this);
    txtnfolder->setText(QStringLiteral("New_Folder1"));
    SmartNetButton5 = Look::faceButton(QStringLiteral("SmartNetButton5"), QStringLiteral("Create Folder"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("OK"), this);
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Cancel"), this);
    SmartNetButton5->setAutoDefault(false);
    SmartNetButton2->setAutoDefault(false);
    SmartNetButton1->setDefault(true);

    auto* browse = new QHBoxLayout;
    browse->addWidget(SmartNetButton3);
    browse->addWidget(SmartNetButton4);
    auto* create = new QHBoxLayout;
    create->addWidget(txtnfolder, 1);
    create->addWidget(SmartNetButton5);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(SmartNetButton1);
    buttons->addWidget(SmartNetButton2);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(Drive1);
    outer->addWidget(Dir1, 1);
    outer->addLayout(browse);
    outer->addLayout(create);
    outer->addLayout(buttons);

    connect(Drive1, &DriveListBox::Change, Dir1, [this](const QString& drive) { Dir1->setPath(drive); });
    connect(SmartNetButton5, &QPushButton::clicked, this, Event([this] {
                if (txtnfolder->text().isEmpty()) {
                    MsgBox(QStringLiteral("Folder Name Needed"), Style::Critical);
                    return;
                }
                FolderSteps::makeFolder(Dir1->Path(), txtnfolder->text());
                Dir1->setPath(Dir1->Path());
            }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] {
                if (callerField)
                    callerField->setText(Dir1->Path());
                hide();
            }));
    connect(SmartNetButton2, &QPushButton::clicked, this, &QDialog::hide);
    Dir1->setPath(QDir::homePath());
}

void frmFolder::chooseInto(QLineEdit* field)
{
    callerField = field;
    show();
    raise();
}

Execute::Execute(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Execute"));
    setWindowTitle(QStringLiteral("Execute"));
    Text1 = line(QStringLiteral("Text1"), this);
    Combo1 = Look::named(new QComboBox(this), QStringLiteral("Combo1"));
    Combo1->addItems({QStringLiteral("Normal"), QStringLiteral("Minimised"), QStringLiteral("Maximised"), QStringLiteral("Hidden")});
    Combo1->setCurrentText(QStringLiteral("Minimised"));
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Close"), this);
    auto* rows = new QFormLayout(this);
    rows->addRow(QStringLiteral("Command :"), Text1);
    rows->addRow(QStringLiteral("Window :"), Combo1);
    rows->addRow(QString(), Command2);
    connect(Command2, &QPushButton::clicked, this, &QDialog::hide);
}
