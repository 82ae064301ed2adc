// The gallery window: its search over the chosen types, the page it writes (whole, over the old
// one) and opens, its messages, and the page showing every picture in a real browser engine.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "pagetools/GifLoader.h"
#include "platform/CodeMax.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "services/Workspace.h"
#include "shell/frmMain.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineProfile>

namespace {
const QString noFiles =
    QStringLiteral("The Search has resulted in no files being found, select the folder and press Search, then try again.");
const char* const head =
    "<html>\r\n\r\n<head>\r\n<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n"
    "<title> Pictures </title>\r\n</head> \r\n\r\n<body text=\"#000000\" bgColor=\"ffffff\">\r\n";

class GifLoaderTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        QDir().mkpath(pictures());
        QDir().mkpath(out());
    }
    QString pictures() const { return folder.file(QStringLiteral("my pictures")); }
    QString out() const { return folder.file(QStringLiteral("site")); }
    void picture(const QString& name, const char* format, QColor colour = Qt::red) const
    {
        QImage image(8, 6, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(pictures() + QLatin1Char('/') + name, format)) << name.toStdString();
    }
    GifLoader* open()
    {
        frmMain::instance()->MenuClick(QStringLiteral("Index Picture Generator"));
        auto* w = loadedForm<GifLoader>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
            w->Dir1->setPath(pictures());
        }
        return w;
    }
    static void setRows(QListWidget* list, const QStringList& rows)
    {
        list->clear();
        list->addItems(rows);
    }
};
}

TEST_F(GifLoaderTest, SearchesEachTypeInTurnAndKeepsThePatterns)
{
    picture(QStringLiteral("b.gif"), "BMP");  // the name decides, not the content
    picture(QStringLiteral("a.gif"), "BMP");
    picture(QStringLiteral("C.JPG"), "JPG");
    picture(QStringLiteral("d.bmp"), "BMP");
    folder.write(QStringLiteral("my pictures/notes.txt"), "x");
    QDir().mkpath(pictures() + QStringLiteral("/sub"));
    picture(QStringLiteral("sub/deep.gif"), "BMP");

    GifLoader* w = open();
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("GifLoader"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Index Picture Generator"));
    EXPECT_EQ(rows(w->List2), (QStringList{QStringLiteral("*.gif"), QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"),
                                           QStringLiteral("*.wmf"), QStringLiteral("*.bmp")}));
    EXPECT_TRUE(w->Option1->isChecked());
    EXPECT_EQ(w->Option1->text(), QStringLiteral("Output List In bullets"));
    EXPECT_EQ(w->Option2->text(), QStringLiteral("Output List In Drop Down Box"));
    EXPECT_FALSE(w->File1->isVisible());

    // A file that two patterns match stands twice; no sub-folders; letter case of the
    // extension does not matter.
    setRows(w->List3, {QStringLiteral("*.gif"), QStringLiteral("*.g*"), QStringLiteral("*.jpg")});
    w->Command2->click();
    const QString p = pictures() + QLatin1Char('/');
    EXPECT_EQ(rows(w->List1), (QStringList{p + "a.gif", p + "b.gif", p + "a.gif", p + "b.gif", p + "C.JPG"}));
    EXPECT_EQ(w->Label3->text(), QStringLiteral("Done"));

    // Patterns: typed, from the known list, removed.
    prompts.answerMsgBox(Answer::OK);
    w->Command4->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No extension to add!"), 0));
    w->Text1->setText(QStringLiteral("*.png"));
    w->Command4->click();
    w->List2->setCurrentRow(4);
    w->Command5->click();
    EXPECT_EQ(rows(w->List3), (QStringList{QStringLiteral("*.gif"), QStringLiteral("*.g*"), QStringLiteral("*.jpg"),
                                           QStringLiteral("*.png"), QStringLiteral("*.bmp")}));
    w->List3->setCurrentRow(1);
    w->Command6->click();
    EXPECT_EQ(rows(w->List3).size(), 4);
    EXPECT_FALSE(rows(w->List3).contains(QStringLiteral("*.g*")));
    setRows(w->List3, {});
    prompts.answerMsgBox(Answer::OK);
    w->Command6->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No file types to remove!"), 0));

    // An empty folder: nothing found, and the page is refused with the stop box.
    setRows(w->List3, {QStringLiteral("*.gif")});
    w->Dir1->setPath(out());
    w->Command2->click();
    EXPECT_TRUE(rows(w->List1).isEmpty());
    w->txtfolder->setText(out());
    prompts.answerMsgBox(Answer::OK);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), noFiles, 16));
    EXPECT_FALSE(QFile::exists(out() + QStringLiteral("/PictureShow.html")));
}

