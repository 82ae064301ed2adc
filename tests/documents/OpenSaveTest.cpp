// Open, save and template windows, the menu's and the toolbar's save, and saving under faults.
#include "common/TestSupport.h"

#include "documents/OpenSave.h"
#include "documents/Openform.h"
#include "documents/Saveas.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "documents/tmplsave.h"
#include "platform/CodeMax.h"
#include "platform/FileControls.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

namespace {
class OpenSaveTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
    static DocumentWindow* active() { return frmMain::instance()->ActiveForm(); }
    const QString version = QStringLiteral("Velloro 2002 : Version 1.0.0");
};
}

TEST_F(OpenSaveTest, OpenWithoutAFileSaysSo)
{
    Openform* open = form<Openform>();
    open->Location->clear();
    prompts.answerMsgBox(Answer::OK);
    open->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("A file must be selected!"), 16, QStringLiteral(":: Load Error ::")));
    EXPECT_EQ(active(), nullptr);
}

TEST_F(OpenSaveTest, OpenAsWebPage)
{
    folder.write(QStringLiteral("web/index.htm"), "<html>\r\n<body>caf\xc3\xa9</body>\r\n</html>");
    const QString path = folder.file(QStringLiteral("web/index.htm"));
    Openform* open = form<Openform>();
    EXPECT_EQ(open->Combo3->currentText(), QStringLiteral("Web Page"));
    open->Dir1->setPath(folder.file(QStringLiteral("web")));
    EXPECT_EQ(open->File1->count(), 1);
    open->Location->setText(path);
    open->Combo2->setCurrentText(QStringLiteral("Maximized"));
    saveShot(open, QStringLiteral("openform"));
    open->Command1->click();
    DocumentWindow* doc = active();
    ASSERT_NE(qobject_cast<frmDocument*>(doc), nullptr);
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("<html>\r\n<body>caf\u00e9</body>\r\n</html>"));
    EXPECT_EQ(doc->tempaddress()->text(), path);
    EXPECT_EQ(doc->Caption(), QStringLiteral("index.htm"));
    EXPECT_EQ(doc->WindowState(), 2);
    EXPECT_EQ(frmMain::instance()->windowTitle(), version + QStringLiteral(" [ ") + path + QStringLiteral(" ]"));
    EXPECT_FALSE(open->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(OpenSaveTest, OpenAsNotepadAndAsSplit)
{
    folder.write(QStringLiteral("n.txt"), "plain\r\ntext");
    Openform* open = form<Openform>();
    open->Location->setText(folder.file(QStringLiteral("n.txt")));
    open->Combo3->setCurrentText(QStringLiteral("Notepad"));
    open->Command1->click();
    auto* pad = qobject_cast<notepad*>(active());
    ASSERT_NE(pad, nullptr);
    EXPECT_TRUE(pad->Caption().startsWith(QStringLiteral("Notepad [ "))) << pad->Caption().toStdString();
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("plain\r\ntext"));

    open->Combo3->setCurrentText(QStringLiteral("Web Split"));
    open->Command1->click();
    auto* split = qobject_cast<frmsplit*>(active());
    ASSERT_NE(split, nullptr);
    EXPECT_EQ(split->CodeMax1()->text(), QStringLiteral("plain\r\ntext"));
    EXPECT_EQ(split->Caption(), QStringLiteral("n.txt"));
}

TEST_F(OpenSaveTest, FilePanelRoutinesKeepTheirOlderCaptions)
{
    folder.write(QStringLiteral("p.htm"), "<p>p</p>");
    const QString path = folder.file(QStringLiteral("p.htm"));
    frmMain* main = frmMain::instance();
    OpenAsPage(path);
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 1 :: [ ") + path + QStringLiteral(" ]"));
    OpenAsNotepad(path);
    EXPECT_TRUE(active()->Caption().startsWith(QStringLiteral("Notepad [ ")));
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro 1 :: [ ") + path + QStringLiteral(" ]"));
    OpenAsSplit(path);
    EXPECT_TRUE(active()->Caption().startsWith(QStringLiteral("HTML Split [ ")));
    EXPECT_EQ(main->windowTitle(), QStringLiteral("Velloro :: [ ") + path + QStringLiteral(" ]"));
    EXPECT_EQ(main->documents().size(), 3);
}

TEST_F(OpenSaveTest, SaveAsTypesComeFromTheSaveExtensionsOption)
{
    Saveas* save = form<Saveas>();
    QStringList types;
    for (int i = 0; i < save->Combo1->count(); ++i)
        types << save->Combo1->itemText(i);
    EXPECT_EQ(types, (QStringList{QStringLiteral(".htm"), QStringLiteral(".html")}));
    EXPECT_EQ(save->filename->text(), QStringLiteral("New_Page"));
}

