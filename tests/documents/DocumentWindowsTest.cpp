// The three document windows: previews, the split window's live preview, the notepad's strip,
// ruler and popup menu, and the context menu of the code windows.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "documents/FileFacts.h"
#include "documents/PProperties.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/BrowserEngine.h"
#include "platform/WebBrowser.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextEdit>
#include <QTest>
#include <QToolButton>

namespace {
class WindowsTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    template <class W>
    W* open(const QString& caption = QStringLiteral("Document 1"))
    {
        auto* w = new W;
        w->setCaption(caption);
        frmMain::instance()->addDocument(w);
        return w;
    }
    QByteArray tempHtml() const { return folder.read(QStringLiteral("temp.html")); }
};
}

TEST(NotepadLineNumbers, FourDigitsKept)
{
    for (const auto& [line, text] : {std::pair{1, "0001"}, {7, "0007"}, {999, "0999"}, {1000, "1000"}, {12345, "2345"}})
        EXPECT_EQ(lineNumberText(line), QString::fromLatin1(text));
}

TEST_F(WindowsTest, PagePreviewOfAnUnsavedPageGoesToTempHtml)
{
    auto* page = open<frmDocument>();
    page->CodeMax1()->setText(QStringLiteral("<p>first</p>"));
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("temp.html"))));
    page->SSTab1->setCurrentIndex(1);  // the preview tab
    EXPECT_EQ(tempHtml(), QByteArray("<p>first</p>"));
    EXPECT_EQ(page->WebBrowser1()->LocationURL(), QUrl::fromLocalFile(folder.file(QStringLiteral("temp.html"))));
    page->CodeMax1()->setText(QStringLiteral("<p>second</p>"));
    page->SSTab1->setCurrentIndex(0);  // coming back to the code writes it again
    EXPECT_EQ(tempHtml(), QByteArray("<p>second</p>"));
    page->CodeMax1()->setText(QStringLiteral("<p>third</p>"));
    page->previewButton(QStringLiteral("SmartNetButton1"))->click();
    EXPECT_EQ(tempHtml(), QByteArray("<p>third</p>"));
}

TEST_F(WindowsTest, PagePreviewOfASavedPageStandsBesideItAndGoesOnClose)
{
    auto* page = open<frmDocument>();
    const QString path = folder.file(QStringLiteral("site/a.htm"));
    folder.write(QStringLiteral("site/a.htm"), "<p>a</p>");
    page->tempaddress()->setText(path);
    page->CodeMax1()->setText(QStringLiteral("<p>b</p>"));
    page->RefreshPreview();
    EXPECT_EQ(folder.read(QStringLiteral("site/a.htm_TMP.htm")), QByteArray("<p>b</p>"));
    EXPECT_EQ(folder.read(QStringLiteral("site/a.htm")), QByteArray("<p>a</p>")) << "the page itself is untouched";
    page->Changedvalue()->setText(QString());
    EXPECT_TRUE(page->Unload());
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("site/a.htm_TMP.htm"))));
}

TEST_F(WindowsTest, LinkPreviewFollowsTheBrowsersStatusText)
{
    auto* page = open<frmDocument>();
    Q_EMIT page->WebBrowser1()->StatusTextChange(QStringLiteral("http://example.invalid/next.htm"));
    EXPECT_EQ(page->linkpreview()->text(), QStringLiteral("http://example.invalid/next.htm"));
    Q_EMIT page->WebBrowser1()->StatusTextChange(QStringLiteral("Done"));
    EXPECT_EQ(page->linkpreview()->text(), QStringLiteral("Smart Link Preview [Roll Over Links]"));
}

TEST_F(WindowsTest, PreviewBarButtonsOfAnUnsavedPage)
{
    auto* page = open<frmDocument>();
    const QStringList tips = {QStringLiteral("Refresh Preview"), QStringLiteral("Print Preview"),
                              QStringLiteral("View Full Screen"), QStringLiteral("Upload To The Interent"),
                              QStringLiteral("Email Page"), QStringLiteral("Lauch File To Default Program"),
                              QStringLiteral("Enlarge Browser Text"), QStringLiteral("Decrease Browser Text"),
                              QStringLiteral("Check HTML Report Tool")};
    for (int i = 0; i < tips.size(); ++i) {
        QToolButton* b = page->previewButton(QStringLiteral("SmartNetButton%1").arg(i + 1));
        ASSERT_NE(b, nullptr) << i;
        EXPECT_EQ(b->toolTip(), tips[i]);
    }
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    page->previewButton(QStringLiteral("SmartNetButton4"))->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("You need to save this document before you can upload it."));
    page->previewButton(QStringLiteral("SmartNetButton6"))->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("This is not a saved file, so Velloro cannot open to default program."));
    const double zoom = page->WebBrowser1()->zoom();
    page->previewButton(QStringLiteral("SmartNetButton7"))->click();
    EXPECT_GT(page->WebBrowser1()->zoom(), zoom);
    page->previewButton(QStringLiteral("SmartNetButton8"))->click();
    page->previewButton(QStringLiteral("SmartNetButton8"))->click();
    EXPECT_LT(page->WebBrowser1()->zoom(), zoom);
}

