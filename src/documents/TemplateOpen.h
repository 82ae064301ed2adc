#pragma once
#include <QString>

class DocumentWindow;

// The template browser's open operation, which the script list and the project tree use too:
// a ready-made page opens as a new web page window that keeps the template's own path, so a
// later Save writes back onto the template (hence "Save As").

// Opens the page at a full path. A page that can't be read leaves an empty page window and
// says nothing. Returns the new window.
DocumentWindow* OpenTemplatePage(const QString& path);

// The script list's form: the page of a script key below the application folder.
QString ScriptTemplatePath(const QString& key);
DocumentWindow* OpenScriptTemplate(const QString& key);
