// The wizard windows on the shared base: their fields and defaults, the insert flow with a page,
// a split window, a notepad and no document, and the menu keys that open them.
#include "wizards/WizardTestSupport.h"

#include "colour/ColourSwatch.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "shell/frmMain.h"
#include "wizards/emailform.h"
#include "wizards/WizardDialog.h"
#include "wizards/WizardRows.h"
#include "wizards/lineform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {
const QString refusal = QStringLiteral("You have a notepad document open, you need a web page open for this feature");

class WizardWindowTest : public WizardTest {};
}

TEST_F(WizardWindowTest, LineWizardHasThePartsFieldsAndDefaults)
{
    lineform* w = open<lineform>(QStringLiteral("Horizontal Line"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("lineform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Line Properties ::"));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("H00000000"));
    EXPECT_EQ(items(w->align), (QStringList{QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("Right")}));
    EXPECT_EQ(w->align->currentText(), QStringLiteral("Center"));
    EXPECT_EQ(items(w->barwidth), (QStringList{QStringLiteral("100"), QStringLiteral("75"), QStringLiteral("50"), QStringLiteral("25")}));
    EXPECT_EQ(w->barwidth->currentText(), QStringLiteral("100"));
    EXPECT_EQ(w->barsize->text(), QStringLiteral("2"));
    EXPECT_EQ(w->Option1->text(), QStringLiteral("Pixels"));
    EXPECT_EQ(w->Option2->text(), QStringLiteral("%"));
    EXPECT_TRUE(w->Option2->isChecked());
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Load"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Choose"));
    for (const char* name : {"Text1", "align", "barwidth", "barsize", "Option1", "Option2", "Command1", "Command2", "Command3"})
        EXPECT_NE(w->findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
}

TEST_F(WizardWindowTest, LineWizardInsertsAtTheCaretAndKeepsItsFields)
{
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    lineform* w = open<lineform>(QStringLiteral("Horizontal Line"));
    ASSERT_NE(w, nullptr);
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body><hr color=H00000000align=Center width=100% size=2></body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText()) << "the caret goes behind the fragment";
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // Pixels, a chosen colour and a typed alignment; the fields survive the next opening.
    prompts.answerColour(255);
    w->Command2->click();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->Shape1->BackColor(), 255);
    w->Option1->setChecked(true);
    w->align->setCurrentText(QStringLiteral("middle"));
    w->barwidth->setCurrentText(QStringLiteral("300"));
    page->CodeMax1()->setText(QString());
    w = open<lineform>(QStringLiteral("Horizontal Line"));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#FF0000\""));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<hr color=\"#FF0000\"align=middle width=300 size=2>"));
}

TEST_F(WizardWindowTest, TheWizardsRefuseANotepadAndStayOpen)
{
    notepad* pad = newPad(QStringLiteral("my notes"));
    for (const char* key : {"Horizontal Line", "Email"}) {
        frmMain::instance()->MenuClick(QString::fromLatin1(key));
        auto* w = qobject_cast<QDialog*>(Forms::find(QString::fromLatin1(key) == QLatin1String("Email") ? QStringLiteral("emailform")
                                                                                                         : QStringLiteral("lineform")));
        ASSERT_NE(w, nullptr) << key;
        prompts.answerMsgBox(Answer::OK);
        w->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        EXPECT_TRUE(isBox(prompts.last(), refusal, 64, QStringLiteral(":: Insert Error ::"))) << key;
        EXPECT_TRUE(w->isVisible()) << key;
    }
    EXPECT_EQ(prompts.prompts().size(), 2);
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("my notes"));
}