TEST_F(WindowsTest, ContextMenuOwnBranches)
{
    auto* page = open<frmDocument>();
    const std::pair<const char*, const char*> forms[] = {
        {"Password Box", "<p><input type=password name=T1 size=20><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2></p>"},
        {"1 Line Text Box", "<p><input type=text name=T1 size=20><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2></p>"}};
    for (const auto& [key, fragment] : forms) {
        page->CodeMax1()->setText(QString());
        page->ContextMenuClick(QString::fromLatin1(key));
        EXPECT_EQ(page->CodeMax1()->text(), QString::fromLatin1(fragment));
        EXPECT_FALSE(page->CodeMax1()->hasSelectedText());
    }

    prompts.answerMsgBox(Answer::OK);
    page->ContextMenuClick(QStringLiteral("Spell Checker"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Currently spell check does not support web pages, or there is no page open."),
                      -1, QStringLiteral(":: Notepad Only ::")));

    QSignalSpy properties(page->CodeMax1(), &CodeMax::propertiesRequested);
    page->ContextMenuClick(QStringLiteral("Editor Properties"));
    EXPECT_EQ(properties.count(), 1);

    page->CodeMax1()->setText(QStringLiteral("abc"));
    page->ContextMenuClick(QStringLiteral("SelectAll"));
    EXPECT_EQ(page->CodeMax1()->SelText(), QStringLiteral("abc"));
    page->ContextMenuClick(QStringLiteral("Delete Selected"));
    EXPECT_EQ(page->CodeMax1()->text(), QString());
    page->ContextMenuClick(QStringLiteral("Undo"));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("abc"));
}

TEST_F(WindowsTest, ContextMenuItemsInOrderAndTheDisabledOnes)
{
    auto* page = open<frmDocument>();
    QStringList top;
    for (QAction* a : page->SmartMenuXP1->actions())
        top << a->text();
    EXPECT_EQ(top, (QStringList{QStringLiteral("Page Properties"), QStringLiteral("Editor Properties"), QStringLiteral("Format Text"),
                                QStringLiteral("Undo"), QStringLiteral("Redo"), QStringLiteral("Select All"), QStringLiteral("Cut"),
                                QStringLiteral("Copy"), QStringLiteral("Paste"), QStringLiteral("Delete Selected"),
                                QStringLiteral("Insert >>"), QStringLiteral("Insert Form >>"), QStringLiteral("Spell Checker"),
                                QStringLiteral("About")}));
    for (const char* key : {"ListForm", "ListField", "File Upload", "Label"})
        EXPECT_FALSE(page->contextAction(QString::fromLatin1(key))->isEnabled()) << key;
    for (const char* key : {"Undo", "SelectAll", "Password Box", "1 Line Text Box", "About"})
        EXPECT_TRUE(page->contextAction(QString::fromLatin1(key))->isEnabled()) << key;
    EXPECT_EQ(page->findChild<QMenu*>(QStringLiteral("SmartMenuXP1")), page->SmartMenuXP1);
}

TEST_F(WindowsTest, ARightClickOnTheWindowPopsUpItsMenu)
{
    auto* page = open<frmDocument>();
    page->show();
    QTest::mouseClick(page, Qt::RightButton, Qt::NoModifier, QPoint(2, 2));
    EXPECT_TRUE(page->SmartMenuXP1->isVisible());
    page->SmartMenuXP1->hide();
    QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    EXPECT_FALSE(page->SmartMenuXP1->isVisible());
}

