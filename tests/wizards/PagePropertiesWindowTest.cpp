// The page options window: its controls and defaults, its commands on a page, a split window,
// a notepad and no document, the style block kept in the work copy until a command copies
// back, the file's details, and a big page without any of the markers.
#include "common/TestSupport.h"

#include "colour/ColourSwatch.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"
#include "shell/frmMain.h"
#include "wizards/pageproperties.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace {
const QString noPage = QStringLiteral("There is no page to view properties for!");
const QString noStyle = QStringLiteral("There is no style sheet on this page, you can add one now");
const QString noTextColour = QStringLiteral("There is no text color set for the page to change!");
const QString noData = QStringLiteral(" No data to change!!");

// The style block with the stored defaults but for the link's colour and decoration.
QString block(const QString& linkColour = QStringLiteral("\"#0000FF\""), const QString& linkDecoration = QStringLiteral("Underlined"))
{
    return QStringLiteral("<style>\r\n<!-- A:link  {color:") + linkColour + QStringLiteral("; text-decoration:") + linkDecoration +
           QStringLiteral(" }\r\n"
                          "A:visited {color:\"#0000FF\"; text-decoration:Underlined }\r\n"
                          "A:active {color:\"#0000FF\"; text-decoration:Underlined}\r\n"
                          "A:hover {color:\"#0000FF\";text-decoration:Underlined} -->\r\n"
                          "</style>\r\n");
}

const QString homePage = QStringLiteral("<html>\r\n<head>\r\n<title>Home</title>\r\n</head>\r\n"
                                        "<body bgcolor=\"#FFFFFF\" text=\"#000000\">\r\n<p>Hi</p>\r\n</body>\r\n</html>\r\n");

class PagePropertiesTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }

    pageproperties* open()
    {
        showForm(QStringLiteral("pageproperties"));
        auto* w = loadedForm<pageproperties>();
        EXPECT_NE(w, nullptr);
        return w;
    }
    static QStringList rows(const QComboBox* box)
    {
        QStringList items;
        for (int i = 0; i < box->count(); ++i)
            items << box->itemText(i);
        return items;
    }
    static QString runtimeBox(const RuntimeError& e) { return runtimeErrorText(e); }
};
}

