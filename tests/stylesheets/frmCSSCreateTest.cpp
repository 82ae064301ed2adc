// The style sheet designer: opened by its menu key with its property list, the value editors over
// the grid, the declaration and the sheet previews (in the real browser view), insertion at its
// own caret whatever document is active, open, new and save, and a property list that is
// missing, empty, short, long or binary.
#include "wizards/WizardFixture.h"

#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "platform/WebBrowser.h"
#include "services/Commands.h"
#include "shell/frmMain.h"
#include "stylesheets/StyleSheets.h"
#include "stylesheets/frmCSSCreate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFocusEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

namespace {
// A small list: two groups and a line with too few fields.
const QByteArray smallList = "Font||top|3\r\n"
                             "font-family|Arial|text|\r\n"
                             "font-weight||drop|normal,bold,bolder\r\n"
                             "font-size|12px|num|\r\n"
                             "Colours||top|2\r\n"
                             "color||color|\r\n"
                             "background-color|#FFFFF0|color|\r\n"
                             "odd|x\r\n";
enum SmallRow { FontGroup, FontFamily, FontWeight, FontSize, ColourGroup, Colour, Background, Odd };

const QByteArray head = "<html><head><title>Preview</title>\r\n<style type=text/css>\r\n";
const QByteArray body = "\r\n</style>\r\n</head>\r\n<body>\r\n";
const QByteArray footer = "<p align=center><font size=2><a href=https://velloro.example/ target=_blank>"
                          "Created By Velloro 2002</a></font></p>\r\n</body></html>";
QByteArray samplePage(const QByteArray& declaration)
{
    return "<html><head><title>Velloro 2002 CSS Preview</title><style type=text/css>.tspreview{\r\n" + declaration +
           "\r\n}</style></head><body><p align=center><div class=tspreview>Sample Text</div></p></body></html>";
}

class DesignerTest : public WizardFixture {
protected:
    frmCSSCreate* openDesigner()
    {
        frmMain::instance()->MenuClick(QStringLiteral("CSS Document"));
        return loadedForm<frmCSSCreate>();
    }
    frmCSSCreate* openWith(const QByteArray& list)
    {
        folder.write(QStringLiteral("Options/CSS/IE6.DAT"), list);
        auto* w = openDesigner();
        EXPECT_NE(w, nullptr);
        return w;
    }
    // A click on a row of the grid, as the mouse gives it.
    static void clickRow(frmCSSCreate* w, int row)
    {
        w->Flex->scrollToItem(w->Flex->item(row, 0));
        const QRect cell = w->Flex->visualItemRect(w->Flex->item(row, 0));
        QTest::mouseClick(w->Flex->viewport(), Qt::LeftButton, {}, cell.center());
    }
    static QString cell(frmCSSCreate* w, int row, int column) { return w->Flex->item(row, column)->text(); }
    QByteArray preview() const { return folder.read(QStringLiteral("Options/CSS/CSSPreview.htm")); }
    QByteArray sample() const { return folder.read(QStringLiteral("Options/CSS/Sample.htm")); }
    static void type(QLineEdit* field, const QString& text)
    {
        QTest::keyClicks(field, text);
    }
};
}