TEST_F(WindowsTest, SplitWindowPreviewFollowsTheTyping)
{
    auto* split = open<frmsplit>(QStringLiteral("HTML Split [ 1 ]"));
    EXPECT_THROW(split->SYNTAXTYPE(), RuntimeError) << "the split window has no language list";
    split->CodeMax1()->setText(QStringLiteral("<p>one</p>"));
    frmMain* main = frmMain::instance();
    EXPECT_EQ(split->Changedvalue()->text(), QStringLiteral("Changed"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 10"));
    split->flushPreview();
    EXPECT_EQ(tempHtml(), QByteArray("<p>one</p>"));
    // Typing: each change marks the page at once; the preview catches up with the last text.
    for (const char* piece : {"a", "b", "c"}) {
        split->CodeMax1()->setSelText(QString::fromLatin1(piece));
        split->CodeMax1()->ExecuteCmd(CodeMax::CollapseRight);
    }
    QTest::qWait(frmsplit::previewDelayMs * 3);
    EXPECT_EQ(tempHtml(), split->CodeMax1()->text().toUtf8());
    EXPECT_EQ(split->WebBrowser1()->LocationURL(), QUrl::fromLocalFile(folder.file(QStringLiteral("temp.html"))));
}

TEST_F(WindowsTest, SplitRefreshUsesTheCopyBesideASavedFileWhichGoesOnClose)
{
    auto* split = open<frmsplit>();
    split->tempaddress()->setText(folder.file(QStringLiteral("s.htm")));
    split->CodeMax1()->setText(QStringLiteral("<p>s</p>"));
    split->SplitRefresh();
    EXPECT_EQ(folder.read(QStringLiteral("s.htm_.TMP")), QByteArray("<p>s</p>"));
    // The refresh button runs the live routine, which marks the page changed.
    split->Changedvalue()->setText(QString());
    split->previewButton(QStringLiteral("SmartNetButton1"))->click();
    EXPECT_EQ(split->Changedvalue()->text(), QStringLiteral("Changed"));
    EXPECT_EQ(split->previewButton(QStringLiteral("SmartNetButton7"))->toolTip(), QStringLiteral("Check HTML Tag's"));
    EXPECT_EQ(split->previewButton(QStringLiteral("SmartNetButton8")), nullptr) << "no text size buttons";
    prompts.answerMsgBox(Answer::No);
    EXPECT_TRUE(split->Unload());
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("s.htm_.TMP"))));
}

TEST_F(WindowsTest, SplitActivationSetsOnlyTheCaption)
{
    frmMain* main = frmMain::instance();
    auto* split = open<frmsplit>(QStringLiteral("HTML Split [ 4 ]"));
    main->setStatusText(1, QStringLiteral("before"));
    main->activate(split);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ HTML Split [ 4 ] ]"));
    EXPECT_EQ(main->statusText(1), QStringLiteral("before"));
}