TEST_F(PagePropertiesTest, ControlsCaptionsAndDefaults)
{
    // A saved page with a style block: no message on load, the add command is disabled.
    folder.write(QStringLiteral("site/index.htm"), QByteArray(1234, 'x'));
    frmDocument* page = newPage(QStringLiteral("<title>T</title>\r\n") + block() + QStringLiteral("<body>"));
    page->tempaddress()->setText(folder.file(QStringLiteral("site/index.htm")));
    page->setCaption(QStringLiteral("index.htm"));
    pageproperties* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Page Options ::"));
    EXPECT_EQ(w->SSTab1->currentIndex(), 0);
    EXPECT_EQ(w->SSTab2->currentIndex(), 0);
    EXPECT_EQ(w->SSTab3->currentIndex(), 0);
    EXPECT_FALSE(w->Command6->isEnabled()) << "the page has a style block";

    EXPECT_EQ(w->Check1->text(), QStringLiteral("Enable Margins :"));
    EXPECT_FALSE(w->Check1->isChecked());
    for (QWidget* m : {static_cast<QWidget*>(w->Text2), static_cast<QWidget*>(w->Text4), static_cast<QWidget*>(w->Command11)})
        EXPECT_FALSE(m->isEnabled()) << m->objectName().toStdString();
    w->Check1->setChecked(true);
    for (QWidget* m : {static_cast<QWidget*>(w->Text2), static_cast<QWidget*>(w->Text4), static_cast<QWidget*>(w->Command11)})
        EXPECT_TRUE(m->isEnabled()) << m->objectName().toStdString();

    const std::pair<QLineEdit*, const char*> texts[] = {
        {w->Text1, "\"#FFFFFF\""},  {w->Text3, "\"#000000\""},  {w->Text7, "\"#0000FF\""}, {w->Text8, "\"#0000FF\""},
        {w->Text9, "\"#0000FF\""},  {w->Text10, "\"#0000FF\""}, {w->Text11, "\"#000000\""}, {w->Text2, ""},
        {w->Text4, ""},             {w->Text5, ""},             {w->Text6, ""},
    };
    for (const auto& [edit, text] : texts)
        EXPECT_EQ(edit->text(), QString::fromUtf8(text)) << edit->objectName().toStdString();
    for (QComboBox* c : {w->Combo7, w->Combo8, w->Combo9, w->Combo10}) {
        EXPECT_EQ(rows(c), (QStringList{QStringLiteral("Underline"), QStringLiteral("None"), QStringLiteral("Underline + Upperline")}));
        EXPECT_EQ(c->currentText(), QStringLiteral("Underlined")) << "the stored default is not one of the rows";
    }
    const std::pair<QPushButton*, const char*> buttons[] = {
        {w->Command11, "Change"}, {w->Command1, "Choose"}, {w->Command2, "CHANGE"}, {w->Command3, "Choose"},
        {w->Command4, "CHANGE"},  {w->Command7, "Load"},   {w->Command8, "Load"},   {w->Command9, "Load"},
        {w->Command10, "Load"},   {w->Command5, "Update"}, {w->Command12, "Load"},
    };
    for (const auto& [b, caption] : buttons)
        EXPECT_EQ(b->text(), QString::fromUtf8(caption)) << b->objectName().toStdString();
    EXPECT_EQ(w->Frame1->title(), QStringLiteral("Enable Internal Style Sheet's"));
    EXPECT_EQ(w->Frame2->title(), QStringLiteral("Enable External Style Sheet's"));
    EXPECT_FALSE(w->CSS->isChecked());
    EXPECT_EQ(w->Label24->text(), QStringLiteral("Adding style sheets help make the overall look and feel of the website better. "
                                                 "Hyperlinks can be changed so you dont have those annoying lines underneath them."));
    EXPECT_EQ(w->Label3->text(), QStringLiteral("There is no current Style sheet, click on the Colours tab above, change the "
                                                "options then click add below."));
    EXPECT_EQ(w->Label25->text(), QStringLiteral("Tick the box to select CSS to appear on your page, you can change the default "
                                                 "options on the Colours / Actions tab"));
    EXPECT_EQ(w->Label26->text(), QStringLiteral("By default this option is not selected, you can make it enabled every time by "
                                                 "setting it up in the Menu, Tools, Options"));
    EXPECT_EQ(w->Label30->text(), QStringLiteral("You can use an extrenal style sheet by clicking the load button :"));
    // Every control answers to its name, and the name reaches that very control.
    const std::pair<const char*, QWidget*> named[] = {
        {"SSTab1", w->SSTab1},     {"SSTab2", w->SSTab2},     {"SSTab3", w->SSTab3},       {"Check1", w->Check1},
        {"Text2", w->Text2},       {"Text4", w->Text4},       {"Command11", w->Command11}, {"Text1", w->Text1},
        {"Shape1", w->Shape1},     {"Command1", w->Command1}, {"Command2", w->Command2},   {"Text3", w->Text3},
        {"Shape2", w->Shape2},     {"Command3", w->Command3}, {"Command4", w->Command4},   {"Text7", w->Text7},
        {"Text8", w->Text8},       {"Text9", w->Text9},       {"Text10", w->Text10},       {"Combo7", w->Combo7},
        {"Combo8", w->Combo8},     {"Combo9", w->Combo9},     {"Combo10", w->Combo10},     {"Command7", w->Command7},
        {"Command8", w->Command8}, {"Command9", w->Command9}, {"Command10", w->Command10}, {"Shape7", w->Shape7},
        {"Shape8", w->Shape8},     {"Shape9", w->Shape9},     {"Shape10", w->Shape10},     {"Command5", w->Command5},
        {"Command6", w->Command6}, {"CSS", w->CSS},           {"Command12", w->Command12}, {"Text5", w->Text5},
        {"Text6", w->Text6},       {"Text11", w->Text11},     {"Check2", w->Check2},       {"Check3", w->Check3},
        {"Check4", w->Check4},     {"Filenae", w->Filenae},   {"Location", w->Location},   {"Extension", w->Extension},
        {"Filesize", w->Filesize}, {"Modified", w->Modified}, {"datecreated", w->datecreated}, {"Readonly", w->Readonly},
        {"Filehidden", w->Filehidden}, {"Label3", w->Label3}, {"Label24", w->Label24},     {"Label25", w->Label25},
        {"Label26", w->Label26},   {"Label30", w->Label30},
    };
    for (const auto& [name, control] : named) {
        const QList<QWidget*> found = w->findChildren<QWidget*>(QString::fromLatin1(name));
        ASSERT_EQ(found.size(), 1) << name;
        EXPECT_EQ(found[0], control) << name;
    }
    EXPECT_EQ(w->objectName(), QStringLiteral("pageproperties"));
    EXPECT_EQ(w->Check2->text(), QStringLiteral("Bold"));
    EXPECT_EQ(w->Check3->text(), QStringLiteral("Italic"));
    EXPECT_EQ(w->Check4->text(), QStringLiteral("Underline"));

    // The file's details.
    EXPECT_EQ(w->Filenae->text(), QStringLiteral("index.htm"));
    EXPECT_EQ(w->Shape2->BackColor(), 0x000000) << "the swatches start at their fields' colours";
    EXPECT_EQ(w->Shape7->BackColor(), 0xFF0000);
    EXPECT_EQ(w->Location->text(), folder.file(QStringLiteral("site/index.htm")));
    EXPECT_EQ(w->Extension->text(), QStringLiteral("HTM"));
    EXPECT_EQ(w->Filesize->text(), QStringLiteral("1234 Bytes"));
    EXPECT_FALSE(w->Modified->text().isEmpty());
    EXPECT_FALSE(w->datecreated->text().isEmpty());
    EXPECT_EQ(w->Readonly->text(), QStringLiteral("False"));
    EXPECT_EQ(w->Filehidden->text(), QStringLiteral("False"));

    saveShot(w, QStringLiteral("pageproperties-page"));
    w->SSTab1->setCurrentIndex(1);
    saveShot(w, QStringLiteral("pageproperties-style"));
    w->SSTab2->setCurrentIndex(1);
    saveShot(w, QStringLiteral("pageproperties-links"));
    w->SSTab1->setCurrentIndex(2);
    saveShot(w, QStringLiteral("pageproperties-details"));
    w->SSTab3->setCurrentIndex(1);
    saveShot(w, QStringLiteral("pageproperties-text"));
}

