// The Options dialog as the settings store, its pages and its save; the layout file.
#include "colour/ColourSwatch.h"
#include "common/TestSupport.h"
#include "platform/CheckValue.h"
#include "services/Settings.h"
#include "shell/AppProperties.h"
#include "shell/Options.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

namespace {
// The dialog's save of its design values: every field in the quoted form.
const QByteArray savedDesignValues =
    "0\r\n1\r\n1\r\n1\r\n\"Maximized\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n\"HTML\"\r\n255\r\n\"#FF0000\"\r\n"
    "16711680\r\n\"#0000FF\"\r\n65280\r\n\"#00FF00\"\r\n\"Arial\"\r\n\"5\"\r\n\"MS Sans Serif\"\r\n\"8\"\r\n"
    "\"Script\"\r\n\"12\"\r\n\"Comic Sans MS\"\r\n\"14\"\r\n\"Lucida Console\"\r\n\"18\"\r\n\"Trebuchet MS\"\r\n"
    "\"24\"\r\n\".htm,.html,.asp,.aspx,.txt\"\r\n\".htm,.html,.asp,.aspx,.txt\"\r\n1\r\n";

class OptionsTest : public WindowTest {
protected:
    OptionsTest() : WindowTest(false) {}
    void SetUp() override { options = form<Options>(); }
    Options* options = nullptr;
};

QTreeWidgetItem* node(QTreeWidget* tree, const QString& text)
{
    const auto found = tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}
}

