// The three table wizards opened from their menu keys: their fields and defaults, the table
// each writes into a page, a split window, a notepad and no document, and the bad input each
// must survive.
#include "common/Utf8.h"
#include "WizardFixture.h"

#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"
#include "wizards/CSVWizard.h"
#include "wizards/TableWizard.h"
#include "wizards/Tableform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

namespace {
const QString refusal = QStringLiteral("You have a notepad document open, you need a web page open for this feature");

// The blank table of two rows of two cells with every default.
const char* const blankTwoByTwo =
    "<table border=1 cellspacing=0 style=border-collapse: collapse; border-style: solid; border-width: 1  "
    "bordercolor=\"#000000\" width=\"100%\" id=AutoNumber2 align=Center bgcolor=\"#FFFFFF\">\r\n"
    "\r\n     <tr>\r\n"
    "\r\n          <td width=50%>&nbsp;</td>"
    "\r\n          <td width=50%>&nbsp;</td>\r\n\r\n</tr>"
    "\r\n     <tr>\r\n"
    "\r\n          <td width=50%>&nbsp;</td>"
    "\r\n          <td width=50%>&nbsp;</td>\r\n\r\n</tr>"
    "\r\n</table>\r\n";

const char* const fileTableTag =
    "<table border=1 cellspacing=0 bordercolor=\"#000000\" width=100% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n";

class TableWizardsTest : public WizardFixture {
protected:
    // A CSV wizard opened by a menu entry that asks for a file first.
    CSVWizard* openWithFile(const QString& menuKey, const QString& path)
    {
        prompts.answerOpenFile(path);
        return open<CSVWizard>(menuKey);
    }
};
}

TEST_F(TableWizardsTest, TableformHasItsFieldsAndDefaults)
{
    Tableform* w = open<Tableform>(QStringLiteral("Table"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Tableform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Table Properties ::"));
    const struct {
        QLineEdit* field;
        const char* label;
        const char* text;
    } fields[] = {
        {w->Text1, "Rows :", "2"},         {w->Text2, "Columns :", "2"},         {w->Text6, "Width :", "100"},
        {w->Text3, "Border :", "1"},       {w->Text4, "Cell Spacing :", "0"},    {w->Text5, "CellPadding :", "0"},
        {w->Text7, "Color :", "\"#000000\""}, {w->Text8, "Light Border :", ""}, {w->Text9, "Dark Border :", ""},
        {w->Text10, "Background :", "\"#FFFFFF\""},
    };
    for (const auto& f : fields) {
        EXPECT_EQ(f.field->text(), u(f.text)) << f.label;
        EXPECT_EQ(labelOf(f.field), u(f.label));
        EXPECT_TRUE(f.field->isVisible()) << f.label;
    }
    for (QLineEdit* working : {w->Text11, w->Text12, w->Text13})
        EXPECT_FALSE(working->isVisible());
    EXPECT_EQ(labelOf(w->Combo1), QStringLiteral("Alignment :"));
    EXPECT_EQ(w->Option1->text(), QStringLiteral("Pixels"));
    EXPECT_EQ(w->Option2->text(), QStringLiteral("%"));
    EXPECT_TRUE(w->Option2->isChecked());
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Choose"));
    EXPECT_EQ(w->Command5->text(), QStringLiteral("Insert"));
    EXPECT_EQ(w->Command6->text(), QStringLiteral("Cancel"));
    for (int i = 1; i <= 13; ++i)
        EXPECT_NE(w->findChild<QLineEdit*>(QStringLiteral("Text%1").arg(i)), nullptr) << i;
    for (int i = 1; i <= 6; ++i)
        EXPECT_NE(w->findChild<QPushButton*>(QStringLiteral("Command%1").arg(i)), nullptr) << i;

    // The alignment list: its three rows, and the same three again for each key typed.
    const QStringList three = {QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("Right")};
    EXPECT_EQ(items(w->Combo1), three);
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("Center"));
    w->Combo1->lineEdit()->selectAll();
    QTest::keyClicks(w->Combo1->lineEdit(), QStringLiteral("Top"));
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("Top"));
    EXPECT_EQ(items(w->Combo1), three + three + three + three);
    w->Combo1->setCurrentText(QStringLiteral("Left"));
    EXPECT_EQ(w->Combo1->count(), 12) << "only typing adds rows";
}