TEST_F(PagePropertiesTest, MarginsBackgroundAndTextColourRewriteThePage)
{
    frmDocument* page = newPage(homePage);
    prompts.answerMsgBox(Answer::OK);
    pageproperties* w = open();
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(isBox(prompts.last(), noStyle, 0));
    prompts.clear();
    EXPECT_TRUE(w->Command6->isEnabled());

    w->Check1->setChecked(true);
    w->Text2->setText(QStringLiteral("5"));
    w->Text4->setText(QStringLiteral("7"));
    w->Command11->click();
    const QString margins = QStringLiteral("<html>\r\n<head>\r\n<title>Home</title>\r\n</head>\r\n<body topmargin=5 leftmargin=7 "
                                           "bgcolor=\"#FFFFFF\" text=\"#000000\">\r\n<p>Hi</p>\r\n</body>\r\n</html>\r\n");
    EXPECT_EQ(page->CodeMax1()->text(), margins);

    prompts.answerColour(255);
    w->Command1->click();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->Shape1->BackColor(), 255);
    w->Command2->click();
    const QString background = QStringLiteral("<html>\r\n<head>\r\n<title>Home</title>\r\n</head>\r\n<body topmargin=5 leftmargin=7 "
                                              "bgcolor=\"#FF0000\" text=\"#000000\">\r\n<p>Hi</p>\r\n</body>\r\n</html>\r\n");
    EXPECT_EQ(page->CodeMax1()->text(), background);
    EXPECT_EQ(page->RichTextBox1()->find(QStringLiteral(" bgcolor=\"#FF0000\"")), 72);
    EXPECT_EQ(page->RichTextBox1()->SelColor(), 255) << "the work copy shows the new span in red";

    w->Text3->setText(QStringLiteral("\"#00FF00\""));
    w->Command4->click();
    const QString text = QStringLiteral("<html>\r\n<head>\r\n<title>Home</title>\r\n</head>\r\n<body topmargin=5 leftmargin=7 "
                                        "bgcolor=\"#FF0000\" text=\"#00FF00\">\r\n<p>Hi</p>\r\n</body>\r\n</html>\r\n");
    EXPECT_EQ(page->CodeMax1()->text(), text);
    EXPECT_EQ(page->RichTextBox1()->text(), text);
    EXPECT_EQ(prompts.prompts().size(), 1) << "only the colour dialog";

    // Each command is one step back in the editor.
    page->CodeMax1()->undo();
    EXPECT_EQ(page->CodeMax1()->text(), background);
    page->CodeMax1()->undo();
    EXPECT_EQ(page->CodeMax1()->text(), margins);
    page->CodeMax1()->undo();
    EXPECT_EQ(page->CodeMax1()->text(), homePage);

    // Fields survive the next opening; a page with LF alone keeps its line ends.
    w->hide();
    frmDocument* lf = newPage(QStringLiteral("<head>\n<meta content=\"text/html\">\n</head>\n<body bgColor=\"#FFFFFF\">\n"));
    w = open();
    EXPECT_EQ(w->Text1->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("5"));
    QTest::keyClick(w->Text1, Qt::Key_Return);  // Enter: the first page's command
    EXPECT_EQ(lf->CodeMax1()->text(), QStringLiteral("<head>\n<meta content=\"text/html\">\n</head>\n<body bgcolor=\"#FF0000\">\n"));
    w->Command4->click();  // the meta line holds the first "text"
    EXPECT_EQ(lf->CodeMax1()->text(), QStringLiteral("<head>\n<meta content= text=\"#00FF00\">\n</head>\n<body bgcolor=\"#FF0000\">\n"));
    EXPECT_EQ(page->CodeMax1()->text(), homePage) << "the other page is untouched";
    EXPECT_TRUE(prompts.prompts().size() == 1);
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
}