TEST_F(OpenSaveTest, SaveAsWritesANewFileAndClearsTheChange)
{
    frmDocument* page = newPage(QStringLiteral("<p>saved</p>"));
    Saveas* save = form<Saveas>();
    save->show();
    save->Dir1->setPath(folder.path());
    EXPECT_EQ(save->Location->text(), folder.path() + QStringLiteral("/"));
    save->filename->setText(QStringLiteral("index"));
    save->Combo1->setCurrentText(QStringLiteral(".htm"));
    saveShot(save, QStringLiteral("saveas"));
    prompts.answerMsgBox(Answer::OK);
    save->Command1->click();
    const QString target = folder.file(QStringLiteral("index.htm"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral(" Page Saved ::  ") + target, 64));
    EXPECT_EQ(folder.read(QStringLiteral("index.htm")), QByteArray("<p>saved</p>"));
    EXPECT_EQ(page->tempaddress()->text(), target);
    EXPECT_EQ(page->Changedvalue()->text(), QString());
    EXPECT_FALSE(save->isVisible());
}

TEST_F(OpenSaveTest, SaveAsOverAnExistingFileAsksAndNoKeepsEverything)
{
    folder.write(QStringLiteral("index.htm"), "old");
    frmDocument* page = newPage(QStringLiteral("new"));
    Saveas* save = form<Saveas>();
    save->Location->setText(folder.path() + QStringLiteral("/"));
    save->filename->setText(QStringLiteral("index"));
    save->Combo1->setCurrentText(QStringLiteral(".htm"));
    prompts.answerMsgBox(Answer::No);
    save->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("File allready exists, would you like to Overwrite the document?"),
                      51, QStringLiteral(":: Velloro 2002 ::")));
    EXPECT_EQ(folder.read(QStringLiteral("index.htm")), QByteArray("old"));
    EXPECT_EQ(page->tempaddress()->text(), QString());
    EXPECT_EQ(page->Changedvalue()->text(), QStringLiteral("Changed"));

    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    save->Check3->setChecked(true);
    save->Command1->click();
    EXPECT_EQ(folder.read(QStringLiteral("index.htm")), QByteArray("new"));
    EXPECT_TRUE(page->subWindow()->isHidden()) << "unload after save hides the window";
    EXPECT_EQ(frmMain::instance()->documents().size(), 1) << "and keeps it loaded";
}

TEST_F(OpenSaveTest, OpenOfAFileThatCannotBeReadEndsQuietlyAndTheDialogStays)
{
    Openform* open = form<Openform>();
    open->show();
    open->Location->setText(folder.file(QStringLiteral("gone.htm")));
    open->Command1->click();
    EXPECT_TRUE(prompts.prompts().isEmpty()) << "file errors end in the trap, without a message";
    EXPECT_TRUE(open->isVisible());
}

TEST_F(OpenSaveTest, SaveAsNeedsAFolderAndANameOnBothWays)
{
    newPage(QStringLiteral("x"));
    Saveas* save = form<Saveas>();
    save->filename->clear();
    prompts.answerMsgBox(Answer::OK);
    save->Command1->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral(" Destination Folder and Name are required"));
    EXPECT_EQ(prompts.last().style, 0);

    // The rich text way checks the same before it looks for the file.
    save->Combo1->addItem(QStringLiteral(".rtf"));
    save->Combo1->setCurrentText(QStringLiteral(".rtf"));
    save->Location->setText(folder.path() + QStringLiteral("/"));
    prompts.clear();
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    save->Command1->click();
    ASSERT_EQ(prompts.prompts().size(), 2);
    EXPECT_EQ(prompts.last().text, QStringLiteral(" Destination Folder and Name are required"));
}

TEST_F(OpenSaveTest, CreateTemplatesWithNoDocumentDoesNothing)
{
    frmMain::instance()->MenuClick(QStringLiteral("Create Templates"));
    EXPECT_FALSE(form<tmplsave>()->isVisible());
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(OpenSaveTest, RichTextChoiceAsksAndNoGoesThePlainWay)
{
    newPage(QStringLiteral("<b>plain way</b>"));
    Saveas* save = form<Saveas>();
    save->Combo1->addItem(QStringLiteral(".rtf"));
    save->Combo1->setCurrentText(QStringLiteral(".rtf"));
    save->Location->setText(folder.path() + QStringLiteral("/"));
    save->filename->setText(QStringLiteral("doc"));
    prompts.answerMsgBox(Answer::No).answerMsgBox(Answer::OK);
    save->Command1->click();
    EXPECT_EQ(prompts.prompts().first().text,
              QStringLiteral("You have choosen to save the files as RTF format, this would be used if you have been using the notepad, continue with the save?"));
    EXPECT_EQ(prompts.prompts().first().style, 52);
    EXPECT_EQ(folder.read(QStringLiteral("doc.rtf")), QByteArray("<b>plain way</b>"));

    // Yes takes the rich text way, which no window supports: nothing is written.
    save->filename->setText(QStringLiteral("other"));
    prompts.answerMsgBox(Answer::Yes);
    save->Command1->click();
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("other.rtf"))));
}

