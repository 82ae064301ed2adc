#pragma once

// The branches that the context menus of the document windows share: the code windows' menu
// and the notepad's popup menu run the same steps under their own keys. Each acts on the
// active document, as every tool does.
namespace ContextCommands {
// "Not supported for Notepad yet" in a notepad, else the editor's own properties dialog.
void editorProperties();
// Written for the code editor, with errors ignored: nothing happens in a notepad.
void undo();
void redo();
// Written for the code editor without a guard: in a notepad these are run-time errors.
void selectAll();
void cut();   // the clipboard is emptied first
void copy();  // likewise
void paste();
void deleteSelected();
}
