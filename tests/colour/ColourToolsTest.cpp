// The colour finder and the quick palette: opened from their keys and buttons, their colours,
// texts and presets, what reaches the clipboard and the caret, and the screen read under the
// pointer (on a real X display only).
#include "common/TestSupport.h"

#include "colour/ColorQuick.h"
#include "colour/ColourPictures.h"
#include "colour/ColourSwatch.h"
#include "colour/PaletteTables.h"
#include "colour/ScreenPixel.h"
#include "colour/cfinderform.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "services/Settings.h"
#include "shell/Options.h"
#include "shell/frmMain.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolButton>

namespace {
const QString noData = QStringLiteral("Theres no data in the textbox to copy!");
const QString copyTitle = QStringLiteral("Color Copy Lab");

class ColourToolsTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    static cfinderform* openFinder(const QString& key = QStringLiteral("Colour Finder"))
    {
        frmMain::instance()->MenuClick(key);
        auto* w = loadedForm<cfinderform>();
        EXPECT_NE(w, nullptr) << key.toStdString();
        if (w) {
            EXPECT_TRUE(w->isVisible()) << key.toStdString();
        }
        return w;
    }
    static ColorQuick* openPalette()
    {
        QToolButton* opener = frmMain::instance()->quickColour;
        EXPECT_TRUE(opener->isEnabled());
        opener->click();
        auto* w = loadedForm<ColorQuick>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
    static bool hasLabel(const QWidget* w, const QString& text)
    {
        for (const QLabel* l : w->findChildren<QLabel*>())
            if (l->text() == text)
                return true;
        return false;
    }
    // The colour a button's face shows, read from its picture.
    static QColor face(QWidget* b)
    {
        const QImage image = b->grab().toImage();
        return image.pixelColor(4, image.height() / 2);
    }
    static int value(const QColor& c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }
    static void mouse(QWidget* w, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent e(type, at, w->mapToGlobal(at), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(w, &e);
    }
};
}

TEST_F(ColourToolsTest, FinderOpensFromBothKeysTheToolBarAndTheSettings)
{
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("cfinderform"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Color Finder ::"));
    for (const char* text : {"Color Blender", "Current Selected Colour", "Set 1:", "Set 2:", "Set 3:"})
        EXPECT_TRUE(hasLabel(w, QString::fromLatin1(text))) << text;
    EXPECT_EQ(w->Label5->text(),
              QStringLiteral("You can choose 3 colours which will be saved  for future use. Simply select Colour from above then "
                             "click set on appropriate button \"Set\" button in box, or Simply hit th \"Copy\"."));
    for (QPushButton* b : {w->Command1, w->Command11, w->Command12, w->Command13})
        EXPECT_EQ(b->text(), QStringLiteral("Copy")) << b->objectName().toStdString();
    for (QPushButton* b : {w->Command8, w->Command9, w->Command10})
        EXPECT_EQ(b->text(), QStringLiteral("Set")) << b->objectName().toStdString();
    for (const char* name : {"ColPal", "Piccolor", "Picture1", "txtcolor", "FrMixer", "frWSafe", "Shape1", "Shape2",
                             "Shape3", "Text2", "Text3", "Text4", "Label5", "SmartNetButton1", "SmartNetButton18"})
        EXPECT_NE(w->findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
    // The shade bar as loaded: black, grey 143, white.
    for (int i = 0; i < 20; ++i) {
        const int g = PaletteTables::loadBands[i];
        EXPECT_EQ(w->Piccolor->bands()[i], (ColourMixing::Channels{g, g, g})) << "band " << i + 1;
    }
    // Band 1 lies at the bottom of the bar, band 20 at the top.
    EXPECT_GT(w->Piccolor->bandRect(1).top(), w->Piccolor->bandRect(20).top());
    EXPECT_EQ(w->Piccolor->bandRect(20).top(), 0);
    EXPECT_EQ(w->Piccolor->bandRect(1).bottom(), w->Piccolor->height() - 1);

    // The mixer shows first; the two buttons switch the frames.
    EXPECT_FALSE(w->FrMixer->isHidden());
    EXPECT_TRUE(w->frWSafe->isHidden());
    w->SmartNetButton18->click();
    EXPECT_TRUE(w->FrMixer->isHidden());
    EXPECT_FALSE(w->frWSafe->isHidden());
    saveShot(w, QStringLiteral("cfinderform-named"));
    w->SmartNetButton1->click();
    EXPECT_FALSE(w->FrMixer->isHidden());
    EXPECT_TRUE(w->frWSafe->isHidden());

    // The other key, the tools bar's button and the settings' "Colour Lab" show the same window.
    w->hide();
    EXPECT_EQ(openFinder(QStringLiteral("Colour Finder1")), w);
    w->hide();
    auto* bar = frmMain::instance()->findChild<QToolButton*>(QStringLiteral("SmartNetButton30"));
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isEnabled());
    bar->click();
    EXPECT_TRUE(w->isVisible());
    w->hide();
    Options* options = form<Options>();
    EXPECT_TRUE(options->Command1->isEnabled());
    options->Command1->click();
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(ColourToolsTest, NamedColoursGiveLowerCaseTextsAndTheirOwnColour)
{
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    w->SmartNetButton18->click();
    for (const auto& n : PaletteTables::named) {
        auto* b = w->findChild<QPushButton*>(QStringLiteral("SmartNetButton%1").arg(n.button));
        ASSERT_NE(b, nullptr) << n.button;
        EXPECT_EQ(value(face(b)), n.value) << n.button;
        b->click();
        EXPECT_EQ(w->txtcolor->text(), QString::fromLatin1(n.text)) << n.button;
        EXPECT_EQ(w->Picture1->BackColor(), n.value) << n.button;
    }
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

// The presets start from the settings, "Set" writes both copies, and the window's unload saves
// the settings file, which the next load reads back.
TEST_F(ColourToolsTest, PresetsLiveInTheSettingsAndAreSavedOnUnload)
{
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->Text2->text(), QStringLiteral("#FF0000"));
    EXPECT_EQ(w->Text3->text(), QStringLiteral("#0000FF"));
    EXPECT_EQ(w->Text4->text(), QStringLiteral("#00FF00"));
    EXPECT_EQ(w->Shape1->BackColor(), 255);
    EXPECT_EQ(w->Shape2->BackColor(), 16711680);
    EXPECT_EQ(w->Shape3->BackColor(), 65280);

    w->findChild<QPushButton*>(QStringLiteral("SmartNetButton6"))->click();  // #800080
    w->Command9->click();
    EXPECT_EQ(w->Text3->text(), QStringLiteral("#800080"));
    EXPECT_EQ(w->Shape2->BackColor(), 0x800080);
    Options* options = form<Options>();
    EXPECT_EQ(options->Text3->text(), QStringLiteral("#800080"));
    EXPECT_EQ(options->Shape5->BackColor(), 0x800080);
    EXPECT_EQ(Settings::details().Text3, QStringLiteral("#800080"));
    EXPECT_EQ(Settings::details().Shape5, 0x800080);
    // The others stand.
    EXPECT_EQ(options->Text2->text(), QStringLiteral("#FF0000"));
    EXPECT_EQ(options->Text4->text(), QStringLiteral("#00FF00"));

    // A colour from the palette sets the swatch but not the text: "Set" takes both as they are.
    w->txtcolor->setText(QStringLiteral("#ABCDEF"));
    w->Command8->click();
    EXPECT_EQ(options->Text2->text(), QStringLiteral("#ABCDEF"));
    EXPECT_EQ(options->Shape6->BackColor(), 0x800080);

    // Nothing is written until the window goes; then the whole settings file is.
    const QByteArray before = folder.read(QStringLiteral("Options/Details.dat"));
    EXPECT_FALSE(before.contains("#800080"));
    ASSERT_TRUE(Forms::unload(w));
    processEvents();
    const QList<QByteArray> lines = folder.read(QStringLiteral("Options/Details.dat")).split('\n');
    ASSERT_GE(lines.size(), 14);
    EXPECT_EQ(lines[8], QByteArray("8388736\r"));  // 0x800080
    EXPECT_EQ(lines[9], QByteArray("\"#ABCDEF\"\r"));
    EXPECT_EQ(lines[10], QByteArray("8388736\r"));
    EXPECT_EQ(lines[11], QByteArray("\"#800080\"\r"));
    EXPECT_EQ(lines[12], QByteArray("65280\r"));
    EXPECT_EQ(lines[13], QByteArray("\"#00FF00\"\r"));

    // Loaded again, the window reads the presets back.
    cfinderform* again = openFinder();
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->Text2->text(), QStringLiteral("#ABCDEF"));
    EXPECT_EQ(again->Text3->text(), QStringLiteral("#800080"));
    EXPECT_EQ(again->Shape2->BackColor(), 0x800080);
}

TEST_F(ColourToolsTest, CopyPutsTheTextOnTheClipboardAndRefusesAnEmptyField)
{
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(QStringLiteral("kept"));

    ASSERT_TRUE(w->txtcolor->text().isEmpty());
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), noData, 16, copyTitle));
    EXPECT_EQ(clipboard->text(), QStringLiteral("kept"));

    w->Text4->clear();
    prompts.answerMsgBox(Answer::OK);
    w->Command13->click();
    EXPECT_TRUE(isBox(prompts.last(), noData, 16, copyTitle));
    EXPECT_EQ(clipboard->text(), QStringLiteral("kept"));
    EXPECT_EQ(prompts.prompts().size(), 2);

    w->Command11->click();
    EXPECT_EQ(clipboard->text(), QStringLiteral("#FF0000"));
    w->Command12->click();
    EXPECT_EQ(clipboard->text(), QStringLiteral("#0000FF"));
    w->findChild<QPushButton*>(QStringLiteral("SmartNetButton10"))->click();
    w->Command1->click();
    EXPECT_EQ(clipboard->text(), QStringLiteral("#ff00ff"));
    // A text the user typed goes as it stands.
    w->txtcolor->setText(QStringLiteral(" my colour "));
    w->Command1->click();
    EXPECT_EQ(clipboard->text(), QStringLiteral(" my colour "));
    EXPECT_EQ(prompts.prompts().size(), 2);
}

