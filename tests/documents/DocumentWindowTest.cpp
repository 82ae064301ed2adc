// The document contract: members, insertion, change tracking, activation and the close question.
#include "common/TestSupport.h"

#include "documents/PageGenerator.h"
#include "documents/Printing.h"
#include "documents/frmDocument.h"
#include "platform/CodeMax.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/WebBrowser.h"
#include "app/Main.h"
#include "shell/modMain.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QTabWidget>

namespace {
class DocumentTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    frmDocument* newPage()
    {
        auto* doc = new frmDocument;
        doc->setCaption(QStringLiteral("Document %1").arg(++made));
        frmMain::instance()->addDocument(doc);
        return doc;
    }
    static DocumentWindow* active() { return frmMain::instance()->ActiveForm(); }
    // The insertion every wizard ends in, through the active document only.
    static void insert(const QString& fragment)
    {
        active()->CodeMax1()->setSelText(fragment);
        active()->CodeMax1()->ExecuteCmd(201);
    }
    int made = 0;
};
}

TEST_F(DocumentTest, WebPageWindowAnswersTheContract)
{
    frmDocument* doc = newPage();
    EXPECT_EQ(doc->Tag(), QString());
    EXPECT_EQ(doc->CodeMax1()->objectName(), QStringLiteral("CodeMax1"));
    EXPECT_EQ(doc->RichTextBox1()->widget(), nullptr) << "the rich text copy is hidden";
    EXPECT_EQ(doc->tempaddress()->objectName(), QStringLiteral("tempaddress"));
    EXPECT_TRUE(doc->tempaddress()->isHidden());
    EXPECT_TRUE(doc->Changedvalue()->isHidden());
    EXPECT_EQ(doc->SYNTAXTYPE()->currentText(), QStringLiteral("HTML"));
    EXPECT_EQ(doc->linkpreview()->text(), QStringLiteral("Smart Link Preview"));
    EXPECT_FALSE(doc->WebBrowser1()->isCreated()) << "the browser waits for the preview";
    for (const char* name : {"CodeMax1", "SYNTAXTYPE", "tempaddress", "Changedvalue", "linkpreview", "WebBrowser1", "SSTab1"})
        EXPECT_NE(doc->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;

    // Members a web page lacks are run-time errors for the caller.
    try {
        doc->tempbox();
        ADD_FAILURE() << "tempbox answered";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 438);
    }
    EXPECT_THROW(doc->startspell(), RuntimeError);
}

TEST_F(DocumentTest, SyntaxListAndNoneTurnsColouringOff)
{
    frmDocument* doc = newPage();
    QStringList items;
    for (int i = 0; i < doc->SYNTAXTYPE()->count(); ++i)
        items << doc->SYNTAXTYPE()->itemText(i);
    EXPECT_EQ(items, (QStringList{QStringLiteral("HTML"), QStringLiteral("SQL"), QStringLiteral("C/C++"),
                                  QStringLiteral("Pascal"), QStringLiteral("XML"), QStringLiteral("Basic"),
                                  QStringLiteral("Java"), QStringLiteral("PHP"), QStringLiteral("Delphi"),
                                  QStringLiteral("JavaScript"), QStringLiteral("<none>")}));
    Q_EMIT doc->SYNTAXTYPE()->textActivated(QStringLiteral("<none>"));
    EXPECT_EQ(doc->CodeMax1()->Language(), QString());
    EXPECT_EQ(doc->CodeMax1()->lexer(), nullptr);
    Q_EMIT doc->SYNTAXTYPE()->textActivated(QStringLiteral("HTML"));
    EXPECT_EQ(doc->CodeMax1()->Language(), QStringLiteral("HTML"));
    EXPECT_NE(doc->CodeMax1()->lexer(), nullptr);
}

