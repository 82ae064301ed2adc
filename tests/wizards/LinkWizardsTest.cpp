// The link, menu and script wizards in their windows: opened from their menu keys, filled by
// name, run with a page, a split window, a notepad and no document.
#include "WizardFixture.h"
#include "common/JumpMenuScript.h"

#include "colour/ColourSwatch.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"
#include "wizards/Hyperlink1.h"
#include "wizards/dropmenu1.h"
#include "wizards/dropmenu2.h"
#include "wizards/externalwindow.h"
#include "wizards/scriptform.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {
const QString refusal = QStringLiteral("You have a notepad document open, you need a web page open for this feature");
const QString noEntry = QStringLiteral("You need to add at least 1 entry!");


class LinkWizardTest : public WizardFixture {
protected:
    using WizardFixture::items;
    static QStringList items(const QListWidget* list) { return rows(list); }
};
}

// Each window of this group opens from its keys, the notepad's "hyperlink" among them.
TEST_F(LinkWizardTest, EveryMenuKeyOpensItsWindow)
{
    const std::pair<const char*, const char*> keys[] = {
        {"Hyperlink", "Hyperlink1"},        {"hyperlink", "Hyperlink1"},
        {"Hyperlink Drop Down Menu", "dropmenu1"}, {"Drop Menu", "dropmenu2"},
        {"Script", "scriptform"},           {"External Window Script", "externalwindow"},
    };
    for (const auto& [key, name] : keys) {
        frmMain::instance()->MenuClick(QString::fromLatin1(key));
        QWidget* w = Forms::find(QString::fromLatin1(name));
        ASSERT_NE(w, nullptr) << key;
        EXPECT_TRUE(w->isVisible()) << key;
        EXPECT_EQ(w->objectName(), QString::fromLatin1(name));
        w->hide();
    }
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(LinkWizardTest, HyperlinkHasItsFieldsAndDefaults)
{
    Hyperlink1* w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Hyperlink1"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Hyperlink ::"));
    EXPECT_EQ(w->Link->text(), QString());
    EXPECT_EQ(w->text->text(), QString());
    EXPECT_EQ(w->target->text(), QStringLiteral("_self"));
    EXPECT_EQ(items(w->List1), (QStringList{QStringLiteral("_self"), QStringLiteral("_top"), QStringLiteral("_blank"),
                                            QStringLiteral("_parent")}));
    EXPECT_EQ(w->textfont->text(), QStringLiteral("Arial"));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#000000\""));
    EXPECT_FALSE(w->Check1->isChecked());
    EXPECT_EQ(w->Label5->text(), QStringLiteral("Tick the Box if you want the hyperlink to have its own colour, the Text font and "
                                                "size can be set without this matter being ticked!!"));
    const std::pair<QWidget*, const char*> labels[] = {
        {w->Link, "Link :"},         {w->text, "Hyperlink Text :"}, {w->target, "Target Setting :"},
        {w->List1, "Common Target :"}, {w->textsize, "Text Size :"}, {w->textfont, "Font :"},
        {w->Text1, "Link Colour :"}};
    for (const auto& [field, label] : labels)
        EXPECT_EQ(labelOf(field), QString::fromLatin1(label)) << field->objectName().toStdString();
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Find"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("LOAD"));
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Choose"));
    EXPECT_EQ(w->Command4->text(), QStringLiteral("Choose"));
    EXPECT_TRUE(w->Command2->isDefault());
    EXPECT_EQ(tabOrder(w), (QStringList{QStringLiteral("Link"), QStringLiteral("Command1"), QStringLiteral("text"),
                                        QStringLiteral("target"), QStringLiteral("List1"), QStringLiteral("textsize"),
                                        QStringLiteral("textfont"), QStringLiteral("Command3"), QStringLiteral("Text1"),
                                        QStringLiteral("Command4"), QStringLiteral("Check1"), QStringLiteral("Command2"),
                                        QStringLiteral("Command5")}));

    // A common target, by mouse or by key, becomes the target.
    QListWidgetItem* blank = w->List1->item(2);
    QTest::mouseClick(w->List1->viewport(), Qt::LeftButton, {}, w->List1->visualItemRect(blank).center());
    EXPECT_EQ(w->target->text(), QStringLiteral("_blank"));
    w->List1->setCurrentRow(1);
    EXPECT_EQ(w->target->text(), QStringLiteral("_top"));

    // Find: the web files filter; a chosen path replaces the link, a cancel keeps it.
    prompts.answerOpenFile(QStringLiteral("/home/me/site/index.html"));
    w->Command1->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Web Files (*.htm*)"));
    EXPECT_EQ(w->Link->text(), QStringLiteral("/home/me/site/index.html"));
    prompts.answerOpenFile(QString());
    w->Command1->click();
    EXPECT_EQ(w->Link->text(), QStringLiteral("/home/me/site/index.html"));

    prompts.answerColour(255);
    w->Command4->click();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->Shape1->BackColor(), 255);
    prompts.answerFont(QFont(QStringLiteral("Courier New")));
    w->Command3->click();
    EXPECT_EQ(w->textfont->text(), QStringLiteral("Courier New"));
}

