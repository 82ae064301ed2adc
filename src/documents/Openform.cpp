#include "documents/Openform.h"

#include "documents/OpenSave.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/WindowCounter.h"
#include "services/Settings.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using Look::named;

Openform::Openform(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Open A File Into Velloro 2002"));
    resize(620, 440);
    auto* outer = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    outer->addLayout(grid, 1);

    const FilePicker picker = addFilePicker(grid, this);
    Drive1 = picker.Drive1;
    Dir1 = picker.Dir1;
    File1 = picker.File1;
    Combo1 = named(new QComboBox(this), QStringLiteral("Combo1"));
    Combo1->addItems({QStringLiteral("*.*"), QStringLiteral("*.html"), QStringLiteral("*.htm"), QStringLiteral("*.txt"),
                      QStringLiteral("*.asp"), QStringLiteral("*.aspx"), QStringLiteral("*.php"), QStringLiteral("*.css"),
                      QStringLiteral("*.tmpl"), QStringLiteral("*.vbp"), QStringLiteral("*.frm"), QStringLiteral("*.frx"),
                      QStringLiteral("*.C"), QStringLiteral("*.C++"), QStringLiteral("*.JAVA"), QStringLiteral("*.PHP"),
                      QStringLiteral("*.Perl"), QStringLiteral("*.VBscript")});
    Location = named(new QLineEdit(this), QStringLiteral("Location"));
    Combo2 = named(new QComboBox(this), QStringLiteral("Combo2"));
    Combo2->addItems({QStringLiteral("Normal"), QStringLiteral("Minimized"), QStringLiteral("Maximized")});
    Combo3 = named(new QComboBox(this), QStringLiteral("Combo3"));
    Combo3->addItems({QStringLiteral("Web Split"), QStringLiteral("Web Page"), QStringLiteral("Notepad")});
    Combo3->setCurrentText(QStringLiteral("Web Page"));

    grid->addWidget(new QLabel(QStringLiteral("Type :"), this), 2, 0);
    grid->addWidget(Combo1, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("Size :"), this), 2, 2);
    grid->addWidget(Combo2, 2, 3);
    grid->addWidget(new QLabel(QStringLiteral("Location :"), this), 3, 0);
    grid->addWidget(Location, 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("Load as :"), this), 3, 2);
    grid->addWidget(Combo3, 3, 3);

    auto* buttons = new QHBoxLayout;
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Show Desktop Directory"), this);
    SmartNetButton4 = Look::faceButton(QStringLiteral("SmartNetButton4"), QStringLiteral("My Documents"), this);
    SmartNetButton5 = Look::faceButton(QStringLiteral("SmartNetButton5"), QStringLiteral("Launch default MS Open dialog"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Open"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Cancel"), this);
    for (QPushButton* b : {SmartNetButton3, SmartNetButton4, SmartNetButton5})
        buttons->addWidget(b);
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(SmartNetButton1);
    outer->addLayout(buttons);
    Command1->setDefault(true);

    connect(Combo1, &QComboBox::currentTextChanged, File1, &FileListBox::setPattern);
    connect(File1, &FileListBox::fileChosen, Location, &QLineEdit::setText);
    connect(File1, &FileListBox::fileActivated, this, Event([this](const QString& path) {
        Location->setText(path);
        Command1_Click();
    }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, &QWidget::hide);
    connect(SmartNetButton3, &QPushButton::clicked, this, [this] { Dir1->setPath(desktopFolder()); });
    connect(SmartNetButton4, &QPushButton::clicked, this, [this] { Dir1->setPath(documentsFolder()); });
    connect(SmartNetButton5, &QPushButton::clicked, this, Event([this] {
        const QString file = prompts().openFile(QStringLiteral("Open"), QStringLiteral("All Files (*)"), Dir1->Path());
        if (file.isEmpty())
            return;
        Location->setText(file);
        Dir1->setPath(QFileInfo(file).absolutePath());
    }));
}

void Openform::Form_Load()
{
    // The folders of the last session, and the layout file keeps the new ones.
    PropertiesRecord& folders = Settings::folders();
    followFolders(Drive1, Dir1, File1, folders.openDrive, folders.openDir, folders.openFileDir);
}

int Openform::nextWindowNumber() { return counter.next(); }

void Openform::Command1_Click()
{
    const QString path = Location->text();
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("A file must be selected!"), Style::Critical, QStringLiteral(":: Load Error ::"));
        return;
    }
    const QString how = Combo3->currentText();
    LoadAs kind;
    if (how == QLatin1String("Web Page"))
        kind = LoadAs::Page;
    else if (how == QLatin1String("Web Split"))
        kind = LoadAs::Split;
    else if (how == QLatin1String("Notepad"))
        kind = LoadAs::Notepad;
    else
        return;
    const QString size = Combo2->currentText();
    const int state = size == QLatin1String("Maximized") ? 2 : size == QLatin1String("Minimized") ? 1 : 0;
    // A file that cannot be read ends the command in its trap: the dialog stays.
    if (!OnErrorExit([&] { OpenDocument(path, kind, state); }))
        return;
    hide();
}
