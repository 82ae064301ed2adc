// The image map designer driven by the mouse and keys: each kind of shape, the HTML built line
// by line, the panel, the clipboard, and pictures it cannot or can only just show.
#include "common/TestSupport.h"

#include "pagetools/FormDesign.h"
#include "pagetools/MapSurface.h"
#include "platform/Forms.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace {
const QString head = QStringLiteral("<!-- START IMAGE MAP COPY HERE -->\r\n\r\n<MAP NAME=\"map1\">\r\n");
const QString urlPrompt = QStringLiteral("Enter a Web Address URL for this shape. Press Enter to accept default.");

class FormDesignTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    QString picture(const QString& name, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(200, 220, 240));
        const QString path = folder.file(name);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    FormDesign* open()
    {
        frmMain::instance()->MenuClick(QStringLiteral("Image Map Generator"));
        auto* w = loadedForm<FormDesign>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
    // A new map on the picture, named map1.
    FormDesign* openOn(const QString& path)
    {
        FormDesign* w = open();
        prompts.answerOpenFile(path).answerInput(QStringLiteral("map1"));
        w->Command6->click();
        return w;
    }
    static void click(FormDesign* w, Qt::MouseButton button, QPoint at) { QTest::mouseClick(w->picDesign, button, {}, at); }
};
}

TEST_F(FormDesignTest, StartsANewMapOnAPictureAtItsOwnSize)
{
    FormDesign* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Image Map Generator"));
    EXPECT_FALSE(w->Frame2->isVisible());
    EXPECT_FALSE(w->cmdSaveMap->isVisible());
    EXPECT_EQ(w->cmdSaveMap->text(), QStringLiteral("&Generate HTML"));
    EXPECT_EQ(w->OpenFile->text(), QStringLiteral("&Create New Image Map"));
    EXPECT_EQ(w->Save->text(), QStringLiteral("Create HTML Code"));
    EXPECT_EQ(w->DColor->text(), QStringLiteral("Draw &Color"));
    EXPECT_EQ(w->Rulers->text(), QStringLiteral("&Show/Hide Rulers"));

    prompts.answerOpenFile(QString()).answerMsgBox(Answer::OK);
    w->OpenFile->trigger();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Nof file selected for feature!"), 16));

    const QString path = picture(QStringLiteral("house plan.png"), QSize(320, 200));
    prompts.answerOpenFile(path).answerInput(QStringLiteral("map1"));
    w->Command6->click();
    const auto& asked = prompts.last();
    EXPECT_EQ(asked.kind, QStringLiteral("InputBox"));
    EXPECT_EQ(asked.text, QStringLiteral("Enter a Name for this Image Map. I.E. map1"));
    EXPECT_EQ(asked.title, QStringLiteral("Start New Image Map"));
    EXPECT_EQ(w->picDesign->size(), QSize(320, 200));
    EXPECT_EQ(w->picTopRule->length(), 320);
    EXPECT_EQ(w->picLeftRule->length(), 200);
    EXPECT_EQ(w->txtWidth->text(), QStringLiteral("320"));
    EXPECT_EQ(w->txtheight->text(), QStringLiteral("200"));
    EXPECT_TRUE(w->optPoly->isChecked());
    EXPECT_EQ(w->html(), head);
    saveShot(w, QStringLiteral("FormDesign"));

    // An empty name is only warned of; the map goes on without one.
    prompts.answerOpenFile(path).answerInput(QString()).answerMsgBox(Answer::OK);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("You must enter a name for the Image Map."), 48,
                      QStringLiteral("See Help topic MAP TITLE")));
    EXPECT_EQ(w->html(), QStringLiteral("<!-- START IMAGE MAP COPY HERE -->\r\n\r\n<MAP NAME=\"\">\r\n"));
}