TEST_F(OpenSaveTest, RootFolderGivesNoDoubledSeparator)
{
    Saveas* save = form<Saveas>();
    save->Location->setText(QStringLiteral("//"));
    save->filename->setText(QStringLiteral("index"));
    save->Combo1->setCurrentText(QStringLiteral(".htm"));
    EXPECT_EQ(save->target(), QStringLiteral("/index.htm"));
    save->Location->setText(QStringLiteral("/srv/www"));
    EXPECT_EQ(save->target(), QStringLiteral("/srv/www/index.htm"));
}

TEST_F(OpenSaveTest, MenuSaveWritesButKeepsTheChangeMark)
{
    prompts.answerMsgBox(Answer::OK);
    MenuSave();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("There is no document open to save."),
                      0, QStringLiteral(":: No Document ::")));

    frmDocument* page = newPage(QStringLiteral("body"));
    prompts.answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Save"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Needs a filename to save to"));

    const QString path = folder.file(QStringLiteral("m.htm"));
    page->tempaddress()->setText(path);
    prompts.answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Save"));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Page Saved as :: ") + path);
    EXPECT_EQ(folder.read(QStringLiteral("m.htm")), QByteArray("body"));
    EXPECT_EQ(page->Changedvalue()->text(), QStringLiteral("Changed"));
    // So the next close still asks.
    prompts.answerMsgBox(Answer::No);
    EXPECT_TRUE(page->Unload());
    EXPECT_EQ(prompts.last().text, QStringLiteral("Would you like to save the page?"));
}

TEST_F(OpenSaveTest, ToolbarSaveClearsTheChangeMark)
{
    prompts.answerMsgBox(Answer::OK);
    ToolbarSave();
    EXPECT_EQ(prompts.last().style, 16);
    frmDocument* page = newPage(QStringLiteral("body"));
    page->tempaddress()->setText(folder.file(QStringLiteral("t.htm")));
    prompts.answerMsgBox(Answer::OK);
    ToolbarSave();
    EXPECT_EQ(page->Changedvalue()->text(), QString());
    EXPECT_TRUE(page->Unload()) << "closes without asking";
}

TEST_F(OpenSaveTest, MenuSaveOfANotepadWritesItsRichText)
{
    DocumentWindow* pad = NewNotepad();
    pad->RichTextBox1()->setText(QStringLiteral("note"));
    pad->tempaddress()->setText(folder.file(QStringLiteral("n.rtf")));
    prompts.answerMsgBox(Answer::OK);
    MenuSave();
    const QByteArray written = folder.read(QStringLiteral("n.rtf"));
    EXPECT_TRUE(written.contains("note")) << written.constData();
    pad->RichTextBox1()->setText(QString());
    pad->RichTextBox1()->LoadFile(folder.file(QStringLiteral("n.rtf")));
    EXPECT_EQ(pad->RichTextBox1()->text(), QStringLiteral("note"));
}

TEST_F(OpenSaveTest, TemplateFromANotepad)
{
    DocumentWindow* pad = NewNotepad();
    pad->RichTextBox1()->setText(QStringLiteral("template text"));
    tmplsave* t = form<tmplsave>();
    t->Text1->clear();
    prompts.answerMsgBox(Answer::OK);
    t->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Name is required"), 16));

    t->Text1->setText(QStringLiteral("a"));
    prompts.answerMsgBox(Answer::OK);
    t->Command1->click();
    const QString path = folder.file(QStringLiteral("Templates/a.tmpl"));
    EXPECT_EQ(prompts.last().text, QStringLiteral(" Page Saved ::  ") + path);
    EXPECT_EQ(folder.read(QStringLiteral("Templates/a.tmpl")), QByteArray("template text\r\n"));

    pad->RichTextBox1()->setText(QStringLiteral("changed"));
    prompts.answerMsgBox(Answer::OK);
    t->Command1->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("A file allready exists with that filename!!"));
    EXPECT_EQ(folder.read(QStringLiteral("Templates/a.tmpl")), QByteArray("template text\r\n"));
}

TEST_F(OpenSaveTest, TemplateFromAPageWritesNothing)
{
    newPage(QStringLiteral("<p>page</p>"));
    tmplsave* t = form<tmplsave>();
    t->Text1->setText(QStringLiteral("b"));
    t->Command1->click();
    EXPECT_FALSE(QFile::exists(folder.file(QStringLiteral("Templates/b.tmpl"))));
    EXPECT_TRUE(prompts.prompts().isEmpty());
}

