#include "documents/Saveas.h"

#include "documents/DocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "services/Settings.h"
#include "services/Workspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

using Look::named;

namespace {
DocumentWindow* active() { return ActiveDocument(); }
}

Saveas::Saveas(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Save A File From Velloro 2002"));
    resize(620, 440);
    auto* outer = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    outer->addLayout(grid, 1);

    const FilePicker picker = addFilePicker(grid, this);
    Drive1 = picker.Drive1;
    Dir1 = picker.Dir1;
    File1 = picker.File1;
    Location = named(new QLineEdit(this), QStringLiteral("Location"));
    filename = named(new QLineEdit(QStringLiteral("New_Page"), this), QStringLiteral("filename"));
    Combo1 = named(new QComboBox(this), QStringLiteral("Combo1"));
    Check3 = named(new QCheckBox(QStringLiteral("Unload page/notepad after save"), this), QStringLiteral("Check3"));

    grid->addWidget(new QLabel(QStringLiteral("Location :"), this), 2, 0);
    grid->addWidget(Location, 2, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Save As :"), this), 3, 0);
    grid->addWidget(filename, 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("Type :"), this), 3, 2);
    grid->addWidget(Combo1, 3, 3);
    grid->addWidget(Check3, 4, 1, 1, 3);

    auto* buttons = new QHBoxLayout;
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Show Desktop Directory"), this);
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("My Documents"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Save"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Cancel"), this);
    buttons->addWidget(SmartNetButton3);
    buttons->addWidget(SmartNetButton2);
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(SmartNetButton1);
    outer->addLayout(buttons);
    Command1->setDefault(true);

    connect(Dir1, &DirListBox::Change, this, [this](const QString& path) {
        Location->setText(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'));
    });
    connect(File1, &FileListBox::fileChosen, this, [this](const QString& path) {
        filename->setText(QFileInfo(path).completeBaseName());
    });
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, &QWidget::hide);
    connect(SmartNetButton3, &QPushButton::clicked, this, [this] { Dir1->setPath(desktopFolder()); });
    connect(SmartNetButton2, &QPushButton::clicked, this, [this] { Dir1->setPath(documentsFolder()); });
    Location->setText(Dir1->Path() + QLatin1Char('/'));
}

void Saveas::Form_Load()
{
    // The type list comes from the save extensions option.
    QString extensions = Settings::details().txtSaveEx;
    if (extensions.startsWith(QLatin1Char('"')))
        extensions = extensions.mid(1);
    Combo1->clear();
    Combo1->addItems(extensions.split(QLatin1Char(','), Qt::SkipEmptyParts));

    PropertiesRecord& folders = Settings::folders();
    followFolders(Drive1, Dir1, File1, folders.saveDrive, folders.saveDir, folders.saveFileDir);
}

QString Saveas::target() const
{
    QString folder = Location->text();
    // A root folder must not give a doubled separator.
    while (folder.endsWith(QLatin1String("//")))
        folder.chop(1);
    if (!folder.isEmpty() && !folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    return folder + filename->text() + Combo1->currentText();
}

void Saveas::Command1_Click()
{
    if (Combo1->currentText() == QLatin1String(".rtf")) {
        const int answer = MsgBox(QStringLiteral("You have choosen to save the files as RTF format, this would be used if you have been using the notepad, continue with the save?"),
                                  52, QStringLiteral(":: Velloro 2002 ::"));
        if (answer == Answer::Yes)
            SaveRichText();
        else
            SaveCode();
        return;
    }
    SaveCode();
}

bool Saveas::mayWrite(const QString& path)
{
    if (!QFileInfo::exists(path))
        return true;
    return MsgBox(QStringLiteral("File allready exists, would you like to Overwrite the document?"), Style::YesNoCancel | Style::Exclamation,
                  QStringLiteral(":: Velloro 2002 ::")) == Answer::Yes;
}

bool Saveas::hasFolderAndName()
{
    if (!filename->text().isEmpty() && !Location->text().isEmpty())
        return true;
    MsgBox(QStringLiteral(" Destination Folder and Name are required"));
    return false;
}

void Saveas::SaveCode()
{
    if (!hasFolderAndName())
        return;
    const QString path = target();
    if (!mayWrite(path))
        return;
    try {
        // The file is replaced as a whole, so a failed write leaves the old one.
        active()->CodeMax1()->SaveFile(path, true);
    } catch (const RuntimeError& e) {
        if (e.number == 438)
            return;  // a notepad has no code editor: the save ends here
        MsgBox(QStringLiteral("The page could not be saved to ") + path + QStringLiteral(". The file on disk is as it was before."), Style::Critical, QStringLiteral(":: Save Error ::"));
        return;
    }
    MsgBox(QStringLiteral(" Page Saved ::  ") + path, Style::Information);
    active()->tempaddress()->setText(path);
    afterSave();
}

void Saveas::SaveRichText()
{
    // The rich text save addresses a member no window has: it ends in the trap, after the
    // same checks, and nothing is written.
    if (!hasFolderAndName())
        return;
    const QString path = target();
    if (!mayWrite(path))
        return;
    OnErrorExit([] { throw RuntimeError::noSuchMember(QStringLiteral("RichTextBox"), QStringLiteral("Saveas")); });
}

void Saveas::afterSave()
{
    DocumentWindow* doc = active();
    OnErrorExit([doc] { doc->Changedvalue()->setText(QString()); });
    if (Check3->isChecked()) {
        QWidget* w = doc->subWindow() ? static_cast<QWidget*>(doc->subWindow()) : doc;
        w->hide();
    }
    hide();
}