TEST_F(TableWizardsTest, TableformWritesTheTableAtTheCaretAndKeepsItsFields)
{
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    Tableform* w = open<Tableform>(QStringLiteral("Table"));
    ASSERT_NE(w, nullptr);
    w->Command5->click();
    EXPECT_EQ(page->CodeMax1()->text(), u("<body>") + u(blankTwoByTwo) + u("</body>"));
    EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    EXPECT_FALSE(w->isVisible());
    for (QLineEdit* working : {w->Text11, w->Text12, w->Text13})
        EXPECT_EQ(working->text(), QString()) << "the working strings are emptied";

    // Pixels, three columns, a colour chosen; into a split window, opened from the notepad's key.
    frmsplit* split = newSplit();
    w = open<Tableform>(QStringLiteral("table"));
    w->Text1->setText(QStringLiteral("1"));
    w->Text2->setText(QStringLiteral("3"));
    w->Text6->setText(QStringLiteral("400"));
    w->Option1->setChecked(true);
    w->Text5->setText(QStringLiteral("9"));  // padding, light and dark border: read, not written
    w->Text8->setText(QStringLiteral("\"#111111\""));
    prompts.answerColour(255);
    w->Command3->click();
    EXPECT_EQ(w->Text9->text(), QStringLiteral("\"#FF0000\""));
    prompts.answerColour(0xFF0000);
    w->Command4->click();
    EXPECT_EQ(w->Text10->text(), QStringLiteral("\"#0000FF\""));
    w->Command5->click();
    const QString cell = u("\r\n          <td width=33.3333333333333%>&nbsp;</td>");
    EXPECT_EQ(split->CodeMax1()->text(),
              u("<table border=1 cellspacing=0 style=border-collapse: collapse; border-style: solid; border-width: 1  "
                "bordercolor=\"#000000\" width=\"400\" id=AutoNumber2 align=Center bgcolor=\"#0000FF\">\r\n"
                "\r\n     <tr>\r\n") + cell + cell + cell + u("\r\n\r\n</tr>\r\n</table>\r\n"));
    EXPECT_FALSE(w->isVisible());

    w = open<Tableform>(QStringLiteral("Table"));
    EXPECT_EQ(w->Text2->text(), QStringLiteral("3")) << "the fields survive";
    EXPECT_TRUE(w->Option1->isChecked());
    EXPECT_EQ(w->Text10->text(), QStringLiteral("\"#0000FF\""));
    EXPECT_TRUE(prompts.prompts().size() == 2) << "only the two colour dialogs";
}

TEST_F(TableWizardsTest, TableformClosesWithoutADocumentAndRefusesANotepad)
{
    Tableform* w = open<Tableform>(QStringLiteral("Table"));
    ASSERT_NE(w, nullptr);
    w->Command5->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    notepad* pad = newPad(QStringLiteral("notes"));
    w = open<Tableform>(QStringLiteral("Table"));
    prompts.answerMsgBox(Answer::OK);
    w->Command5->click();
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), refusal, 64, QStringLiteral(":: Insert Error ::")));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
}

