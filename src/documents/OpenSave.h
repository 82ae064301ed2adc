#pragma once
#include <QString>

class DocumentWindow;
class WindowCounter;

// How a file becomes a window, and how a window's text goes back to its file.

enum class LoadAs { Page, Split, Notepad };

// Openform's opening: a window of the chosen kind with the file, captioned and sized as the
// open window says (state 0 normal, 1 minimised, 2 maximised). The file's path becomes the
// document's. Errors of the file (missing, unreadable) are run-time errors.
DocumentWindow* OpenDocument(const QString& path, LoadAs how, int windowState);

// A new window of that kind with the file: captioned, made the active child, then loaded, and
// the file's path made the document's. A file that cannot be read is a run-time error, after
// which the window stays, empty.
DocumentWindow* OpenInNewWindow(const QString& path, LoadAs how, const QString& caption);

// The file panel's three routines, which skip the open window (with their own captions).
void OpenAsPage(const QString& path);
void OpenAsNotepad(const QString& path);
void OpenAsSplit(const QString& path);
// The page routine for another creator of windows, which counts its windows itself (the
// sidebar's file page).
void OpenAsPage(const QString& path, WindowCounter& counter);
// The main caption those older routines write: "Velloro 1 :: [ " path " ]".
QString olderOpenCaption(const QString& path);

// "Load Own Templates": a new web page window with the chosen template file.
DocumentWindow* OpenOwnTemplate(const QString& path);

// A new empty notepad ("Quick Notepad").
DocumentWindow* NewNotepad();

// The menu's "Save": writes the active document to its file, but leaves its change mark.
void MenuSave();
// The toolbar's Save: the same, with a critical message when nothing is open, and the change
// mark cleared after a successful save.
void ToolbarSave();
// The menu's "Save As": the save window, or a message when nothing is open.
void MenuSaveAs();
// The menu's "Create Templates".
void CreateTemplates();