TEST_F(DocumentTest, EditsMarkTheDocumentChangedAndUpdateTheStatus)
{
    frmDocument* doc = newPage();
    doc->Changedvalue()->setText(QString());
    doc->CodeMax1()->setText(QStringLiteral("one\r\ntwo\r\nthree"));
    frmMain* main = frmMain::instance();
    EXPECT_EQ(doc->Changedvalue()->text(), QStringLiteral("Changed"));
    EXPECT_EQ(main->statusText(2), QStringLiteral("Lines: 3"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 15"));
    insert(QStringLiteral("é"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 16")) << "characters, not bytes";
}

TEST_F(DocumentTest, AKeyInABigPageMarksItChangedAndShowsTheCountBeforeTheNextKey)
{
    // 1.2 MB: the editor tells of its changes once they are done, a key's at once.
    frmDocument* doc = newPage();
    doc->CodeMax1()->setText(QStringLiteral(u"<p>café €</p>\r\n").repeated(80000));
    doc->Changedvalue()->setText(QString());
    CodeMax* editor = doc->CodeMax1();
    ASSERT_TRUE(editor->isQuiet());
    editor->SendScintilla(QsciScintillaBase::SCI_DOCUMENTEND);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCoreApplication::sendEvent(editor, &press);
    frmMain* main = frmMain::instance();
    EXPECT_EQ(doc->Changedvalue()->text(), QStringLiteral("Changed"));
    EXPECT_EQ(main->statusText(2), QStringLiteral("Lines: 80002"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 1200002"));
}

TEST_F(DocumentTest, ActivationSetsTheCaptionAndTheStatus)
{
    frmMain* main = frmMain::instance();
    frmDocument* first = newPage();
    first->CodeMax1()->setText(QStringLiteral("1\r\n2"));
    frmDocument* second = newPage();
    second->tempaddress()->setText(QStringLiteral("/tmp/site/index.htm"));
    second->CodeMax1()->setText(QStringLiteral("x"));

    main->activate(first);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ Document 1 ]"));
    EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded ::  Document 1"));
    EXPECT_EQ(main->statusText(2), QStringLiteral("Lines: 2"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 4"));

    main->activate(second);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 2002 : Version 1.0.0 [ /tmp/site/index.htm ]"));
    EXPECT_EQ(main->statusText(1), QStringLiteral("Page Loaded ::  /tmp/site/index.htm"));
    EXPECT_EQ(main->statusText(3), QStringLiteral("Chr: 1"));
}

TEST_F(DocumentTest, CloseQuestionCancelAndNo)
{
    frmDocument* doc = newPage();
    doc->CodeMax1()->setText(QStringLiteral("text"));
    prompts.answerMsgBox(Answer::Cancel);
    EXPECT_FALSE(doc->Unload());
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Would you like to save the page?"),
                      51, QStringLiteral(":: Velloro 2002 ::")));
    EXPECT_EQ(frmMain::instance()->ActiveForm(), doc);

    prompts.answerMsgBox(Answer::No);
    EXPECT_TRUE(doc->Unload());
    processEvents();
    EXPECT_EQ(frmMain::instance()->ActiveForm(), nullptr);
}

TEST_F(DocumentTest, CloseQuestionYesSavesToTheFileAndRemovesThePreviewCopy)
{
    const QString path = folder.file(QStringLiteral("page.htm"));
    frmDocument* doc = newPage();
    doc->tempaddress()->setText(path);
    doc->CodeMax1()->setText(QStringLiteral("<html>\r\né\r\n</html>"));
    folder.write(QStringLiteral("page.htm_TMP.htm"), "old preview");

    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    EXPECT_TRUE(doc->Unload());
    ASSERT_EQ(prompts.prompts().size(), 2);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Page Saved as :: ") + path, 64, QStringLiteral(":: Page Saved ::")));
    EXPECT_EQ(folder.read(QStringLiteral("page.htm")), QByteArray("<html>\r\n\xc3\xa9\r\n</html>"));
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("page.htm_TMP.htm"))));
}

TEST_F(DocumentTest, PreviewCopyGoesEvenWhenTheCloseIsCancelled)
{
    frmDocument* doc = newPage();
    doc->tempaddress()->setText(folder.file(QStringLiteral("a.htm")));
    doc->CodeMax1()->setText(QStringLiteral("changed"));
    folder.write(QStringLiteral("a.htm_TMP.htm"), "preview");
    prompts.answerMsgBox(Answer::Cancel);
    EXPECT_FALSE(doc->Unload());
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("a.htm_TMP.htm"))));
}

