// The folder tools: create, delete (only an empty folder), rename and delete a file, each with its
// messages; the folder browser's two roots; the folder dialog handing its path to a field.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "platform/Desktop.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "shell/frmMain.h"
#include "utilities/Folders.h"
#include "utilities/ModBFF.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>

namespace {
class FoldersTest : public WindowTest {
protected:
    void SetUp() override
    {
        startWithoutPage();
        QDir().mkpath(folder.file(QStringLiteral("web/images")));
        folder.write(QStringLiteral("web/index.htm"), "<p>");
        folder.write(QStringLiteral("web/old.htm"), "<p>");
    }
    Folders* open()
    {
        frmMain::instance()->MenuClick(QStringLiteral("Folder Sort1"));
        auto* w = loadedForm<Folders>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
            w->Dir1->setPath(folder.file(QStringLiteral("web")));
        }
        return w;
    }
    QString web(const char* name = "") const { return folder.file(QStringLiteral("web/") + QString::fromLatin1(name)); }
};
}

TEST_F(FoldersTest, CreatesRenamesAndDeletesFolders)
{
    Folders* w = open();
    ASSERT_NE(w, nullptr);
    saveShot(w, QStringLiteral("Folders"));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Folder Manipulation ::"));
    EXPECT_EQ(w->Command1->text(), QStringLiteral("Create Folder"));
    EXPECT_EQ(w->Text1->text(), web().chopped(1));
    EXPECT_EQ(w->Panel1->text(), QStringLiteral("Files :: 2"));

    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Folder Name Needed!!"), 0));
    w->Text2->setText(QStringLiteral("pages"));
    w->Command1->click();
    EXPECT_TRUE(QFileInfo(web("pages")).isDir());
    prompts.answerMsgBox(Answer::OK);
    w->Command1->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '75':\n\nPath/File access error"), 16)) << "it exists";

    // Rename in the same parent folder.
    w->Dir1->setPath(web("pages"));
    EXPECT_EQ(w->Text1->text(), web("pages"));
    w->Text3->setText(QStringLiteral("articles"));
    w->Command3->click();
    EXPECT_FALSE(QFileInfo::exists(web("pages")));
    EXPECT_TRUE(QFileInfo(web("articles")).isDir());
    EXPECT_EQ(w->Text1->text(), web("articles"));

    // Delete: asked first; No keeps it; a folder with contents stays, with the platform's error.
    prompts.answerMsgBox(Answer::No);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Are you sure you want to delete the folder, all contents will be lost?"), 3,
                      QStringLiteral("Delete Folder ::")));
    EXPECT_TRUE(QFileInfo(web("articles")).isDir());
    prompts.answerMsgBox(Answer::Yes);
    w->Command2->click();
    EXPECT_FALSE(QFileInfo::exists(web("articles")));
    EXPECT_EQ(w->Text1->text(), web().chopped(1)) << "the list goes to the folder that held it";

    folder.write(QStringLiteral("web/images/logo.gif"), "GIF89a");
    w->Dir1->setPath(web("images"));
    prompts.answerMsgBox(Answer::Yes).answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '75':\n\nPath/File access error"), 16));
    EXPECT_TRUE(QFileInfo::exists(web("images/logo.gif"))) << "nothing of the user's is lost";

    // The two empty-field messages.
    w->Text1->clear();
    prompts.answerMsgBox(Answer::OK);
    w->Command2->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral(" Folder needs to be selected for delete to work!"), 0));
    w->Text3->clear();
    prompts.answerMsgBox(Answer::OK);
    w->Command3->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Location and new folder name needed!"), 0));
}

TEST_F(FoldersTest, DeletesTheChosenFileAfterAsking)
{
    Folders* w = open();
    ASSERT_NE(w, nullptr);
    w->File1->setCurrentRow(1);
    ASSERT_EQ(w->File1->FileName(), QStringLiteral("old.htm"));
    prompts.answerMsgBox(Answer::Cancel);
    w->Command4->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Are you sure you want to delete the file?"), 3, QStringLiteral("Delete File ::")));
    EXPECT_TRUE(QFileInfo::exists(web("old.htm")));
    prompts.answerMsgBox(Answer::Yes);
    w->Command4->click();
    EXPECT_FALSE(QFileInfo::exists(web("old.htm")));
    EXPECT_EQ(w->File1->count(), 1);
    EXPECT_EQ(w->Panel1->text(), QStringLiteral("Files :: 1"));
}

TEST_F(FoldersTest, TheBrowserAndTheFolderDialog)
{
    Folders* w = open();
    ASSERT_NE(w, nullptr);
    // A cancelled browser leaves the list; a chosen folder is cut at a NUL.
    prompts.answerFolder(QString());
    w->SmartNetButton3->click();
    EXPECT_EQ(w->Dir1->Path(), web().chopped(1));
    prompts.answerFolder(web("images") + QChar(0) + QStringLiteral("rest"));
    w->SmartNetButton4->click();
    EXPECT_EQ(w->Dir1->Path(), web("images"));
    EXPECT_EQ(ModBFF::specialFolderPath(ModBFF::documents),
              QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).exists()
                  ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                  : QDir::homePath());

    auto* dialog = form<frmFolder>();
    QLineEdit caller;
    dialog->chooseInto(&caller);
    saveShot(dialog, QStringLiteral("frmFolder"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Folder Dialog"));
    EXPECT_EQ(dialog->txtnfolder->text(), QStringLiteral("New_Folder1"));
    dialog->Dir1->setPath(web().chopped(1));
    dialog->SmartNetButton5->click();
    EXPECT_TRUE(QFileInfo(web("New_Folder1")).isDir());
    dialog->txtnfolder->clear();
    prompts.answerMsgBox(Answer::OK);
    dialog->SmartNetButton5->click();
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Folder Name Needed"), 16));
    dialog->Dir1->setPath(web("New_Folder1"));
    dialog->SmartNetButton1->click();
    EXPECT_EQ(caller.text(), web("New_Folder1"));
    EXPECT_FALSE(dialog->isVisible());
    dialog->chooseInto(&caller);
    dialog->Dir1->setPath(web("images"));
    dialog->SmartNetButton2->click();
    EXPECT_EQ(caller.text(), web("New_Folder1")) << "cancel hands nothing back";
}

// "Email File": the saved page goes to the desktop's mail program as an attachment; without a
// document or a saved file, the reason instead.
TEST_F(FoldersTest, TheSavedPageGoesToANewMail)
{
    QStringList started;
    Desktop::setHandler({[](const QUrl&) { return false; },
                         [&](const QString& program, const QStringList& arguments) {
                             started << program << arguments;
                             return true;
                         }});
    prompts.answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Email File"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No Active document open to email."), 16));

    frmDocument* page = newPage(QStringLiteral("<p>"));
    prompts.answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Email File"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("The current open webpage hasnt been saved yet."), 16));
    EXPECT_TRUE(started.isEmpty());

    page->tempaddress()->setText(web("index.htm"));
    frmMain::instance()->MenuClick(QStringLiteral("Email File"));
    EXPECT_EQ(started, (QStringList{QStringLiteral("xdg-email"), QStringLiteral("--utf8"), QStringLiteral("--subject"),
                                    QStringLiteral("File Attachment"), QStringLiteral("--body"),
                                    QStringLiteral("Find my webpage attached ..."), QStringLiteral("--attach"), web("index.htm"),
                                    QStringLiteral("someone@example.com")}));
    EXPECT_EQ(prompts.prompts().size(), 2);
    refuseDesktop();
}
