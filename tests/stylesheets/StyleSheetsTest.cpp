// The style sheet windows: the launcher, the small sheet (written whole, asked before an
// overwrite), the scroll bar block and its preview page, and the many-page link.
#include "wizards/WizardFixture.h"

#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "wizards/CSSform.h"

#include "platform/Forms.h"
#include "services/Commands.h"
#include "shell/frmMain.h"
#include "stylesheets/StyleSheets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>

namespace {
class StyleSheetsTest : public WizardFixture {
protected:
    static bool hasLabel(QWidget* w, const QString& text)
    {
        for (const QLabel* l : w->findChildren<QLabel*>())
            if (l->text() == text)
                return true;
        return false;
    }
};
}

TEST_F(StyleSheetsTest, CentralListsItsAppsAndStartsThem)
{
    auto* w = form<CSSCentral>();
    w->show();
    saveShot(w, QStringLiteral("CSSCentral"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("CSS Central"));
    EXPECT_EQ(w->note->text(), QStringLiteral("Choose Application on left , then click \"Start\" bottom right."));
    EXPECT_TRUE(hasLabel(w, QStringLiteral("Velloro 2002 .CSS Launcher ...")));
    ASSERT_EQ(w->Tree->topLevelItemCount(), 1);
    QTreeWidgetItem* root = w->Tree->topLevelItem(0);
    EXPECT_EQ(root->text(0), QStringLiteral("Available Apps"));
    const QStringList captions{"Link 1 .css", "Link Several Pages", "Create Simple .css", "Create + Edit Complex .css",
                               "Create Coloured Scrollbar"};
    ASSERT_EQ(root->childCount(), captions.size());
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(root->child(i)->text(0), captions[i]);

    // Nothing chosen: the box, and nothing opens.
    prompts.answerMsgBox(1);
    w->SmartNetButton1->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You havnt selected an application to launch")));

    w->Tree->setCurrentItem(root->child(2));
    EXPECT_EQ(w->RichBox->toPlainText(),
              QStringLiteral("Explanation:\nYou can Create a simple css document by selecting default values or by "
                             "entering in your own. This is a very mini version of the the below option. It is usefull "
                             "for creating link colours."));
    w->SmartNetButton1->click();
    auto* sheet = loadedForm<CSSCREATE>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());

    w->Tree->setCurrentItem(root);
    EXPECT_EQ(w->RichBox->toPlainText(), QStringLiteral("Explanation:\n"));

    // The big designer starts from its item.
    w->Tree->setCurrentItem(root->child(3));
    EXPECT_TRUE(w->RichBox->toPlainText().endsWith(QStringLiteral("features preview ability.")));
    w->SmartNetButton1->click();
    ASSERT_NE(Forms::find(QStringLiteral("frmCSSCreate")), nullptr);
    EXPECT_TRUE(Forms::find(QStringLiteral("frmCSSCreate"))->isVisible());
    EXPECT_EQ(prompts.prompts().size(), 1);

    w->Tree->setCurrentItem(root->child(1));
    w->SmartNetButton1->click();
    ASSERT_NE(loadedForm<StyleLink>(), nullptr);
    EXPECT_TRUE(loadedForm<StyleLink>()->isVisible());
}