TEST_F(WindowsTest, NotepadIsAPadWithStatusAndLineNumbers)
{
    auto* pad = open<notepad>(QStringLiteral("Notepad [ 1 ]"));
    EXPECT_EQ(pad->Tag(), QStringLiteral("Pad"));
    EXPECT_THROW(pad->CodeMax1(), RuntimeError);
    EXPECT_THROW(pad->Changedvalue(), RuntimeError);
    EXPECT_NE(pad->RichTextBox1()->widget(), nullptr);
    pad->RichTextBox1()->setText(QStringLiteral("one\r\ntwo\r\nthree"));
    frmMain* main = frmMain::instance();
    EXPECT_EQ(main->statusText(2), QStringLiteral("Lines: 3"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 15"));
    pad->resize(500, 400);
    const QStringList numbers = pad->visibleLineNumbers();
    ASSERT_GE(numbers.size(), 3);
    EXPECT_EQ(numbers.mid(0, 3), (QStringList{QStringLiteral("0001"), QStringLiteral("0002"), QStringLiteral("0003")}));
    EXPECT_EQ(pad->lineNumPanel->palette().color(QPalette::Window), QColor(52, 129, 211));
}

TEST_F(WindowsTest, NotepadAsksOnEveryCloseAndSavesPlainText)
{
    auto* pad = open<notepad>(QStringLiteral("Notepad [ 1 ]"));
    prompts.answerMsgBox(Answer::Cancel);
    EXPECT_FALSE(pad->Unload()) << "even unchanged, the notepad asks";
    EXPECT_EQ(prompts.last().text, QStringLiteral("Would you like to save the page?"));

    const QString path = folder.file(QStringLiteral("notes.txt"));
    pad->tempaddress()->setText(path);
    pad->RichTextBox1()->setText(QStringLiteral("line one\r\nline two"));
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    EXPECT_TRUE(pad->Unload());
    EXPECT_EQ(prompts.last().text, QStringLiteral("Page Saved as :: ") + path);
    EXPECT_EQ(folder.read(QStringLiteral("notes.txt")), QByteArray("line one\r\nline two\r\n"));
}

TEST_F(WindowsTest, NotepadPopupReactions)
{
    auto* pad = open<notepad>(QStringLiteral("Notepad [ 1 ]"));
    pad->RichTextBox1()->setText(QStringLiteral("text"));
    QStringList items;
    for (QAction* a : pad->mnu->actions())
        items << a->text();
    EXPECT_EQ(items, (QStringList{QStringLiteral("Page Properties"), QStringLiteral("Editor Properties"), QStringLiteral("Format Text"),
                                  QStringLiteral("Undo"), QStringLiteral("Redo"), QStringLiteral("Select All"), QStringLiteral("Cut"),
                                  QStringLiteral("Copy"), QStringLiteral("Paste"), QStringLiteral("Delete Selected"),
                                  QStringLiteral("Insert Now"), QStringLiteral("Quick Bar"), QStringLiteral("Quick Side"),
                                  QStringLiteral("Spell Checker"), QStringLiteral("About")}));

    prompts.answerMsgBox(Answer::OK);
    pad->mnu->findChild<QAction*>(QStringLiteral("edproperties"))->trigger();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Not supported for Notepad yet"));

    // Undo is written for the code editor with errors ignored: nothing happens.
    const int before = prompts.prompts().size();
    pad->mnu->findChild<QAction*>(QStringLiteral("undo"))->trigger();
    EXPECT_EQ(prompts.prompts().size(), before);
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("text"));

    // Cut is written for the code editor without a guard: the run-time error box.
    prompts.answerMsgBox(Answer::OK);
    pad->mnu->findChild<QAction*>(QStringLiteral("cut"))->trigger();
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Run-time error '438':"))) << prompts.last().text.toStdString();
    EXPECT_EQ(prompts.last().style, 16);

    // Quick Side flips its check and the left holder with it.
    QAction* side = pad->mnu->findChild<QAction*>(QStringLiteral("quickside"));
    side->trigger();
    EXPECT_FALSE(side->isChecked());
    EXPECT_TRUE(frmMain::instance()->Sideholder->isHidden());
    side->trigger();
    EXPECT_FALSE(frmMain::instance()->Sideholder->isHidden());
}

TEST_F(WindowsTest, NotepadRulerShiftsTheIndent)
{
    auto* pad = open<notepad>(QStringLiteral("Notepad [ 1 ]"));
    pad->RichTextBox1()->setText(QStringLiteral("indented"));
    const int start = pad->tabnumber->text().toInt();
    EXPECT_EQ(start, 600) << "the number takes the marker's place";
    pad->moveTabMarker(start + 450);
    EXPECT_EQ(pad->tabnumber->text(), QString::number(start + 450));
    EXPECT_EQ(pad->RichTextBox1()->SelIndent(), 450);
    pad->moveTabMarker(start);
    EXPECT_EQ(pad->RichTextBox1()->SelIndent(), 0);
}

namespace {
// Waits until the browser has finished a load.
bool waitForDone(WebBrowser* browser)
{
    QSignalSpy status(browser, &WebBrowser::StatusTextChange);
    for (int i = 0; i < 60; ++i) {
        for (const auto& args : status)
            if (args.first().toString() == QLatin1String("Done"))
                return true;
        status.wait(500);
    }
    return false;
}

const QString samplePage = QStringLiteral(
    "<html>\r\n<head>\r\n<title>Sample</title>\r\n<style>\r\nbody { font-family: sans-serif; background: #fffff0; }\r\n"
    "h1 { color: #3481d3; }\r\n</style>\r\n</head>\r\n<body>\r\n<h1>Velloro sample</h1>\r\n"
    "<p>A paragraph with <b>bold</b> and <a href=\"next.htm\">a link</a>.</p>\r\n"
    "<table border=1><tr><td>one</td><td>two</td></tr></table>\r\n</body>\r\n</html>");
}

TEST_F(WindowsTest, PreviewsShowThePageOnBothTabsAndInTheSplitWindow)
{
    frmMain::instance()->resize(1200, 860);
    auto* page = open<frmDocument>();
    page->CodeMax1()->setText(samplePage);
    page->setWindowState(2);
    saveShot(frmMain::instance(), QStringLiteral("page-code"));
    page->SSTab1->setCurrentIndex(1);
    ASSERT_TRUE(waitForDone(page->WebBrowser1()));
    EXPECT_EQ(page->linkpreview()->text(), QStringLiteral("Smart Link Preview [Roll Over Links]"));
    saveShot(frmMain::instance(), QStringLiteral("page-preview"));

    auto* split = open<frmsplit>(QStringLiteral("HTML Split [ 1 ]"));
    split->setWindowState(2);
    split->CodeMax1()->setText(samplePage);
    for (const char* piece : {"<p>typed ", "while ", "previewing</p>"}) {
        split->CodeMax1()->setSelText(QString::fromLatin1(piece));
        split->CodeMax1()->ExecuteCmd(CodeMax::CollapseRight);
    }
    split->flushPreview();
    ASSERT_TRUE(waitForDone(split->WebBrowser1()));
    EXPECT_TRUE(tempHtml().contains("previewing</p>"));
    saveShot(frmMain::instance(), QStringLiteral("split-typing"));

    auto* pad = open<notepad>(QStringLiteral("Notepad [ 1 ]"));
    pad->setWindowState(2);
    pad->RichTextBox1()->setText(QStringLiteral("Shopping list\r\nbread and butter\r\ncoffee"));
    saveShot(frmMain::instance(), QStringLiteral("notepad"));
}

// "Page Properties": the facts of the active document's file, read anew at each showing.
TEST_F(WindowsTest, PagePropertiesShowTheActiveFilesFacts)
{
    frmMain* main = frmMain::instance();
    main->MenuClick(QStringLiteral("Page Properties"));
    auto* w = loadedForm<PProperties>();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Page Properties"));
    EXPECT_EQ(w->facts->Filenae->text(), QString()) << "no document";
    w->hide();

    folder.write(QStringLiteral("site/about.htm"), QByteArray(1234, 'x'));
    frmDocument* page = newPage(QStringLiteral("x"));
    page->tempaddress()->setText(folder.file(QStringLiteral("site/about.htm")));
    page->setCaption(QStringLiteral("about.htm"));
    main->MenuClick(QStringLiteral("Properties"));
    EXPECT_EQ(w->facts->Filenae->text(), QStringLiteral("about.htm"));
    EXPECT_EQ(w->facts->Location->text(), folder.file(QStringLiteral("site/about.htm")));
    EXPECT_EQ(w->facts->Extension->text(), QStringLiteral("HTM"));
    EXPECT_EQ(w->facts->Filesize->text(), QStringLiteral("1234 Bytes"));
    EXPECT_EQ(w->facts->Readonly->text(), QStringLiteral("False"));
    EXPECT_EQ(w->facts->Filehidden->text(), QStringLiteral("False"));
    EXPECT_FALSE(w->facts->Modified->text().isEmpty());
    saveShot(w, QStringLiteral("PProperties"));

    // A page never saved: its caption, nothing else.
    w->hide();
    frmDocument* fresh = newPage(QStringLiteral("y"));
    fresh->setCaption(QStringLiteral("Document 9"));
    main->MenuClick(QStringLiteral("Page Properties"));
    EXPECT_EQ(w->facts->Filenae->text(), QStringLiteral("Document 9"));
    EXPECT_EQ(w->facts->Location->text(), QString());
    w->Command1->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

namespace {
// A script's result in the page, waited for.
QVariant inPage(WebBrowser* browser, const QString& script)
{
    QVariant result;
    bool done = false;
    browser->pageView()->runScript(script, [&](const QVariant& v) {
        result = v;
        done = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 20000)) << script.toStdString();
    return result;
}
int scrolled(WebBrowser* browser) { return inPage(browser, QStringLiteral("window.scrollY")).toInt(); }

QString longPage()
{
    QString page = QStringLiteral("<html>\r\n<body>\r\n");
    for (int i = 0; i < 400; ++i)
        page += QStringLiteral("<p>Paragraph number %1 of the long page.</p>\r\n").arg(i);
    return page + QStringLiteral("</body>\r\n</html>\r\n");
}

// A click with Ctrl held on the text of the index-th paragraph, as the mouse gives it.
void ctrlClickParagraph(WebBrowser* browser, int index)
{
    const QVariantList at =
        inPage(browser, QStringLiteral("(function(){var p=document.getElementsByTagName('p')[%1];"
                                       "p.scrollIntoView({block:'center'});var r=p.getBoundingClientRect();"
                                       "return [r.left + 60, r.top + r.height / 2];})()")
                            .arg(index))
            .toList();
    ASSERT_EQ(at.size(), 2);
    QWidget* view = browser->pageView()->widget();
    QWidget* target = view->focusProxy() ? view->focusProxy() : view;
    const QPoint point(int(at[0].toDouble() * browser->zoom()), int(at[1].toDouble() * browser->zoom()));
    QTest::mouseClick(target, Qt::LeftButton, Qt::ControlModifier, point);
}
}

TEST_F(WindowsTest, PreviewsKeepTheirPlaceAndCtrlClickFindsTheSource)
{
    frmMain::instance()->resize(1000, 700);
    const QString page = longPage();
    const int lineOf200 = 2 + 200;  // two lines before the first paragraph

    auto* doc = open<frmDocument>();
    doc->setWindowState(2);
    doc->CodeMax1()->setText(page);
    doc->SSTab1->setCurrentIndex(1);
    ASSERT_TRUE(waitForDone(doc->WebBrowser1()));
    inPage(doc->WebBrowser1(), QStringLiteral("window.scrollTo(0, 3000)"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return scrolled(doc->WebBrowser1()) == 3000; }, 10000));
    // The refresh button writes and loads the preview again: the reader stays where he was.
    QSignalSpy loaded(doc->WebBrowser1(), &WebBrowser::NavigateComplete);
    doc->previewButton(QStringLiteral("SmartNetButton1"))->click();
    ASSERT_TRUE(loaded.wait(20000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolled(doc->WebBrowser1()) == 3000; }, 10000))
        << "scrolled to " << scrolled(doc->WebBrowser1());

    // Ctrl+click on a paragraph's text: the source tab, the caret on that paragraph's line.
    ctrlClickParagraph(doc->WebBrowser1(), 200);
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc->SSTab1->currentIndex() == 0; }, 10000));
    int line = -1, index = -1;
    doc->CodeMax1()->getCursorPosition(&line, &index);
    EXPECT_EQ(line, lineOf200);
    EXPECT_GT(index, 3) << "on the text, not the tag";
    EXPECT_EQ(doc->CodeMax1()->text(), page) << "the source is not touched";

    // The split window: typing updates the preview, which stays where it was scrolled to.
    auto* split = open<frmsplit>(QStringLiteral("HTML Split [ 1 ]"));
    split->setWindowState(2);
    split->CodeMax1()->setText(page);
    split->flushPreview();
    ASSERT_TRUE(waitForDone(split->WebBrowser1()));
    inPage(split->WebBrowser1(), QStringLiteral("window.scrollTo(0, 2500)"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return scrolled(split->WebBrowser1()) == 2500; }, 10000));
    split->CodeMax1()->setCursorPosition(2, 0);
    split->CodeMax1()->setSelText(QStringLiteral("<p>Typed at the top.</p>\r\n"));
    QSignalSpy splitLoaded(split->WebBrowser1(), &WebBrowser::NavigateComplete);
    split->flushPreview();
    ASSERT_TRUE(splitLoaded.wait(20000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolled(split->WebBrowser1()) == 2500; }, 10000))
        << "scrolled to " << scrolled(split->WebBrowser1());
    saveShot(frmMain::instance(), QStringLiteral("split-kept-place"));

    // A Ctrl+click in the split window's preview moves the caret beside it: the typed
    // paragraph is the first now, so the 151st is paragraph 150, on line 3 + 150.
    ctrlClickParagraph(split->WebBrowser1(), 151);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            split->CodeMax1()->getCursorPosition(&line, &index);
            return line == 3 + 150;
        },
        10000))
        << "caret on line " << line;
    // A plain click is the page's own.
    split->CodeMax1()->setCursorPosition(0, 0);
    const QVariantList at =
        inPage(split->WebBrowser1(), QStringLiteral("(function(){var p=document.getElementsByTagName('p')[160];"
                                                    "p.scrollIntoView({block:'center'});var r=p.getBoundingClientRect();"
                                                    "return [r.left + 60, r.top + 5];})()"))
            .toList();
    QWidget* view = split->WebBrowser1()->pageView()->widget();
    QTest::mouseClick(view->focusProxy() ? view->focusProxy() : view, Qt::LeftButton, Qt::NoModifier,
                      QPoint(at.value(0).toInt(), at.value(1).toInt()));
    QTest::qWait(300);
    split->CodeMax1()->getCursorPosition(&line, &index);
    EXPECT_EQ(line, 0);
}