TEST_F(LinkWizardTest, HyperlinkWithoutItsColourGoesInAtTheCaretAndEmptiesItsTexts)
{
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    Hyperlink1* w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    ASSERT_NE(w, nullptr);

    // No link: the plain box, nothing else, the form stays.
    w->text->setText(QStringLiteral("Home"));
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("A link is required ...."), 0, App::title()));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body></body>"));

    w->Link->setText(QStringLiteral("C:\\Site\\index.htm"));
    w->textsize->setText(QStringLiteral("2"));
    w->Text1->setText(QStringLiteral("\"#00FF00\""));  // not written without the tick
    w->target->setText(QStringLiteral("_top"));
    w->Command2->click();
    const QString link = QStringLiteral("<font size=2 face=Arial><a href=\"C:\\Site\\index.htm\" target=\"_top\">Home</a></font>\r\n");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body>") + link + QStringLiteral("</body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText()) << "the caret goes behind the link";
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Link->text(), QString());
    EXPECT_EQ(w->text->text(), QString());
    EXPECT_EQ(w->target->text(), QStringLiteral("_top")) << "the other fields stay";
    EXPECT_EQ(w->textsize->text(), QStringLiteral("2"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}

TEST_F(LinkWizardTest, HyperlinkWithItsColourIsLeftSelected)
{
    frmsplit* split = newSplit();
    split->CodeMax1()->setText(QStringLiteral("[]"));
    split->CodeMax1()->setCursorPosition(0, 1);
    Hyperlink1* w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    ASSERT_NE(w, nullptr);
    w->Link->setText(QStringLiteral("a.htm"));
    w->text->setText(QStringLiteral("A"));
    w->Check1->setChecked(true);
    w->Command2->click();
    const QString link = QStringLiteral("<a href=\"a.htm\" target=\"_self\"><font size= face=Arial color=\"#000000\">A</font></a>\r\n");
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("[") + link + QStringLiteral("]"));
    EXPECT_EQ(split->CodeMax1()->selectedText(), link) << "no caret step after the coloured link";
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(w->Check1->isChecked());
}

TEST_F(LinkWizardTest, HyperlinkRefusesANotepadBeforeItAsksForTheLinkAndClosesWithoutADocument)
{
    Hyperlink1* w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    ASSERT_NE(w, nullptr);
    w->text->setText(QStringLiteral("kept"));
    w->Command2->click();
    EXPECT_FALSE(w->isVisible()) << "no document: the failure path, silently";
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_EQ(w->text->text(), QStringLiteral("kept")) << "nothing went in, nothing is cleared";

    notepad* pad = newPad(QStringLiteral("notes"));
    w = open<Hyperlink1>(QStringLiteral("hyperlink"));
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    ASSERT_EQ(prompts.prompts().size(), 1) << "the refusal alone, not the link message";
    EXPECT_TRUE(isBox(prompts.last(), refusal, 64, QStringLiteral(":: Insert Error ::")));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
}

