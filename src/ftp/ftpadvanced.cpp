#include "ftp/ftpadvanced.h"

#include "ftp/FtpEngine.h"
#include "platform/Desktop.h"
#include "ftp/ftpnormal.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTcpSocket>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

namespace {
using Look::named;
quint16 serverPort = 21;

ftpnormal* uploadWindow() { return form<ftpnormal>(); }
}

void ftpadvanced::setPortForTesting(quint16 port) { serverPort = port; }

ftpadvanced::ftpadvanced(QWidget* parent) : QDialog(parent), ftp(new FtpEngine(this))
{
    setWindowTitle(QStringLiteral("Advanced Settings"));
    auto* outer = new QVBoxLayout(this);
    const auto line = [this](const char* name) { return named(new QLineEdit(this), QString::fromLatin1(name)); };

    auto* details = new QGroupBox(QStringLiteral("Server/Client Details ..."), this);
    auto* dg = new QGridLayout(details);
    Text3 = line("Text3");
    Text5 = line("Text5");
    Text4 = line("Text4");
    Text6 = line("Text6");
    Text12 = line("Text12");
    Text10 = line("Text10");
    const QList<QPair<QString, QLineEdit*>> detailRows = {
        {QStringLiteral("Local IP :"), Text3},      {QStringLiteral("Local Port :"), Text5},
        {QStringLiteral("Remote Host IP :"), Text4}, {QStringLiteral("Remote Port :"), Text6},
        {QStringLiteral("Socket Handle :"), Text12}, {QStringLiteral("Bytes Recieved :"), Text10}};
    for (int i = 0; i < detailRows.size(); ++i) {
        dg->addWidget(new QLabel(detailRows[i].first, details), i / 2, (i % 2) * 2);
        dg->addWidget(detailRows[i].second, i / 2, (i % 2) * 2 + 1);
    }
    outer->addWidget(details);

    auto* connRow = new QHBoxLayout;
    Text1 = line("Text1");
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Connect"), this);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Cut Connection"), this);
    connRow->addWidget(new QLabel(QStringLiteral("FTP connection :"), this));
    connRow->addWidget(Text1, 1);
    connRow->addWidget(Command1);
    connRow->addWidget(Command5);
    outer->addLayout(connRow);

    auto* texts = new QHBoxLayout;
    auto* logBox = new QVBoxLayout;
    logBox->addWidget(new QLabel(QStringLiteral("FTP Server Responses"), this));
    Text2 = named(new QPlainTextEdit(this), QStringLiteral("Text2"));
    logBox->addWidget(Text2);
    auto* listBox = new QVBoxLayout;
    listBox->addWidget(new QLabel(QStringLiteral("Files on Specified FTP://"), this));
    Text7 = named(new QPlainTextEdit(this), QStringLiteral("Text7"));
    listBox->addWidget(Text7);
    Command6 = Look::faceButton(QStringLiteral("Command6"), QStringLiteral("View Files"), this);
    listBox->addWidget(Command6);
    texts->addLayout(logBox);
    texts->addLayout(listBox);
    outer->addLayout(texts, 1);

    auto* up = new QGroupBox(QStringLiteral("File Uploads Details ..."), this);
    auto* ug = new QGridLayout(up);
    Text8 = line("Text8");
    Text11 = line("Text11");
    Command7 = Look::faceButton(QStringLiteral("Command7"), QStringLiteral("Send File"), this);
    ug->addWidget(new QLabel(QStringLiteral("Source File"), up), 0, 0);
    ug->addWidget(Text8, 0, 1);
    ug->addWidget(new QLabel(QStringLiteral("New File Name :"), up), 1, 0);
    ug->addWidget(Text11, 1, 1);
    ug->addWidget(Command7, 1, 2);
    outer->addWidget(up);

    auto* down = new QGroupBox(QStringLiteral("File Download Details ..."), this);
    auto* fg = new QGridLayout(down);
    Text9 = named(new QPlainTextEdit(down), QStringLiteral("Text9"));
    Text9->setPlainText(QStringLiteral("RETR\r\n"));
    Text9->setMaximumHeight(60);
    Text13 = line("Text13");
    Text13->setText(QStringLiteral("c:\\"));
    inputdata1 = Look::faceButton(QStringLiteral("inputdata1"), QStringLiteral("Retrieve"), this);
    fg->addWidget(new QLabel(QStringLiteral("Filename"), down), 0, 0);
    fg->addWidget(Text9, 0, 1);
    fg->addWidget(new QLabel(QStringLiteral("Local Location"), down), 1, 0);
    fg->addWidget(Text13, 1, 1);
    fg->addWidget(inputdata1, 1, 2);
    outer->addWidget(down);

    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Hide"), this);
    outer->addWidget(Command2, 0, Qt::AlignRight);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command6, &QPushButton::clicked, this, Event([this] { Command6_Click(); }));
    connect(Command7, &QPushButton::clicked, this, Event([this] { Command7_Click(); }));
    connect(inputdata1, &QPushButton::clicked, this, Event([this] { inputdata1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { hide(); }));

    // The engine's events, shown here and in the upload window.
    connect(ftp, &FtpEngine::statusText, this, Event([](const QString& t) { uploadWindow()->setPanelText(2, t); }));
    connect(ftp, &FtpEngine::serverUp, this, Event([] {
        ftpnormal* n = uploadWindow();
        n->setServerShape(65280);
        n->Command1->setEnabled(true);
        n->Command2->setEnabled(true);
    }));
    connect(ftp, &FtpEngine::controlConnected, this, Event([] { uploadWindow()->Command1->setEnabled(true); }));
    connect(ftp, &FtpEngine::serverDown, this, Event([this](bool withUpload) {
        Text7->clear();
        Text2->clear();
        ftpnormal* n = uploadWindow();
        n->Text2->clear();
        n->setServerShape(255);
        n->Command1->setEnabled(false);
        if (withUpload)
            n->Command2->setEnabled(true);
    }));
    connect(ftp, &FtpEngine::retrieved, this, [](const QString& folder) { Desktop::openUrl(QUrl::fromLocalFile(folder)); });
    connect(ftp, &FtpEngine::replyLine, this, Event([this](const QString& l) { appendLog(l); }));
    connect(ftp, &FtpEngine::controlDetails, this, Event([this] { refreshDetails(); }));
    connect(ftp, &FtpEngine::listingData, this, Event([this](const QString& t) {
        Text7->moveCursor(QTextCursor::End);
        Text7->insertPlainText(t);
    }));
    connect(ftp, &FtpEngine::message, this,
            Event([](const QString& text, int style, const QString& title) { MsgBox(text, style, title); }));
    connect(ftp, &FtpEngine::runtimeError, this,
            Event([](int number, const QString& d) { ReportRunTimeError(RuntimeError(number, d)); }));
    connect(ftp, &FtpEngine::busy, this, Event([this](bool on) {
        if (on) {
            setCursor(Qt::WaitCursor);
            uploadWindow()->setCursor(Qt::WaitCursor);
        } else {
            unsetCursor();
            uploadWindow()->unsetCursor();
        }
    }));
    connect(ftp, &FtpEngine::SendProgress, this,
            Event([](qint64 sent, qint64 remaining) { uploadWindow()->onSendProgress(sent, remaining); }));
    connect(ftp, &FtpEngine::SendComplete, this, Event([] { uploadWindow()->onSendComplete(); }));
    connect(ftp, &FtpEngine::Winsock2Error, this, Event([] { uploadWindow()->onDataError(); }));
    ftp->setTrustQuestion([](const QString& question) {
        return MsgBox(question, Style::YesNo | Style::Question, QStringLiteral(":: Velloro 2002 ::")) == Answer::Yes;
    });
    resize(720, 640);
}