TEST_F(DesignerTest, OpensFromItsMenuKeyWithThePropertyListAndBothPreviews)
{
    EXPECT_TRUE(Commands::available(QStringLiteral("CSS Document")));
    auto* w = openDesigner();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Velloro 2002 CSS Creator + Editor"));

    // The shipped list, one grid row per line, in order.
    const QList<QByteArray> lines = folder.read(QStringLiteral("Options/CSS/IE6.DAT")).trimmed().split('\n');
    ASSERT_EQ(w->Flex->rowCount(), lines.size());
    EXPECT_EQ(cell(w, 0, 0), QStringLiteral("    Font"));
    EXPECT_EQ(cell(w, 1, 0), QStringLiteral("    font-family"));
    EXPECT_EQ(cell(w, 1, 1), QStringLiteral("Arial, Helvetica, sans-serif"));
    EXPECT_EQ(cell(w, 1, 2), QStringLiteral("text"));

    // Labels, tips and texts of the window.
    EXPECT_EQ(labelOf(w->lblResult), QStringLiteral("Selected Property List Item :"));
    EXPECT_EQ(labelOf(w->Webb), QStringLiteral("Selected Property List Item Preview :"));
    EXPECT_EQ(labelOf(w->txtfile), QStringLiteral("Open File :"));
    EXPECT_EQ(w->ChkUpdate->text(), QStringLiteral("Update Main Automatically"));
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Web Preview on Text Box change ?"));
    EXPECT_FALSE(w->ChkUpdate->isChecked());
    EXPECT_FALSE(w->Check1->isChecked());
    const std::pair<QPushButton*, const char*> tips[] = {
        {w->Command2, "Insert Tag into main css editor"}, {w->Command1, "Reset single tag property selected"},
        {w->Command3, "Update Preview screen manualy"},   {w->Command5, "Create a new .css document"},
        {w->Command6, "Save current .css document"},
    };
    for (const auto& [b, tip] : tips)
        EXPECT_EQ(b->toolTip(), QLatin1String(tip)) << tip;
    EXPECT_EQ(w->Label4->text(),
              QStringLiteral("ABOUT: You can edit or create a new .css document from here, to edit a file, click the "
                             "\"Open\" then click between the {} in the document and select items from the right hand "
                             "list. When saving a new file, enter a location and name plus .css and click \"Save\" and "
                             "the file will be generated."));
    // Every control answers to its name.
    for (const char* name : {"CodeMax1", "WebBrowser1", "Webb", "lblResult", "txtfile", "Combo1", "txtinput", "txtnum",
                             "UpDown1", "ChkUpdate", "Check1", "Command1", "Command2", "Command3", "Command4",
                             "Command5", "Command6", "SmartNetButton1", "Flex", "Label4"})
        EXPECT_NE(w->findChild<QWidget*>(QLatin1String(name)), nullptr) << name;

    // The look: the heading blue behind, the editor's margin colours.
    EXPECT_EQ(w->palette().color(QPalette::Window), QColor(52, 129, 211));
    EXPECT_EQ(w->Command2->palette().color(QPalette::Button), QColor(193, 210, 238));

    // The new sheet, the caret between its braces, nothing changed, and both previews written.
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{           }"));
    int line = -1, index = -1;
    w->CodeMax1->getCursorPosition(&line, &index);
    EXPECT_EQ(line, 0);
    EXPECT_EQ(index, 7);
    EXPECT_FALSE(w->changed());
    EXPECT_EQ(sample(), samplePage(""));
    EXPECT_EQ(preview(), head + ".line{           }" + body + "\r\n<p><div class=line>Class line</div></p>\r\n" + footer);
    EXPECT_EQ(w->WebBrowser1->LocationURL(), QUrl::fromLocalFile(folder.file(QStringLiteral("Options/CSS/CSSPreview.htm"))));
    EXPECT_EQ(w->Webb->LocationURL(), QUrl::fromLocalFile(folder.file(QStringLiteral("Options/CSS/Sample.htm"))));

    // The launcher's item starts the same window.
    auto* central = form<CSSCentral>();
    central->Tree->setCurrentItem(central->Tree->topLevelItem(0)->child(3));
    w->hide();
    central->SmartNetButton1->click();
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(loadedForm<frmCSSCreate>(), w);
    saveShot(w, QStringLiteral("frmCSSCreate"));
}

