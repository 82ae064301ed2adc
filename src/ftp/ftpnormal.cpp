#include "ftp/ftpnormal.h"

#include "ftp/FtpEngine.h"
#include "ftp/FtpProfiles.h"
#include "ftp/ftpUsers.h"
#include "ftp/ftpadvanced.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/PlatformColour.h"
#include "platform/Prompts.h"
#include "platform/Twips.h"

#include <climits>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {
using Look::named;
const QString velloroTitle = QStringLiteral(":: Velloro 2002 ::");
const QStringList flexHeader = {QStringLiteral("Filename (No Spaces!)"), QStringLiteral("File Size"), QString()};

ftpadvanced* advanced() { return form<ftpadvanced>(); }

// FileLen: the size of a file that is there, else "File not found".
qint64 fileLen(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isDir())
        throw RuntimeError::fileNotFound(QStringLiteral("FileLen"));
    return info.size();
}

// The numeric value of a label's text by the leading-digits rule.
qint64 leadingNumber(const QString& text)
{
    qint64 v = 0;
    qsizetype i = 0;
    while (i < text.size() && text[i] == QLatin1Char(' '))
        ++i;
    for (; i < text.size() && text[i].isDigit() && v < (qint64(1) << 52); ++i)
        v = v * 10 + text[i].digitValue();
    return v;
}
}

void uploadProjectToFtp(const QList<QPair<QString, QString>>& files) { form<ftpnormal>()->addProject(files); }