TEST_F(PagePropertiesTest, TheStyleBlockIsAddedAndUpdatedInTheWorkCopy)
{
    frmDocument* page = newPage(QStringLiteral("<title>T</title>\r\n<body>\r\n"));
    prompts.answerMsgBox(Answer::OK);
    pageproperties* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(isBox(prompts.last(), noStyle, 0));
    w->Combo7->setCurrentText(QStringLiteral("None"));
    w->Command6->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              QStringLiteral("<title>T</title>\r\n\r\n") + block(QStringLiteral("\"#0000FF\""), QStringLiteral("None")) +
                  QStringLiteral("\r\n<body>\r\n"));
    const QString added = page->CodeMax1()->text();

    // The link colour from its "Load" button; the update stays in the work copy.
    prompts.answerColour(0x0000FF);
    w->Command7->click();
    EXPECT_EQ(w->Text7->text(), QStringLiteral("\"#FF0000\""));
    EXPECT_EQ(w->Shape7->BackColor(), 0x0000FF);
    w->Command5->click();
    EXPECT_EQ(page->CodeMax1()->text(), added) << "the editor is unchanged until another command copies back";
    const QString updated = QStringLiteral("<title>T</title>\r\n\r\n") + block(QStringLiteral("\"#FF0000\""), QStringLiteral("None")) +
                            QStringLiteral("\r\n\r\n<body>\r\n");
    EXPECT_EQ(page->RichTextBox1()->text(), updated) << "the carriage return behind the block went, its line feed stays";

    w->Check1->setChecked(true);
    w->Text2->setText(QStringLiteral("0"));
    w->Text4->setText(QStringLiteral("0"));
    w->Command11->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<title>T</title>\r\n\r\n") +
                                            block(QStringLiteral("\"#FF0000\""), QStringLiteral("None")) +
                                            QStringLiteral("\n\r\n<body topmargin=0 leftmargin=0>\r\n"));
    page->CodeMax1()->undo();
    EXPECT_EQ(page->CodeMax1()->text(), added);

    // A pending update is dropped when the window is activated again: the work copy is the
    // page anew. On the link colours Enter runs the update.
    w->Command5->click();
    EXPECT_NE(page->RichTextBox1()->text(), page->CodeMax1()->text());
    w->hide();
    w = open();
    EXPECT_EQ(page->RichTextBox1()->text(), added);
    w->SSTab1->setCurrentIndex(1);
    w->SSTab2->setCurrentIndex(1);
    EXPECT_TRUE(w->Command5->isDefault());
    EXPECT_FALSE(w->Command2->isDefault());
    QTest::keyClick(w->Text8, Qt::Key_Return);
    EXPECT_EQ(page->RichTextBox1()->text(), updated);
    EXPECT_EQ(page->CodeMax1()->text(), added);

    // The external style sheet's button hides this window.
    w->Command12->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(prompts.prompts().size(), 2);
}