TEST_F(OptionsTest, TreeNodesInOrderWithTheirKeys)
{
    QTreeWidget* tree = options->findChild<QTreeWidget*>(QStringLiteral("Tree"));
    ASSERT_NE(tree, nullptr);
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* root = tree->topLevelItem(0);
    EXPECT_EQ(root->text(0), QStringLiteral("Options"));
    EXPECT_EQ(root->data(0, Qt::UserRole).toString(), QStringLiteral("root"));
    const QStringList texts = {QStringLiteral("Start Up"), QStringLiteral("FTP"), QStringLiteral("Colour"),
                               QStringLiteral("Headings"), QStringLiteral("Tag's"), QStringLiteral("File Extension's")};
    const QStringList keys = {QStringLiteral("frstartup"), QStringLiteral("frftp"), QStringLiteral("frcolour"),
                              QStringLiteral("frheading"), QStringLiteral("frtag"), QStringLiteral("frmEx")};
    ASSERT_EQ(root->childCount(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(root->child(i)->text(0), texts[i]);
        EXPECT_EQ(root->child(i)->data(0, Qt::UserRole).toString(), keys[i]);
    }
}

TEST_F(OptionsTest, ANodeClickShowsItsFrameAndHidesTheOthers)
{
    EXPECT_EQ(options->visiblePage(), QStringLiteral("frstart"));
    QTreeWidget* tree = options->Tree;
    const QList<std::pair<QString, QString>> clicks = {
        {QStringLiteral("File Extension's"), QStringLiteral("frmExtension")},
        {QStringLiteral("Tag's"), QStringLiteral("frtag")},
        {QStringLiteral("Options"), QStringLiteral("frstart")},
        {QStringLiteral("Headings"), QStringLiteral("frheading")}};
    for (const auto& [text, frame] : clicks) {
        QTreeWidgetItem* item = node(tree, text);
        ASSERT_NE(item, nullptr) << text.toStdString();
        Q_EMIT tree->itemClicked(item, 0);
        int shown = 0;
        for (const char* name : {"frstart", "frstartup", "frftp", "frcolour", "frheading", "frtag", "frmExtension", "frsave"})
            shown += options->findChild<QFrame*>(QString::fromLatin1(name))->isHidden() ? 0 : 1;
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(options->visiblePage(), frame);
    }
    // No node bears "frsave", but the key is handled.
    saveShot(options, QStringLiteral("options-headings"));
    options->showPage(QStringLiteral("frsave"));
    EXPECT_EQ(options->visiblePage(), QStringLiteral("frsave"));
    options->showPage(QStringLiteral("nothing"));
    EXPECT_EQ(options->visiblePage(), QStringLiteral("frsave"));
}

TEST_F(OptionsTest, PageTextsAndCaptions)
{
    auto hasLabel = [this](const QString& text) {
        for (QLabel* l : options->findChildren<QLabel*>())
            if (l->text() == text)
                return true;
        return false;
    };
    EXPECT_TRUE(hasLabel(QStringLiteral("You can change the program settings from this point, use the menu bar on the left to navigate.")));
    EXPECT_TRUE(hasLabel(QStringLiteral("Click \"Apply\" to save the changes.")));
    EXPECT_TRUE(hasLabel(QStringLiteral("Press the Save button below to save current options, some settings will not work until Velloro 2002 has been restarted.")));
    EXPECT_TRUE(hasLabel(QStringLiteral("Here you can save your FTP upload information to make it quicker when using the Velloro 2002 [This section is frozen, click below to create Multiple profile's]")));
    EXPECT_TRUE(hasLabel(QStringLiteral("You can choose the file extensions the file Open and Save dialogs show by entering your own extensions below, simple add a , then the extension like ,.htm")));
    EXPECT_EQ(options->LNEW->text(), QStringLiteral("Load \"StartUp\" window at startup"));
    EXPECT_EQ(options->Command3->text(), QStringLiteral("Create FTP Profiles"));
    EXPECT_EQ(options->Command1->text(), QStringLiteral("Colour Lab"));
    EXPECT_EQ(options->SmartNetButton1->text(), QStringLiteral("Close"));
    EXPECT_EQ(options->SmartNetButton3->text(), QStringLiteral("Apply"));
    QStringList systypes;
    for (int i = 0; i < options->systype->count(); ++i)
        systypes << options->systype->itemText(i);
    EXPECT_EQ(systypes, (QStringList{QStringLiteral("HTML"), QStringLiteral("XML"), QStringLiteral("Java"), QStringLiteral("Basic"),
                                     QStringLiteral("SQL"), QStringLiteral("Pascal"), QStringLiteral("<none>")}));
    EXPECT_EQ(options->tagc->text(), QStringLiteral("\"#0000FF\""));
}

TEST_F(OptionsTest, ApplyReplacesTheFileWithAllFieldsQuotedAndHides)
{
    folder.write(QStringLiteral("Options/Details.dat"), QByteArray(100000, 'x'));
    options->show();
    options->ApplyDetails();
    EXPECT_EQ(folder.read(QStringLiteral("Options/Details.dat")), savedDesignValues);
    EXPECT_EQ(options->Label31->text(), QStringLiteral("Status :: Saved"));
    EXPECT_FALSE(options->isVisible());
}

TEST_F(OptionsTest, ApplyKeepsCommasInTheExtensionListsAndReadsThemBack)
{
    options->txtSaveEx->setText(QStringLiteral(".htm,.shtml"));
    options->WEBFOLDER->setText(QStringLiteral("/home/user/web, sites"));
    setCheckValue(options->CSS, 1);
    options->ApplyDetails();
    const DetailsRecord back = DetailsFile::parse(QString::fromUtf8(folder.read(QStringLiteral("Options/Details.dat"))));
    EXPECT_EQ(back.txtSaveEx, QStringLiteral(".htm,.shtml"));
    EXPECT_EQ(back.WEBFOLDER, QStringLiteral("/home/user/web, sites"));
    EXPECT_EQ(back.CSS, 1);
}

TEST_F(OptionsTest, ChangeCopiesFontAndSizeIntoTheChosenLevel)
{
    options->Combo4->setCurrentText(QStringLiteral("3"));
    options->Combo1->setCurrentText(QStringLiteral("Verdana"));
    options->Combo3->setCurrentText(QStringLiteral("36"));
    options->Command6->click();
    EXPECT_EQ(options->HeadingFont[2]->text(), QStringLiteral("Verdana"));
    EXPECT_EQ(options->HeadingSize[2]->text(), QStringLiteral("36"));
    EXPECT_EQ(options->HeadingFont[1]->text(), QStringLiteral("MS Sans Serif")) << "other levels stay";

    for (const char* other : {"7", "0", "x", "", " 3"}) {
        options->Combo4->setCurrentText(QString::fromLatin1(other));
        options->Combo1->setCurrentText(QStringLiteral("Courier"));
        options->Command6->click();
    }
    QStringList fonts;
    for (QLineEdit* e : options->HeadingFont)
        fonts << e->text();
    EXPECT_EQ(fonts, (QStringList{QStringLiteral("Arial"), QStringLiteral("MS Sans Serif"), QStringLiteral("Verdana"),
                                  QStringLiteral("Comic Sans MS"), QStringLiteral("Lucida Console"), QStringLiteral("Trebuchet MS")}));
}

TEST_F(OptionsTest, ChooseTurnsTheColourIntoQuotedText)
{
    // Red 0x12, green 0x34, blue 0x56: the platform value has red in the low byte.
    prompts.answerColour(0x563412);
    options->Command2->click();
    EXPECT_EQ(options->tagc->text(), QStringLiteral("\"#123456\""));
    EXPECT_EQ(options->Shape3->BackColor(), 0x563412);

    prompts.answerColour(0x00000A);  // few digits: padded before the pairs are turned round
    options->Command2->click();
    EXPECT_EQ(options->tagc->text(), QStringLiteral("\"#0A0000\""));

    prompts.answerColour(std::nullopt);
    options->Command2->click();
    EXPECT_EQ(options->tagc->text(), QStringLiteral("\"#0A0000\"")) << "a cancelled dialog changes nothing";
}

// The rest of the program reads the settings as values: every change of a control is in them
// at once, saved or not.
TEST_F(OptionsTest, TheSettingsValuesFollowTheControls)
{
    options->txtSaveEx->setText(QStringLiteral(".htm,.php"));
    EXPECT_EQ(Settings::details().txtSaveEx, QStringLiteral(".htm,.php"));
    setCheckValue(options->CSS, 1);
    EXPECT_EQ(Settings::details().CSS, 1);
    setCheckValue(options->CSS, 0);
    EXPECT_EQ(Settings::details().CSS, 0);
    options->Combo4->setCurrentText(QStringLiteral("2"));
    options->Combo1->setCurrentText(QStringLiteral("Georgia"));
    options->Command6->click();
    EXPECT_EQ(Settings::details().HeadingFont[1], QStringLiteral("Georgia"));
    options->SSTART->setCurrentText(QStringLiteral("Normal"));
    EXPECT_EQ(Settings::details().SSTART, QStringLiteral("Normal"));
    EXPECT_EQ(Settings::details(), options->values());

    // A value set from a file is in force the same way.
    DetailsRecord r = options->values();
    r.txtOpenEx = QStringLiteral(".txt");
    r.Shape6 = 0x123456;
    options->setValues(r);
    EXPECT_EQ(Settings::details(), r);
}

TEST_F(OptionsTest, FtpClearEmptiesTheThreeFields)
{
    options->ftpadd->setText(QStringLiteral("ftp.example.org"));
    options->ftpuser->setText(QStringLiteral("me"));
    options->ftppass->setText(QStringLiteral("secret"));
    options->SmartNetButton2->click();
    EXPECT_TRUE(options->ftpadd->text().isEmpty());
    EXPECT_TRUE(options->ftpuser->text().isEmpty());
    EXPECT_TRUE(options->ftppass->text().isEmpty());
}

TEST_F(OptionsTest, CloseHidesAndKeepsUnsavedValuesInForce)
{
    options->show();
    options->carot->setText(QStringLiteral("12"));
    options->SmartNetButton1->click();
    EXPECT_FALSE(options->isVisible());
    EXPECT_EQ(form<Options>()->carot->text(), QStringLiteral("12"));
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("Options/Details.dat"))));
}