TEST_F(FormDesignTest, EachKindOfShapeWritesItsAreaLine)
{
    FormDesign* w = openOn(picture(QStringLiteral("p.png"), QSize(320, 200)));
    ASSERT_NE(w, nullptr);

    // A polygon: three points, then the right button closes it.
    for (QPoint p : {QPoint(10, 20), QPoint(30, 40), QPoint(50, 60)})
        click(w, Qt::LeftButton, p);
    EXPECT_EQ(w->coordinates(), QStringLiteral("10,20,30,40,50,60,"));
    processEvents();
    EXPECT_EQ(w->txtCRD->text(), QStringLiteral("10,20,30,40,50,60,"));
    prompts.answerInput(QStringLiteral("poly.htm"));
    click(w, Qt::RightButton, QPoint(200, 100));
    EXPECT_EQ(prompts.last().text, urlPrompt);
    EXPECT_EQ(prompts.last().title, QStringLiteral("URL Link Address"));
    EXPECT_TRUE(w->cmdSaveMap->isVisible());
    processEvents();
    EXPECT_EQ(w->txtCRD->text(), QString());

    // A rectangle: placed by its corner, sized by the arrow keys.
    w->optRect->setChecked(true);
    EXPECT_EQ(w->picDesign->outline(), MapSurface::Outline::Box);
    const QSize size = w->picDesign->rect.size();
    click(w, Qt::LeftButton, QPoint(12, 24));
    EXPECT_EQ(w->picDesign->rect.topLeft(), QPoint(12, 24));
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up})
        QTest::keyClick(w->picDesign, key);
    EXPECT_EQ(w->picDesign->rect.size(), size + QSize(1, -1));
    const QString box = QStringLiteral("12,24,%1,%2").arg(12 + size.width() + 1).arg(24 + size.height() - 1);
    prompts.answerInput(QString());  // an empty address
    click(w, Qt::RightButton, QPoint(5, 5));

    // A circle, from the Tools menu: the outline's top at the pointer, centred across it.
    w->Circle->trigger();
    EXPECT_TRUE(w->optCircle->isChecked());
    EXPECT_EQ(w->picDesign->outline(), MapSurface::Outline::Circle);
    w->picDesign->crcl.setSize(QSize(40, 40));
    click(w, Qt::LeftButton, QPoint(100, 50));
    EXPECT_EQ(w->picDesign->crcl.topLeft(), QPoint(80, 50));
    QTest::keyClick(w->picDesign, Qt::Key_Right);
    QTest::keyClick(w->picDesign, Qt::Key_Down);
    QTest::keyClick(w->picDesign, Qt::Key_Left);
    EXPECT_EQ(w->picDesign->crcl.size(), QSize(41, 41)) << "the circle stays round";
    prompts.answerInput(QStringLiteral("round.htm"));
    click(w, Qt::RightButton, QPoint(0, 0));
    saveShot(w, QStringLiteral("FormDesign-shapes"));

    EXPECT_EQ(w->html(),
              head + QStringLiteral("    <AREA SHAPE=\"POLY\" COORDS=10,20,30,40,50,60\"   HREF=\"poly.htm\">\r\n") +
                  QStringLiteral("    <AREA SHAPE=\"RECT\" COORDS=%1\"   HREF=\"\">\r\n").arg(box) +
                  QStringLiteral("    <AREA SHAPE=\"CIRCLE\" COORDS=100,70,16\"   HREF=\"round.htm\">\r\n"));
    EXPECT_EQ(w->picDesign->markCount(), 3 * 2 + 1 + 1 + 1) << "three points and lines, the closing line, box, circle";
}

