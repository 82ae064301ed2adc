#include "ftp/ftpUsers.h"

#include "ftp/FtpProfiles.h"
#include "ftp/ftpnormal.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"

#include <QComboBox>
#include <QDateTime>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
using Look::named;
const QString velloroTitle = QStringLiteral(":: Velloro 2002 ::");
constexpr int keyRole = Qt::UserRole;

QTreeWidgetItem* node(const QString& text, const QString& key)
{
    auto* item = new QTreeWidgetItem(QStringList{text});
    item->setData(0, keyRole, key);
    return item;
}
}

QString nodeKey(const QTreeWidgetItem* node) { return node ? node->data(0, keyRole).toString() : QString(); }

void fillProfileTree(QTreeWidget* tree)
{
    tree->clear();
    QTreeWidgetItem* root = node(QStringLiteral("<<FTP PROFILES>>"), QStringLiteral("root"));
    tree->addTopLevelItem(root);
    root->addChild(node(QStringLiteral("<CURRENT>"), QStringLiteral("child1_root")));
    for (const QString& name : FtpProfiles::readIndex())
        root->addChild(node(name, name));
    root->setExpanded(true);
}

QList<QTreeWidgetItem*> profileNodes(QTreeWidget* tree)
{
    QList<QTreeWidgetItem*> nodes;
    QTreeWidgetItem* root = tree->topLevelItemCount() > 0 ? tree->topLevelItem(0) : nullptr;
    for (int i = 1; root && i < root->childCount(); ++i)
        nodes.append(root->child(i));
    return nodes;
}

QComboBox* securityBox(QWidget* parent)
{
    auto* box = named(new QComboBox(parent), QStringLiteral("cboSecurity"));
    box->addItems({QStringLiteral("Plain FTP (not encrypted)"), QStringLiteral("TLS if offered"), QStringLiteral("TLS required")});
    box->setToolTip(QStringLiteral("TLS encrypts the password and the files; \"TLS required\" never sends them in the clear"));
    return box;
}

QString profileDate() { return QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yyyy hh:mm:ss")); }

void RefreshProfiles()
{
    if (auto* users = loadedForm<ftpUsers>())
        fillProfileTree(users->Tree);
    if (auto* upload = loadedForm<ftpnormal>())
        fillProfileTree(upload->Tree);
}

ftpUsers::ftpUsers(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("FTP Profile's [ BETA 1.0.7 ]"));
    auto* outer = new QHBoxLayout(this);
    Tree = named(new QTreeWidget(this), QStringLiteral("Tree"));
    Tree->setHeaderHidden(true);
    Tree->setMinimumWidth(200);
    outer->addWidget(Tree);

    auto* right = new QVBoxLayout;
    auto* grid = new QGridLayout;
    const auto field = [&](const char* name, const QString& caption, int row) {
        auto* edit = named(new QLineEdit(this), QString::fromLatin1(name));
        grid->addWidget(new QLabel(caption, this), row, 0);
        grid->addWidget(edit, row, 1);
        return edit;
    };
    txtProfile = field("txtProfile", QStringLiteral("Profile Name :"), 0);
    txtAddress = field("txtAddress", QStringLiteral("FTP Address :"), 1);
    txtUsername = field("txtUsername", QStringLiteral("Username :"), 2);
    txtPassword = field("txtPassword", QStringLiteral("Password :"), 3);
    cboSecurity = securityBox(this);
    // New accounts ask for TLS where the server offers it.
    cboSecurity->setCurrentIndex(int(FtpSecurity::IfOffered));
    grid->addWidget(new QLabel(QStringLiteral("Security :"), this), 4, 0);
    grid->addWidget(cboSecurity, 4, 1);
    txtDate = field("txtDate", QStringLiteral("Date :"), 5);
    right->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("New Account"), this);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Save"), this);
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Update"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Delete"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Help"), this);
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("Exit"), this);
    for (QPushButton* b : {Command3, Command1, SmartNetButton2, Command2, SmartNetButton1, Command4})
        buttons->addWidget(b);
    right->addLayout(buttons);
    right->addStretch(1);
    outer->addLayout(right, 1);

    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(SmartNetButton2, &QPushButton::clicked, this, Event([this] { SmartNetButton2_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { hide(); }));
    connect(Tree, &QTreeWidget::itemClicked, this, Event([this](QTreeWidgetItem* item, int) { Tree_NodeClick(item); }));
    resize(620, 300);
}