TEST_F(PagePropertiesTest, ASplitWindowIsRewrittenLikeAPage)
{
    auto* split = new frmsplit;
    frmMain::instance()->addDocument(split);
    split->CodeMax1()->setText(QStringLiteral("<body bgcolor=\"#FFFFFF\">"));
    processEvents();
    prompts.answerMsgBox(Answer::OK);
    pageproperties* w = open();
    ASSERT_NE(w, nullptr);
    w->Text1->setText(QStringLiteral("\"#000000\""));
    w->Command2->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<body bgcolor=\"#000000\">"));
    w->Check1->setChecked(true);
    w->Text2->setText(QStringLiteral("5"));
    w->Text4->setText(QStringLiteral("7"));
    w->Command11->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<body topmargin=5 leftmargin=7 bgcolor=\"#000000\">"));

    // Without "<body" the margins replace the work copy's selection, wherever a search of
    // another window left it, counted past the CR LF before it.
    split->CodeMax1()->setText(QStringLiteral("<p>one</p>\r\n<p>two</p>"));
    w->hide();
    w = open();
    EXPECT_EQ(split->RichTextBox1()->find(QStringLiteral("TWO")), 14);
    w->Command11->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<p>one</p>\r\n<p><body topmargin=5 leftmargin=7</p>"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}