TEST_F(DesignerTest, GroupsFoldAndUnfoldAndTheGridHasItsShape)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    ASSERT_EQ(w->Flex->rowCount(), 8);
    const int widths[3] = {120, 120, 40};  // 1800, 1800, 600 twips
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(w->Flex->columnWidth(c), widths[c]) << c;
    EXPECT_GE(w->Flex->columnWidth(3), 40);  // and what room is left
    EXPECT_FALSE(w->Flex->horizontalHeader()->isVisible());
    EXPECT_FALSE(w->Flex->verticalHeader()->isVisible());

    // A group row: bold, the face colour in its first two columns, a picture; a property row plain.
    for (int c = 0; c < 4; ++c) {
        const QTableWidgetItem* g = w->Flex->item(FontGroup, c);
        EXPECT_EQ(g->font().bold(), c <= 1) << c;
        EXPECT_EQ(g->background().color() == QColor(193, 210, 238), c <= 1) << c;
        EXPECT_FALSE(w->Flex->item(FontFamily, c)->font().bold());
    }
    EXPECT_EQ(cell(w, ColourGroup, 0), QStringLiteral("    Colours"));
    EXPECT_EQ(cell(w, ColourGroup, 3), QStringLiteral("2"));
    const qint64 minus = w->Flex->item(FontGroup, 0)->icon().cacheKey();
    EXPECT_FALSE(w->Flex->item(FontGroup, 0)->icon().isNull());
    EXPECT_TRUE(w->Flex->item(FontFamily, 0)->icon().isNull());

    // Fold, fold again: the rows of the group only, the picture turns, the cursor on the group.
    clickRow(w, FontGroup);
    for (int r = FontFamily; r <= FontSize; ++r)
        EXPECT_TRUE(w->Flex->isRowHidden(r)) << r;
    for (int r = ColourGroup; r <= Odd; ++r)
        EXPECT_FALSE(w->Flex->isRowHidden(r)) << r;
    EXPECT_NE(w->Flex->item(FontGroup, 0)->icon().cacheKey(), minus);
    EXPECT_EQ(w->Flex->currentRow(), FontGroup);
    EXPECT_EQ(w->Flex->currentColumn(), 0);
    saveShot(w, QStringLiteral("frmCSSCreate-folded"));
    clickRow(w, FontGroup);
    for (int r = 0; r < 8; ++r)
        EXPECT_FALSE(w->Flex->isRowHidden(r)) << r;
    EXPECT_EQ(w->Flex->item(FontGroup, 0)->icon().cacheKey(), minus);
    // A group click hides a value editor that was showing.
    clickRow(w, FontFamily);
    EXPECT_TRUE(w->txtinput->isVisible());
    clickRow(w, ColourGroup);
    EXPECT_FALSE(w->txtinput->isVisible());
    EXPECT_TRUE(w->Flex->isRowHidden(Colour));
    EXPECT_TRUE(w->Flex->isRowHidden(Background));
    EXPECT_FALSE(w->Flex->isRowHidden(Odd));
    EXPECT_EQ(prompts.prompts().size(), 0);
}

TEST_F(DesignerTest, GroupCountsThatTheGridCannotHoldAreTheGridsError)
{
    struct Case {
        const char* name;
        QByteArray list;
        QString box;
        int hiddenRows;  // of the rows that are there
    } cases[] = {
        {"beyond the last row", "G||top|5\r\na||text|\r\nb||text|\r\n",
         QStringLiteral("Run-time error '30009':\n\nInvalid Row value"), 2},
        {"no number", "G||top|many\r\na||text|\r\n", QStringLiteral("Run-time error '13':\n\nType mismatch"), 0},
    };
    for (const Case& c : cases) {
        auto* w = openWith(c.list);
        ASSERT_NE(w, nullptr) << c.name;
        prompts.answerMsgBox(1);
        clickRow(w, 0);
        ASSERT_EQ(prompts.prompts().size(), 1) << c.name;
        EXPECT_TRUE(isBox(prompts.last(), c.box, 16)) << c.name;
        int hidden = 0;
        for (int r = 1; r < w->Flex->rowCount(); ++r)
            hidden += w->Flex->isRowHidden(r);
        EXPECT_EQ(hidden, c.hiddenRows) << c.name;
        // The window goes on: the next row still edits.
        w->Flex->setRowHidden(1, false);
        clickRow(w, 1);
        EXPECT_TRUE(w->txtinput->isVisible()) << c.name;
        EXPECT_EQ(w->lblResult->text(), QStringLiteral("    a: ;")) << c.name;
        Forms::unload(w);
        processEvents();
        prompts.clear();
    }
}