ftpnormal::ftpnormal(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("FTP Client"));
    auto* outer = new QVBoxLayout(this);
    auto* title = named(new QLabel(QStringLiteral("FTP Client"), this), QStringLiteral("Label1"));
    title->setAutoFillBackground(true);
    outer->addWidget(title);

    auto* top = new QHBoxLayout;
    auto* account = new QGridLayout;
    ftpaddress = named(new QLineEdit(this), QStringLiteral("ftpaddress"));
    username = named(new QLineEdit(this), QStringLiteral("username"));
    password = named(new QLineEdit(this), QStringLiteral("password"));
    password->setEchoMode(QLineEdit::Password);
    account->addWidget(new QLabel(QStringLiteral("FTP Address :"), this), 0, 0);
    account->addWidget(ftpaddress, 0, 1);
    account->addWidget(new QLabel(QStringLiteral("Username :"), this), 1, 0);
    account->addWidget(username, 1, 1);
    account->addWidget(new QLabel(QStringLiteral("Password :"), this), 2, 0);
    account->addWidget(password, 2, 1);
    upload = Look::faceButton(QStringLiteral("upload"), QStringLiteral("Connect to FTP Server"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Disconnect from FTP Server"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Add Profile"), this);
    Shape1 = named(new QFrame(this), QStringLiteral("Shape1"));
    Shape1->setFixedSize(16, 16);
    Shape1->setAutoFillBackground(true);
    // An account typed in by hand connects as it always did; a profile brings its own choice.
    cboSecurity = securityBox(this);
    account->addWidget(new QLabel(QStringLiteral("Security :"), this), 3, 0);
    account->addWidget(cboSecurity, 3, 1);
    account->addWidget(upload, 4, 0);
    account->addWidget(Command1, 4, 1);
    account->addWidget(Shape1, 4, 2);
    account->addWidget(SmartNetButton1, 5, 0);
    setTabOrder(password, cboSecurity);
    setTabOrder(cboSecurity, upload);
    top->addLayout(account, 1);
    auto* treeBox = new QVBoxLayout;
    Tree = named(new QTreeWidget(this), QStringLiteral("Tree"));
    Tree->setHeaderLabel(QStringLiteral("Slect A Profile To Connect To ..."));
    treeBox->addWidget(Tree);
    top->addLayout(treeBox, 1);
    outer->addLayout(top);

    auto* files = new QGridLayout;
    Drive1 = named(new DriveListBox(this), QStringLiteral("Drive1"));
    Dir1 = named(new DirListBox(this), QStringLiteral("Dir1"));
    File1 = named(new FileListBox(this), QStringLiteral("File1"));
    Combo1 = named(new QComboBox(this), QStringLiteral("Combo1"));
    Combo1->setToolTip(QStringLiteral("Choose a file extension"));
    files->addWidget(Drive1, 0, 0);
    files->addWidget(Dir1, 1, 0);
    files->addWidget(File1, 0, 1, 2, 1);
    files->addWidget(Combo1, 2, 1);
    auto* queue = new QVBoxLayout;
    Flex = named(new QTableWidget(0, 3, this), QStringLiteral("Flex"));
    Flex->verticalHeader()->hide();
    Flex->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Flex->setSelectionBehavior(QAbstractItemView::SelectRows);
    Flex->setSelectionMode(QAbstractItemView::SingleSelection);
    Flex->setToolTip(QStringLiteral("Server side file name (NO SPACES)"));
    queue->addWidget(Flex, 1);
    auto* queueButtons = new QHBoxLayout;
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Upload File's"), this);
    Command2->setToolTip(QStringLiteral("Press to start uploading files"));
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Clear \"Files to be Uploaded\" list"), this);
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Delete 1 file from list"), this);
    for (QPushButton* b : {Command2, Command3, SmartNetButton2})
        queueButtons->addWidget(b);
    queue->addLayout(queueButtons);
    files->addLayout(queue, 0, 2, 3, 1);
    files->setColumnStretch(2, 2);
    outer->addLayout(files, 1);

    auto* progress = new QGridLayout;
    ProgressBar1 = named(new QProgressBar(this), QStringLiteral("ProgressBar1"));
    ProgressBar2 = named(new QProgressBar(this), QStringLiteral("ProgressBar2"));
    ProgressBar1->setRange(0, 0);
    ProgressBar1->setValue(0);
    ProgressBar2->setRange(0, 100);
    ProgressBar2->setValue(0);
    lblfileuploading = named(new QLabel(QStringLiteral("..."), this), QStringLiteral("lblfileuploading"));
    lblsize = named(new QLabel(this), QStringLiteral("lblsize"));
    Label3 = named(new QLabel(QStringLiteral("0"), this), QStringLiteral("Label3"));
    progress->addWidget(new QLabel(QStringLiteral("Full Upload Progress:"), this), 0, 0);
    progress->addWidget(ProgressBar1, 0, 1);
    progress->addWidget(Label3, 0, 2);
    progress->addWidget(new QLabel(QStringLiteral("Uploading :"), this), 1, 0);
    progress->addWidget(lblfileuploading, 1, 1);
    progress->addWidget(new QLabel(QStringLiteral("File Size:"), this), 2, 0);
    progress->addWidget(lblsize, 2, 1);
    progress->addWidget(ProgressBar2, 3, 1);
    outer->addLayout(progress);

    outer->addWidget(new QLabel(QStringLiteral("Server Response :"), this));
    Text2 = named(new QPlainTextEdit(this), QStringLiteral("Text2"));
    Text2->setMaximumHeight(90);
    outer->addWidget(Text2);

    auto* bottom = new QHBoxLayout;
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("View advanced options, file download etc"), this);
    Command6 = Look::faceButton(QStringLiteral("Command6"), QStringLiteral("Internet Settings"), this);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Close"), this);
    bottom->addWidget(Command4);
    bottom->addWidget(Command6);
    bottom->addStretch(1);
    bottom->addWidget(Command5);
    outer->addLayout(bottom);

    StatusBar1 = named(new QStatusBar(this), QStringLiteral("StatusBar1"));
    for (int i = 0; i < 3; ++i) {
        panels[i] = named(new QLabel(StatusBar1), QStringLiteral("Panel%1").arg(i + 1));
        StatusBar1->addPermanentWidget(panels[i], i == 0 ? 0 : 1);
    }
    outer->addWidget(StatusBar1);

    chainFileControls(Drive1, Dir1, File1);
    connect(upload, &QPushButton::clicked, this, Event([this] { upload_Click(); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command6, &QPushButton::clicked, this, Event([] {
        MsgBox(QStringLiteral("The Internet settings panel is not available on this system."), Style::Information);
    }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(SmartNetButton2, &QPushButton::clicked, this, Event([this] { SmartNetButton2_Click(); }));
    connect(File1, &FileListBox::fileActivated, this, Event([this](const QString&) { File1_DblClick(); }));
    connect(Combo1, &QComboBox::activated, this, Event([this](int) { Combo1_Click(); }));
    connect(Tree, &QTreeWidget::itemClicked, this, Event([this](QTreeWidgetItem* item, int) { Tree_NodeClick(item); }));
    resize(900, 680);
}

void ftpnormal::Form_Load()
{
    Combo1->addItems({QStringLiteral("*.*"), QStringLiteral("*.html"), QStringLiteral("*.htm"), QStringLiteral("*.txt"),
                      QStringLiteral("*.tmpl"), QStringLiteral("*.exe"), QStringLiteral("*.zip"), QStringLiteral("*.rar"),
                      QStringLiteral("*.doc"), QStringLiteral("*.jpg"), QStringLiteral("*.gif")});
    File1->setPattern(QStringLiteral("*.*"));
    setPanelText(2, QStringLiteral("Not Connected to Server..."));
    for (QPushButton* b : findChildren<QPushButton*>()) {
        QPalette p = b->palette();
        p.setColor(QPalette::Button, Look::face);
        b->setPalette(p);
    }
    if (auto* title = findChild<QLabel*>(QStringLiteral("Label1"))) {
        QPalette p = title->palette();
        p.setColor(QPalette::Window, Look::heading);
        p.setColor(QPalette::WindowText, Qt::white);
        title->setPalette(p);
    }
    Command1->setEnabled(false);
    setServerShape(255);
    clearFlex();
    OnErrorExit([this] { fillProfileTree(Tree); });
}

void ftpnormal::clearFlex()
{
    Flex->setRowCount(0);
    Flex->setHorizontalHeaderLabels(flexHeader);
    Flex->setColumnWidth(0, twipsToPixels(3250));
    Flex->setColumnWidth(1, twipsToPixels(1100));
    // The third column holds the path: there, but of no width.
    Flex->setColumnHidden(2, true);
    for (int c = 0; c < 2; ++c)
        Flex->horizontalHeaderItem(c)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QString ftpnormal::cell(int row, int column) const
{
    if (row <= 0)  // the header row
        return column < flexHeader.size() ? flexHeader[column] : QString();
    const QTableWidgetItem* item = Flex->item(row - 1, column);
    return item ? item->text() : QString();
}

int ftpnormal::currentRow() const { return Flex->currentRow() + 1; }

bool ftpnormal::moveNext()
{
    const int next = Flex->currentRow() + 1;
    if (next >= Flex->rowCount())
        return false;
    Flex->setCurrentCell(next, 0);
    return true;
}

void ftpnormal::setServerShape(int colour)
{
    shapeColour = colour;
    QPalette p = Shape1->palette();
    p.setColor(QPalette::Window, PlatformColour::toQColor(colour));
    Shape1->setPalette(p);
}

QString ftpnormal::panelText(int panel) const { return panels[panel - 1]->text(); }
void ftpnormal::setPanelText(int panel, const QString& text) { panels[panel - 1]->setText(text); }

void ftpnormal::addFile(const QString& name, const QString& path)
{
    const qint64 size = fileLen(path);
    const int row = Flex->rowCount();
    Flex->insertRow(row);
    Flex->setItem(row, 0, new QTableWidgetItem(name));
    Flex->setItem(row, 1, new QTableWidgetItem(QString::number(size)));
    Flex->setItem(row, 2, new QTableWidgetItem(path));
    ProgressBar1->setMaximum(ProgressBar1->maximum() + 1);
    Label3->setText(QString::number(ProgressBar1->maximum()));
    Flex->setCurrentCell(0, 0);
}

void ftpnormal::addProject(const QList<QPair<QString, QString>>& files)
{
    for (const auto& f : files)
        addFile(f.first, f.second);
    show();
    raise();
}

void ftpnormal::File1_DblClick()
{
    const QString folder = File1->Path();
    const QString name = File1->FileName();
    if (name.isEmpty())
        return;
    // The root is joined directly; any other folder takes a separator.
    const QString path = folder == QLatin1String("/") ? folder + name : folder + QLatin1Char('/') + name;
    addFile(name, path);
}

void ftpnormal::Combo1_Click()
{
    File1->setPath(Dir1->Path());
    File1->setPattern(Combo1->currentText());
}

void ftpnormal::Tree_NodeClick(QTreeWidgetItem* node)
{
    FtpProfiles::Profile p;
    if (!FtpProfiles::readProfile(nodeKey(node), p))
        return;
    ftpaddress->setText(p.address);
    username->setText(p.username);
    password->setText(p.password);
    cboSecurity->setCurrentIndex(int(FtpProfiles::readSecurity(nodeKey(node))));
}

void ftpnormal::upload_Click()
{
    if (ftpaddress->text().isEmpty()) {
        MsgBox(QStringLiteral("You havnt entered an FTP Address!"), Style::Critical);
        return;
    }
    if (username->text().isEmpty()) {
        MsgBox(QStringLiteral("You havnt entered your username!"), Style::Critical);
        return;
    }
    if (password->text().isEmpty()) {
        MsgBox(QStringLiteral("You havnt entered an your password!"), Style::Critical);
        return;
    }
    advanced()->Command1->click();
}

void ftpnormal::Command1_Click()
{
    advanced()->engine()->disconnectSteps(false);
    Command2->setEnabled(false);
    lblfileuploading->setText(QStringLiteral("..."));
}

void ftpnormal::Command2_Click()
{
    // Errors are ignored statement by statement.
    ResumeNext next;
    const int r = currentRow();
    ftpadvanced* adv = advanced();
    next([&] { adv->Text8->setText(cell(r, 2)); });
    next([&] { adv->Text11->setText(cell(r, 0)); });
    next([&] { lblfileuploading->setText(cell(r, 0)); });
    next([&] { lblsize->setText(cell(r, 1)); });
    next([&] {
        bytesMaximum = leadingNumber(lblsize->text());
        bytesValue = 0;
        showBytes();
    });
    next([&] { adv->Command7->click(); });
}

void ftpnormal::showBytes()
{
    // The bar holds an int; a file beyond that is shown in proportion.
    const double scale = bytesMaximum > INT_MAX ? double(INT_MAX) / double(bytesMaximum) : 1.0;
    ProgressBar2->setRange(0, int(double(bytesMaximum) * scale));
    ProgressBar2->setValue(int(double(bytesValue) * scale));
}

void ftpnormal::onSendProgress(qint64 bytesSent, qint64)
{
    const qint64 v = bytesValue + bytesSent;
    if (v <= bytesMaximum) {
        bytesValue = v;
        setPanelText(3, QStringLiteral("Progress :: Sent ") + QString::number(bytesValue) + QStringLiteral(" bytes of ") +
                            QString::number(bytesMaximum));
    } else {
        bytesValue = bytesMaximum;
        setPanelText(3, QStringLiteral("Sent ") + QString::number(bytesValue) + QStringLiteral("bytes of ") +
                            QString::number(bytesMaximum));
    }
    showBytes();
}

void ftpnormal::onSendComplete()
{
    ProgressBar1->setValue(std::min(ProgressBar1->value() + 1, ProgressBar1->maximum()));
    if (!moveNext()) {
        MsgBox(QStringLiteral("Transfer off all files completed"), Style::Information);
        Flex->setRowCount(0);
        ProgressBar1->setValue(0);
        bytesValue = 0;
        showBytes();
        ProgressBar2->setValue(0);
        lblsize->clear();
        lblfileuploading->setText(QStringLiteral("..."));
        return;
    }
    advanced()->Text7->clear();
    Command2->click();
}

void ftpnormal::onDataError()
{
    ftpadvanced* adv = advanced();
    if (!moveNext()) {
        // The failed file was the last: the whole connection goes.
        adv->engine()->disconnectSteps(true);
        return;
    }
    adv->hide();
    adv->engine()->closeData();
    adv->Text7->clear();
    adv->Text2->clear();
}

void ftpnormal::Command3_Click() { clearFlex(); }

void ftpnormal::Command4_Click()
{
    ftpadvanced* adv = advanced();
    adv->show();
    adv->raise();
}

void ftpnormal::Command5_Click()
{
    Command1_Click();
    hide();
}

void ftpnormal::closeEvent(QCloseEvent* e)
{
    // Closing the window is its Close button: the connection goes, the window hides.
    Event([this] { Command5_Click(); })();
    e->accept();
}

void ftpnormal::SmartNetButton1_Click()
{
    auto* users = form<ftpUsers>();
    users->clearForNew();
    users->show();
    users->raise();
}

void ftpnormal::SmartNetButton2_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you want to remove the selected item?"), Style::YesNo, velloroTitle) != Answer::Yes)
        return;
    const int row = Flex->currentRow();
    if (row >= 0)
        Flex->removeRow(row);
}