// Enter in the list or a field presses LOAD; Esc hides; typed quotes, tags, line breaks and a
// megabyte of text reach the page as they stand.
TEST_F(LinkWizardTest, HyperlinkKeysAndLargeOrOddTexts)
{
    frmDocument* page = newPage();
    Hyperlink1* w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    ASSERT_NE(w, nullptr);
    w->Link->setText(QStringLiteral("x.htm"));
    w->text->setText(QStringLiteral("say \"<hi>\"\r\nthere"));
    QTest::keyClick(w->List1, Qt::Key_Return);
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<font size= face=Arial><a href=\"x.htm\" target=\"_self\">say \"<hi>\"\r\nthere</a></font>\r\n"));
    EXPECT_FALSE(w->isVisible());

    page->CodeMax1()->setText(QString());
    w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    const QString big(1 << 20, QLatin1Char('m'));
    w->Link->setText(QStringLiteral("y.htm"));
    w->text->setText(big);
    ASSERT_EQ(w->text->text().size(), big.size()) << "the field takes the whole text";
    QTest::keyClick(w->text, Qt::Key_Enter);
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<font size= face=Arial><a href=\"y.htm\" target=\"_self\">") + big + QStringLiteral("</a></font>\r\n"));

    w = open<Hyperlink1>(QStringLiteral("Hyperlink"));
    w->Link->setText(QStringLiteral("z.htm"));
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Link->text(), QStringLiteral("z.htm"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(LinkWizardTest, JumpMenuHasItsFieldsAndDefaults)
{
    dropmenu1* w = open<dropmenu1>(QStringLiteral("Hyperlink Drop Down Menu"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("dropmenu1"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Hyperlink Drop down menu ::"));
    EXPECT_EQ(w->Text6->text(), QString::fromUtf8(jumpScript));
    EXPECT_FALSE(w->Text6->isVisibleTo(w));
    EXPECT_FALSE(w->List1->isVisibleTo(w));
    EXPECT_FALSE(w->List2->isVisibleTo(w));
    EXPECT_EQ(w->Text1->text(), QString());
    EXPECT_EQ(w->Text2->text(), QStringLiteral("HTTP://"));
    EXPECT_EQ(w->menutext->text(), QStringLiteral("Click Here"));
    EXPECT_EQ(w->buttonname->text(), QString());
    EXPECT_EQ(w->Text3->text(), QStringLiteral("D1"));
    EXPECT_EQ(w->Combo2->currentText(), QStringLiteral("Center"));
    EXPECT_EQ(items(w->Combo2), (QStringList{QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("Right")}));
    EXPECT_EQ(w->Text5->text(), QString());
    EXPECT_EQ(w->Text7->text(), QStringLiteral("Arial"));
    EXPECT_EQ(w->Text10->text(), QStringLiteral("12"));
    EXPECT_EQ(w->backc->text(), QStringLiteral("#FFFFFF"));
    EXPECT_EQ(w->backc1->text(), QStringLiteral("#000000"));
    EXPECT_EQ(w->Shape1->BackColor(), 0xFFFFFF);
    EXPECT_EQ(w->Label14->text(), QStringLiteral("Javascript Error :"));
    EXPECT_EQ(w->Label13->text(),
              QStringLiteral("On a javascript error of the preview of the page, this will mean that at the moment the drop down "
                             "menu is only availble for 1 menu per page, this error comes from there being two or more parts "
                             "of the script, should be changed for multiple menus soon."));
    const std::pair<QWidget*, const char*> labels[] = {
        {w->Text1, "Menu Text :"},     {w->Text2, "Hyperlink For Text : (Must include the HTTP://)"},
        {w->menutext, "Drop Menu Text :"}, {w->buttonname, "Button Text :"}, {w->Text3, "Name :"},
        {w->Combo2, "Position :"},     {w->Text5, "Height :"}, {w->Label13, "Javascript Error :"}};
    for (const auto& [field, label] : labels)
        EXPECT_EQ(labelOf(field), QString::fromLatin1(label)) << field->objectName().toStdString();
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Load"));
    EXPECT_TRUE(w->Command1->isDefault());
    EXPECT_EQ(tabOrder(w),
              (QStringList{QStringLiteral("Text1"), QStringLiteral("Text2"), QStringLiteral("Command2"), QStringLiteral("Combo1"),
                           QStringLiteral("menutext"), QStringLiteral("buttonname"), QStringLiteral("Text3"),
                           QStringLiteral("Combo2"), QStringLiteral("Text5"), QStringLiteral("Text7"), QStringLiteral("Command5"),
                           QStringLiteral("Text10"), QStringLiteral("backc"), QStringLiteral("Command3"), QStringLiteral("backc1"),
                           QStringLiteral("Command4"), QStringLiteral("Command1"), QStringLiteral("Command6")}));

    // The colour buttons write the quoted colour, as every colour field's button does.
    prompts.answerColour(0xFF0000);
    w->Command3->click();
    EXPECT_EQ(w->backc->text(), QStringLiteral("\"#0000FF\""));
}

TEST_F(LinkWizardTest, JumpMenuGathersItsEntriesAndWritesTheScriptWithTheMenu)
{
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    dropmenu1* w = open<dropmenu1>(QStringLiteral("Hyperlink Drop Down Menu"));
    ASSERT_NE(w, nullptr);

    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), noEntry, 0, App::title()));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body></body>"));

    w->Text1->setText(QStringLiteral("Home"));
    w->Text2->setText(QStringLiteral("HTTP://velloro.example/"));
    w->Command2->click();
    EXPECT_EQ(w->Text1->text(), QString());
    EXPECT_EQ(w->Text2->text(), QStringLiteral("HTTP://"));
    w->Text1->setText(QStringLiteral("Frame \"B\""));
    w->Text2->setText(QStringLiteral("HTTP://b.example/&main"));
    w->Command2->click();
    EXPECT_EQ(items(w->List1), (QStringList{QStringLiteral("Home"), QStringLiteral("Frame \"B\"")}));
    EXPECT_EQ(items(w->List2), (QStringList{QStringLiteral("HTTP://velloro.example/"), QStringLiteral("HTTP://b.example/&main")}));
    EXPECT_EQ(items(w->Combo1), (QStringList{QStringLiteral("Home"), QStringLiteral("Frame \"B\"")}));

    w->buttonname->setText(QStringLiteral("Go"));
    w->Text3->setText(QStringLiteral("Other"));  // the button still calls D1
    w->Command1->click();
    const QString menu = QStringLiteral(
        "<p align=Center><input type=Button value=Go name=B3 onclick=DropDownMenu(D1) >         <select size= name=Other "
        "style=font-family: Arial; background-color: #FFFFFF; color: #000000 > \r\n"
        "<option value=Menu>Click Here</option>\r\n"
        "<option value=HTTP://velloro.example/>Home</option>\r\n"
        "<option value=HTTP://b.example/&main>Frame \"B\"</option>\r\n"
        "</select></p>\r\n");
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<body>") + QString::fromUtf8(jumpScript) + QStringLiteral("\r\n") + menu +
                                            QStringLiteral("</body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Text4->text(), QString());
    EXPECT_EQ(w->List1->count(), 0);
    EXPECT_EQ(w->List2->count(), 0);
    EXPECT_EQ(w->Combo1->count(), 0);
    EXPECT_EQ(w->Combo1->currentText(), QString());
    EXPECT_EQ(w->buttonname->text(), QStringLiteral("Go")) << "the menu's own fields stay";
    EXPECT_EQ(w->Text3->text(), QStringLiteral("Other"));
    EXPECT_EQ(prompts.prompts().size(), 1);

    // The next menu starts without entries.
    w = open<dropmenu1>(QStringLiteral("Hyperlink Drop Down Menu"));
    prompts.answerMsgBox(Answer::OK);
    QTest::keyClicks(w->Combo1, QStringLiteral("typed"));
    QTest::keyClick(w->Combo1, Qt::Key_Return);
    EXPECT_TRUE(isBox(prompts.last(), noEntry, 0));
    EXPECT_EQ(w->Combo1->count(), 0) << "Enter in the example list adds no row to it";
}

// Neither menu refuses a notepad: the delivery fails, the form closes silently and keeps its
// entries; the same without a document.
TEST_F(LinkWizardTest, MenusFailSilentlyInANotepadAndWithoutADocument)
{
    for (const char* key : {"Hyperlink Drop Down Menu", "Drop Menu"}) {
        frmMain::instance()->MenuClick(QString::fromLatin1(key));
        auto* w = qobject_cast<DropMenuForm*>(
            Forms::find(QString::fromLatin1(key) == QLatin1String("Drop Menu") ? QStringLiteral("dropmenu2") : QStringLiteral("dropmenu1")));
        ASSERT_NE(w, nullptr) << key;
        w->Text1->setText(QStringLiteral("a"));
        w->Command2->click();
        w->Command1->click();
        EXPECT_FALSE(w->isVisible()) << key;
        EXPECT_EQ(w->List1->count(), 1) << key;
    }
    notepad* pad = newPad(QStringLiteral("notes"));
    for (const char* name : {"dropmenu1", "dropmenu2"}) {
        auto* w = qobject_cast<DropMenuForm*>(Forms::find(QString::fromLatin1(name)));
        w->show();
        w->Command1->click();
        EXPECT_FALSE(w->isVisible()) << name;
        EXPECT_EQ(w->List1->count(), 1) << name;
    }
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(LinkWizardTest, FormMenuWritesItsEntriesIntoASplitWindow)
{
    frmsplit* split = newSplit();
    dropmenu2* w = open<dropmenu2>(QStringLiteral("Drop Menu"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("dropmenu2"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Drop Down Menu ::"));
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("Click Here"));
    EXPECT_EQ(w->Text4->text(), QStringLiteral("<option value=Menu> Click Here </option>"));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("HTTP://"));
    EXPECT_EQ(w->Text3->text(), QStringLiteral("D1"));
    EXPECT_EQ(tabOrder(w), (QStringList{QStringLiteral("Text1"), QStringLiteral("Text2"), QStringLiteral("Command2"),
                                        QStringLiteral("Combo1"), QStringLiteral("Text3"), QStringLiteral("Combo2"),
                                        QStringLiteral("Text5"), QStringLiteral("Command1"), QStringLiteral("Command6")}));

    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), noEntry, 0));
    EXPECT_TRUE(w->isVisible());

    w->Text1->setText(QStringLiteral("a"));
    w->Text2->setText(QStringLiteral("b"));
    w->Command2->click();
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("Click Here")) << "the example keeps its text";
    EXPECT_EQ(items(w->Combo1), QStringList{QStringLiteral("a")});
    w->Combo2->setCurrentText(QStringLiteral("Left"));
    w->Text5->setText(QStringLiteral("4"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p align=Left><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2>"
                             "            <select size=4 name=D1>         \r\n"
                             "<option value=Menu> Click Here </option>\r\n"
                             "<option value=b>a</option>\r\n"
                             "</select></p>\r\n"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Text4->text(), QString());
    EXPECT_EQ(w->List1->count(), 0);
    EXPECT_EQ(w->List2->count(), 0);
    EXPECT_EQ(w->Combo1->count(), 0);
    EXPECT_EQ(w->Text5->text(), QStringLiteral("4"));
}

TEST_F(LinkWizardTest, ScriptFormEnablesWhatEachLanguageUses)
{
    scriptform* w = open<scriptform>(QStringLiteral("Script"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("scriptform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Scripts ::"));
    EXPECT_EQ(w->optJS->text(), QStringLiteral("JavaScript"));
    EXPECT_EQ(w->optVBS->text(), QStringLiteral("VBScript"));
    EXPECT_EQ(w->optOther->text(), QStringLiteral("Other"));
    EXPECT_EQ(w->chkServer->text(), QStringLiteral("Run on Server"));
    EXPECT_EQ(w->Frame1->title(), QStringLiteral("Text Input ..."));
    EXPECT_EQ(labelOf(w->txtOther), QStringLiteral("Other :"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("LOAD"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Cancel"));
    EXPECT_TRUE(w->optJS->isChecked());
    EXPECT_FALSE(w->chkServer->isEnabled());
    EXPECT_FALSE(w->txtOther->isEnabled());

    // Which control each choice enables, starting from the one before.
    const struct {
        QRadioButton* option;
        bool server, other;
    } steps[] = {{w->optVBS, true, false}, {w->optOther, true, true}, {w->optJS, false, false},
                 {w->optOther, false, true}, {w->optVBS, true, false}};
    for (const auto& s : steps) {
        s.option->click();
        EXPECT_EQ(w->chkServer->isEnabled(), s.server) << s.option->objectName().toStdString();
        EXPECT_EQ(w->txtOther->isEnabled(), s.other) << s.option->objectName().toStdString();
    }
    EXPECT_EQ(tabOrder(w), (QStringList{QStringLiteral("optJS"), QStringLiteral("chkServer"), QStringLiteral("txtScript"),
                                        QStringLiteral("Command1"), QStringLiteral("Command2")}))
        << "Tab leaves the language group for the enabled fields, the script and the buttons: "
        << tabOrder(w).join(QLatin1Char(' ')).toStdString();
    w->Command2->click();
    EXPECT_FALSE(w->isVisible());
}

TEST_F(LinkWizardTest, ScriptFormWritesEachLanguage)
{
    frmDocument* page = newPage();
    scriptform* w = open<scriptform>(QStringLiteral("Script"));
    ASSERT_NE(w, nullptr);
    const struct {
        QRadioButton* option;
        bool server;
        const char* other;
        const char* script;
        const char* expected;
    } cases[] = {
        {w->optJS, false, "", "alert(\"<hi>\");\nx = 1;",
         "<script language=\"JavaScript\"><!--\r\nalert(\"<hi>\");\r\nx = 1;\r\n// --></script>"},
        {w->optVBS, true, "", "x", "<%x%>"},
        {w->optVBS, false, "", "MsgBox 1", "<script language=\"VBScript\"><!--\r\nMsgBox 1\r\n--></script>"},
        {w->optOther, false, "", "y", "<script language=\"JavaScript\">y</script>"},
    };
    for (const auto& c : cases) {
        page->CodeMax1()->setText(QString());
        w = open<scriptform>(QStringLiteral("Script"));
        c.option->click();
        w->chkServer->setChecked(c.server);
        w->txtOther->setText(QString::fromUtf8(c.other));
        w->txtScript->setPlainText(QString::fromUtf8(c.script));
        w->Command1->click();
        EXPECT_EQ(page->CodeMax1()->text(), QString::fromUtf8(c.expected)) << c.script;
        EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
        EXPECT_FALSE(w->isVisible());
        EXPECT_EQ(w->txtScript->toPlainText(), QString::fromUtf8(c.script)) << "the script stays";
    }

    // A named other language fails: nothing goes in, the form closes, no message.
    page->CodeMax1()->setText(QStringLiteral("kept"));
    w = open<scriptform>(QStringLiteral("Script"));
    w->optOther->click();
    w->txtOther->setText(QStringLiteral("PerlScript"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("kept"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(LinkWizardTest, ScriptFormKeysNotepadAndALargeScript)
{
    scriptform* w = open<scriptform>(QStringLiteral("Script"));
    ASSERT_NE(w, nullptr);
    // No document: the failure path.
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());

    newPad();
    w = open<scriptform>(QStringLiteral("Script"));
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), refusal, 64, QStringLiteral(":: Insert Error ::")));
    EXPECT_TRUE(w->isVisible());

    // Enter in the script breaks its line; Enter elsewhere presses LOAD.
    frmDocument* page = newPage();
    w->txtScript->setPlainText(QStringLiteral("a"));
    w->txtScript->moveCursor(QTextCursor::End);
    QTest::keyClick(w->txtScript, Qt::Key_Return);
    QTest::keyClicks(w->txtScript, QStringLiteral("b"));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QString());
    QTest::keyClick(w->optJS, Qt::Key_Return);
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<script language=\"JavaScript\"><!--\r\na\r\nb\r\n// --></script>"));
    EXPECT_FALSE(w->isVisible());

    page->CodeMax1()->setText(QString());
    w = open<scriptform>(QStringLiteral("Script"));
    const QString big = QString(1 << 20, QLatin1Char('s'));
    w->txtScript->setPlainText(big);
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<script language=\"JavaScript\"><!--\r\n") + big +
                                            QStringLiteral("\r\n// --></script>"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}

TEST_F(LinkWizardTest, ExternalWindowHasItsFieldsAndFindsItsPage)
{
    externalwindow* w = open<externalwindow>(QStringLiteral("External Window Script"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("externalwindow"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("External Window"));
    EXPECT_EQ(w->Location->text(), QString());
    EXPECT_FALSE(w->location1->isVisibleTo(w));
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Shorten location length"));
    EXPECT_EQ(w->Text1->text(), QStringLiteral("400"));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("300"));
    EXPECT_EQ(w->Text3->text(), QStringLiteral("Click Here For  New Page"));
    EXPECT_EQ(w->Label5->text(), QStringLiteral("Note: The link must be direct, ie page.html , it cannot contain \\ ' , in the link"));
    const std::pair<QWidget*, const char*> labels[] = {
        {w->Location, "Link (Html File)"}, {w->Text1, "Width"}, {w->Text2, "Height"}, {w->Text3, "Link Text"}};
    for (const auto& [field, label] : labels)
        EXPECT_EQ(labelOf(field), QString::fromLatin1(label)) << field->objectName().toStdString();
    EXPECT_EQ(w->Command3->text(), QStringLiteral("Find"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Load"));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Close"));
    EXPECT_EQ(tabOrder(w), (QStringList{QStringLiteral("Location"), QStringLiteral("Command3"), QStringLiteral("Check1"),
                                        QStringLiteral("Text1"), QStringLiteral("Text2"), QStringLiteral("Text3"),
                                        QStringLiteral("Command1"), QStringLiteral("Command2")}));

    folder.write(QStringLiteral("site/pop up.html"), "<html></html>");
    const QString path = folder.file(QStringLiteral("site/pop up.html"));
    prompts.answerOpenFile(path);
    w->Command3->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Files (*.html *.asp *.txt *.htm)"));
    EXPECT_EQ(w->Location->text(), path);
    EXPECT_EQ(w->location1->text(), path);
    w->Check1->setChecked(true);
    EXPECT_EQ(w->Location->text(), QStringLiteral("pop up.html"));

    frmDocument* page = newPage();
    w->Command1->click();
    EXPECT_TRUE(page->CodeMax1()->text().startsWith(QStringLiteral("<script LANGUAGE=JavaScript>\r\n<!--//hide script from old "
                                                                  "browsers\r\nfunction launch() { \r\nopen('pop up.html', ")))
        << visible(page->CodeMax1()->text());
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->Location->text(), QStringLiteral("pop up.html")) << "the fields stay";
}

TEST_F(LinkWizardTest, ExternalWindowWritesItsScriptAndTellsAMissingSize)
{
    const auto script = [](const QString& location, const QString& width, const QString& height) {
        return QStringLiteral("<script LANGUAGE=JavaScript>\r\n<!--//hide script from old browsers\r\nfunction launch() { \r\n"
                              "open('") +
               location +
               QStringLiteral("', 'tipofday', 'resizable=no, toolbar=no, location=no, directories=no, status=no, menubar=no, "
                              "scrollbars=yes, width=") +
               width + QStringLiteral(", height=") + height +
               QStringLiteral("') }\r\ndocument.write('<p align=center><A HREF=javascript:launch()>Click Here For  New Page!</A>')"
                              "\r\n//end hiding contents -->\r\n</script>");
    };
    frmsplit* split = newSplit();
    externalwindow* w = open<externalwindow>(QStringLiteral("External Window Script"));
    ASSERT_NE(w, nullptr);
    w->Location->setText(QStringLiteral("C:\\Site\\tip.htm"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(), script(QStringLiteral("C:\\Site\\tip.htm"), QStringLiteral("400"), QStringLiteral("300")));
    EXPECT_FALSE(split->CodeMax1()->hasSelectedText());
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // A missing height is told in a critical box; the script still goes in.
    split->CodeMax1()->setText(QString());
    w = open<externalwindow>(QStringLiteral("External Window Script"));
    w->Text2->clear();
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Theres either a width or a height missing, recheck!"), 16, App::title()));
    EXPECT_EQ(split->CodeMax1()->text(), script(QStringLiteral("C:\\Site\\tip.htm"), QStringLiteral("400"), QString()));
    EXPECT_FALSE(w->isVisible());

    // No refusal: a notepad fails at the delivery, silently; so does no document.
    notepad* pad = newPad(QStringLiteral("notes"));
    w = open<externalwindow>(QStringLiteral("External Window Script"));
    w->Text2->setText(QStringLiteral("300"));
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}
