// The picture, media and parameter wizards in their windows: opened from their menu keys, filled
// by name, run with a page, a split window, a notepad and no document, and fed the files a user
// may pick by mistake.
#include "common/Utf8.h"
#include "common/QtPrinters.h"
#include "wizards/WizardFixture.h"

#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"
#include "wizards/JavaApplet.h"
#include "wizards/Media.h"
#include "wizards/Object.h"
#include "wizards/RealAudio.h"
#include "wizards/imageform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QImage>
#include <QImageWriter>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextImageFormat>

#include <fstream>
#include <sys/resource.h>

namespace {

// The smallest picture of each kind the form's file dialog offers, written by the image writers
// (GIF, which Qt cannot write, as the bytes of a one-pixel picture).
const QByteArray onePixelGif = QByteArray::fromHex(
    "47494638396101000100800000000000ffffff21f90401000000002c0000000001000100000002024401003b");

// Peak and current memory of this process, in kilobytes.
long peakKb()
{
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss;
}
long currentKb()
{
    std::ifstream statm("/proc/self/statm");
    long size = 0, resident = 0;
    statm >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

class MediaWizardsTest : public WizardFixture {
protected:
    // A picture of the given size and kind in the test folder; its path.
    QString picture(const QString& name, int width, int height, const char* format)
    {
        const QString path = folder.file(name);
        QDir().mkpath(QFileInfo(path).path());
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        EXPECT_TRUE(QImageWriter(path, format).write(image)) << name.toStdString();
        return path;
    }
    // Chooses the file with the picture form's find button.
    void choose(imageform* w, const QString& path)
    {
        prompts.answerOpenFile(path);
        w->find->click();
    }
    static int picturesIn(QTextDocument* doc)
    {
        int n = 0;
        for (QTextBlock b = doc->begin(); b.isValid(); b = b.next())
            for (auto it = b.begin(); !it.atEnd(); ++it)
                if (it.fragment().charFormat().isImageFormat())
                    ++n;
        return n;
    }
};
}

TEST_F(MediaWizardsTest, ImageformHasItsFieldsAndTabOrder)
{
    imageform* w = open<imageform>(QStringLiteral("Image"));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Load An Image ::"));
    EXPECT_EQ(labelOf(w->Location), QStringLiteral("Location :"));
    EXPECT_EQ(w->find->text(), QStringLiteral("Find"));
    EXPECT_EQ(w->Check2->text(), QStringLiteral("Shorten location length"));
    EXPECT_EQ(w->Check3->text(), QStringLiteral("Maintain Aspect Ratio"));
    EXPECT_EQ(w->Check4->text(), QStringLiteral("Size In Percent"));
    EXPECT_EQ(w->Check5->text(), QStringLiteral("Style Absolute Enabled"));
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Insert into  a Notepad document"));
    EXPECT_EQ(labelOf(w->picwidth), QStringLiteral("Width :"));
    EXPECT_EQ(labelOf(w->picheight), QStringLiteral("Height :"));
    EXPECT_EQ(labelOf(w->txleft), QStringLiteral("Left :"));
    EXPECT_EQ(labelOf(w->txtop), QStringLiteral("Top :"));
    EXPECT_EQ(w->Label8->text(), QStringLiteral("With the Style enabled, you will be able to position the picture where ever you "
                                                "want on the web page, all you need to specify is the Left and Top Values."));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Insert ..."));
    EXPECT_EQ(w->Command2->text(), QStringLiteral("Close"));
    EXPECT_EQ(items(w->align), (QStringList{u("Center"), u("Left"), u("Right")}));
    EXPECT_EQ(w->align->currentText(), QStringLiteral("Center"));
    for (QWidget* hidden : std::initializer_list<QWidget*>{w->location1, w->picwidth1, w->picheight1, w->Text1, w->Picture2})
        EXPECT_FALSE(hidden->isVisible()) << hidden->objectName().toStdString();
    for (QCheckBox* box : {w->Check1, w->Check2, w->Check3, w->Check4, w->Check5})
        EXPECT_FALSE(box->isChecked()) << box->objectName().toStdString();
    EXPECT_EQ(tabOrder(w), (QStringList{u("Location"), u("find"), u("Check2"), u("picwidth"), u("picheight"), u("Check3"),
                                        u("Check4"), u("align"), u("picborder"), u("Check5"), u("txleft"), u("txtop"),
                                        u("Check1"), u("Command1"), u("Command2")}));
    EXPECT_TRUE(w->Command1->isDefault());

    // Opened from the notepad's menu too; Esc hides, Enter inserts.
    QTest::keyClick(w->picborder, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());
    w = open<imageform>(QStringLiteral("image"));
    frmDocument* page = newPage();
    w->Location->setText(QStringLiteral("a.gif"));
    QTest::keyClick(w->picborder, Qt::Key_Return);
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<p align=Center><img border= src=\"a.gif\" width= height=></p>"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(MediaWizardsTest, ImageformMeasuresThePictureAndWritesIt)
{
    // A path with blanks, non-ASCII letters and a comma.
    const QString path = picture(u("my pics/Grüße, one.png"), 100, 50, "png");
    frmDocument* page = newPage(QStringLiteral("<body></body>"));
    page->CodeMax1()->setCursorPosition(0, 6);
    imageform* w = open<imageform>(QStringLiteral("Image"));
    ASSERT_NE(w, nullptr);
    choose(w, path);
    saveShot(w, QStringLiteral("imageform"));
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Pictures (*.jpg *.jpeg *.bmp *.gif *.png)"));
    EXPECT_EQ(w->Location->text(), path);
    EXPECT_EQ(w->location1->text(), path);
    EXPECT_EQ(w->picwidth->text(), QStringLiteral("99.009900990099"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("49.5049504950495"));
    EXPECT_EQ(w->picwidth1->text(), QStringLiteral("99.009900990099"));
    EXPECT_EQ(w->picheight1->text(), QStringLiteral("49.5049504950495"));
    EXPECT_EQ(w->Picture2->size(), QSize(100, 50)) << "the auto-sizing box takes the natural size";
    ASSERT_FALSE(w->Picture1->pixmap().isNull()) << "the preview shows the picture";
    EXPECT_EQ(w->Picture1->pixmap().size(), QSize(100, 50)) << "a small picture is not enlarged";

    // The aspect ratio follows a typed width; without the tick the height stays.
    w->picwidth->setText(QStringLiteral("300"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("49.5049504950495"));
    w->Check3->setChecked(true);
    w->picwidth->setText(QStringLiteral("200"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("100"));
    w->picwidth->setText(QStringLiteral("wide"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("100")) << "a width that is no number changes nothing";
    w->picwidth->setText(QStringLiteral("200"));
    w->picborder->setText(QStringLiteral("0"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), u("<body><p align=Center><img border=0 src=\"") + path +
                                            u("\" width=200 height=100></p></body>"));
    EXPECT_FALSE(w->isVisible());
    for (QLineEdit* working : {w->Location, w->location1, w->picwidth1, w->picheight1, w->Text1})
        EXPECT_EQ(working->text(), QString()) << working->objectName().toStdString();
    EXPECT_TRUE(w->Picture1->pixmap().isNull());

    // Shortened, in percent, into a split window; a bigger picture is measured with its ratio
    // kept by the copies, not by the width the box had before.
    frmsplit* split = newSplit();
    const QString wide = picture(u("wide.jpg"), 640, 480, "jpeg");
    w = open<imageform>(QStringLiteral("Image"));
    w->Check2->setChecked(true);
    choose(w, wide);
    EXPECT_EQ(w->Location->text(), QStringLiteral("wide.jpg"));
    EXPECT_EQ(w->location1->text(), wide);
    EXPECT_EQ(w->picwidth->text(), QStringLiteral("633.663366336634"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("475.247524752475"));
    EXPECT_EQ(w->Picture1->pixmap().size(), QSize(160, 120)) << "scaled to fit the preview";
    w->Check4->setChecked(true);
    w->picwidth->setText(QStringLiteral("50"));
    EXPECT_EQ(w->picheight->text(), QStringLiteral("37.5"));
    w->align->setCurrentText(QStringLiteral("Right"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p align=Right><img border=0 src=\"wide.jpg\" width=50% height=37.5%></p>"));

    // The style form, in pixels and in percent: Top with a capital, the image closed.
    const QString gif = folder.file(QStringLiteral("dot.gif"));
    folder.write(QStringLiteral("dot.gif"), onePixelGif);
    split->CodeMax1()->setText(QString());
    w = open<imageform>(QStringLiteral("Image"));
    w->Check2->setChecked(false);
    w->Check3->setChecked(false);
    choose(w, gif);
    EXPECT_EQ(w->picwidth->text(), QStringLiteral("0.99009900990099"));
    w->Check5->setChecked(true);
    w->txleft->setText(QStringLiteral("10"));
    w->txtop->setText(QStringLiteral("20"));
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              u("<p><img border=0 src=\"") + gif +
                  u("\" style=position: absolute; left: 10 Top: 20 width=0.99009900990099% height=0.99009900990099%></img></p>"));
    split->CodeMax1()->setText(QString());
    w = open<imageform>(QStringLiteral("Image"));
    w->Check4->setChecked(false);
    w->Command1->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<p><img border=0 src=\"\" style=position: absolute; left: 10 Top: 20  width=0.99009900990099 "
                             "height=0.99009900990099></img></p>"));
    EXPECT_EQ(prompts.prompts().size(), 3) << "only the three file dialogs";
}

TEST_F(MediaWizardsTest, ImageformWithoutADocumentAndWithANotepad)
{
    const QString path = picture(u("p.bmp"), 30, 20, "bmp");
    imageform* w = open<imageform>(QStringLiteral("Image"));
    ASSERT_NE(w, nullptr);
    choose(w, path);
    EXPECT_EQ(w->picwidth->text(), QStringLiteral("29.7029702970297"));
    w->Command1->click();
    EXPECT_FALSE(w->isVisible()) << "no document: the closing step";
    EXPECT_EQ(w->Location->text(), path) << "the fields are emptied only after a delivery";

    // A notepad without the box: no code window, nothing goes in, no message.
    notepad* pad = newPad(QStringLiteral("notes"));
    w = open<imageform>(QStringLiteral("image"));
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(picturesIn(pad->RichTextBox1()->document()), 0);

    // With the box: the picture itself goes into the notepad's text, at the caret.
    pad->RichTextBox1()->setSelStart(5);
    w = open<imageform>(QStringLiteral("image"));
    w->Check1->setChecked(true);
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    ASSERT_EQ(picturesIn(pad->RichTextBox1()->document()), 1);
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes") + QChar(QChar::ObjectReplacementCharacter));
    const QTextImageFormat format = [&] {
        for (auto it = pad->RichTextBox1()->document()->begin().begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().isImageFormat())
                return it.fragment().charFormat().toImageFormat();
        return QTextImageFormat();
    }();
    EXPECT_EQ(format.width(), 30);
    EXPECT_EQ(format.height(), 20);
    const QImage held = pad->RichTextBox1()->document()->resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
    EXPECT_EQ(held.size(), QSize(30, 20));

    // The style form wins over the notepad box; a file that is no picture puts nothing in.
    for (bool style : {true, false}) {
        w = open<imageform>(QStringLiteral("image"));
        w->Check5->setChecked(style);
        w->Location->setText(style ? path : folder.file(QStringLiteral("gone.png")));
        w->Command1->click();
        EXPECT_FALSE(w->isVisible()) << style;
        EXPECT_EQ(picturesIn(pad->RichTextBox1()->document()), 1) << style;
    }
    EXPECT_EQ(prompts.prompts().size(), 1) << "only the file dialog";
}

// Files that are not the pictures they claim to be, or are too big to decode whole: the size
// read from the header or nothing, never a crash, a hang or a spike of memory.
TEST_F(MediaWizardsTest, ImageformBadPictures)
{
    folder.write(QStringLiteral("text.png"), "this is not a picture\r\n");
    folder.write(QStringLiteral("empty.gif"), "");
    const QString good = picture(u("good.png"), 64, 32, "png");
    const QByteArray goodBytes = folder.read(QStringLiteral("good.png"));
    folder.write(QStringLiteral("cut header.png"), goodBytes.left(40));
    folder.write(QStringLiteral("cut data.png"), goodBytes.left(goodBytes.size() - 20));
    // A one-bit picture of 20,000 by 20,000 pixels: a small file, some 1.5 GB once decoded.
    {
        QImage huge(20000, 20000, QImage::Format_Mono);
        huge.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        huge.fill(1);
        ASSERT_TRUE(QImageWriter(folder.file(QStringLiteral("huge.png")), "png").write(huge));
    }
    ASSERT_LT(QFileInfo(folder.file(QStringLiteral("huge.png"))).size(), 1 << 20);
    // A bitmap header that claims 16,000 by 16,000 pixels of 32 bits and stops there.
    QByteArray bmp = QByteArray::fromHex("424d") + QByteArray(12, '\0');
    bmp[10] = 54;
    const auto le32 = [](qint32 v) { return QByteArray(reinterpret_cast<const char*>(&v), 4); };
    bmp += le32(40) + le32(16000) + le32(16000) + QByteArray::fromHex("01002000") + le32(0) + le32(0) + le32(2835) + le32(2835) +
           le32(0) + le32(0);
    folder.write(QStringLiteral("claims.bmp"), bmp);

    const long before = currentKb();
    const struct {
        const char* name;
        QString path;
        const char* width;  // what picwidth holds afterwards ("unchanged": the marker stays)
        int preview;        // 1 shown, 0 none, -1 either (a part of a picture may be shown)
    } cases[] = {
        {"a missing file", folder.file(QStringLiteral("gone.png")), "unchanged", 0},
        {"a text file named .png", folder.file(QStringLiteral("text.png")), "unchanged", 0},
        {"an empty file", folder.file(QStringLiteral("empty.gif")), "unchanged", 0},
        {"a folder", folder.path(), "unchanged", 0},
        {"a device", QStringLiteral("/dev/zero"), "unchanged", 0},
        {"a PNG cut inside its header", folder.file(QStringLiteral("cut header.png")), "unchanged", 0},
        {"a PNG cut inside its data: the header still tells the size", folder.file(QStringLiteral("cut data.png")),
         "63.3663366336634", -1},
        {"20,000 by 20,000 pixels: measured, not decoded", folder.file(QStringLiteral("huge.png")), "19801.9801980198", 0},
        {"a header alone that claims a gigabyte", folder.file(QStringLiteral("claims.bmp")), "15841.5841584158", 0},
        {"a good picture after them all", good, "63.3663366336634", 1},
    };
    imageform* w = open<imageform>(QStringLiteral("Image"));
    ASSERT_NE(w, nullptr);
    for (const auto& c : cases) {
        w->picwidth->setText(QStringLiteral("unchanged"));
        choose(w, c.path);
        EXPECT_EQ(w->location1->text(), c.path) << c.name;
        EXPECT_EQ(w->picwidth->text(), u(c.width)) << c.name;
        if (c.preview >= 0) {
            EXPECT_EQ(!w->Picture1->pixmap().isNull(), c.preview == 1) << c.name;
        }
    }
    EXPECT_LT(peakKb(), before + 1024 * 1024) << "no decode of a whole huge picture";
    // A cancelled dialog measures nothing.
    w->picwidth->setText(QStringLiteral("kept"));
    prompts.answerOpenFile(QString());
    w->find->click();
    EXPECT_EQ(w->location1->text(), good);
    EXPECT_EQ(w->picwidth->text(), QStringLiteral("kept"));
    EXPECT_FALSE(w->Picture1->pixmap().isNull());

    // The huge picture into a notepad: nothing goes in, the form closes.
    notepad* pad = newPad(QStringLiteral("x"));
    w = open<imageform>(QStringLiteral("image"));
    w->Location->setText(folder.file(QStringLiteral("huge.png")));
    w->Check1->setChecked(true);
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(picturesIn(pad->RichTextBox1()->document()), 0);
    EXPECT_LT(peakKb(), before + 1024 * 1024);
    EXPECT_EQ(prompts.prompts().size(), int(std::size(cases)) + 1) << "the file dialogs alone";
}

TEST_F(MediaWizardsTest, ImageformFieldTextsGoInAsTheyStand)
{
    frmDocument* page = newPage();
    imageform* w = open<imageform>(QStringLiteral("Image"));
    ASSERT_NE(w, nullptr);
    const QString big = QString(1 << 20, QLatin1Char('m'));
    w->Location->setText(u("say \"hi\" <b>\r\nline") + big);
    w->picwidth->setText(QStringLiteral("<100>"));
    w->picheight->setText(QStringLiteral("\"50\""));
    w->align->setCurrentText(QStringLiteral("middle"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), u("<p align=middle><img border= src=\"say \"hi\" <b>\r\nline") + big +
                                            u("\" width=<100> height=\"50\"></p>"));
}

TEST_F(MediaWizardsTest, MediaHasItsTwoPartsAndFindsItsFiles)
{
    Media* w = open<Media>(QStringLiteral("Insert Sound"));
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Media"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Insert Media"));
    const struct {
        QWidget* field;
        const char* label;
    } labels[] = {{w->mlocation, "Background Music"}, {w->mloop, "Loop"},   {w->vlocation, "Movie Location"},
                  {w->mwidth, "Width"},               {w->mheight, "Height"}, {w->mborder, "Border"},
                  {w->Combo1, "Align"}};
    for (const auto& l : labels)
        EXPECT_EQ(labelOf(l.field), u(l.label)) << l.label;
    EXPECT_EQ(w->mloop->text(), QStringLiteral("-1"));
    EXPECT_EQ(w->Label12->text(), QStringLiteral("(-1 = Infinite)"));
    EXPECT_EQ(w->mwidth->text(), QStringLiteral("400"));
    EXPECT_EQ(w->mheight->text(), QStringLiteral("400"));
    EXPECT_EQ(w->mborder->text(), QString());
    EXPECT_EQ(items(w->Combo1), (QStringList{u("top"), u("middle"), u("bottom")}));
    EXPECT_EQ(w->Check1->text(), QStringLiteral("Loop forever"));
    EXPECT_FALSE(w->Check1->isChecked());
    for (QPushButton* insert : {w->Command1, w->Command2})
        EXPECT_EQ(insert->text(), QStringLiteral("Insert"));
    EXPECT_EQ(w->Command4->text(), QStringLiteral("Close"));
    EXPECT_FALSE(w->mlocation1->isVisible());
    EXPECT_FALSE(w->vlocation1->isVisible());
    EXPECT_EQ(tabOrder(w), (QStringList{u("mlocation"), u("Command5"), u("Check4"), u("mloop"), u("Command1"), u("vlocation"),
                                        u("Command3"), u("Check5"), u("mwidth"), u("mheight"), u("mborder"), u("Combo1"),
                                        u("Check1"), u("Command2"), u("Command4")}));
    w->hide();
    EXPECT_EQ(open<Media>(QStringLiteral("Insert Movie")), w);

    // The two finders, each with its filter and its shorten box.
    folder.write(QStringLiteral("a b/Müsik, 1.wav"), "RIFF");
    folder.write(QStringLiteral("clip.avi"), "RIFF");
    const QString music = folder.file(QStringLiteral("a b/Müsik, 1.wav"));
    prompts.answerOpenFile(music);
    w->Command5->click();
    EXPECT_EQ(w->mlocation->text(), music);
    EXPECT_EQ(w->mlocation1->text(), music);
    w->Check4->setChecked(true);
    EXPECT_EQ(w->mlocation->text(), QStringLiteral("Müsik, 1.wav"));
    w->Check5->setChecked(true);
    prompts.answerOpenFile(folder.file(QStringLiteral("clip.avi")));
    w->Command3->click();
    EXPECT_EQ(w->vlocation->text(), QStringLiteral("clip.avi"));
    EXPECT_EQ(w->vlocation1->text(), folder.file(QStringLiteral("clip.avi")));
    prompts.answerOpenFile(QString());
    w->Command3->click();
    EXPECT_EQ(w->vlocation->text(), QStringLiteral("clip.avi")) << "a cancelled dialog changes nothing";
    ASSERT_EQ(prompts.prompts().size(), 3);
    EXPECT_EQ(prompts.prompts()[0].kind, QStringLiteral("OpenFile"));
}

TEST_F(MediaWizardsTest, MediaInsertsTheSoundOrTheMovie)
{
    // No document: the closing step, no message.
    Media* w = open<Media>(QStringLiteral("Insert Sound"));
    ASSERT_NE(w, nullptr);
    w->mlocation->setText(QStringLiteral("a.wav"));
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());

    frmDocument* page = newPage();
    w = open<Media>(QStringLiteral("Insert Sound"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<bgsound src=\"a.wav\" loop=-1></bgsound>"));
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->mlocation->text(), QStringLiteral("a.wav")) << "the fields stay";