TEST_F(OptionsTest, TipStripCloseButtonSwitchesTheTipOffAndSaves)
{
    startWithoutPage();
    frmMain* main = frmMain::instance();
    main->Tooltipframe->show();
    main->SmartNetButton75->click();
    EXPECT_TRUE(main->Tooltipframe->isHidden());
    EXPECT_EQ(checkValue(options->ToolTip), 0);
    EXPECT_TRUE(folder.read(QStringLiteral("Options/Details.dat")).endsWith("\r\n0\r\n"));
}

// The layout file.

class LayoutTest : public WindowTest {
protected:
    LayoutTest() : WindowTest(false) {}
    void SetUp() override { startWithoutPage(); }
    void writeLayout(const QByteArray& side, const QByteArray& right, const QByteArray& firstPath = "/")
    {
        folder.write(QStringLiteral("Options/Properties.dat"),
                     firstPath + "\r\n/\r\n/\r\n/\r\n/\r\n/\r\n" + side + "\r\n" + right + "\r\n");
    }
};

TEST_F(LayoutTest, StoredWidthsFoldTheHolders)
{
    frmMain* main = frmMain::instance();
    writeLayout(" 475 ", " 140 ");
    form<AppProperties>()->LoadProperties();
    EXPECT_EQ(main->SideholderWidth(), 475);
    EXPECT_EQ(main->LeftMenuIn->text(), QStringLiteral("Move Menu Out"));
    EXPECT_EQ(main->RightHolderWidth(), 140);
    EXPECT_EQ(main->RightMenuIn->toolTip(), QStringLiteral("Move Menu Out"));

    writeLayout("476", "139");
    form<AppProperties>()->LoadProperties();
    EXPECT_EQ(main->SideholderWidth(), 3470) << "any other width counts as open";
    EXPECT_EQ(main->LeftMenuIn->text(), QStringLiteral("Move Menu In"));
    EXPECT_EQ(main->RightHolderWidth(), 720);
}

