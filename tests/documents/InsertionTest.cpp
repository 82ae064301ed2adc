// A wizard-like tool delivering fragments through the active document, with the four
// reactions of a notepad.
#include "common/TestSupport.h"

#include "documents/Insertion.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "shell/frmMain.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
// A wizard in the program's pattern: compose, refuse in a notepad, insert, close.
class LineWizard : public QDialog {
public:
    LineWizard()
    {
        Text1 = new QLineEdit(QStringLiteral("50%"), this);
        Text1->setObjectName(QStringLiteral("Text1"));
        Command1 = new QPushButton(QStringLiteral("Insert"), this);
        Command1->setObjectName(QStringLiteral("Command1"));
        connect(Command1, &QPushButton::clicked, this, [this] {
            OnErrorExit([this] {
                if (RefuseInNotepad())
                    return;
                InsertAtCaret(QStringLiteral("\r\n<hr width=") + Text1->text() + QStringLiteral(">\r\n"));
                hide();
            });
        });
    }
    QLineEdit* Text1;
    QPushButton* Command1;
};

// A tag command of the menu: silent in a notepad.
void boldCommand()
{
    OnErrorExit([] {
        if (ActiveIsNotepad())
            return;
        InsertAtCaret(QStringLiteral("<b></b>"));
    });
}

class InsertionTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    const QString refusal = QStringLiteral("You have a notepad document open, you need a web page open for this feature");
};
}

TEST_F(InsertionTest, WizardInsertsIntoTheActivePageAndCloses)
{
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    LineWizard wizard;
    wizard.show();
    wizard.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body>\r\n<hr width=50%>\r\n</body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    EXPECT_FALSE(wizard.isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(InsertionTest, WizardRefusesInANotepadAndStaysOpen)
{
    notepad* pad = newPad(QStringLiteral("my notes"));
    LineWizard wizard;
    wizard.show();
    prompts.answerMsgBox(Answer::OK);
    wizard.Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), refusal, 64, QStringLiteral(":: Insert Error ::")));
    EXPECT_TRUE(wizard.isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("my notes"));
}

TEST_F(InsertionTest, WizardFollowsTheActiveDocumentAtTheMomentOfTheClick)
{
    frmDocument* first = newPage(QString());
    notepad* pad = newPad(QString());
    frmDocument* second = newPage(QString());
    LineWizard wizard;
    wizard.show();

    frmMain::instance()->activate(first);
    wizard.Command1->click();
    EXPECT_EQ(first->CodeMax1()->text(), QStringLiteral("\r\n<hr width=50%>\r\n"));
    EXPECT_EQ(second->CodeMax1()->text(), QString());

    wizard.show();
    frmMain::instance()->activate(pad);
    prompts.answerMsgBox(Answer::OK);
    wizard.Command1->click();
    EXPECT_EQ(prompts.last().text, refusal);

    frmMain::instance()->activate(second);
    wizard.Text1->setText(QStringLiteral("10"));
    wizard.Command1->click();
    EXPECT_EQ(second->CodeMax1()->text(), QStringLiteral("\r\n<hr width=10>\r\n"));
}

TEST_F(InsertionTest, WithNoDocumentOrInANotepadNothingHappensAndNothingIsSaid)
{
    LineWizard wizard;
    wizard.show();
    wizard.Command1->click();
    EXPECT_TRUE(wizard.isVisible());
    boldCommand();
    EXPECT_TRUE(prompts.prompts().isEmpty());

    notepad* pad = newPad(QStringLiteral("text"));
    boldCommand();
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("text"));
    frmDocument* page = newPage(QString());
    boldCommand();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<b></b>"));
}

TEST_F(InsertionTest, InsertTextRedirectsInANotepad)
{
    newPad(QString());
    prompts.answerMsgBox(Answer::OK);
    EXPECT_TRUE(RedirectInNotepad());
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You do need to open this because you can enter text directly into the Notepad"),
                      -1, QStringLiteral(":: Text Input ::")));
    newPage(QString());
    EXPECT_FALSE(RedirectInNotepad());
}