    // Empty locations: each part's own message, nothing made, the form stays.
    page->CodeMax1()->setText(QString());
    w = open<Media>(QStringLiteral("Insert Sound"));
    w->mlocation->clear();
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No file selected to use as a background sound."), 0));
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No video selected, you need to insert a link."), 16));
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(page->CodeMax1()->text(), QString());

    // The movie, looping and not, into a split window.
    frmsplit* split = newSplit();
    w->vlocation->setText(QStringLiteral("movies/clip one.avi"));
    w->mborder->setText(QStringLiteral("1"));
    w->Combo1->setCurrentText(QStringLiteral("middle"));
    w->Check1->setChecked(true);
    w->Command2->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<embed src=movies/clip one.avi width=400 height=400 border=1loop=true  align=middle>"));
    split->CodeMax1()->setText(QString());
    w = open<Media>(QStringLiteral("Insert Movie"));
    w->Check1->setChecked(false);
    w->Command2->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              QStringLiteral("<embed src=movies/clip one.avi width=400 height=400 border=1 align=middle >"));

    // Enter presses the Insert of the part that holds the focus; Esc hides.
    split->CodeMax1()->setText(QString());
    w = open<Media>(QStringLiteral("Insert Movie"));
    w->mheight->setFocus();
    QTest::keyClick(w->mheight, Qt::Key_Return);
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<embed src=movies/clip one.avi width=400 height=400 border=1 align=middle >"));
    EXPECT_FALSE(w->isVisible());
    split->CodeMax1()->setText(QString());
    w = open<Media>(QStringLiteral("Insert Sound"));
    w->mlocation->setText(QStringLiteral("a.wav"));
    w->mloop->setText(QStringLiteral("3"));
    w->mloop->setFocus();
    QTest::keyClick(w->mloop, Qt::Key_Enter);
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<bgsound src=\"a.wav\" loop=3></bgsound>"));
    w = open<Media>(QStringLiteral("Insert Sound"));
    QTest::keyClick(w->vlocation, Qt::Key_Escape);
    EXPECT_FALSE(w->isVisible());

    // A notepad: no code window, nothing goes in, no message.
    notepad* pad = newPad(QStringLiteral("notes"));
    for (QPushButton* insert : {w->Command1, w->Command2}) {
        w = open<Media>(QStringLiteral("Insert Sound"));
        insert->click();
        EXPECT_FALSE(w->isVisible());
    }
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("notes"));
    EXPECT_EQ(prompts.prompts().size(), 2) << "only the two empty-location boxes";
}