TEST_F(LayoutTest, ACommaInAPathShiftsTheLaterFields)
{
    frmMain* main = frmMain::instance();
    // The first path splits in two, so the right holder's field reads the seventh line.
    writeLayout("475", "3470", "/tmp/a,b");
    form<AppProperties>()->LoadProperties();
    EXPECT_EQ(main->SideholderWidth(), 3470);
    EXPECT_EQ(main->RightHolderWidth(), 720);
    folder.write(QStringLiteral("Options/Properties.dat"), "/a,b\r\n/\r\n/\r\n/\r\n/\r\n/\r\n140\r\n9\r\n");
    form<AppProperties>()->LoadProperties();
    EXPECT_EQ(main->RightHolderWidth(), 140) << "line 7 lands in the right holder's field";
}

TEST_F(LayoutTest, AMissingFileIsWrittenFromTheCurrentLayout)
{
    frmMain* main = frmMain::instance();
    main->LeftMenuIn_Click();
    EXPECT_EQ(main->SideholderWidth(), 475);
    AppProperties* props = form<AppProperties>();
    props->LoadProperties();
    const QByteArray written = folder.read(QStringLiteral("Options/Properties.dat"));
    const QList<QByteArray> lines = written.split('\n');
    ASSERT_EQ(lines.size(), 9) << written.constData();
    EXPECT_EQ(lines[6], " 475 \r");
    EXPECT_EQ(lines[7], " 720 \r");
    EXPECT_EQ(props->Label1->text(), QStringLiteral("Status :: Saved"));

    // And it loads back the same way after the holders moved.
    main->LeftMenuIn_Click();
    EXPECT_EQ(main->SideholderWidth(), 3470);
    props->LoadProperties();
    EXPECT_EQ(main->SideholderWidth(), 475);
}

TEST_F(LayoutTest, DamagedLayoutIsIgnored)
{
    frmMain* main = frmMain::instance();
    folder.write(QStringLiteral("Options/Properties.dat"), QByteArray("\"unterminated\r\n\0\0\xff", 18));
    form<AppProperties>()->LoadProperties();
    EXPECT_EQ(main->SideholderWidth(), 3470);
    EXPECT_EQ(main->RightHolderWidth(), 720);
}