TEST_F(DocumentTest, CloseQuestionYesOnANeverSavedPageKeepsItOpen)
{
    frmDocument* doc = newPage();
    doc->CodeMax1()->setText(QStringLiteral("unsaved"));
    // The save window is asked for; where this build has none, the failure is shown and the
    // page stays with its text.
    prompts.answerMsgBox(Answer::Yes);
    if (!Forms::hasFactory(QStringLiteral("Saveas")))
        prompts.answerMsgBox(Answer::OK);
    EXPECT_FALSE(doc->Unload());
    EXPECT_EQ(frmMain::instance()->ActiveForm(), doc);
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("unsaved"));
    EXPECT_EQ(prompts.pending(), 0);
}

TEST_F(DocumentTest, AFailedSaveKeepsThePageOpen)
{
    frmDocument* doc = newPage();
    doc->tempaddress()->setText(folder.file(QStringLiteral("missing/folder/page.htm")));
    doc->CodeMax1()->setText(QStringLiteral("precious"));
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    EXPECT_FALSE(doc->Unload());
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Run-time error '75':"))) << prompts.last().text.toStdString();
    EXPECT_EQ(frmMain::instance()->ActiveForm(), doc);
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("precious"));
}

TEST_F(DocumentTest, ShutDownAsksAboutEachPageWhileItIsActive)
{
    const QString pathA = folder.file(QStringLiteral("a.htm"));
    const QString pathB = folder.file(QStringLiteral("b.htm"));
    frmDocument* a = newPage();
    a->tempaddress()->setText(pathA);
    a->CodeMax1()->setText(QStringLiteral("text of a"));
    frmDocument* b = newPage();
    b->tempaddress()->setText(pathB);
    b->CodeMax1()->setText(QStringLiteral("text of b"));
    frmMain::instance()->activate(a);

    // The walk closes b first although a is active: each page is saved to its own file.
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK).answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    EXPECT_TRUE(CloseAllWindows());
    EXPECT_EQ(folder.read(QStringLiteral("a.htm")), QByteArray("text of a"));
    EXPECT_EQ(folder.read(QStringLiteral("b.htm")), QByteArray("text of b"));
}

TEST_F(DocumentTest, PrintGoesThroughTheRichTextCopy)
{
    frmDocument* doc = newPage();
    doc->CodeMax1()->setText(QStringLiteral("<p>printed page</p>"));
    const QString pdf = folder.file(QStringLiteral("out.pdf"));
    prompts.answerPrint(pdf);
    PrintDocument();
    EXPECT_EQ(doc->RichTextBox1()->text(), QStringLiteral("<p>printed page</p>")) << "the code is copied first";
    EXPECT_EQ(prompts.last().kind, QStringLiteral("Print"));
    EXPECT_EQ(prompts.last().style, 0) << "no selection to offer";
    EXPECT_TRUE(folder.read(QStringLiteral("out.pdf")).startsWith("%PDF"));

    prompts.answerPrint(QString());
    QFile::remove(pdf);
    PrintDocument();
    EXPECT_FALSE(QFile::exists(pdf)) << "a cancelled dialog prints nothing";
}

TEST_F(DocumentTest, PrintUsesThePageOfPrintSetup)
{
    // The size of the first page of a PDF: its media box's width and height.
    const auto pageSize = [](const QByteArray& pdf) {
        const QRegularExpressionMatch m =
            QRegularExpression(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]")).match(QString::fromLatin1(pdf));
        return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
    };
    newPage()->CodeMax1()->setText(QStringLiteral("<p>turned page</p>"));
    prompts.answerPageSetup(true, QPageLayout::Landscape);
    frmMain::instance()->MenuClick(QStringLiteral("Printsetup"));
    prompts.answerPrint(folder.file(QStringLiteral("wide.pdf")));
    frmMain::instance()->MenuClick(QStringLiteral("Print"));
    const QSizeF wide = pageSize(folder.read(QStringLiteral("wide.pdf")));
    ASSERT_TRUE(wide.isValid());
    EXPECT_GT(wide.width(), wide.height()) << "landscape, as set up";

    prompts.answerPageSetup(true, QPageLayout::Portrait);
    frmMain::instance()->MenuClick(QStringLiteral("Printsetup"));
    prompts.answerPrint(folder.file(QStringLiteral("tall.pdf")));
    frmMain::instance()->MenuClick(QStringLiteral("Print"));
    const QSizeF tall = pageSize(folder.read(QStringLiteral("tall.pdf")));
    EXPECT_LT(tall.width(), tall.height());
}