// Dragging on the palette shows the colour under the pointer; letting go makes it the shade
// bar's middle colour, and the text waits for a pick from the bar.
TEST_F(ColourToolsTest, PaletteDragFeedsTheShadeBar)
{
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    w->ColPal->setFixedSize(360, 201);
    w->adjustSize();
    processEvents();
    ASSERT_EQ(w->ColPal->size(), QSize(360, 201));
    const int before = w->Picture1->BackColor();

    // A move without the button pressed changes nothing.
    mouse(w->ColPal, QEvent::MouseMove, {120, 100}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(w->Picture1->BackColor(), before);
    EXPECT_EQ(w->mouseDown, 0);

    mouse(w->ColPal, QEvent::MouseButtonPress, {0, 100}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(w->mouseDown, -1);
    mouse(w->ColPal, QEvent::MouseMove, {120, 100}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(w->Picture1->BackColor(), 0x00FF00);  // green, a third of the way across
    mouse(w->ColPal, QEvent::MouseMove, {0, 0}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(w->Picture1->BackColor(), 0xFFFFFF);  // white along the top
    mouse(w->ColPal, QEvent::MouseMove, {60, 100}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(w->Picture1->BackColor(), 0x00FFFF);  // yellow
    EXPECT_TRUE(w->txtcolor->text().isEmpty());

    mouse(w->ColPal, QEvent::MouseButtonRelease, {240, 100}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(w->mouseDown, 0);
    EXPECT_EQ(cfinderform::currentColour, 0xFF0000);  // blue, where the button came up
    EXPECT_EQ(w->Picture1->BackColor(), 0x00FFFF);
    EXPECT_TRUE(w->txtcolor->text().isEmpty());
    const std::array<int, 3> around = {0, 0xFF0000, 0xFFFFFF};
    EXPECT_EQ(w->blendSlots, around);
    for (int j = 0; j < 10; ++j) {
        const int step = PaletteTables::fullSteps[j], next = PaletteTables::fullSteps[j + 1];
        EXPECT_EQ(w->Piccolor->bands()[j], (ColourMixing::Channels{0, 0, step})) << "band " << j + 1;
        EXPECT_EQ(w->Piccolor->bands()[10 + j], (ColourMixing::Channels{next, next, 255})) << "band " << j + 11;
    }
    // After the release, moves change nothing again.
    mouse(w->ColPal, QEvent::MouseMove, {0, 200}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(w->Picture1->BackColor(), 0x00FFFF);
    saveShot(w, QStringLiteral("cfinderform-blue"));
}

// Where the platform cannot read the screen, a click on the bar says so and takes no colour.
TEST_F(ColourToolsTest, ShadeBarOnAScreenThatCannotBeReadSaysSo)
{
    if (ScreenPixel::readable())
        GTEST_SKIP() << "this display can be read: the bar's pick is tested by ScreenPixelOnX11";
    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    w->txtcolor->setText(QStringLiteral("#123456"));
    const int swatch = w->Picture1->BackColor();
    frmMain::instance()->setStatusText(1, QString());
    QTest::mouseClick(w->Piccolor, Qt::LeftButton, Qt::NoModifier, w->Piccolor->bandRect(5).center());
    EXPECT_EQ(frmMain::instance()->statusText(1), ScreenPixel::refusedText());
    EXPECT_EQ(w->txtcolor->text(), QStringLiteral("#123456"));
    EXPECT_EQ(w->Picture1->BackColor(), swatch);
    EXPECT_FALSE(ScreenPixel::at(w->Piccolor->mapToGlobal(QPoint(5, 5))).has_value());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

// On an X display: a window of a known colour is read back from the screen, and the shade bar
// gives the text of the band under the pointer, in capitals, once per position.
TEST_F(ColourToolsTest, ScreenPixelOnX11)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        GTEST_SKIP() << "the screen is read only on an X display (run under xvfb-run with QT_QPA_PLATFORM=xcb); this is "
                     << QGuiApplication::platformName().toStdString();
    QWidget known;
    known.setWindowFlags(Qt::FramelessWindowHint);
    known.setAutoFillBackground(true);
    QPalette p = known.palette();
    p.setColor(QPalette::Window, QColor(18, 52, 86));
    known.setPalette(p);
    known.setGeometry(100, 120, 80, 60);
    known.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&known));
    QTest::qWait(100);
    EXPECT_EQ(ScreenPixel::at(known.mapToGlobal(QPoint(40, 30))), std::optional<int>(18 | (52 << 8) | (86 << 16)));
    known.hide();

    cfinderform* w = openFinder();
    ASSERT_NE(w, nullptr);
    // Near the top of the screen, so that the bar's upper bands are on it at any scale.
    w->move(0, 0);
    w->raise();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(w));
    QTest::qWait(200);
    // Band 14 of the loaded bar is grey 184: "#B8B8B8", in capitals.
    const QPoint band14 = w->Piccolor->mapToGlobal(w->Piccolor->bandRect(14).center());
    QCursor::setPos(band14);
    QTest::qWait(50);
    QTest::mouseClick(w->Piccolor, Qt::LeftButton, Qt::NoModifier, w->Piccolor->bandRect(14).center());
    EXPECT_EQ(w->txtcolor->text(), QStringLiteral("#B8B8B8"));
    EXPECT_EQ(w->Picture1->BackColor(), 0xB8B8B8);
    // The same position again reads nothing.
    w->txtcolor->setText(QStringLiteral("typed"));
    w->Piccolor_Click(band14);
    EXPECT_EQ(w->txtcolor->text(), QStringLiteral("typed"));
    // Band 19 (grey 235) elsewhere: "#EBEBEB".
    w->Piccolor_Click(w->Piccolor->mapToGlobal(w->Piccolor->bandRect(19).center()));
    EXPECT_EQ(w->txtcolor->text(), QStringLiteral("#EBEBEB"));
}

TEST_F(ColourToolsTest, QuickPaletteFacesAndTexts)
{
    // It drops below its button on the formatting bar, whole on the screen.
    QToolButton* opener = frmMain::instance()->quickColour;
    ColorQuick* w = openPalette();
    ASSERT_NE(w, nullptr);
    const QPoint below = opener->mapToGlobal(QPoint(0, opener->height()));
    const QRect room = opener->screen()->availableGeometry();
    EXPECT_EQ(w->y(), below.y());
    EXPECT_EQ(w->x(), qMin(below.x(), room.right() + 1 - w->width()));
    // Near the right edge it moves left to stay whole.
    frmMain::instance()->move(room.right() - opener->mapTo(frmMain::instance(), QPoint(0, 0)).x() - 10, 0);
    processEvents();
    w->hide();
    opener->click();
    EXPECT_LE(w->frameGeometry().right(), room.right());
    EXPECT_TRUE(w->isVisible());
    saveShot(w, QStringLiteral("ColorQuick"));
    EXPECT_TRUE(w->windowFlags() & Qt::FramelessWindowHint);
    for (int n = 1; n <= 56; ++n) {
        const auto& want = PaletteTables::quick[n - 1];
        auto* b = w->findChild<QPushButton*>(QStringLiteral("SmartNetButton%1").arg(n));
        ASSERT_NE(b, nullptr) << n;
        EXPECT_EQ(b->text(), QString::fromLatin1(want.text)) << n;
        EXPECT_EQ(face(b), QColor(want.red, want.green, want.blue)) << n;
    }
    EXPECT_EQ(w->SmartNetButton65->text(), QStringLiteral("Colour Finder"));
}

TEST_F(ColourToolsTest, QuickPaletteDropsQuotedColoursAtTheCaret)
{
    // No document: nothing happens and nothing is said.
    ColorQuick* w = openPalette();
    ASSERT_NE(w, nullptr);
    EXPECT_NO_THROW(w->SmartNetButton[24]->click());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // A page: the value replaces the selection, the caret stands behind it, the palette stays.
    frmDocument* page = newPage(QStringLiteral("<font color=X>"));
    page->CodeMax1()->setSelection(0, 12, 0, 13);
    w = openPalette();
    w->SmartNetButton[24]->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<font color=\"#000000\">"));
    EXPECT_EQ(page->CodeMax1()->SelLength(), 0);
    EXPECT_TRUE(w->isVisible());
    w->SmartNetButton[0]->click();
    w->SmartNetButton[33]->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<font color=\"#000000\"\"#FFFFFF\"\"#FF6600\">"));

    // A split window the same way.
    auto* split = new frmsplit;
    frmMain::instance()->addDocument(split);
    processEvents();
    split->CodeMax1()->setText(QString());
    w->SmartNetButton[55]->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("\"#C0C0C0\""));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<font color=\"#000000\"\"#FFFFFF\"\"#FF6600\">"));

    // A notepad: nothing, and no message.
    notepad* pad = newPad(QStringLiteral("plain"));
    w->SmartNetButton[24]->click();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("plain"));
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("\"#C0C0C0\""));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(ColourToolsTest, QuickPaletteHidesMovesAndLeadsToTheFinder)
{
    ColorQuick* w = openPalette();
    ASSERT_NE(w, nullptr);
    // Losing activation hides it.
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(w, &deactivate);
    EXPECT_FALSE(w->isVisible());

    // A drag on its banner moves it.
    w = openPalette();
    w->move(200, 200);
    QWidget* banner = w->findChild<QWidget*>(QStringLiteral("banner"));
    ASSERT_NE(banner, nullptr);
    const QPoint grip(6, 6);
    QTest::mousePress(banner, Qt::LeftButton, Qt::NoModifier, grip);
    mouse(banner, QEvent::MouseMove, grip + QPoint(40, 25), Qt::NoButton, Qt::LeftButton);
    QTest::mouseRelease(banner, Qt::LeftButton, Qt::NoModifier, grip + QPoint(40, 25));
    EXPECT_EQ(w->pos(), QPoint(240, 225));
    // A move without the button does nothing more.
    mouse(banner, QEvent::MouseMove, grip + QPoint(90, 90), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(w->pos(), QPoint(240, 225));

    // Its finder button opens the finder and hides the palette.
    w->SmartNetButton65->click();
    auto* finder = loadedForm<cfinderform>();
    ASSERT_NE(finder, nullptr);
    EXPECT_TRUE(finder->isVisible());
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
