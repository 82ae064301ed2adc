#include "sites/ProjAdd.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "sites/ProjectPanel.h"
#include "sites/SiteFiles.h"
#include "sites/SiteManagment.h"

#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using Look::named;

ProjAdd::ProjAdd(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Add File"));
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(Look::banner(QStringLiteral("Label4"), QStringLiteral("Add File"), this));
    auto* form = new QFormLayout;
    // Made in the order Tab walks them: Find follows the location it fills.
    Text1 = named(new QLineEdit(this), QStringLiteral("Text1"));
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Find"), this);
    Text2 = named(new QLineEdit(this), QStringLiteral("Text2"));
    Text2->setReadOnly(true);
    Text3 = named(new QLineEdit(this), QStringLiteral("Text3"));
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(Text1, 1);
    fileRow->addWidget(Command2);
    form->addRow(QStringLiteral("File Location :"), fileRow);
    form->addRow(QStringLiteral("File Name :"), Text2);
    form->addRow(QStringLiteral("Project File :"), Text3);
    outer->addLayout(form);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Add"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Close"), this);
    // Enter adds, as a wizard's Enter inserts; Find is for the mouse or Tab and Space.
    Command3->setDefault(true);
    Command2->setAutoDefault(false);
    buttons->addWidget(Command3);
    buttons->addWidget(Command1);
    outer->addLayout(buttons);
    resize(520, sizeHint().height());

    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command1, &QPushButton::clicked, this, &QDialog::hide);
}

void ProjAdd::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    Text3->setText(ProjectPanel::instance()->projectlocation->text());
}

void ProjAdd::Command2_Click()
{
    const QString path = prompts().openFile({}, QStringLiteral("Web File (*.htm *.html)"), {});
    if (path.isEmpty())
        return;
    Text1->setText(path);
    Text2->setText(QFileInfo(path).fileName());
}

void ProjAdd::Command3_Click()
{
    if (Text1->text().isEmpty()) {
        MsgBox(QStringLiteral("You have not entered a location for the file you are going to add."));
        return;
    }
    // With no project loaded there is no project file to add to: the platform's error, and no
    // stray file is made.
    const QString project = Text3->text();
    if (project.isEmpty() || !QFileInfo(project).isFile())
        throw RuntimeError::fileNotFound(QStringLiteral("ProjAdd"));
    bool ok = false;
    const QByteArray bytes = TextFiles::readBytes(project, &ok);
    if (!ok || !TextFiles::writeBytes(project, SiteFiles::withPath(bytes, Text1->text())))
        throw RuntimeError::pathFileAccess(QStringLiteral("ProjAdd"));
    form<SiteManagment>()->LoadProject(project);
    hide();
}
