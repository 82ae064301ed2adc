// The text wizards in their windows: opened from their menu keys, filled by name, run with a
// page, a split window, a notepad and no document, as their descriptions say.
#include "wizards/WizardTestSupport.h"

#include "colour/ColourSwatch.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"
#include "wizards/Fontform.h"
#include "wizards/Scrolltextbox.h"
#include "wizards/Textinput.h"
#include "wizards/bulletform.h"
#include "wizards/lineform.h"
#include "wizards/marqueeform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

namespace {
class TextWizardTest : public WizardTest {};
}

TEST_F(TextWizardTest, TextInputWrapsTheFieldItselfAndEmptiesIt)
{
    frmDocument* page = newPage();
    Textinput* w = open<Textinput>(QStringLiteral("Text"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Textinput"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Text Input Section ::"));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("Arial"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Choose Font"));
    EXPECT_EQ(w->Combo1->itemText(2), QStringLiteral("right"));
    EXPECT_EQ(w->Combo2->currentText(), QStringLiteral("3  (12pt)"));
    EXPECT_EQ(w->Text3->text(), QStringLiteral("\"#000000\""));

    w->CodeMax1->setText(QStringLiteral("x"));
    w->Check1->setChecked(true);
    w->Check2->setChecked(true);
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<p align=\"Center\"><font color=\"#000000\" face=\"Arial\" size=3><I><B>x</b></I></a></font></p>\r\n"));
    EXPECT_EQ(w->CodeMax1->text(), QString());
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(w->Check1->isChecked()) << "the ticks stay for the next use";

    // The font step: the dialog's font name, also after a cancel (the font it was opened with).
    prompts.answerFont(QFont(QStringLiteral("Courier New")));
    w->Command2->click();
    EXPECT_EQ(w->Text2->text(), QStringLiteral("Courier New"));
    prompts.answerFont(std::nullopt);
    w->Command2->click();
    EXPECT_EQ(w->Text2->text(), QStringLiteral("Courier New"));
}

TEST_F(TextWizardTest, TextInputLosesItsTextSilentlyInANotepadAndRedirectsFromInsertText)
{
    notepad* pad = newPad(QStringLiteral("notes"));
    Textinput* w = open<Textinput>(QStringLiteral("Text"));
    ASSERT_NE(w, nullptr);
    w->CodeMax1->setText(QStringLiteral("typed"));
    w->Command1->click();
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->CodeMax1->text(), QString()) << "the typed text is lost";
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));

    prompts.answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Insert Text"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You do need to open this because you can enter text directly into the Notepad"),
                      0, QStringLiteral(":: Text Input ::")));
    EXPECT_FALSE(w->isVisible());
}

TEST_F(TextWizardTest, BulletsOnlyTheFirstBoxDecides)
{
    frmsplit* split = newSplit();
    bulletform* w = open<bulletform>(QStringLiteral("Insert Tabbed Text"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("bulletform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Bullets ::"));
    EXPECT_TRUE(w->Check1->isChecked());
    EXPECT_EQ(w->Label2->text(), QStringLiteral("Bullets"));
    EXPECT_EQ(w->Label3->text(), QStringLiteral("1) Numbered"));
    EXPECT_EQ(w->Check3->text(), QStringLiteral("Italic"));
    EXPECT_EQ(w->Check4->text(), QStringLiteral("Bold"));

    w->Text1->setText(QStringLiteral("First"));
    w->Check2->setChecked(true);  // shown, never read
    w->Check4->setChecked(true);
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p><font color=\"#000000\" face=\"Arial\" size=3><ul>\r\n<li>First</li>\r\n</ul></font></p>\r\n"));
    EXPECT_FALSE(w->isVisible());

    split->CodeMax1()->setText(QString());
    w = open<bulletform>(QStringLiteral("Insert Tabbed Text"));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("First")) << "the item stays";
    w->Check1->setChecked(false);
    w->Combo2->setCurrentText(QStringLiteral("5  (18pt)"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p><font color=\"#000000\" face=\"Arial\" size=5><ol>\r\n<li>First</li>\r\n</ol></font></p>\r\n"));
}

TEST_F(TextWizardTest, MarqueeDefaultsAndItsDirection)
{
    frmDocument* page = newPage();
    marqueeform* w = open<marqueeform>(QStringLiteral("Marquee"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("marqueeform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Marquee Properties ::"));
    EXPECT_EQ(w->Option2->text(), QStringLiteral("Right "));
    EXPECT_TRUE(w->Option2->isChecked());
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("Scroll"));
    EXPECT_TRUE(w->Check1->isChecked());
    EXPECT_EQ(w->Text6->text(), QStringLiteral("0"));
    EXPECT_EQ(w->command2->text(), QStringLiteral("Load"));
    EXPECT_EQ(w->Shape1->BackColor(), 0xFFFFFF) << "the swatch starts in the field's colour";

    w->Text1->setText(QStringLiteral("Hi"));
    w->command2->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<marquee scrollamount=6 scrolldelay=90 bgcolor=\"#FFFFFF\" height=0 "
                                                       "width=100%direction=Right>Hi</marquee></p>"));
    EXPECT_EQ(w->Text1->text(), QString());
    EXPECT_FALSE(w->isVisible());

    page->CodeMax1()->setText(QString());
    w = open<marqueeform>(QStringLiteral("Marquee"));
    w->Option1->setChecked(true);
    w->Combo1->setCurrentText(QStringLiteral("Alternate"));  // never reaches the markup
    w->Check1->setChecked(false);
    w->Text6->setText(QStringLiteral("3"));
    prompts.answerColour(std::nullopt);  // a cancel applies the colour the dialog held
    w->Command1->click();
    EXPECT_EQ(w->mcolor->text(), QStringLiteral("\"#FFFFFF\""));
    w->command2->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<marquee scrollamount=6 scrolldelay=90 bgcolor=\"#FFFFFF\" height=0 "
                                                       "width=100%direction=Left></marquee></p>"));
}