TEST_F(PagePropertiesTest, ANotepadShowsItsTextPageAndKeepsItsText)
{
    notepad* pad = newPad(QStringLiteral("my notes"));
    pad->RichTextBox1()->setSelStart(0);
    pad->RichTextBox1()->setSelLength(2);
    pad->RichTextBox1()->setSelBold(true);
    pad->RichTextBox1()->setSelUnderline(true);
    pad->MenuClick(QStringLiteral("page"));
    auto* w = loadedForm<pageproperties>();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty()) << "a notepad's failed copy is silent";
    EXPECT_EQ(w->SSTab3->currentIndex(), 1);
    EXPECT_EQ(w->SSTab1->currentIndex(), 0);
    EXPECT_EQ(w->Filenae->text(), QStringLiteral("Notepad [ 1 ]"));
    EXPECT_TRUE(w->Check2->isChecked());
    EXPECT_FALSE(w->Check3->isChecked());
    EXPECT_TRUE(w->Check4->isChecked());
    EXPECT_EQ(w->Text11->text(), QStringLiteral("\"#000000\""));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("my notes"));

    // The commands work on the notepad's own text; the copy back then fails.
    for (int i = 0; i < 5; ++i)
        prompts.answerMsgBox(Answer::OK);
    w->Command4->click();
    EXPECT_TRUE(isBox(prompts.last(), noTextColour, 0));
    w->Command5->click();
    EXPECT_TRUE(isBox(prompts.last(), noTextColour, 0));
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), runtimeBox(RuntimeError::invalidProperty()), 16));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("my notes"));
    pad->RichTextBox1()->setText(QStringLiteral("<body bgcolor=\"#FFFFFF\">\r\nsecond line"));
    w->Text1->setText(QStringLiteral("\"#000000\""));
    w->Command2->click();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("<body bgcolor=\"#000000\">\r\nsecond line"));
    EXPECT_TRUE(isBox(prompts.last(), runtimeBox(RuntimeError::noSuchMember(QStringLiteral("CodeMax1"))), 16));
    pad->RichTextBox1()->setText(QString());
    w->Check1->setChecked(true);
    w->Command11->click();
    EXPECT_TRUE(isBox(prompts.last(), noData, 0));
    EXPECT_EQ(prompts.prompts().size(), 5);
}

TEST_F(PagePropertiesTest, WithoutADocument)
{
    for (int i = 0; i < 6; ++i)
        prompts.answerMsgBox(Answer::OK);
    showForm(QStringLiteral("pageproperties"));
    auto* w = loadedForm<pageproperties>();
    ASSERT_NE(w, nullptr);
    EXPECT_FALSE(w->isVisible());
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), noPage, 0));

    w->Check1->setChecked(true);
    const std::pair<QPushButton*, QString> commands[] = {
        {w->Command2, runtimeBox(RuntimeError::objectNotSet())},
        {w->Command11, runtimeBox(RuntimeError::objectNotSet())},
        {w->Command4, noTextColour},
        {w->Command5, noTextColour},
        {w->Command6, QStringLiteral("Error has occured while trying to input the CSS")},
    };
    for (const auto& [b, text] : commands) {
        b->click();
        EXPECT_EQ(prompts.last().text, text) << b->objectName().toStdString();
    }
    EXPECT_EQ(prompts.prompts().size(), 6);
}

TEST_F(PagePropertiesTest, ABigPageWithoutMarkersChangesOnlyWhenAsked)
{
    QString big;
    big.reserve(5 * 1024 * 1024 + 64);
    const QString line = QStringLiteral("<p>Lorem ipsum dolor sit amet, consectetur adipiscing elit.</p>\r\n");
    while (big.size() < 5 * 1024 * 1024)
        big += line;
    frmDocument* page = newPage(big);
    prompts.answerMsgBox(Answer::OK);
    pageproperties* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(isBox(prompts.last(), noStyle, 0));

    for (int i = 0; i < 3; ++i)
        prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), runtimeBox(RuntimeError::invalidProperty()), 16));
    w->Command4->click();
    EXPECT_TRUE(isBox(prompts.last(), noTextColour, 0));
    w->Command5->click();
    EXPECT_TRUE(isBox(prompts.last(), noTextColour, 0));
    EXPECT_TRUE(page->CodeMax1()->text() == big) << "nothing changed";

    // Without "<body" the margins go in at the work copy's caret, the start.
    w->Check1->setChecked(true);
    w->Text2->setText(QStringLiteral("1"));
    w->Text4->setText(QStringLiteral("2"));
    w->Command11->click();
    EXPECT_TRUE(page->CodeMax1()->text() == QStringLiteral("<body topmargin=1 leftmargin=2") + big)
        << page->CodeMax1()->text().indexOf(QStringLiteral("<body")) << " " << page->CodeMax1()->text().size() - big.size();
    page->CodeMax1()->undo();
    EXPECT_TRUE(page->CodeMax1()->text() == big) << "undo gives the page back";
    EXPECT_EQ(prompts.prompts().size(), 4);
}
