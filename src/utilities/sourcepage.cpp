#include "utilities/sourcepage.h"

#include "documents/frmDocument.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "services/Workspace.h"
#include "utilities/SourceFetch.h"

#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryFile>
#include <QVBoxLayout>

sourcepage::sourcepage(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("sourcepage"));
    setWindowTitle(QStringLiteral("Velloro 2002 Source Grabber"));
    Text1 = Look::named(new QLineEdit(QStringLiteral("http://"), this), QStringLiteral("Text1"));
    Text1->setMinimumWidth(360);
    Label3 = Look::named(new QLabel(SourceFetch::inactive, this), QStringLiteral("Label3"));
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Get Source"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Close"), this);
    Command1->setDefault(true);
    Command2->setAutoDefault(false);
    Inet1 = new PageFetch(this);
    Inet1->setObjectName(QStringLiteral("Inet1"));

    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("Web Address :"), Text1);
    fields->addRow(QStringLiteral("Status :"), Label3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    auto* v = new QVBoxLayout(this);
    v->addLayout(fields);
    v->addLayout(buttons);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Inet1, &PageFetch::done, this, Event([this](const QByteArray& b, const QByteArray& t) { fetched(b, t); }));
    connect(Inet1, &PageFetch::failed, this, Event([this](const QString& reason) { fetchFailed(reason); }));
}

void sourcepage::Command1_Click()
{
    // One fetch at a time: the button waits until this one ends.
    if (Inet1->running())
        return;
    Label3->setText(SourceFetch::downloading);
    address = Text1->text();
    const QUrl url = SourceFetch::webAddress(address);
    if (url.isEmpty()) {
        fetchFailed(QStringLiteral("not a web address"));
        return;
    }
    Command1->setEnabled(false);
    setStatusText(1, QStringLiteral("Fetching ") + url.toDisplayString() + QStringLiteral(" ..."));
    Inet1->start(url);
}

void sourcepage::Command2_Click() { hide(); }

void sourcepage::hideEvent(QHideEvent* e)
{
    if (Inet1->running())
        Inet1->cancel();
    QDialog::hideEvent(e);
}

void sourcepage::fetchFailed(const QString& reason)
{
    // The state stays on "Downloading..."; the status line says why, so nobody waits for ever.
    Command1->setEnabled(true);
    setStatusText(1, SourceFetch::failureMessage(reason));
}

void sourcepage::fetched(const QByteArray& body, const QByteArray& contentType)
{
    Command1->setEnabled(true);
    // The scratch file is private to this user and goes when this step ends.
    QTemporaryFile scratch(QDir::tempPath() + QStringLiteral("/velloro-source-XXXXXX.html"));
    if (!scratch.open() || scratch.write(SourceFetch::editorBytes(body, contentType)) < 0 || !scratch.flush()) {
        fetchFailed(QStringLiteral("the scratch file could not be written"));
        return;
    }
    scratch.close();
    Label3->setText(SourceFetch::complete);
    auto* doc = new frmDocument;
    doc->setCaption(address);
    workspace().addDocument(doc);
    doc->CodeMax1()->OpenFile(scratch.fileName());
    Label3->setText(SourceFetch::inactive);
    setStatusText(1, QString());
    scratch.remove();
}