TEST_F(OpenSaveTest, CreateTemplatesOfASavedNotepadAsksForTheOldName)
{
    DocumentWindow* pad = NewNotepad();
    pad->RichTextBox1()->setText(QStringLiteral("again"));
    const QString path = folder.file(QStringLiteral("same.rtf"));
    pad->tempaddress()->setText(path);
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Create Templates"));
    EXPECT_TRUE(isBox(prompts.prompts()[0], QStringLiteral("Would you like to save with old filename??"),
                      -1, QStringLiteral("Save check ::")));
    EXPECT_EQ(prompts.last().text, QStringLiteral("Template Saved as :: ") + path);
    EXPECT_TRUE(QFile::exists(path));
}

// Saving under faults.

TEST_F(OpenSaveTest, SaveIntoAFolderThatCannotBeWrittenSaysSoAndKeepsThePage)
{
    frmDocument* page = newPage(QStringLiteral("kept"));
    // /proc takes no new files, even from root.
    page->tempaddress()->setText(QStringLiteral("/proc/velloro-test/page.htm"));
    prompts.answerMsgBox(Answer::OK);
    MenuSave();
    EXPECT_EQ(prompts.last().title, QStringLiteral(":: Save Error ::"));
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("The page could not be saved to /proc/velloro-test/page.htm. The file on disk is as it was before."));
    EXPECT_EQ(page->CodeMax1()->text(), QStringLiteral("kept"));
}

namespace {
const char* faultPathVariable = "VELLORO_SAVE_FAULT_PATH";
const char* faultModeVariable = "VELLORO_SAVE_FAULT_MODE";
constexpr qsizetype bigPage = 4 * 1024 * 1024;

QProcess* startChild(const QString& path, const char* mode)
{
    auto* child = new QProcess;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QString::fromLatin1(faultPathVariable), path);
    env.insert(QString::fromLatin1(faultModeVariable), QString::fromLatin1(mode));
    child->setProcessEnvironment(env);
    child->start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--gtest_also_run_disabled_tests"), QStringLiteral("--gtest_filter=SaveFault.DISABLED_Child")});
    child->waitForStarted();
    return child;
}
}

// Run as a child of the tests below: saves a big page through the editor's save, once under a
// file size limit ("full"), or over and over until it is killed ("loop").
TEST(SaveFault, DISABLED_Child)
{
    const QString path = qEnvironmentVariable(faultPathVariable);
    const QString mode = qEnvironmentVariable(faultModeVariable);
    CodeMax editor;
    editor.setText(QString(bigPage, QLatin1Char('n')));
    if (mode == QLatin1String("full")) {
        // A full disk: writes past 1 MiB fail (the signal that would end the process is ignored).
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{1024 * 1024, 1024 * 1024};
        setrlimit(RLIMIT_FSIZE, &limit);
        try {
            editor.SaveFile(path, true);
        } catch (const RuntimeError& e) {
            std::_Exit(e.number == 75 ? 3 : 4);
        }
        std::_Exit(5);
    }
    // Tell the parent the saves begin now.
    std::fputs("saving\n", stdout);
    std::fflush(stdout);
    for (;;)
        editor.SaveFile(path, true);
}

TEST(SaveFault, FullDiskLeavesTheOldFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    ASSERT_TRUE(TextFiles::writeBytes(path, "old page"));
    std::unique_ptr<QProcess> child(startChild(path, "full"));
    ASSERT_TRUE(child->waitForFinished(60000));
    EXPECT_EQ(child->exitCode(), 3) << "the save reports the failure as a path/file access error";
    EXPECT_EQ(TextFiles::readBytes(path), QByteArray("old page"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 1) << "no scratch file is left";
}

TEST(SaveFault, KilledInTheMiddleOfASaveLeavesOldOrNew)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("page.htm"));
    const QByteArray old = "old page";
    ASSERT_TRUE(TextFiles::writeBytes(path, old));
    int sawNew = 0;
    for (int round = 0; round < 100; ++round) {
        std::unique_ptr<QProcess> child(startChild(path, "loop"));
        ASSERT_TRUE(child->waitForReadyRead(30000));
        QThread::msleep((round * 29) % 250);
        ::kill(static_cast<pid_t>(child->processId()), SIGKILL);
        child->waitForFinished();
        const QByteArray now = TextFiles::readBytes(path);
        const bool isNew = now.size() == bigPage && now.count('n') == bigPage;
        sawNew += isNew ? 1 : 0;
        ASSERT_TRUE(now == old || isNew) << "torn file of " << now.size() << " bytes in round " << round;
    }
    EXPECT_GT(sawNew, 0) << "some saves finished before the kill";
}