TEST_F(StyleSheetsTest, SmallSheetBuildsItsLinesAndSavesWhole)
{
    auto* w = open<CSSCREATE>(QStringLiteral("Create External Stlye Sheet"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("CSSCREATE"));
    EXPECT_TRUE(hasLabel(w, QStringLiteral("Or enter data straight into this box :")));
    EXPECT_TRUE(hasLabel(w, QStringLiteral("Enter a destination and filename, like: c:\\Default.CSS")));
    auto items = [](const QComboBox* c) {
        QStringList r;
        for (int i = 0; i < c->count(); ++i)
            r << c->itemText(i);
        return r;
    };
    EXPECT_EQ(items(w->Combo1), (QStringList{"A:link", "A:visited", "A:active", "A:hover"}));
    EXPECT_EQ(items(w->Combo2), (QStringList{"none", "underline"}));
    EXPECT_EQ(items(w->Combo3), (QStringList{"none", "underline"}));

    // No colour yet.
    w->Command1->click();
    EXPECT_EQ(w->sheet(), QStringLiteral("\r\nA:link   {color: ; text-decoration: none}"));

    // The colour dialog's value has red in the low byte; the field takes an ordinary web colour.
    prompts.answerColour(0x563412);
    w->Command5->click();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("#123456"));
    w->Combo1->setCurrentIndex(3);
    w->Combo2->setCurrentIndex(1);
    w->Command1->click();

    // The custom row needs its name.
    prompts.answerMsgBox(1);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Enter a value to link the values with."), 16));
    w->Text2->setText(QStringLiteral("H1"));
    prompts.answerColour(0x0000FF);
    w->Command6->click();
    EXPECT_EQ(w->Text3->text(), QStringLiteral("#FF0000"));
    w->Command2->click();
    const QString expected = QStringLiteral("\r\nA:link   {color: ; text-decoration: none}"
                                            "\r\nA:hover   {color: #123456; text-decoration: underline}"
                                            "\r\nH1   {color: #FF0000; text-decoration: none}");
    EXPECT_EQ(w->sheet(), expected);

    // Saving needs a path; a new file is written at once.
    prompts.answerMsgBox(1);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Enter a location and name for the style sheet!"), 16));
    const QString path = folder.file(QStringLiteral("Default.CSS"));
    w->Text5->setText(path);
    prompts.answerMsgBox(1);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), path + QStringLiteral(" Page Saved ::  "), 64));
    EXPECT_EQ(folder.read(QStringLiteral("Default.CSS")), expected.toUtf8());

    // Over an existing file only "Yes" writes.
    w->Text4->setPlainText(QStringLiteral("P {color: red}"));
    for (int answer : {7, 2}) {
        prompts.answerMsgBox(answer);
        w->Command3->click();
        EXPECT_TRUE(isBox(prompts.last(),
                          QStringLiteral("File allready exists, would you like to Overwrite the document?"), 3 + 32,
                          QStringLiteral(":: Velloro 2002 ::")));
        EXPECT_EQ(folder.read(QStringLiteral("Default.CSS")), expected.toUtf8());
    }
    prompts.answerMsgBox(6).answerMsgBox(1);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), path + QStringLiteral(" Page Saved ::  "), 64));
    EXPECT_EQ(folder.read(QStringLiteral("Default.CSS")), QByteArray("P {color: red}"));
    EXPECT_EQ(prompts.pending(), 0);

    w->Command4->click();
    EXPECT_FALSE(w->isVisible());
}

TEST_F(StyleSheetsTest, ScrollbarBlockAndItsPreviewPage)
{
    auto* w = open<frmscrollbar>(QStringLiteral("Create ScrollBar Color Code"));
    ASSERT_NE(w, nullptr);
    const QStringList labels{"Scrollbar Face Color",   "Scrollbar Highlight Color", "Scrollbar Shadow Color",
                             "Scrollbar 3D Light Color", "Scrollbar Arrow Color",   "Scrollbar Track Color",
                             "Scrollbar Dark Shadow Color"};
    for (const QString& l : labels)
        EXPECT_TRUE(hasLabel(w, l)) << l.toStdString();
    // The page is written and shown on load.
    const QString page = QStringLiteral("Templates/General/Scroll Test.htm");
    const QByteArray head = "<html>\r\n<head>\r\n<meta name=GENERATOR content=Velloro 2002>\r\n"
                            "<meta name=AUTHOR content=Ansel Corby>\r\n<title>Tester</title>\r\n";
    EXPECT_TRUE(folder.read(page).startsWith(head + "<style><!-- BODY{SCROLLBAR-FACE-COLOR: ; "));

    for (int i = 0; i < 7; ++i)
        w->findChild<QLineEdit*>(QStringLiteral("Text%1").arg(i + 1))->setText(QStringLiteral("#00000%1").arg(i + 1));
    // A colour chosen rebuilds the block at once.
    prompts.answerColour(0xCCBBAA);
    w->findChild<QPushButton*>(QStringLiteral("Command4"))->click();
    const QString block = QStringLiteral(
        "<style><!-- BODY{SCROLLBAR-FACE-COLOR: #000001; SCROLLBAR-HIGHLIGHT-COLOR: #000002; SCROLLBAR-SHADOW-COLOR: "
        "#000003; SCROLLBAR-3DLIGHT-COLOR: #AABBCC; SCROLLBAR-ARROW-COLOR: #000005; SCROLLBAR-TRACK-COLOR: #000006; "
        "SCROLLBAR-DARKSHADOW-COLOR: #000007}--></style>");
    EXPECT_EQ(w->stylecode->toPlainText(), block);
    const QByteArray rest = w->temprest->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")).toUtf8();
    EXPECT_EQ(folder.read(page), head + block.toUtf8() + "\r\n" + rest);

    // A cancelled dialog changes nothing.
    w->Text[0]->setText(QStringLiteral("#FFFFFF"));
    prompts.answerColour(std::nullopt);
    w->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    EXPECT_EQ(w->stylecode->toPlainText(), block);
    w->Command10->click();
    EXPECT_TRUE(w->stylecode->toPlainText().startsWith(QStringLiteral("<style><!-- BODY{SCROLLBAR-FACE-COLOR: #FFFFFF;")));
    saveShot(w, QStringLiteral("frmscrollbar"));
}