TEST_F(TextWizardTest, ScrollingTextBoxRefusesANotepadAndSpeaksWithoutADocument)
{
    Scrolltextbox* w = open<Scrolltextbox>(QStringLiteral("Scrolling TextBox"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Scrolltextbox"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Scrolling Text Box ::"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("LOAD"));
    EXPECT_EQ(w->Label5->text(), QStringLiteral("This is inteneded to be used inside of the Form Boundaries, it gives the text box "
                                                "multiple rows and scrollbars, unlike the one line text box."));

    // No document: the critical box, and the form stays.
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("There needs to be an active web page to use this feature."), 16));
    EXPECT_TRUE(w->isVisible());

    newPad();
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You have a notepad document open, you need a web page open for this feature"),
                      64, QStringLiteral(":: Insert Error ::")));
    EXPECT_TRUE(w->isVisible());

    frmDocument* page = newPage();
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p align=Center><textarea rows=6 name=S1 cols=55 ></textarea></p>\r\n"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(prompts.prompts().size(), 2);

    page->CodeMax1()->setText(QString());
    w = open<Scrolltextbox>(QStringLiteral("Scrolling TextBox"));
    w->Text1->setPlainText(QStringLiteral("one\ntwo"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<p align=Center><textarea rows=6 name=S1 cols=55 >one\r\ntwo</textarea></p>\r\n"));
}

TEST_F(TextWizardTest, FontSetsTheNotepadsRichText)
{
    notepad* pad = newPad(QStringLiteral("Hello world"));
    Fontform* w = open<Fontform>(QStringLiteral("Format Main"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Fontform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Font ::"));
    EXPECT_EQ(w->Combo1->count(), QFontDatabase::families().size());
    EXPECT_EQ(w->Combo1->itemText(0), QFontDatabase::families().value(0));
    EXPECT_EQ(w->Combo3->itemText(12), QStringLiteral("35"));
    EXPECT_EQ(w->Combo2->currentText(), QStringLiteral("Regular"));
    EXPECT_EQ(w->PREVIEWTEXT->text(), QStringLiteral("PREVIEW"));
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Apply"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Cancel"));

    // The two ticks: ticking one clears the other, clearing one leaves the other.
    w->Check1->click();
    w->Check2->click();
    EXPECT_FALSE(w->Check1->isChecked());
    w->Check2->click();
    EXPECT_FALSE(w->Check1->isChecked());
    EXPECT_FALSE(w->Check2->isChecked());
    w->Check1->click();
    EXPECT_TRUE(w->Check1->isChecked());

    prompts.answerColour(255);
    w->Command1->click();
    EXPECT_EQ(w->colortext->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->PREVIEWTEXT->SelColor(), 255) << "the preview shows the colour";
    const QString family = QFontDatabase::families().value(0);
    w->Combo1->setCurrentText(family);
    Q_EMIT w->Combo1->textActivated(family);
    EXPECT_EQ(w->PREVIEWTEXT->SelFontName(), family);
    w->Combo3->setCurrentText(QStringLiteral("20"));
    w->Command3->click();
    EXPECT_FALSE(w->isVisible());
    RichTextBox* box = pad->RichTextBox1();
    box->setSelStart(0);
    box->setSelLength(5);
    EXPECT_DOUBLE_EQ(box->SelFontSize(), 20.0);
    EXPECT_EQ(box->SelColor(), 255);
    EXPECT_EQ(box->SelFontName(), family);

    // A size that is no number is skipped; the rest still applies.
    w = open<Fontform>(QStringLiteral("Format Main"));
    prompts.answerColour(0xFF0000);
    w->Command1->click();
    w->Combo3->setCurrentText(QStringLiteral("big"));
    w->Command3->click();
    box->setSelStart(6);
    box->setSelLength(5);
    EXPECT_DOUBLE_EQ(box->SelFontSize(), 20.0);
    EXPECT_EQ(box->SelColor(), 0xFF0000);
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty() || prompts.last().kind == QStringLiteral("Colour"));
}

// The colour fields of the wizards start their swatch in their own colour, and a cancelled
// dialog applies the colour it held.
TEST_F(TextWizardTest, AColourCancelAppliesTheHeldColour)
{
    lineform* w = open<lineform>(QStringLiteral("Horizontal Line"));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->Shape1->BackColor(), 0) << "the stored default is no colour: black";
    prompts.answerColour(std::nullopt);
    w->Command2->click();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#000000\""));
}