TEST_F(MediaWizardsTest, MediaFieldTextsGoInAsTheyStand)
{
    frmDocument* page = newPage();
    Media* w = open<Media>(QStringLiteral("Insert Sound"));
    ASSERT_NE(w, nullptr);
    const QString big = QString(1 << 20, QLatin1Char('s'));
    w->mlocation->setText(u("\"q\" <i>\r\n") + big);
    w->mloop->setText(QStringLiteral("<2>"));
    w->Command1->click();
    EXPECT_EQ(page->CodeMax1()->text(), u("<bgsound src=\"\"q\" <i>\r\n") + big + u("\" loop=<2>></bgsound>"));
    // A location of blanks is not empty.
    page->CodeMax1()->setText(QString());
    w = open<Media>(QStringLiteral("Insert Movie"));
    w->vlocation->setText(QStringLiteral(" "));
    w->Command2->click();
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("<embed src=  width=400 height=400 border= align=top >"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

namespace {
// One of the three parameter wizards: its menu key, its caption, its own fields (name, label),
// the field that takes a chosen file, and the text it writes with the sample values below.
struct ParameterCase {
    const char* key;
    const char* caption;
    std::vector<std::pair<const char*, const char*>> fields;
    const char* fileField;
    const char* opening;  // with every own field filled with its own name and two parameters
    const char* closing;
};

const ParameterCase parameterCases[] = {
    {"Insert Java Applet",
     "Java Applet",
     {{"txtcode", "Code :"}, {"txtcodebase", "Code Base :"}, {"txtalternative", "Alternative :"}, {"txtname", "Name :"}},
     "txtcode",
     "<APPLET CODEBASE=txtcodebase CODE=txtcode ALT=txtalternative NAME=txtname HEIGHT=60 WIDTH=70>\r\n",
     "</APPLET>\r\n"},
    {"Insert RealAudio",
     "Insert RealAudio",
     {{"txtfile", "File :"}, {"txtname", "Name :"}},
     "txtfile",
     "<EMBED SRC=txtfile NAME=txtname type=audio/x-pn-realaudio-plugin ALIGN=Top HEIGHT=60 WIDTH=70 CONTROLS=all "
     "AUTOSTART=FALSE NOLABELS=TRUE\r\n",
     ">\r\n"},
    {"Insert Object",
     "Object",
     {{"txtcodebase", "Code Base :"}, {"txtname", "Name :"}, {"txtclass", "Class ID"}},
     "txtcodebase",
     "<OBJECT CODEBASE=txtcodebase NAME=txtname CLASSID=txtclass ALIGN=Top HEIGHT=60 WIDTH=70>\r\n",
     "</OBJECT>\r\n"},
};

ParameterWizard* openParameterWizard(const char* key)
{
    frmMain::instance()->MenuClick(u(key));
    const QString name = QString::fromLatin1(key) == QLatin1String("Insert Java Applet") ? u("JavaApplet")
                         : QString::fromLatin1(key) == QLatin1String("Insert RealAudio") ? u("RealAudio")
                                                                                          : u("Object");
    return qobject_cast<ParameterWizard*>(Forms::find(name));
}
}

TEST_F(MediaWizardsTest, ParameterWizardsBuildTheirListAndDeliverInSteps)
{
    frmDocument* page = newPage();
    for (const ParameterCase& c : parameterCases) {
        SCOPED_TRACE(c.key);
        page->CodeMax1()->setText(QString());
        ParameterWizard* w = openParameterWizard(c.key);
        ASSERT_NE(w, nullptr);
        EXPECT_TRUE(w->isVisible());
        saveShot(w, w->objectName());
        EXPECT_EQ(w->windowTitle(), u(c.caption));
        EXPECT_EQ(w->txtheight->text(), QStringLiteral("50"));
        EXPECT_EQ(w->txtWidth->text(), QStringLiteral("50"));
        EXPECT_EQ(labelOf(w->txtheight), QStringLiteral("Height :"));
        EXPECT_EQ(labelOf(w->txtWidth), QStringLiteral("Width :"));
        EXPECT_EQ(w->Command2->text(), QStringLiteral("Add"));
        EXPECT_EQ(w->Command3->text(), QStringLiteral("Delete"));
        EXPECT_EQ(w->Command4->text(), QStringLiteral("Insert"));
        EXPECT_EQ(w->Command5->text(), QStringLiteral("Exit"));
        EXPECT_TRUE(w->Command4->isDefault());
        QStringList expectedOrder;
        for (const auto& [name, label] : c.fields) {
            auto* field = w->findChild<QLineEdit*>(u(name));
            ASSERT_NE(field, nullptr) << name;
            EXPECT_EQ(labelOf(field), u(label));
            field->setText(u(name));
            expectedOrder << u(name);
            if (u(name) == u(c.fileField))
                expectedOrder << u("Command1");
        }
        if (auto* align = w->findChild<QComboBox*>(QStringLiteral("coallignment"))) {
            EXPECT_EQ(labelOf(align), QStringLiteral("Allignment"));
            EXPECT_EQ(align->currentText(), QStringLiteral("Top"));
            EXPECT_EQ(align->count(), 9);
            expectedOrder << u("coallignment");
        }
        if (w->findChild<QCheckBox*>(QStringLiteral("chkautostart")))
            expectedOrder << u("chkautostart") << u("chksticker");
        expectedOrder << u("txtheight") << u("txtWidth") << u("txtnamenew") << u("txtvaluenew") << u("Command2") << u("List1")
                      << u("Command3") << u("Command4") << u("Command5");
        EXPECT_EQ(tabOrder(w), expectedOrder);

        // Parameters: added line by line, the selected one deleted, nothing without a selection.
        for (const char* name : {"a", "gone", "b"}) {
            w->txtnamenew->setText(u(name));
            w->txtvaluenew->setText(u(name) + u("\"1\""));
            w->Command2->click();
        }
        ASSERT_EQ(w->List1->count(), 3);
        EXPECT_EQ(w->List1->item(1)->text(), QStringLiteral("<PARAM NAME=\"gone\" VALUE=\"gone\"1\"\">"));
        w->List1->clearSelection();
        w->List1->setCurrentRow(-1);
        w->Command3->click();
        EXPECT_EQ(w->List1->count(), 3);
        w->List1->setCurrentRow(1);
        w->Command3->click();
        EXPECT_EQ(w->parameterLines(), (QStringList{u("<PARAM NAME=\"a\" VALUE=\"a\"1\"\">"), u("<PARAM NAME=\"b\" VALUE=\"b\"1\"\">")}));

        w->txtheight->setText(QStringLiteral("60"));
        w->txtWidth->setText(QStringLiteral("70"));
        w->Command4->click();
        EXPECT_EQ(page->CodeMax1()->text(), u(c.opening) + u("<PARAM NAME=\"a\" VALUE=\"a\"1\"\">\r\n") +
                                                u("<PARAM NAME=\"b\" VALUE=\"b\"1\"\">\r\n") + u(c.closing));
        EXPECT_FALSE(page->CodeMax1()->hasSelectedText()) << "each step leaves the caret behind it";
        EXPECT_FALSE(w->isVisible());
        // The text fields are reset, the sizes to 50; the list stays.
        for (const auto& [name, label] : c.fields)
            EXPECT_EQ(w->findChild<QLineEdit*>(u(name))->text(), QString()) << name;
        EXPECT_EQ(w->txtnamenew->text(), QString());
        EXPECT_EQ(w->txtvaluenew->text(), QString());
        EXPECT_EQ(w->txtheight->text(), QStringLiteral("50"));
        EXPECT_EQ(w->txtWidth->text(), QStringLiteral("50"));
        EXPECT_EQ(w->List1->count(), 2);

        // An empty list: the opening and the closing still go in; Enter inserts, Esc exits.
        page->CodeMax1()->setText(QString());
        w = openParameterWizard(c.key);
        w->List1->clear();
        for (const auto& [name, label] : c.fields)
            w->findChild<QLineEdit*>(u(name))->setText(u(name));
        w->txtheight->setText(QStringLiteral("60"));
        w->txtWidth->setText(QStringLiteral("70"));
        QTest::keyClick(w->txtWidth, Qt::Key_Return);
        EXPECT_EQ(page->CodeMax1()->text(), u(c.opening) + u(c.closing));
        w = openParameterWizard(c.key);
        QTest::keyClick(w->txtheight, Qt::Key_Escape);
        EXPECT_FALSE(w->isVisible());
    }
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(MediaWizardsTest, ParameterWizardsFileChooserAndNoCodeWindow)
{
    folder.write(QStringLiteral("x y/Ünï, 1.class"), "x");
    const QString file = folder.file(QStringLiteral("x y/Ünï, 1.class"));
    for (const ParameterCase& c : parameterCases) {
        SCOPED_TRACE(c.key);
        ParameterWizard* w = openParameterWizard(c.key);
        ASSERT_NE(w, nullptr);
        auto* target = w->findChild<QLineEdit*>(u(c.fileField));
        EXPECT_EQ(labelOf(w->Command1), labelOf(target)) << "the chooser sits on its field's row";
        prompts.answerOpenFile(file);
        w->Command1->click();
        EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
        EXPECT_EQ(target->text(), file);
        prompts.answerOpenFile(QString());
        prompts.answerMsgBox(Answer::OK);
        w->Command1->click();
        EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Nof file selected"), 0));
        EXPECT_EQ(target->text(), file);
        EXPECT_TRUE(w->isVisible());
    }

    // Without a document and with a notepad nothing goes in and the form closes; the audio
    // wizard, whose errors are ignored statement by statement, resets its fields all the same.
    for (bool pad : {false, true}) {
        notepad* note = pad ? newPad(QStringLiteral("notes")) : nullptr;
        for (const ParameterCase& c : parameterCases) {
            SCOPED_TRACE(std::string(c.key) + (pad ? " in a notepad" : " without a document"));
            ParameterWizard* w = openParameterWizard(c.key);
            auto* target = w->findChild<QLineEdit*>(u(c.fileField));
            target->setText(QStringLiteral("kept?"));
            w->txtheight->setText(QStringLiteral("9"));
            w->Command4->click();
            EXPECT_FALSE(w->isVisible());
            const bool reset = QString::fromLatin1(c.key) == QLatin1String("Insert RealAudio");
            EXPECT_EQ(target->text(), reset ? QString() : QStringLiteral("kept?"));
            EXPECT_EQ(w->txtheight->text(), reset ? QStringLiteral("50") : QStringLiteral("9"));
        }
        if (note) {
            EXPECT_EQ(note->RichTextBox1()->text(), QStringLiteral("notes"));
        }
    }
    EXPECT_EQ(prompts.prompts().size(), 9) << "two file dialogs and one message each";
}

TEST_F(MediaWizardsTest, ParameterWizardsTakeAnyText)
{
    frmsplit* split = newSplit();
    ParameterWizard* w = openParameterWizard("Insert Object");
    ASSERT_NE(w, nullptr);
    auto* object = qobject_cast<Object*>(w);
    ASSERT_NE(object, nullptr);
    const QString big = QString(1 << 20, QLatin1Char('v'));
    object->txtclass->setText(u("clsid:\"<x>\"\r\n"));
    object->coallignment->setCurrentText(QStringLiteral("AbsMidlle"));
    w->txtnamenew->setText(u("<n>"));
    w->txtvaluenew->setText(big);
    w->Command2->click();
    w->Command4->click();
    EXPECT_EQ(split->CodeMax1()->text(),
              u("<OBJECT CODEBASE= NAME= CLASSID=clsid:\"<x>\"\r\n ALIGN=AbsMidlle HEIGHT=50 WIDTH=50>\r\n<PARAM NAME=\"<n>\" VALUE=\"") +
                  big + u("\">\r\n</OBJECT>\r\n"));

    // The audio wizard's autostart box; its sticker box writes nothing.
    split->CodeMax1()->setText(QString());
    auto* audio = qobject_cast<RealAudio*>(openParameterWizard("Insert RealAudio"));
    ASSERT_NE(audio, nullptr);
    EXPECT_EQ(audio->chkautostart->text(), QStringLiteral("Autostart"));
    EXPECT_EQ(audio->chksticker->text(), QStringLiteral("Sticker"));
    audio->List1->clear();
    audio->chkautostart->setChecked(true);
    audio->chksticker->setChecked(true);
    audio->Command4->click();
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("<EMBED SRC= NAME= type=audio/x-pn-realaudio-plugin ALIGN=Top HEIGHT=50 "
                                                        "WIDTH=50 CONTROLS=all AUTOSTART=TRUE NOLABELS=TRUE\r\n>\r\n"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}