// Counts the table cannot be built from, or that would make one too big: nothing goes in, no
// message, the form hides; the limits themselves still build.
TEST_F(TableWizardsTest, TableformCounts)
{
    frmDocument* page = newPage(QStringLiteral("x"));
    const struct {
        const char* rows;
        const char* columns;
        bool built;
    } cases[] = {
        {"2", "", false},     {"2", "abc", false},    {"2", "0", false},      {"", "2", false},
        {"lots", "2", false}, {"1e9", "1e9", false},  {"101", "100", false},  {"0", "10001", false},
        {"99999999999999999999", "1", false}, {"-1", "-99999", true},
        {"100", "100", true}, {"0", "3", true},       {"-2", "2", true},      {"1", "-4", true},
    };
    for (const auto& c : cases) {
        page->CodeMax1()->setText(QStringLiteral("x"));
        Tableform* w = open<Tableform>(QStringLiteral("Table"));
        w->Text1->setText(u(c.rows));
        w->Text2->setText(u(c.columns));
        w->Command5->click();
        EXPECT_FALSE(w->isVisible()) << c.rows << " by " << c.columns;
        EXPECT_EQ(page->CodeMax1()->text() != QStringLiteral("x"), c.built) << c.rows << " by " << c.columns;
    }
    // Zero rows: the tag, two line ends, the closing tag.
    page->CodeMax1()->setText(QString());
    Tableform* w = open<Tableform>(QStringLiteral("Table"));
    w->Text1->setText(QStringLiteral("0"));
    w->Text2->setText(QStringLiteral("2"));
    w->Option2->setChecked(true);
    w->Command5->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              u("<table border=1 cellspacing=0 style=border-collapse: collapse; border-style: solid; border-width: 1  "
                "bordercolor=\"#000000\" width=\"100%\" id=AutoNumber2 align=Center bgcolor=\"#FFFFFF\">\r\n\r\n</table>\r\n"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(TableWizardsTest, TableformEnterInsertsAndEscapeHides)
{
    frmDocument* page = newPage();
    Tableform* w = open<Tableform>(QStringLiteral("Table"));
    ASSERT_NE(w, nullptr);
    QTest::keyClick(w->Text4, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QString());
    w = open<Tableform>(QStringLiteral("Table"));
    QTest::keyClick(w->Text1, Qt::Key_Return);
    EXPECT_EQ(page->CodeMax1()->text(), u(blankTwoByTwo));
}

TEST_F(TableWizardsTest, TableWizardWritesEveryCellOfTheGrid)
{
    frmDocument* page = newPage();
    TableWizard* w = open<TableWizard>(QStringLiteral("Table Wizard"));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("TableWizard :"));
    EXPECT_EQ(w->txtWidth->text(), QStringLiteral("100%"));
    EXPECT_EQ(w->coAlign->currentText(), QStringLiteral("Center"));
    EXPECT_EQ(w->txtbo->text(), QStringLiteral("\"#000000\""));
    EXPECT_EQ(w->txtba->text(), QStringLiteral("\"#FFFFFF\""));
    EXPECT_EQ(labelOf(w->txtbo), QStringLiteral("Border Color :"));
    EXPECT_EQ(labelOf(w->txtba), QStringLiteral("Back Color :"));
    EXPECT_EQ(w->ckAuto->text(), QStringLiteral("Auto Update Current Cell"));
    const struct {
        QPushButton* button;
        const char* caption;
    } buttons[] = {{w->Command1, "Update"}, {w->Command2, "Add"}, {w->Command3, "Delete"}, {w->Command4, "Add"},
                   {w->Command5, "Delete"}, {w->Command6, "Insert"}, {w->Command7, "Change"}, {w->Command8, "Change"}};
    for (const auto& b : buttons)
        EXPECT_EQ(b.button->text(), u(b.caption)) << b.button->objectName().toStdString();
    ASSERT_EQ(w->Rows(), 3);
    ASSERT_EQ(w->Cols(), 3);
    EXPECT_EQ(w->lbrows->text(), QStringLiteral("3"));
    EXPECT_EQ(w->lbcols->text(), QStringLiteral("3"));

    // The grid as it stands: the headings are ordinary empty cells.
    w->Command6->click();
    const QString emptyRow = u("\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n");
    const QString table =
        u("<table border=1 cellspacing=1 bordercolor=\"#000000\" width=100% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n") +
        emptyRow + emptyRow + emptyRow + u("</table>");
    EXPECT_EQ(page->CodeMax1()->text(), table + u("\r\n"));
    EXPECT_EQ(w->txtresult->toPlainText(), QString(table).replace(u("\r\n"), u("\n"))) << "the working text stays readable";
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(TableWizardsTest, TableWizardGridIsEdited)
{
    frmsplit* split = newSplit();
    TableWizard* w = open<TableWizard>(QStringLiteral("Table Wizard"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("TableWizard"));

    // A click copies the cell into the editor and gives it the focus; "Update" writes it back.
    w->Flex->item(0, 1)->setText(QStringLiteral("Name"));
    QTest::mouseClick(w->Flex->viewport(), Qt::LeftButton, {}, w->Flex->visualItemRect(w->Flex->item(0, 1)).center());
    EXPECT_EQ(w->txtinput->text(), QStringLiteral("Name"));
    EXPECT_EQ(w->focusWidget(), w->txtinput);
    w->txtinput->setText(QStringLiteral("Fruit"));
    EXPECT_EQ(w->TextMatrix(0, 1), QStringLiteral("Name")) << "not without Update";
    w->Command1->click();
    EXPECT_EQ(w->TextMatrix(0, 1), QStringLiteral("Fruit"));

    // Auto update: every change goes into the current cell.
    w->ckAuto->setChecked(true);
    w->Flex->setCurrentCell(1, 1);
    QTest::keyClicks(w->txtinput, QStringLiteral("x"));
    EXPECT_EQ(w->TextMatrix(1, 1), QStringLiteral("Fruitx")) << "a typed key goes in at once";
    w->txtinput->setText(QStringLiteral("Apple"));
    EXPECT_EQ(w->TextMatrix(1, 1), QStringLiteral("Apple"));
    EXPECT_EQ(w->Flex->selectedItems().size(), 1);
    w->ckAuto->setChecked(false);

    // Rows and columns: add and delete, never below one of each.
    w->Command2->click();
    w->Command4->click();
    w->Command4->click();
    EXPECT_EQ(w->Rows(), 4);
    EXPECT_EQ(w->Cols(), 5);
    EXPECT_EQ(w->lbrows->text(), QStringLiteral("4"));
    EXPECT_EQ(w->lbcols->text(), QStringLiteral("5"));
    for (int i = 0; i < 6; ++i) {
        w->Command3->click();
        w->Command5->click();
    }
    EXPECT_EQ(w->Rows(), 1);
    EXPECT_EQ(w->Cols(), 1);
    EXPECT_EQ(w->lbrows->text(), QStringLiteral("1"));
    EXPECT_EQ(w->lbcols->text(), QStringLiteral("1"));
    w->Command2->click();
    w->Command4->click();
    EXPECT_EQ(w->TextMatrix(0, 1), QString()) << "a column added again starts empty";
    w->Flex->setCurrentCell(1, 1);
    w->txtinput->setText(QStringLiteral("<b>7</b>"));
    w->Command1->click();
    w->txtWidth->setText(QStringLiteral("50%"));
    w->coAlign->setCurrentText(QStringLiteral("Left"));
    prompts.answerColour(0x00FF00);
    w->Command7->click();
    EXPECT_EQ(w->txtbo->text(), QStringLiteral("\"#00FF00\""));
    QTest::keyClick(w->txtWidth, Qt::Key_Return);  // Enter inserts
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(split->CodeMax1()->text(),
              u("<table border=1 cellspacing=1 bordercolor=\"#00FF00\" width=50% id=AutoNumber1 align=Left bgcolor=\"#FFFFFF\">\r\n"
                "\r\n<tr>\r\n<td></td>\r\n<td></td>\r\n</tr>\r\n"
                "\r\n<tr>\r\n<td></td>\r\n<td><b>7</b></td>\r\n</tr>\r\n</table>\r\n"));
}

TEST_F(TableWizardsTest, TableWizardAndCsvWizardFailSilentlyWithoutADocumentAndInANotepad)
{
    folder.write(QStringLiteral("t.csv"), "a,b\r\n");
    for (bool withPad : {false, true}) {
        notepad* pad = withPad ? newPad(QStringLiteral("notes")) : nullptr;
        TableWizard* grid = open<TableWizard>(QStringLiteral("Table Wizard"));
        ASSERT_NE(grid, nullptr);
        grid->Command6->click();
        EXPECT_FALSE(grid->isVisible()) << withPad;
        EXPECT_TRUE(grid->txtresult->toPlainText().startsWith(QStringLiteral("<table border=1 cellspacing=1 "))) << withPad;
        CSVWizard* csv = openWithFile(QStringLiteral("Insert .CSV File"), folder.file(QStringLiteral("t.csv")));
        ASSERT_NE(csv, nullptr);
        csv->Command2->click();
        EXPECT_FALSE(csv->isVisible()) << withPad;
        if (pad) {
            EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
        }
    }
    EXPECT_EQ(prompts.prompts().size(), 2) << "only the two file choosers";
}

TEST_F(TableWizardsTest, CsvWizardFollowsTheMenuEntry)
{
    frmDocument* page = newPage();
    folder.write(QStringLiteral("data.csv"), "a,b,c\r\n1,2,3,4,5\r\n");
    folder.write(QStringLiteral("data.txt"), "x\ty\r\n\r\n\"q\t,\"");

    CSVWizard* w = openWithFile(QStringLiteral("Insert .CSV File"), folder.file(QStringLiteral("data.csv")));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("CSVWizard"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Table Wizard"));
    EXPECT_EQ(w->Label1->text(),
              QStringLiteral("You can insert two types of files into tables, either Comma-seperated , or tabbed Delinited text. "
                             "Click find and locate the file. Then set the tables options. then click the active button at "
                             "the bottom. (Note which ever menu item you clicked on will be the format)"));
    EXPECT_EQ(labelOf(w->txtlocation), QStringLiteral("Location of File"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Find"));
    EXPECT_EQ(w->Command4->text(), QStringLiteral("Choose"));
    EXPECT_EQ(w->Command6->text(), QStringLiteral("Choose"));
    EXPECT_EQ(w->txtWidth->text(), QStringLiteral("100%"));
    EXPECT_EQ(w->coAlign->currentText(), QStringLiteral("Center"));
    EXPECT_EQ(w->txtbo->text(), QStringLiteral("\"#000000\""));
    EXPECT_EQ(w->txtba->text(), QStringLiteral("\"#FFFFFF\""));
    EXPECT_EQ(w->txtlocation->text(), folder.file(QStringLiteral("data.csv")));
    EXPECT_TRUE(w->Command2->isEnabled());
    EXPECT_FALSE(w->Command3->isEnabled());
    EXPECT_TRUE(w->Command2->isDefault());
    QTest::keyClick(w->txtWidth, Qt::Key_Return);  // Enter presses the active button
    EXPECT_EQ(page->CodeMax1()->text(),
              u(fileTableTag) + u("\r\n<tr>\r\n<td>a</td>\r\n<td>b</td>\r\n<td>c</td>\r\n</tr>\r\n"
                                  "\r\n<tr>\r\n<td>1</td>\r\n<td>2</td>\r\n<td>3</td>\r\n<td>4</td>\r\n</tr>\r\n</table>\r\n"));
    EXPECT_FALSE(w->isVisible());

    // The tab entry: the tab button alone; the fields typed survive.
    page->CodeMax1()->setText(QString());
    w->txtWidth->setText(QStringLiteral("80%"));
    w = openWithFile(QStringLiteral("Insert TAB File"), folder.file(QStringLiteral("data.txt")));
    EXPECT_FALSE(w->Command2->isEnabled());
    EXPECT_TRUE(w->Command3->isEnabled());
    EXPECT_TRUE(w->Command3->isDefault());
    EXPECT_EQ(w->txtWidth->text(), QStringLiteral("80%"));
    w->Command3->click();
    EXPECT_EQ(page->CodeMax1()->text(),
              u("<table border=1 cellspacing=0 bordercolor=\"#000000\" width=80% id=AutoNumber1 align=Center bgcolor=\"#FFFFFF\">\r\n"
                "\r\n<tr>\r\n<td>x</td>\r\n<td>y</td>\r\n</tr>\r\n\r\n<tr>\r\n</tr>\r\n"
                "\r\n<tr>\r\n<td>\"q</td>\r\n<td>,\"</td>\r\n</tr>\r\n</table>\r\n"));

    // A cancelled file chooser opens nothing.
    prompts.answerOpenFile(QString());
    frmMain::instance()->MenuClick(QStringLiteral("Insert .CSV File"));
    EXPECT_FALSE(w->isVisible());

    // The wizard's own entry: an empty location and both buttons; "Find" fills the location.
    w = open<CSVWizard>(QStringLiteral("CSV Table Wizard"));
    EXPECT_EQ(w->txtlocation->text(), QString());
    EXPECT_TRUE(w->Command2->isEnabled());
    EXPECT_TRUE(w->Command3->isEnabled());
    prompts.answerOpenFile(folder.file(QStringLiteral("data.txt")));
    w->Command1->click();
    EXPECT_EQ(w->txtlocation->text(), folder.file(QStringLiteral("data.txt")));
    prompts.answerOpenFile(QString());
    w->Command1->click();
    EXPECT_EQ(w->txtlocation->text(), folder.file(QStringLiteral("data.txt"))) << "a cancelled chooser changes nothing";

    // A file handed over while the form is on the screen.
    prompts.answerOpenFile(folder.file(QStringLiteral("data.csv")));
    frmMain::instance()->MenuClick(QStringLiteral("Insert .CSV File"));
    EXPECT_EQ(w->txtlocation->text(), folder.file(QStringLiteral("data.csv")));
    EXPECT_FALSE(w->Command3->isEnabled());
    EXPECT_EQ(prompts.prompts().size(), 6);
}

// Files a table cannot or can only oddly be made of: the table the rules give, or nothing, and
// the form hides either way.
TEST_F(TableWizardsTest, CsvWizardBadFiles)
{
    frmsplit* split = newSplit();
    folder.write(QStringLiteral("empty.csv"), "");
    folder.write(QStringLiteral("nul.csv"), QByteArray("a\0b,c\r\n", 7));
    folder.write(QStringLiteral("ends.csv"), "a,b\r\nc\nd\re,f,g,h\r\n");
    folder.write(QStringLiteral("latin.csv"), "caf\xe9,\xff\r\n");
    folder.write(QStringLiteral("binary.csv"), QByteArray("\x01,\x02\x00\x03\r\x7f", 7));
    const QString tag = u(fileTableTag);
    const struct {
        const char* name;
        QString path;
        QString expected;  // empty: nothing inserted
    } cases[] = {
        {"a missing file", folder.file(QStringLiteral("gone.csv")), QString()},
        {"no location", QString(), QString()},
        {"a folder", folder.path(), QString()},
        {"a device that never ends", QStringLiteral("/dev/zero"), QString()},
        {"an empty file: no rows", folder.file(QStringLiteral("empty.csv")), tag + u("</table>\r\n")},
        {"NUL bytes stay in their cell", folder.file(QStringLiteral("nul.csv")),
         tag + u("\r\n<tr>\r\n<td>") + QString::fromUtf8("a\0b", 3) + u("</td>\r\n<td>c</td>\r\n</tr>\r\n</table>\r\n")},
        {"CR LF, LF and CR each end a line", folder.file(QStringLiteral("ends.csv")),
         tag + u("\r\n<tr>\r\n<td>a</td>\r\n<td>b</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>c</td>\r\n</tr>\r\n"
                 "\r\n<tr>\r\n<td>d</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>e</td>\r\n<td>f</td>\r\n<td>g</td>\r\n</tr>\r\n</table>\r\n")},
        {"bytes that are not UTF-8 read as Windows-1252", folder.file(QStringLiteral("latin.csv")),
         tag + u("\r\n<tr>\r\n<td>café</td>\r\n<td>ÿ</td>\r\n</tr>\r\n</table>\r\n")},
        {"a binary file", folder.file(QStringLiteral("binary.csv")),
         tag + u("\r\n<tr>\r\n<td>\x01</td>\r\n<td>") + QString::fromUtf8("\x02\x00\x03", 3) +
             u("</td>\r\n</tr>\r\n\r\n<tr>\r\n<td>\x7f</td>\r\n</tr>\r\n</table>\r\n")},
    };
    for (const auto& c : cases) {
        split->CodeMax1()->setText(QString());
        CSVWizard* w = open<CSVWizard>(QStringLiteral("CSV Table Wizard"));
        w->txtlocation->setText(c.path);
        w->Command2->click();
        EXPECT_FALSE(w->isVisible()) << c.name;
        EXPECT_EQ(split->CodeMax1()->text(), c.expected) << c.name << "\n" << visible(split->CodeMax1()->text());
    }
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

// A big file is made a table on a worker thread: the status line tells how far it has come,
// the buttons wait, and closing the window stops the build with nothing inserted.
TEST_F(TableWizardsTest, CsvWizardMakesABigFileATableInTheBackground)
{
    frmDocument* page = newPage();
    folder.write(QStringLiteral("big.csv"), QByteArray("a,b\r\n").repeated(20000));
    const qint64 held = CSVWizard::backgroundFrom;
    CSVWizard::backgroundFrom = 1024;
    frmMain* main = frmMain::instance();

    CSVWizard* w = openWithFile(QStringLiteral("Insert .CSV File"), folder.file(QStringLiteral("big.csv")));
    ASSERT_NE(w, nullptr);
    w->Command2->click();
    EXPECT_TRUE(w->building());
    EXPECT_FALSE(w->Command1->isEnabled());
    EXPECT_FALSE(w->Command2->isEnabled());
    EXPECT_TRUE(main->statusText(1).startsWith(QStringLiteral("Making a table of big.csv ... ")))
        << main->statusText(1).toStdString();
    EXPECT_TRUE(main->statusText(1).endsWith(QStringLiteral(" %  (closing the Table Wizard stops it)")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !w->building(); }, 20000));
    EXPECT_EQ(page->CodeMax1()->text(),
              u(fileTableTag) + u("\r\n<tr>\r\n<td>a</td>\r\n<td>b</td>\r\n</tr>\r\n").repeated(20000) + u("</table>\r\n"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(main->statusText(1), QString());
    // The menu's Undo takes the whole table out again, and Redo puts it back.
    const QString table = page->CodeMax1()->text();
    saveShot(main, QStringLiteral("csv-table-in-page"));
    main->MenuClick(QStringLiteral("Undo"));
    EXPECT_EQ(page->CodeMax1()->text(), QString());
    saveShot(main, QStringLiteral("csv-table-undone"));
    main->MenuClick(QStringLiteral("Redo"));
    EXPECT_EQ(page->CodeMax1()->text(), table);

    // Closed before the build is taken in: nothing goes in, the buttons are as they were.
    page->CodeMax1()->setText(QString());
    w = openWithFile(QStringLiteral("Insert .CSV File"), folder.file(QStringLiteral("big.csv")));
    w->Command2->click();
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_FALSE(w->building());
    EXPECT_FALSE(w->isVisible());
    processEvents();
    EXPECT_EQ(page->CodeMax1()->text(), QString());
    EXPECT_EQ(main->statusText(1), QStringLiteral("The table was not made: the Table Wizard was closed."));
    EXPECT_TRUE(w->Command1->isEnabled());
    EXPECT_TRUE(w->Command2->isEnabled());
    EXPECT_FALSE(w->Command3->isEnabled());

    // Without a document the background build ends on the failure path, silently.
    page->Changedvalue()->setText(QString());
    page->close();
    processEvents();
    w = openWithFile(QStringLiteral("Insert .CSV File"), folder.file(QStringLiteral("big.csv")));
    w->Command2->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !w->building(); }, 20000));
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().size() == 3) << "only the three file choosers";
    CSVWizard::backgroundFrom = held;
}