TEST_F(DesignerTest, EachTypeHasItsEditorOverTheCell)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    const auto valueCell = [w](int row) { return w->Flex->visualItemRect(w->Flex->item(row, 1)); };

    // "text": the text box over the value, 1850 twips wide, filled from the cell.
    clickRow(w, FontFamily);
    EXPECT_TRUE(w->txtinput->isVisible());
    EXPECT_FALSE(w->Combo1->isVisible());
    EXPECT_EQ(w->txtinput->geometry().topLeft(), valueCell(FontFamily).topLeft());
    EXPECT_EQ(w->txtinput->width(), 123);
    EXPECT_EQ(w->txtinput->text(), QStringLiteral("Arial"));
    EXPECT_EQ(w->editedRow(), int(FontFamily));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-family: Arial;"));
    w->txtinput->selectAll();
    type(w->txtinput, QStringLiteral("Verdana"));
    EXPECT_EQ(cell(w, FontFamily, 1), QStringLiteral("Verdana"));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-family: Verdana;"));
    EXPECT_EQ(sample(), samplePage("    font-family: Verdana;"));
    // It hides when it loses the focus.
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(w->txtinput, &out);
    EXPECT_FALSE(w->txtinput->isVisible());

    // "drop": the choices, the cell's value chosen, 1780 twips wide; a choice is the value.
    clickRow(w, FontWeight);
    EXPECT_TRUE(w->Combo1->isVisible());
    EXPECT_FALSE(w->txtinput->isVisible());
    EXPECT_EQ(items(w->Combo1), (QStringList{"normal", "bold", "bolder"}));
    EXPECT_EQ(w->Combo1->currentIndex(), -1);
    EXPECT_EQ(w->Combo1->width(), 119);
    EXPECT_EQ(w->Combo1->geometry().topLeft(), valueCell(FontWeight).topLeft());
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-weight: ;"));
    w->Combo1->setCurrentIndex(1);
    Q_EMIT w->Combo1->activated(1);
    EXPECT_EQ(cell(w, FontWeight, 1), QStringLiteral("bold"));
    EXPECT_EQ(w->Flex->item(FontWeight, 1)->toolTip(), QStringLiteral("bold"));
    EXPECT_EQ(w->Flex->item(FontWeight, 0)->toolTip(), QStringLiteral("font-weight"));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-weight: bold;"));
    saveShot(w, QStringLiteral("frmCSSCreate-drop"));
    clickRow(w, FontFamily);
    clickRow(w, FontWeight);
    EXPECT_EQ(w->Combo1->currentText(), QStringLiteral("bold"));

    // "num": the number of the value with the arrows beside it; the value is the number and "px".
    clickRow(w, FontSize);
    EXPECT_FALSE(w->Combo1->isVisible());
    EXPECT_TRUE(w->txtnum->isVisible());
    EXPECT_TRUE(w->UpDown1->isVisible());
    saveShot(w, QStringLiteral("frmCSSCreate-num"));
    EXPECT_EQ(w->txtnum->text(), QStringLiteral("12"));
    EXPECT_EQ(w->txtnum->geometry().topLeft(), valueCell(FontSize).topLeft());
    EXPECT_EQ(w->UpDown1->geometry().left(), w->txtnum->geometry().right() + 1);
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-size: 12px;"));
    type(w->txtnum, QStringLiteral("4"));
    EXPECT_EQ(cell(w, FontSize, 1), QStringLiteral("124px"));
    const auto arrow = [w](bool up) {
        QTest::mouseClick(w->UpDown1, Qt::LeftButton, {}, QPoint(8, up ? 2 : w->UpDown1->height() - 2));
    };
    arrow(false);
    EXPECT_EQ(w->txtnum->text(), QStringLiteral("123"));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-size: 123px;"));
    w->txtnum->clear();
    arrow(true);
    arrow(true);
    EXPECT_EQ(cell(w, FontSize, 1), QStringLiteral("2px"));
    QApplication::sendEvent(w->txtnum, &out);
    EXPECT_FALSE(w->txtnum->isVisible());
    EXPECT_FALSE(w->UpDown1->isVisible());

    // "color": the colour dialog, from the cell's colour; the web colour in capitals; a cancel
    // changes nothing.
    prompts.answerColour(0x0AFBC0);
    clickRow(w, Colour);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("Colour"));
    EXPECT_EQ(cell(w, Colour, 1), QStringLiteral("#C0FB0A"));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    color: #C0FB0A;"));
    prompts.answerColour(std::nullopt);
    clickRow(w, Background);
    EXPECT_EQ(cell(w, Background, 1), QStringLiteral("#FFFFF0"));
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    color: #C0FB0A;"));

    // A row of no known type shows no editor.
    clickRow(w, Odd);
    for (QWidget* e : {static_cast<QWidget*>(w->Combo1), static_cast<QWidget*>(w->txtinput),
                       static_cast<QWidget*>(w->txtnum), static_cast<QWidget*>(w->UpDown1)})
        EXPECT_FALSE(e->isVisible()) << e->objectName().toStdString();
    EXPECT_EQ(prompts.pending(), 0);
}