TEST_F(WizardWindowTest, WithoutADocumentTheWizardsCloseSilently)
{
    for (const char* name : {"lineform", "emailform"}) {
        QWidget* w = Forms::get(QString::fromLatin1(name));
        w->show();
        w->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        EXPECT_FALSE(w->isVisible()) << name;
    }
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(WizardWindowTest, EmailWizardWritesTheLinkIntoASplitWindowAndClearsItsTexts)
{
    frmsplit* split = newSplit();
    emailform* w = open<emailform>(QStringLiteral("Email"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("emailform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Email ::"));
    EXPECT_EQ(w->Text1->text(), QString());
    EXPECT_EQ(w->address->text(), QString());
    EXPECT_EQ(w->subject->text(), QString());
    EXPECT_EQ(w->align->currentText(), QStringLiteral("Center"));

    w->Text1->setText(QStringLiteral("Write to us"));
    w->address->setText(QStringLiteral("team@velloro.example"));
    w->align->setCurrentText(QStringLiteral("Right"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p align=Right><a href=mailto:team@velloro.example?subject=>Write to us</a></p>"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Text1->text(), QString());
    EXPECT_EQ(w->address->text(), QString());
    EXPECT_EQ(w->subject->text(), QString());
    EXPECT_EQ(w->align->currentText(), QStringLiteral("Right")) << "the position is not cleared";
}

// The close buttons and Esc hide the form; Enter runs the load button.
TEST_F(WizardWindowTest, CloseEscapeAndEnter)
{
    frmDocument* page = newPage(QString());
    emailform* w = open<emailform>(QStringLiteral("Email"));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Close"));
    w->Command2->click();
    EXPECT_FALSE(w->isVisible());
    w = open<emailform>(QStringLiteral("Email"));
    EXPECT_TRUE(w->Command1->isDefault());
    w->address->setText(QStringLiteral("a@b.example"));
    QTest::keyClick(w->address, Qt::Key_Return);
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p align=Center><a href=mailto:a@b.example?subject=></a></p>"));
    EXPECT_FALSE(w->isVisible());
    lineform* line = open<lineform>(QStringLiteral("Horizontal Line"));
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_FALSE(line->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p align=Center><a href=mailto:a@b.example?subject=></a></p>"));
}

namespace {
// A wizard that uses what the base offers beyond the two real ones: delivery in steps, a
// fragment left selected, no refusal, and a failure path of its own.
class StepsWizard : public WizardDialog {
public:
    StepsWizard() : WizardDialog(QStringLiteral("Steps ::"), Refusal::None)
    {
        Command1 = addLoadButton(QStringLiteral("Command1"));
    }
    QStringList pieces = {QStringLiteral("<a>"), QStringLiteral("<b>")};
    Delivery how = Delivery::AtCaret;
    QStringList failures;
    QPushButton* Command1 = nullptr;

protected:
    QStringList fragments() const override { return pieces; }
    Delivery delivery() const override { return how; }
    void failed(const RuntimeError& e) override { failures << e.description; }
};
}

TEST_F(WizardWindowTest, TheBaseDeliversInStepsOrSelectedAndLetsAWizardHandleItsFailure)
{
    frmDocument* page = newPage(QStringLiteral("[]"));
    page->CodeMax1()->setCursorPosition(0, 1);
    StepsWizard w;
    w.show();
    w.Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("[<a><b>]")) << "each step behind the one before";
    EXPECT_FALSE(w.isVisible());

    w.how = StepsWizard::Delivery::Selected;
    w.pieces = {QStringLiteral("<form>")};
    w.show();
    w.Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("[<a><b><form>]"));
    EXPECT_EQ(page->CodeMax1()->selectedText(), QStringLiteral("<form>"));

    // Without a refusal a notepad fails at the delivery, and the wizard's own path runs.
    newPad();
    w.show();
    w.Command1->click();
    ASSERT_EQ(w.failures.size(), 1);
    EXPECT_EQ(w.failures[0], QStringLiteral("Object doesn't support this property or method"));
    EXPECT_TRUE(w.isVisible()) << "this wizard's failure path does not hide it";
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(WizardWindowTest, ALocationRowKeepsTheFullPathBehindTheShortenedOne)
{
    folder.write(QStringLiteral("site dir/pic, one.gif"), "GIF89a");
    const QString path = folder.file(QStringLiteral("site dir/pic, one.gif"));
    QWidget host;
    auto* rows = new QFormLayout(&host);
    const auto f = WizardRows::location(rows, {.find = QStringLiteral("find"), .shorten = QStringLiteral("Check2")},
                                        QStringLiteral("Location :"), QStringLiteral("Find"),
                                        QStringLiteral("Pictures (*.gif)"));
    EXPECT_EQ(host.findChild<QLineEdit*>(QStringLiteral("Location")), f.location);
    EXPECT_EQ(host.findChild<QLineEdit*>(QStringLiteral("location1")), f.full);
    EXPECT_EQ(f.shorten->text(), QStringLiteral("Shorten location length"));

    prompts.answerOpenFile(path);
    f.find->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(f.location->text(), path);
    EXPECT_EQ(f.full->text(), path);
    f.shorten->setChecked(true);
    EXPECT_EQ(f.location->text(), QStringLiteral("pic, one.gif"));
    EXPECT_EQ(f.full->text(), path);
    f.shorten->setChecked(false);
    EXPECT_EQ(f.location->text(), path);

    // A cancelled dialog changes nothing; a file found while ticked is shown short at once; a
    // copy that names no file shortens to nothing.
    prompts.answerOpenFile(QString());
    f.find->click();
    EXPECT_EQ(f.full->text(), path);
    f.shorten->setChecked(true);
    prompts.answerOpenFile(path);
    f.find->click();
    EXPECT_EQ(f.location->text(), QStringLiteral("pic, one.gif"));
    EXPECT_EQ(WizardRows::shortLocation(folder.file(QStringLiteral("gone.gif"))), QString());
    EXPECT_EQ(WizardRows::shortLocation(QString()), QString());
}
