#include "documents/Insertion.h"

#include "documents/DocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"

bool ActiveIsNotepad() { return ActiveDocument()->isNotepad(); }

void InsertAtCaret(const QString& text)
{
    ActiveDocument()->CodeMax1()->setSelText(text);
    ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::CollapseRight);
}

void InsertAtCaret(TextPieces&& utf8)
{
    ActiveDocument()->CodeMax1()->setSelPieces(std::move(utf8));
    ActiveDocument()->CodeMax1()->ExecuteCmd(CodeMax::CollapseRight);
}

void InsertSelected(const QString& text) { ActiveDocument()->CodeMax1()->setSelText(text); }

bool RefuseInNotepad()
{
    if (!ActiveIsNotepad())
        return false;
    MsgBox(QStringLiteral("You have a notepad document open, you need a web page open for this feature"), Style::Information,
           QStringLiteral(":: Insert Error ::"));
    return true;
}

bool RedirectInNotepad()
{
    if (!ActiveIsNotepad())
        return false;
    MsgBox(QStringLiteral("You do need to open this because you can enter text directly into the Notepad"), Style::OkOnly,
           QStringLiteral(":: Text Input ::"));
    return true;
}