void ftpUsers::Form_Load()
{
    // A failure here ends the load quietly.
    OnErrorExit([this] { fillProfileTree(Tree); });
}

void ftpUsers::clearForNew()
{
    for (QLineEdit* e : {txtProfile, txtAddress, txtUsername, txtPassword})
        e->clear();
    txtDate->setText(profileDate());
    cboSecurity->setCurrentIndex(int(FtpSecurity::IfOffered));
}

void ftpUsers::Command3_Click() { clearForNew(); }

void ftpUsers::Command1_Click()
{
    const QString name = txtProfile->text();
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("You need to enter a profile name."), Style::Information);
        return;
    }
    for (QTreeWidgetItem* n : profileNodes(Tree)) {
        if (n->text(0) == name) {
            MsgBox(QStringLiteral("A Profile allready has that Profile name, please use a unique profile name. Or if you "
                                  "are updating a profile, press the update to save the profile."), Style::Critical);
            return;
        }
    }
    FtpProfiles::ensureIndex();
    FtpProfiles::writeProfile({name, txtAddress->text(), txtUsername->text(), txtPassword->text(), txtDate->text()});
    FtpProfiles::writeSecurity(name, FtpSecurity(cboSecurity->currentIndex()));
    FtpProfiles::appendIndex(name);
    MsgBox(QStringLiteral("The user : ") + name + QStringLiteral(" has been added, list will now refresh."), Style::Information);
    RefreshProfiles();
}

void ftpUsers::SmartNetButton2_Click()
{
    const QString name = txtProfile->text();
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("You have not selected a profile from the left treeview to update!."), Style::Critical);
        return;
    }
    if (!QFile::exists(FtpProfiles::profilePath(name))) {
        MsgBox(QStringLiteral("Failed Profile Update: You had not selected a valid profile, or u changed the profile name."), Style::Critical);
        return;
    }
    FtpProfiles::writeProfile({name, txtAddress->text(), txtUsername->text(), txtPassword->text(), txtDate->text()});
    FtpProfiles::writeSecurity(name, FtpSecurity(cboSecurity->currentIndex()));
    MsgBox(QStringLiteral("The user : ") + name + QStringLiteral(" has been updated."), Style::Information);
}

void ftpUsers::Command2_Click()
{
    if (MsgBox(QStringLiteral("Are you sure you would like to delete the current profile?"), Style::YesNo | Style::Exclamation, velloroTitle) == Answer::No)
        return;
    const QString name = txtProfile->text();
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("No profile currently selected to delete."), Style::Critical);
        return;
    }
    QFile::remove(FtpProfiles::profilePath(name));
    QFile::remove(FtpProfiles::securityPath(name));
    for (QTreeWidgetItem* n : profileNodes(Tree)) {
        if (nodeKey(n) == name) {
            delete n;
            break;
        }
    }
    QStringList keys;
    for (QTreeWidgetItem* n : profileNodes(Tree))
        keys.append(nodeKey(n));
    FtpProfiles::rewriteIndex(keys);
    RefreshProfiles();
    MsgBox(QStringLiteral("User Profile Deleted"), Style::Information);
    for (QLineEdit* e : {txtProfile, txtAddress, txtUsername, txtPassword, txtDate})
        e->clear();
}

void ftpUsers::SmartNetButton1_Click()
{
    MsgBox(QStringLiteral("No help file has currently been created for the ftp profiles. It should be created shortly."));
}

void ftpUsers::Tree_NodeClick(QTreeWidgetItem* node)
{
    // The fixed nodes have no file: the fields keep what they hold.
    FtpProfiles::Profile p;
    if (!FtpProfiles::readProfile(nodeKey(node), p))
        return;
    txtProfile->setText(p.name);
    txtAddress->setText(p.address);
    txtUsername->setText(p.username);
    txtPassword->setText(p.password);
    txtDate->setText(p.date);
    cboSecurity->setCurrentIndex(int(FtpProfiles::readSecurity(nodeKey(node))));
}