ftpadvanced::~ftpadvanced()
{
    // The engine's last events must not reach the upload window while this one is going away.
    ftp->disconnect(this);
}

void ftpadvanced::Form_Load()
{
    Text1->setText(uploadWindow()->ftpaddress->text());
    refreshDetails();
}

void ftpadvanced::refreshDetails()
{
    QTcpSocket* s = ftp->Winsock1();
    Text3->setText(s->localAddress().toString());
    Text5->setText(QString::number(s->localPort()));
    Text4->setText(s->peerAddress().toString());
    Text6->setText(QString::number(s->peerPort()));
    Text12->setText(QString::number(s->socketDescriptor()));
    Text10->setText(QString::number(ftp->bytesReceived()));
}

void ftpadvanced::appendLog(const QString& line)
{
    // The log and its copy in the upload window grow together.
    for (QPlainTextEdit* log : {Text2, uploadWindow()->Text2}) {
        const int before = log->document()->characterCount() - 1;
        QTextCursor c(log->document());
        c.movePosition(QTextCursor::End);
        c.insertText(line + QLatin1Char('\n'));
        QTextCursor caret = log->textCursor();
        caret.setPosition(before);
        log->setTextCursor(caret);
    }
}

void ftpadvanced::Command1_Click()
{
    ftpnormal* n = uploadWindow();
    ftp->setPort(serverPort);
    ftp->setSecurity(FtpSecurity(n->cboSecurity->currentIndex()));
    ftp->FtpConnect(n->ftpaddress->text(), n->username->text(), n->password->text());
}

void ftpadvanced::Command5_Click() { ftp->CutConnection(); }

// A listing or a download asked for while another command waits for its reply would take that
// reply and cut its data connection: they wait their turn. Send File stays open, since the
// upload queue presses it to send its next file.
bool ftpadvanced::busy() const { return ftp->activeWaits() > 0; }

void ftpadvanced::Command6_Click()
{
    if (!busy())
        ftp->ViewFiles();
}

void ftpadvanced::Command7_Click() { ftp->SendFile(Text8->text(), Text11->text()); }

void ftpadvanced::inputdata1_Click()
{
    if (busy())
        return;
    // The box holds its line ends as CR LF, as the command is sent.
    ftp->Retrieve(Text9->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}
