#include "documents/OpenSave.h"

#include "documents/Openform.h"
#include "documents/Saveas.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "documents/notepad.h"
#include "documents/tmplsave.h"
#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/WindowCounter.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>

namespace {
// The main window's own counters for the windows its file panel and commands make.
WindowCounter panelPages, panelNotepads, panelSplits, quickNotepads, ownTemplates;

DocumentWindow* makeWindow(LoadAs how)
{
    switch (how) {
    case LoadAs::Split: return new frmsplit;
    case LoadAs::Notepad: return new notepad;
    default: return new frmDocument;
    }
}

// Reads the file into the window's text: the code editor, or the notepad's rich text.
void loadInto(DocumentWindow* doc, const QString& path)
{
    if (doc->isNotepad())
        doc->RichTextBox1()->LoadFile(path);
    else
        doc->CodeMax1()->OpenFile(path);
}

// Writes the active document to its own file; false (with the message said) when it cannot.
bool saveActiveToItsFile(DocumentWindow* doc, const QString& path)
{
    try {
        if (doc->isNotepad())
            doc->RichTextBox1()->SaveFile(path);
        else
            doc->CodeMax1()->SaveFile(path, true);
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("The page could not be saved to ") + path
                   + QStringLiteral(". The file on disk is as it was before."), Style::Critical, QStringLiteral(":: Save Error ::"));
        return false;
    }
    return true;
}

void save(int noDocumentStyle, bool clearChange)
{
    DocumentWindow* doc = ActiveForm();
    if (!doc) {
        MsgBox(QStringLiteral("There is no document open to save."), noDocumentStyle, QStringLiteral(":: No Document ::"));
        return;
    }
    const QString path = doc->tempaddress()->text();
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Needs a filename to save to"));
        return;
    }
    if (!saveActiveToItsFile(doc, path))
        return;
    MsgBox(QStringLiteral("Page Saved as :: ") + path, Style::Information, QStringLiteral(":: Page Saved ::"));
    if (clearChange && !doc->isNotepad())
        doc->Changedvalue()->setText(QString());
}
}

DocumentWindow* OpenInNewWindow(const QString& path, LoadAs how, const QString& caption)
{
    DocumentWindow* doc = makeWindow(how);
    doc->setCaption(caption);
    workspace().addDocument(doc);
    loadInto(doc, path);
    doc->tempaddress()->setText(path);
    return doc;
}

DocumentWindow* OpenDocument(const QString& path, LoadAs how, int windowState)
{
    const int n = form<Openform>()->nextWindowNumber();
    const QString caption = how == LoadAs::Notepad ? QStringLiteral("Notepad [ %1 ]").arg(n)
                                                   : QStringLiteral("Document [ %1 ]").arg(n);
    DocumentWindow* doc = OpenInNewWindow(path, how, caption);
    if (how != LoadAs::Notepad)
        doc->setCaption(QFileInfo(path).fileName());
    workspace().setDocumentCaption(path);
    if (windowState == 1 || windowState == 2)
        ActiveForm()->setWindowState(windowState);
    return doc;
}

QString olderOpenCaption(const QString& path) { return QStringLiteral("Velloro 1 :: [ ") + path + QStringLiteral(" ]"); }

void OpenAsPage(const QString& path, WindowCounter& counter)
{
    DocumentWindow* doc = OpenInNewWindow(path, LoadAs::Page, QStringLiteral("Document %1").arg(counter.next()));
    doc->setCaption(QFileInfo(path).fileName());
    workspace().setCaption(olderOpenCaption(path));
}

void OpenAsPage(const QString& path) { OpenAsPage(path, panelPages); }

void OpenAsNotepad(const QString& path)
{
    OpenInNewWindow(path, LoadAs::Notepad, QStringLiteral("Notepad [ %1 ]").arg(panelNotepads.next()));
    workspace().setCaption(olderOpenCaption(path));
}

void OpenAsSplit(const QString& path)
{
    auto* doc = static_cast<frmsplit*>(OpenInNewWindow(path, LoadAs::Split, QStringLiteral("HTML Split [ %1 ]").arg(panelSplits.next())));
    workspace().setCaption(QStringLiteral("Velloro :: [ ") + path + QStringLiteral(" ]"));
    doc->SplitRefresh();
}

DocumentWindow* OpenOwnTemplate(const QString& path)
{
    return OpenInNewWindow(path, LoadAs::Page, QStringLiteral("Document %1").arg(ownTemplates.next()));
}

DocumentWindow* NewNotepad()
{
    auto* pad = new notepad;
    pad->setCaption(QStringLiteral("Notepad [ %1 ]").arg(quickNotepads.next()));
    workspace().addDocument(pad);
    return pad;
}

void MenuSave() { save(Style::OkOnly, false); }
void ToolbarSave() { save(Style::Critical, true); }

void MenuSaveAs()
{
    if (!ActiveForm()) {
        MsgBox(QStringLiteral("There is no document open to save."), Style::OkOnly, QStringLiteral(":: No Document ::"));
        return;
    }
    showForm(QStringLiteral("Saveas"));
}

void CreateTemplates()
{
    DocumentWindow* doc = ActiveForm();
    if (!doc)
        throw RuntimeError::objectRequired();
    const QString path = doc->tempaddress()->text();
    if (path.isEmpty()) {
        showForm(QStringLiteral("tmplsave"));
        return;
    }
    if (MsgBox(QStringLiteral("Would you like to save with old filename??"), Style::YesNo, QStringLiteral("Save check ::")) != Answer::Yes) {
        showForm(QStringLiteral("tmplsave"));
        return;
    }
    OnErrorExit([&] {
        doc->RichTextBox1()->SaveFile(path);
        MsgBox(QStringLiteral("Template Saved as :: ") + path);
    });
}