TEST_F(GifLoaderTest, WritesThePageOverTheOldOneAndOpensIt)
{
    picture(QStringLiteral("a.gif"), "BMP");
    picture(QStringLiteral("b.jpg"), "JPG");
    folder.write(QStringLiteral("site/PictureShow.html"), QByteArray(5000, 'x'));
    GifLoader* w = open();
    ASSERT_NE(w, nullptr);
    setRows(w->List3, {QStringLiteral("*.gif"), QStringLiteral("*.jpg")});
    w->Command2->click();
    w->txtfolder->setText(out());
    w->Command3->click();

    const QString a = pictures() + QStringLiteral("/a.gif"), b = pictures() + QStringLiteral("/b.jpg");
    // The folder's name has a blank: the addresses carry it as %20, the texts as it stands.
    const QString ea = QString(a).replace(QLatin1Char(' '), QStringLiteral("%20"));
    const QString eb = QString(b).replace(QLatin1Char(' '), QStringLiteral("%20"));
    const QString expected = QString::fromUtf8(head) +
        QStringLiteral("<a name=TOP><p>There are 2 pictures in this page.</p>\r\n<ul>\r\n") +
        QStringLiteral("<li><a href=#%1>%2</a></li>\r\n<li><a href=#%3>%4</a></li>\r\n</ul>\r\n").arg(ea, a, eb, b) +
        QStringLiteral("<a name=%1><br><p align=Center>%2 <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=%1></p>\r\n").arg(ea, a) +
        QStringLiteral("<a name=%1><br><p align=Center>%2 <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=%1></p>\r\n").arg(eb, b) +
        QStringLiteral("<br><p align=Center>Made by Velloro 2002 Pro</p>\r\n</body>\r\n</html>\r\n");
    const QString path = out() + QStringLiteral("/PictureShow.html");
    EXPECT_EQ(QString::fromUtf8(folder.read(QStringLiteral("site/PictureShow.html"))), expected);

    auto* doc = qobject_cast<frmDocument*>(ActiveForm());
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), expected);
    EXPECT_EQ(doc->windowTitle(), QStringLiteral("PictureShow.html [ ") + path + QStringLiteral(" ]"));
    EXPECT_TRUE(prompts.prompts().isEmpty());

    // The drop-down page over the same file.
    w->Option2->setChecked(true);
    w->Command3->click();
    const QString dropPage = QString::fromUtf8(folder.read(QStringLiteral("site/PictureShow.html")));
    EXPECT_TRUE(dropPage.contains(QStringLiteral("<option value=#%1>%2</option>\r\n").arg(ea, a)));
    EXPECT_TRUE(dropPage.contains(QStringLiteral("function DropDownMenu(entered)")));
    EXPECT_FALSE(dropPage.contains(QStringLiteral("<ul>")));

    // A folder that cannot be written to, and no folder at all: the platform's error, no page.
    for (const QString& bad : {folder.file(QStringLiteral("missing/deeper")), QString()}) {
        w->txtfolder->setText(bad);
        prompts.answerMsgBox(Answer::OK);
        w->Command3->click();
        EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '75':\n\nPath/File access error"), 16))
            << bad.toStdString();
    }
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("missing"))));
}

// Awkward names still show: the page is loaded in a real browser engine, every picture has
// loaded, and every index link has its anchor.
TEST_F(GifLoaderTest, EveryPictureShowsInTheBrowser)
{
    const QStringList names = {QStringLiteral("plain.gif"), QStringLiteral("two words.gif"), QStringLiteral("#1 & 2.gif"),
                               QStringLiteral("caf\u00e9 \u00fc.gif"), QStringLiteral("it's \"q\".gif"), QStringLiteral("a=b%c.gif")};
    for (const QString& name : names)
        picture(name, "PNG", Qt::blue);
    GifLoader* w = open();
    ASSERT_NE(w, nullptr);
    setRows(w->List3, {QStringLiteral("*.gif")});
    w->Command2->click();
    ASSERT_EQ(w->List1->count(), names.size());
    w->txtfolder->setText(out());
    for (bool bullets : {true, false}) {
        (bullets ? w->Option1 : w->Option2)->setChecked(true);
        w->Command3->click();

        QWebEngineProfile profile;
        QWebEnginePage page(&profile);
        QSignalSpy finished(&page, &QWebEnginePage::loadFinished);
        page.load(QUrl::fromLocalFile(out() + QStringLiteral("/PictureShow.html")));
        ASSERT_TRUE(finished.wait(20000));
        ASSERT_TRUE(finished.first().at(0).toBool());
        QVariant result;
        bool done = false;
        page.runJavaScript(QStringLiteral(
                               "(function() {"
                               "  const images = Array.from(document.images);"
                               "  const shown = images.filter(i => i.complete && i.naturalWidth === 8).length;"
                               "  const links = Array.from(document.querySelectorAll('a[href^=\"#\"], option[value^=\"#\"]'))"
                               "      .map(a => (a.getAttribute('href') || a.getAttribute('value')).slice(1));"
                               "  const missing = links.filter(n => document.getElementsByName(n).length === 0);"
                               "  return [images.length, shown, links.length, missing.join('|')];"
                               "})()"),
                           [&](const QVariant& v) {
                               result = v;
                               done = true;
                           });
        ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, 10000));
        const QVariantList r = result.toList();
        ASSERT_EQ(r.size(), 4);
        EXPECT_EQ(r[0].toInt(), 6) << bullets;
        EXPECT_EQ(r[1].toInt(), 6) << "every picture loaded";
        EXPECT_EQ(r[2].toInt(), 12) << "an index link and a way back to the top for each";
        EXPECT_EQ(r[3].toString(), QString()) << "links without their anchor";
    }
}