TEST_F(FormDesignTest, DraggingMovesTheOutlineAndTheLabelsFollowThePointer)
{
    FormDesign* w = openOn(picture(QStringLiteral("p.png"), QSize(300, 300)));
    ASSERT_NE(w, nullptr);
    w->optRect->setChecked(true);
    QTest::mousePress(w->picDesign, Qt::LeftButton, {}, QPoint(10, 10));
    QMouseEvent drag(QEvent::MouseMove, QPointF(50, 60), w->picDesign->mapToGlobal(QPointF(50, 60)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(w->picDesign, &drag);
    EXPECT_EQ(w->picDesign->rect.topLeft(), QPoint(50, 60));
    EXPECT_TRUE(w->picDesign->txtX->isVisibleTo(w->picDesign));
    EXPECT_EQ(w->picDesign->txtX->text(), QStringLiteral("50"));
    EXPECT_EQ(w->picDesign->txtY->text(), QStringLiteral("60"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(w->picDesign, &leave);
    EXPECT_FALSE(w->picDesign->txtX->isVisibleTo(w->picDesign));

    // A polygon point is not dragged: only the press counts.
    w->optPoly->setChecked(true);
    QApplication::sendEvent(w->picDesign, &drag);
    EXPECT_EQ(w->coordinates(), QString());

    // The draw colour from the colour dialog; the rulers hide and show.
    prompts.answerColour(0x00FF00);
    w->DColor->trigger();
    EXPECT_EQ(w->drawColour(), QColor(0, 255, 0));
    w->show();
    ASSERT_TRUE(w->picTopRule->isVisible());
    w->Rulers->trigger();
    EXPECT_FALSE(w->picTopRule->isVisible());
    EXPECT_FALSE(w->picLeftRule->isVisible());
    w->Rulers->trigger();
    EXPECT_TRUE(w->picLeftRule->isVisible());
}

TEST_F(FormDesignTest, FinishingShowsThePanelAndTheClipboardTakesTheMap)
{
    FormDesign* w = openOn(picture(QStringLiteral("house.png"), QSize(120, 80)));
    ASSERT_NE(w, nullptr);
    w->optRect->setChecked(true);
    w->picDesign->rect = QRect(10, 20, 100, 40);
    prompts.answerInput(QStringLiteral("new_page.htm"));
    click(w, Qt::RightButton, QPoint(1, 1));
    w->cmdSaveMap->click();
    EXPECT_TRUE(w->Frame2->isVisible());
    EXPECT_FALSE(w->picDesign->hasPicture());
    const QString tail = QStringLiteral("</map>\r\n<P ALIGN=\"CENTER\">\r\n"
                                        "<IMG SRC=\"house.png\" BORDER=\"0\" USEMAP=\"#map1\" WIDTH=\"120\" HEIGHT=\"80\">\r\n"
                                        "</p>\r\n\r\n<!-- End Image Map Copy Here -->");
    const QString map = head + QStringLiteral("    <AREA SHAPE=\"RECT\" COORDS=10,20,110,60\"   HREF=\"new_page.htm\">\r\n") + tail;
    EXPECT_EQ(w->html(), map);

    prompts.answerMsgBox(Answer::OK);
    w->Command5->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Data copied to the clipboard."), 64));
    EXPECT_EQ(QApplication::clipboard()->text(), map);

    // Close keeps the text; a second "Create HTML Code" appends the end again.
    w->Command2->click();
    EXPECT_FALSE(w->Frame2->isVisible());
    w->Save->trigger();
    EXPECT_EQ(w->html(), map + tail);

    // "Exit on copy": copied, then the form is empty, without a message.
    const int seen = prompts.prompts().size();
    w->Check1->setChecked(true);
    w->Command5->click();
    EXPECT_EQ(QApplication::clipboard()->text(), map + tail);
    EXPECT_EQ(prompts.prompts().size(), seen);
    EXPECT_EQ(w->html(), QString());
    EXPECT_FALSE(w->Frame2->isVisible());
    EXPECT_EQ(w->picTopRule->length(), 0);

    // "New" starts over with a new picture.
    w->Frame2->show();
    prompts.answerOpenFile(picture(QStringLiteral("other.png"), QSize(50, 40))).answerInput(QStringLiteral("map1"));
    w->Command4->click();
    EXPECT_FALSE(w->Frame2->isVisible());
    EXPECT_EQ(w->html(), head);
    EXPECT_EQ(w->txtWidth->text(), QStringLiteral("50"));
}

TEST_F(FormDesignTest, PicturesItCannotOrCanOnlyJustShow)
{
    FormDesign* w = open();
    ASSERT_NE(w, nullptr);
    folder.write(QStringLiteral("not a picture.png"), "this is text, not a picture");
    const QString good = picture(QStringLiteral("good.png"), QSize(64, 64));
    QFile whole(good);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    folder.write(QStringLiteral("truncated.png"), whole.readAll().left(60));
    for (const char* name : {"not a picture.png", "truncated.png", "missing.png"}) {
        prompts.answerOpenFile(folder.file(QString::fromLatin1(name))).answerMsgBox(Answer::OK);
        w->Command6->click();
        EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '481':\n\nInvalid picture"), 16)) << name;
    }

    // A picture larger than the window scrolls; it is never shrunk, and a position is the
    // picture's own pixel.
    w->resize(700, 500);
    w->show();
    w = openOn(picture(QStringLiteral("big.png"), QSize(3000, 2400)));
    processEvents();
    EXPECT_EQ(w->picDesign->size(), QSize(3000, 2400));
    EXPECT_GT(w->pictureArea->horizontalScrollBar()->maximum(), 2000);
    EXPECT_GT(w->pictureArea->verticalScrollBar()->maximum(), 1500);
    w->pictureArea->ensureVisible(2900, 2300);
    processEvents();
    w->optRect->setChecked(true);
    click(w, Qt::LeftButton, QPoint(2800, 2250));
    EXPECT_EQ(w->picDesign->rect.topLeft(), QPoint(2800, 2250));

    // A polygon of 5,000 points and a map name with quotes and markup go in as they stand.
    prompts.answerOpenFile(good).answerInput(QStringLiteral("m\"<b>"));
    w->Command6->click();
    QString expected;
    for (int i = 0; i < 5000; ++i) {
        const QPoint p(i % 64, (i / 64) % 64);
        w->pressed(Qt::LeftButton, p);
        expected += QStringLiteral("%1,%2,").arg(p.x()).arg(p.y());
    }
    prompts.answerInput(QStringLiteral("x.htm"));
    w->pressed(Qt::RightButton, QPoint(1, 1));
    expected.chop(1);
    EXPECT_EQ(w->html(), QStringLiteral("<!-- START IMAGE MAP COPY HERE -->\r\n\r\n<MAP NAME=\"m\"<b>\">\r\n") +
                                           QStringLiteral("    <AREA SHAPE=\"POLY\" COORDS=") + expected +
                                           QStringLiteral("\"   HREF=\"x.htm\">\r\n"));
}
