#pragma once
#include <QString>

#include "platform/TextPieces.h"
#include "services/Workspace.h"

// How tools deliver text to the active document. Each call reads the active document anew;
// with none the call raises the run-time error the tool's own trap swallows.

// The window kind test: the active document is a notepad.
bool ActiveIsNotepad();

// The insertion rule: the text replaces the selection, then the caret goes behind it.
void InsertAtCaret(const QString& text);
// The same for text already in the editor's form, UTF-8.
void InsertAtCaret(TextPieces&& utf8);
// The form group's insertion: the text replaces the selection and stays selected.
void InsertSelected(const QString& text);

// The refusal of the wizards: in a notepad, the ":: Insert Error ::" message and true.
bool RefuseInNotepad();
// The redirect of "Insert Text": in a notepad, the ":: Text Input ::" message and true.
bool RedirectInNotepad();
