#include "documents/ContextCommands.h"

#include "documents/DocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"

#include <QApplication>
#include <QClipboard>

namespace ContextCommands {

void editorProperties()
{
    if (ActiveDocument()->isNotepad())
        MsgBox(QStringLiteral("Not supported for Notepad yet"));
    else
        ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::EditorProperties);
}

void undo() { ResumeNext()([] { ActiveDocument()->CodeMax1()->undo(); }); }
void redo() { ResumeNext()([] { ActiveDocument()->CodeMax1()->redo(); }); }
void selectAll() { ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::SelectAll); }

void cut()
{
    QApplication::clipboard()->clear();
    ActiveDocument()->CodeMax1()->cut();
}

void copy()
{
    QApplication::clipboard()->clear();
    ActiveDocument()->CodeMax1()->copy();
}

void paste() { ActiveDocument()->CodeMax1()->paste(); }
void deleteSelected() { ActiveDocument()->CodeMax1()->DeleteSel(); }

}