// The designer has no part in the active document: with a page, a split window, a notepad or
// nothing open, the declaration goes to its own editor and the document stays as it was.
enum class Active { Nothing, Page, Split, Pad };
class DesignerInsertTest : public DesignerTest, public ::testing::WithParamInterface<Active> {};

TEST_P(DesignerInsertTest, DeclarationGoesInAtTheDesignersOwnCaret)
{
    DocumentWindow* active = nullptr;
    switch (GetParam()) {
    case Active::Nothing: break;
    case Active::Page: active = newPage(QStringLiteral("<p>page</p>")); break;
    case Active::Split: active = newSplit(); active->CodeMax1()->setText(QStringLiteral("<p>split</p>")); break;
    case Active::Pad: active = newPad(QStringLiteral("pad")); break;
    }
    const auto documentText = [active] {
        return active->Tag() == QLatin1String("Pad") ? active->RichTextBox1()->text() : active->CodeMax1()->text();
    };
    const QString before = active ? documentText() : QString();
    ASSERT_EQ(frmMain::instance()->ActiveForm(), active);

    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    clickRow(w, FontFamily);
    w->CodeMax1->setCursorPosition(0, 7);
    w->Command2->click();
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{     font-family: Arial;          }"));
    EXPECT_EQ(w->CodeMax1->SelLength(), 0);
    int line = -1, index = -1;
    w->CodeMax1->getCursorPosition(&line, &index);
    EXPECT_EQ(index, 30);
    EXPECT_TRUE(w->changed());
    // Reset empties the declaration, and the sample page with it.
    w->Command1->click();
    EXPECT_TRUE(w->lblResult->text().isEmpty());
    EXPECT_EQ(sample(), samplePage(""));

    EXPECT_EQ(frmMain::instance()->ActiveForm(), active);
    if (active) {
        EXPECT_EQ(documentText(), before);
    }
    EXPECT_EQ(prompts.prompts().size(), 0);
}

INSTANTIATE_TEST_SUITE_P(Documents, DesignerInsertTest,
                         ::testing::Values(Active::Nothing, Active::Page, Active::Split, Active::Pad));

TEST_F(DesignerTest, UpdateMainAutomaticallyInsertsEachDeclarationOnALineOfItsOwn)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    w->ChkUpdate->setChecked(true);
    clickRow(w, FontFamily);
    // The declaration on a new line at the caret, then the preview's small letters.
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{ \r\n    font-family: arial;          }"));
    clickRow(w, FontWeight);
    w->Combo1->setCurrentIndex(2);
    Q_EMIT w->Combo1->activated(2);
    // Each change of the declaration is one more line, behind the last: the caret stayed.
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{ \r\n    font-family: arial;\r\n    font-weight: ;"
                                                  "\r\n    font-weight: bolder;          }"));
    EXPECT_EQ(w->CodeMax1->SelLength(), 0);
    EXPECT_EQ(preview(), head + ".line{ \r\n    font-family: arial;\r\n    font-weight: ;\r\n    font-weight: bolder;"
                                "          }" + body + "\r\n<p><div class=line>Class line</div></p>\r\n" + footer);
    EXPECT_EQ(sample(), samplePage("    font-weight: bolder;"));
    EXPECT_EQ(prompts.prompts().size(), 0);
}