TEST_F(StyleSheetsTest, StyleLinkLinksEveryListedPage)
{
    auto* w = open<StyleLink>(QStringLiteral("Style Link Wizard"));
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(hasLabel(w, QStringLiteral("Select the .CSS document you wish to link :")));
    EXPECT_EQ(w->lblAction->text(), QStringLiteral("Idle"));

    // The rules that stop before any work.
    prompts.answerMsgBox(1);
    w->cmdProcess->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You need to add some files to process the action")));
    prompts.answerMsgBox(1);
    w->cmdAdd->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("There is no file to be added.")));
    prompts.answerOpenFile(QString()).answerMsgBox(1);
    w->cmdSheet->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No file selected")));
    EXPECT_EQ(w->txtlocationfile->text(), QStringLiteral("..."));

    folder.write(QStringLiteral("site/site.css"), "P {}");
    folder.write(QStringLiteral("site/a.htm"), "<html><head></head><body>a</body></html>");
    folder.write(QStringLiteral("site/b.htm"), "<html><head></head></head><body>b</body></html>");
    folder.write(QStringLiteral("site/c.htm"), "<html><body>no head</body></html>");
    const QString sheet = folder.file(QStringLiteral("site/site.css"));
    prompts.answerOpenFile(sheet);
    w->cmdSheet->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(w->txtlocationfile->text(), sheet);
    EXPECT_EQ(w->txtlocationfile1->text(), QStringLiteral("site.css"));
    for (const char* name : {"a.htm", "b.htm", "c.htm"}) {
        prompts.answerOpenFile(folder.file(QStringLiteral("site/") + QLatin1String(name)));
        w->cmdPage->click();
        w->cmdAdd->click();
    }
    EXPECT_EQ(w->lifiles->count(), 3);
    saveShot(w, QStringLiteral("StyleLink"));

    w->cmdProcess->click();
    const QByteArray link = "\r\n<link rel=stylesheet type=text/css href=" + sheet.toUtf8() + ">";
    EXPECT_EQ(folder.read(QStringLiteral("site/a.htm")), "<html><head></head>" + link + "<body>a</body></html>");
    EXPECT_EQ(folder.read(QStringLiteral("site/b.htm")), "<html><head></head>" + link + "</head><body>b</body></html>");
    EXPECT_EQ(folder.read(QStringLiteral("site/c.htm")), QByteArray("<html><body>no head</body></html>"));
    EXPECT_EQ(w->lifiles->count(), 0);
    EXPECT_EQ(w->Bar->maximum(), 3);
    EXPECT_EQ(w->Bar->value(), 3);
    EXPECT_EQ(w->lblAction->text(), QStringLiteral("Completed"));
    EXPECT_EQ(w->txtlocationfile->text(), QStringLiteral("..."));
    EXPECT_TRUE(w->txtlocationfile1->text().isEmpty());
    EXPECT_TRUE(w->txtadd->text().isEmpty());
    EXPECT_TRUE(w->RichTextBox1->toPlainText().isEmpty());
    EXPECT_FALSE(w->RichTextBox1->isVisible());
    EXPECT_EQ(prompts.pending(), 0);
}

TEST_F(StyleSheetsTest, EveryStyleSheetWindowExists)
{
    for (const char* name : {"CSSCentral", "CSSCREATE", "frmscrollbar", "StyleLink", "frmCSSCreate"}) {
        EXPECT_TRUE(Forms::hasFactory(QLatin1String(name))) << name;
    }
    EXPECT_TRUE(Commands::available(QStringLiteral("CSS Document")));
}

