#include "utilities/FeedBack.h"

#include "platform/App.h"
#include "platform/Desktop.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/TextFiles.h"
#include "services/Settings.h"
#include "utilities/MailPage.h"
#include "utilities/OutwardText.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

FeedBack::FeedBack(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FeedBack"));
    setWindowTitle(QStringLiteral("Send Feedback"));
    auto line = [this](const char* name) { return Look::named(new QLineEdit(this), QString::fromLatin1(name)); };
    auto box = [this](const char* name) {
        auto* t = Look::named(new QPlainTextEdit(this), QString::fromLatin1(name));
        t->setTabChangesFocus(true);
        t->setMinimumHeight(90);
        return t;
    };
    txtname = line("txtname");
    txtemail = line("txtemail");
    txtcountry = line("txtcountry");
    txtage = line("txtage");
    txtcomment = box("txtcomment");
    txtchanges = box("txtchanges");
    coscale = Look::named(new QComboBox(this), QStringLiteral("coscale"));
    for (int i = 1; i <= 10; ++i)
        coscale->addItem(QString::number(i));
    // No rating until the user picks one.
    coscale->setCurrentIndex(-1);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Send"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Close"), this);
    Command1->setAutoDefault(false);
    Command2->setAutoDefault(false);

    auto* rows = new QFormLayout;
    rows->addRow(QStringLiteral("Name :"), txtname);
    rows->addRow(QStringLiteral("Email :"), txtemail);
    rows->addRow(QStringLiteral("Country :"), txtcountry);
    rows->addRow(QStringLiteral("Age :"), txtage);
    rows->addRow(QStringLiteral("Comments :"), txtcomment);
    rows->addRow(QStringLiteral("Extra's-Future Features :"), txtchanges);
    rows->addRow(QStringLiteral("Rate Velloro (1 - 10) :"), coscale);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    auto* v = new QVBoxLayout(this);
    v->addLayout(rows);
    v->addLayout(buttons);
    setMinimumWidth(480);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, &QDialog::hide);
}

QString FeedBack::feedbackFile() { return App::userFile(QStringLiteral("Options/FeedBack.dat")); }

void FeedBack::Command1_Click()
{
    const Feedback::Form f{txtname->text(),         txtemail->text(),           txtcountry->text(), txtage->text(),
                           txtcomment->toPlainText(), txtchanges->toPlainText(), coscale->currentText()};
    const QString path = feedbackFile();
    QString error;
    if (!TextFiles::writeBytes(path, Feedback::fileText(App::versionLine(), f), &error)) {
        MsgBox(QStringLiteral("The feedback file could not be written: ") + error, Style::Critical, Feedback::title);
        return;
    }
    const QString address = Settings::feedbackAddress();
    if (MsgBox(Feedback::mailQuestion, Style::YesNo + Style::Exclamation, Feedback::title) == Answer::Yes &&
        Desktop::startProgram(QStringLiteral("xdg-email"),
                              MailPage::mailArguments(address, Feedback::subject,
                                                      Feedback::mailBody(App::versionNumber()), path)))
        return;
    // Without a mail program the user still learns where the file is and where it goes.
    MsgBox(Feedback::sendItYourself(path, address), Style::Critical);
}