TEST_F(DesignerTest, SheetPreviewTurnsTheSheetToSmallLettersAndShowsItsRules)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    w->CodeMax1->setText(QStringLiteral("A:Link{Font-Family: Arial}\r\n.Note {}\r\nH2{}"));
    w->CodeMax1->setSelection(1, 0, 1, 5);
    w->Command3->click();
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("a:link{font-family: arial}\r\n.note {}\r\nh2{}"));
    // The selection stays where the user left it.
    EXPECT_EQ(w->CodeMax1->SelText(), QStringLiteral(".note"));
    EXPECT_EQ(preview(), head + "a:link{font-family: arial}\r\n.note {}\r\nh2{}" + body +
                             "\r\n<p><div class=note >Class note </div></p>\r\n"
                             "<a href=https://velloro.example/ target=_blank>Element a</a><br>\r\n"
                             "<H2>Element H2</H2><br>\r\n" + footer);

    // Ticking Check1 warns, and keeps its tick; then every change of the sheet shows itself.
    prompts.answerMsgBox(1);
    w->Check1->click();
    EXPECT_TRUE(isBox(prompts.last(),
                      QStringLiteral("Dont have this ticked when selecting from the Property List unless you have a fast PC!"), 16));
    EXPECT_TRUE(w->Check1->isChecked());
    w->CodeMax1->setText(QStringLiteral("H1{}"));
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("h1{}"));
    EXPECT_EQ(preview(), head + "h1{}" + body + "<H1>Element H1</H1><br>\r\n" + footer);
    // Clearing the tick asks nothing.
    w->Check1->click();
    EXPECT_EQ(prompts.prompts().size(), 1);
    w->CodeMax1->setText(QStringLiteral("H3{}"));
    EXPECT_EQ(preview(), head + "h1{}" + body + "<H1>Element H1</H1><br>\r\n" + footer);

    // A preview page that cannot be written leaves the old one and says nothing.
    const QString page = folder.file(QStringLiteral("Options/CSS/CSSPreview.htm"));
    ASSERT_TRUE(QFile::remove(page));
    ASSERT_TRUE(QDir().mkpath(page));
    w->Command3->click();
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("h3{}"));
    EXPECT_EQ(prompts.prompts().size(), 1);
}

TEST_F(DesignerTest, ThePreviewShowsInTheBrowserView)
{
    auto* w = openDesigner();
    ASSERT_NE(w, nullptr);
    QList<QUrl> loads, samples;
    QObject::connect(w->WebBrowser1, &WebBrowser::NavigateComplete, w, [&](const QUrl& u) { loads.append(u); });
    QObject::connect(w->Webb, &WebBrowser::NavigateComplete, w, [&](const QUrl& u) { samples.append(u); });
    w->CodeMax1->setText(QStringLiteral("body {font-family: Arial, sans-serif}\r\nh1 {color: #3481D3}\r\n"
                                        ".Warning {background-color: #FF0000; color: #FFFFFF; padding: 20px}\r\n"
                                        "a:hover {color: #0000FF}\r\n"));
    w->Command3->click();
    // A declaration from the list, on the sample text.
    clickRow(w, 3);
    ASSERT_EQ(cell(w, 3, 0), QStringLiteral("    font-weight"));
    w->Combo1->setCurrentIndex(1);
    Q_EMIT w->Combo1->activated(1);
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    font-weight: bold;"));
    const QUrl page = QUrl::fromLocalFile(folder.file(QStringLiteral("Options/CSS/CSSPreview.htm")));
    const QUrl sample = QUrl::fromLocalFile(folder.file(QStringLiteral("Options/CSS/Sample.htm")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return loads.contains(page) && samples.contains(sample); }, 60000));
    // The rule's colour is on the screen: the class line took it.
    const auto redShown = [w] {
        const QImage shot = w->WebBrowser1->grab().toImage();
        for (int y = 0; y < shot.height(); y += 4)
            for (int x = 0; x < shot.width(); x += 4)
                if (shot.pixel(x, y) == qRgb(255, 0, 0))
                    return true;
        return false;
    };
    EXPECT_TRUE(QTest::qWaitFor(redShown, 20000));
    saveShot(w, QStringLiteral("frmCSSCreate-preview"));
}