TEST_F(StyleSheetsTest, LinkOneSheetGoesInAtTheEditorAndEmptiesItsFields)
{
    folder.write(QStringLiteral("site/Main.css"), "P {}");
    const QString sheet = folder.file(QStringLiteral("site/Main.css"));
    // No document: the failure path closes the form silently, the fields stay.
    {
        auto* w = open<CSSform>(QStringLiteral("External Style Sheet"));
        ASSERT_NE(w, nullptr);
        w->Location->setText(QStringLiteral("kept.css"));
        w->Command2->click();
        EXPECT_FALSE(w->isVisible());
        EXPECT_EQ(w->Location->text(), QStringLiteral("kept.css"));
        EXPECT_TRUE(prompts.prompts().isEmpty());
        w->Location->clear();
    }
    frmDocument* page = newPage(QStringLiteral("<html><head></head></html>"));
    page->CodeMax1()->setCursorPosition(0, 12);
    auto* w = open<CSSform>(QStringLiteral("External Style Sheet"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("CSSform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("External Style Sheet's"));
    EXPECT_EQ(labelOf(w->Location), QStringLiteral("Location of Style Sheet :"));
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Shorten location length"));
    EXPECT_EQ(w->note->text(), QStringLiteral("Click the load button to put the neccessary code into the web page"));

    prompts.answerOpenFile(sheet);
    w->Command1->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(w->Location->text(), sheet);
    w->Check1->setChecked(true);
    EXPECT_EQ(w->Location->text(), QStringLiteral("Main.css"));
    w->Command2->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<html><head><head>\r\n\r\n<link rel=\"STYLESHEET\" href=\"Main.css\" type=text/css>\r\n</head></html>"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(w->Location->text().isEmpty());
    EXPECT_TRUE(w->location1->text().isEmpty());

    // A split window takes it the same way, with the full path.
    w->Check1->setChecked(false);
    frmsplit* split = newSplit();
    split->CodeMax1()->setText(QStringLiteral("[]"));
    split->CodeMax1()->setCursorPosition(0, 1);
    prompts.answerOpenFile(sheet);
    frmMain::instance()->MenuClick(QStringLiteral("External Style Sheet"));
    w->Command1->click();
    w->Command2->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("[<head>\r\n\r\n<link rel=\"STYLESHEET\" href=\"") + sheet + QStringLiteral("\" type=text/css>\r\n]"));

    // A notepad has no code editor: the form closes, nothing is written, the fields stay.
    notepad* pad = newPad(QStringLiteral("<head>"));
    frmMain::instance()->MenuClick(QStringLiteral("External Style Sheet"));
    w->Location->setText(QStringLiteral("kept.css"));
    w->Command2->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("<head>"));
    EXPECT_EQ(w->Location->text(), QStringLiteral("kept.css"));
    EXPECT_EQ(prompts.prompts().size(), 2);
}

TEST_F(StyleSheetsTest, StyleLinkStopsAtAFileItCannotRead)
{
    auto* w = open<StyleLink>(QStringLiteral("Style Link Wizard"));
    ASSERT_NE(w, nullptr);
    folder.write(QStringLiteral("a.htm"), "<head></head>");
    folder.write(QStringLiteral("c.htm"), "<head></head>");
    w->lifiles->addItems({folder.file(QStringLiteral("a.htm")), folder.file(QStringLiteral("gone.htm")),
                          folder.file(QStringLiteral("c.htm"))});
    prompts.answerMsgBox(1);
    w->cmdProcess->click();
    EXPECT_EQ(prompts.last().style, 16);
    EXPECT_TRUE(prompts.last().text.contains(QStringLiteral("53"))) << visible(prompts.last().text);
    EXPECT_EQ(folder.read(QStringLiteral("a.htm")), QByteArray("<head></head>\r\n<link rel=stylesheet type=text/css href=...>"));
    EXPECT_EQ(folder.read(QStringLiteral("c.htm")), QByteArray("<head></head>")) << "the run stopped before it";
    EXPECT_EQ(w->lifiles->count(), 2);
    EXPECT_EQ(w->Bar->value(), 1);
    EXPECT_EQ(w->lblAction->text(), QStringLiteral("Started .."));
}
