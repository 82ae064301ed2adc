#include "utilities/frmUpdate.h"

#include "platform/App.h"
#include "platform/Desktop.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "services/Settings.h"
#include "services/Workspace.h"
#include "utilities/OutwardText.h"
#include "utilities/SourceFetch.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmUpdate::frmUpdate(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmUpdate"));
    setWindowTitle(QStringLiteral("Velloro Update"));
    auto label = [this](const char* name, const QString& text = {}) {
        auto* l = Look::named(new QLabel(text, this), QString::fromLatin1(name));
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        // A long field from the server must not stretch the window off the screen.
        l->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        return l;
    };
    lblCversion = label("lblCversion", App::versionNumber());
    lblUName = label("lblUName");
    lblUversion = label("lblUversion");
    lblUAuthor = label("lblUAuthor");
    lblUSize = label("lblUSize");
    lblUDate = label("lblUDate");
    lblstatus = label("lblstatus", QStringLiteral("Status ::"));
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Check for current update"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Update to the current version"), this);
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Close"), this);
    Command2->setEnabled(false);
    Command1->setDefault(true);
    Inet1 = new PageFetch(this);
    Inet1->setObjectName(QStringLiteral("Inet1"));
    // Update.DAT is one short line; anything much larger is not it.
    Inet1->maxBytes = 1024 * 1024;

    auto* mine = new QGroupBox(QStringLiteral("This copy"), this);
    auto* mineRows = new QFormLayout(mine);
    mineRows->addRow(QStringLiteral("Current version :"), lblCversion);
    auto* server = new QGroupBox(QStringLiteral("On the update server"), this);
    auto* serverRows = new QFormLayout(server);
    serverRows->addRow(QStringLiteral("Name :"), lblUName);
    serverRows->addRow(QStringLiteral("Version :"), lblUversion);
    serverRows->addRow(QStringLiteral("Author :"), lblUAuthor);
    serverRows->addRow(QStringLiteral("Size :"), lblUSize);
    serverRows->addRow(QStringLiteral("Date :"), lblUDate);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    buttons->addStretch();
    buttons->addWidget(Command3);
    auto* v = new QVBoxLayout(this);
    v->addWidget(mine);
    v->addWidget(server);
    v->addWidget(lblstatus);
    v->addLayout(buttons);
    setMinimumWidth(460);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, &QDialog::hide);
    connect(Inet1, &PageFetch::done, this, Event([this](const QByteArray& b, const QByteArray& t) { fetched(b, t); }));
    connect(Inet1, &PageFetch::failed, this,
            Event([this](const QString& reason) { ended(SourceFetch::failureMessage(reason)); }));
}

void frmUpdate::Command1_Click()
{
    if (Inet1->running())
        return;
    const QUrl url = UpdateCheck::listAddress(Settings::updateServer());
    // The hourglass says a check is on; the window stays responsive and closing it cancels.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    waiting = true;
    Command1->setEnabled(false);
    setStatusText(1, QStringLiteral("Checking ") + url.toDisplayString() + QStringLiteral(" ..."));
    Inet1->start(url);
}

void frmUpdate::Command2_Click() { Desktop::openUrl(UpdateCheck::packageAddress(Settings::updateServer())); }

void frmUpdate::hideEvent(QHideEvent* e)
{
    if (Inet1->running())
        Inet1->cancel();
    QDialog::hideEvent(e);
}

void frmUpdate::ended(const QString& statusLine)
{
    if (waiting)
        QApplication::restoreOverrideCursor();
    waiting = false;
    Command1->setEnabled(true);
    setStatusText(1, statusLine);
}

void frmUpdate::fetched(const QByteArray& body, const QByteArray& contentType)
{
    const QStringList fields = UpdateCheck::fields(body, contentType);
    QLabel* const shown[] = {lblUName, lblUversion, lblUAuthor, lblUSize, lblUDate};
    // A short line fills the labels it reaches and goes no further, as the check always has.
    for (int i = 0; i < UpdateCheck::fieldCount && i < fields.size(); ++i)
        shown[i]->setText(fields.at(i));
    if (fields.size() < UpdateCheck::fieldCount) {
        ended(QStringLiteral("Update.DAT on the update server has fewer than five fields."));
        return;
    }
    ended(QString());
    // Text against text: any difference, an older version on the server too, counts as new.
    if (fields.at(1) == lblCversion->text()) {
        lblstatus->setText(UpdateCheck::noUpdate);
        return;
    }
    MsgBox(UpdateCheck::newVersionMessage(fields.at(1)), Style::Information);
    Command2->setEnabled(true);
    lblstatus->setText(UpdateCheck::newVersion);
}