TEST_F(DesignerTest, OpenNewAndSaveKeepTheirRules)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    const QString style = folder.file(QStringLiteral("site/Style.css"));
    folder.write(QStringLiteral("site/Style.css"), "BODY {Color: Navy}\r\n");

    // Save with nothing changed, then with no place to save to.
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("The file currently open hasnt changed."), 64));
    w->CodeMax1->setText(QStringLiteral("p {}"));
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No location to save file to."), 16));

    // A cancelled file dialog changes nothing; a chosen file is loaded and previewed.
    prompts.answerOpenFile(QString());
    w->Command4->click();
    EXPECT_TRUE(w->txtfile->text().isEmpty());
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("p {}"));
    prompts.answerOpenFile(style);
    w->Command4->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(prompts.last().text.contains(QStringLiteral("*.css")), true);
    EXPECT_EQ(w->txtfile->text(), style);
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral("body {color: navy}\r\n"));
    EXPECT_EQ(preview(), head + "body {color: navy}\r\n" + body + "\r\n<p><div class=body >Class body </div></p>\r\n" + footer);

    // Save writes the editor's text whole and clears the change.
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("File ") + style + QStringLiteral(" has been saved."), 64));
    EXPECT_EQ(folder.read(QStringLiteral("site/Style.css")), QByteArray("body {color: navy}\r\n"));
    EXPECT_FALSE(w->changed());
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("The file currently open hasnt changed."), 64));

    // New: the empty rule, the caret between its braces, and the open file stays the target.
    w->Command5->click();
    EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{           }"));
    int line = -1, index = -1;
    w->CodeMax1->getCursorPosition(&line, &index);
    EXPECT_EQ(index, 7);
    EXPECT_EQ(w->txtfile->text(), style);
    EXPECT_TRUE(w->changed());

    // A new file in a new name: created by the save.
    const QString fresh = folder.file(QStringLiteral("site/New.css"));
    w->txtfile->setText(fresh);
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_EQ(folder.read(QStringLiteral("site/New.css")), QByteArray(".line{           }"));

    // A save that fails is the platform's error: the old file stays whole, the change stays.
    w->CodeMax1->setText(QStringLiteral("h1 {}"));
    const QString blocked = folder.file(QStringLiteral("site/Blocked.css"));
    ASSERT_TRUE(QDir().mkpath(blocked));
    w->txtfile->setText(blocked);
    prompts.answerMsgBox(1);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '75':\n\nPath/File access error"), 16));
    EXPECT_TRUE(w->changed());
    EXPECT_TRUE(QFileInfo(blocked).isDir());
    // Opening a file that has gone is the platform's error too; the editor keeps its text.
    prompts.answerOpenFile(folder.file(QStringLiteral("site/Gone.css"))).answerMsgBox(1);
    w->Command4->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '53':\n\nFile not found"), 16));
    EXPECT_EQ(prompts.pending(), 0);
}

TEST_F(DesignerTest, HelpShowsTheStyleSheetGuide)
{
    auto* w = openWith(smallList);
    ASSERT_NE(w, nullptr);
    w->SmartNetButton1->click();
    QWidget* help = Forms::find(QStringLiteral("HelpSystem"));
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    auto* web = help->findChild<WebBrowser*>(QStringLiteral("Web1"));
    ASSERT_NE(web, nullptr);
    EXPECT_EQ(web->LocationURL(), QUrl::fromLocalFile(folder.file(QStringLiteral("Documents/Help/CSS Documents.htm"))));
    EXPECT_TRUE(QFileInfo::exists(folder.file(QStringLiteral("Documents/Help/CSS Documents.htm"))));
}

TEST_F(DesignerTest, APropertyListThatIsMissingEmptyOddLongOrBinary)
{
    const QString list = QStringLiteral("Options/CSS/IE6.DAT");
    // Missing: the platform's error names the file, and the window does not open.
    ASSERT_TRUE(QFile::remove(folder.file(list)));
    prompts.answerMsgBox(1);
    EXPECT_EQ(openDesigner(), nullptr);
    EXPECT_TRUE(isBox(prompts.last(),
                      QStringLiteral("Run-time error '53':\n\nFile not found: ") + QDir::toNativeSeparators(folder.file(list)), 16));
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("frmCSSCreate")));
    processEvents();

    struct Case {
        const char* name;
        QByteArray bytes;
        int rows;
        QString box;  // a message at load, if any
    } cases[] = {
        {"empty", "", 0, {}},
        {"short lines and extra fields", "a\r\nb|1\r\nc|2|text|x|y|z\r\n\r\n", 4, {}},
        {"binary", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), 0,
         QStringLiteral("The style property list ") + QDir::toNativeSeparators(folder.file(list)) +
             QStringLiteral(" cannot be read: it is not a text file. The list stays empty.")},
    };
    for (const Case& c : cases) {
        folder.write(list, c.bytes);
        if (!c.box.isEmpty())
            prompts.answerMsgBox(1);
        auto* w = openDesigner();
        ASSERT_NE(w, nullptr) << c.name;
        EXPECT_EQ(w->Flex->rowCount(), c.rows) << c.name;
        if (!c.box.isEmpty()) {
            EXPECT_TRUE(isBox(prompts.last(), c.box, 48)) << c.name;
        }
        // The window works without a list.
        w->Command5->click();
        w->lblResult->setText(QStringLiteral("    color: red;"));
        w->Command2->click();
        EXPECT_EQ(w->CodeMax1->text(), QStringLiteral(".line{     color: red;          }")) << c.name;
        for (int r = 0; r < w->Flex->rowCount(); ++r)
            clickRow(w, r);
        if (c.rows == 4) {
            EXPECT_EQ(cell(w, 0, 0), QStringLiteral("    a"));
            EXPECT_EQ(cell(w, 1, 1), QStringLiteral("1"));
            EXPECT_EQ(cell(w, 2, 3), QStringLiteral("x"));
            EXPECT_EQ(cell(w, 2, 2), QStringLiteral("text"));
            EXPECT_TRUE(w->txtinput->isHidden()) << "the last click was on an empty row";
        }
        Forms::unload(w);
        processEvents();
    }

    // 100,000 lines: one group over all the rest, which folds and unfolds at once.
    QByteArray many = "All||top|99999\r\n";
    for (int i = 1; i < 100000; ++i)
        many += "p" + QByteArray::number(i) + "||num|\r\n";
    folder.write(list, many);
    auto* w = openDesigner();
    ASSERT_NE(w, nullptr);
    ASSERT_EQ(w->Flex->rowCount(), 100000);
    EXPECT_EQ(cell(w, 99999, 0), QStringLiteral("    p99999"));
    clickRow(w, 0);
    EXPECT_TRUE(w->Flex->isRowHidden(99999));
    // The grid knows the rows are gone: nothing is left to scroll to.
    EXPECT_TRUE(QTest::qWaitFor([w] { return w->Flex->verticalScrollBar()->maximum() == 0; }, 5000));
    clickRow(w, 0);
    EXPECT_FALSE(w->Flex->isRowHidden(99999));
    EXPECT_TRUE(QTest::qWaitFor([w] { return w->Flex->verticalScrollBar()->maximum() > 1000; }, 5000));
    clickRow(w, 99999);
    EXPECT_TRUE(w->txtnum->isVisible());
    EXPECT_EQ(w->lblResult->text(), QStringLiteral("    p99999: ;"));
    EXPECT_EQ(prompts.pending(), 0);

    // The file back: the menu key opens the window again.
    Forms::unload(w);
    processEvents();
    folder.write(list, smallList);
    ASSERT_NE(openDesigner(), nullptr);
}
