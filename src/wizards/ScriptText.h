#pragma once
#include <QString>

// The script block of the script wizard.
namespace ScriptText {

enum class Language { JavaScript, VBScript, Other };  // optJS, optVBS, optOther

struct Fields {
    Language language = Language::JavaScript;
    bool server = false;  // chkServer: counts only with VBScript
    QString txtOther;     // the other language's name
    QString txtScript;    // the script
};

// JavaScript: <script language="JavaScript"><!--, the script and // --></script> on three lines.
// VBScript run on the server: <%{script}%> alone. VBScript: as JavaScript, closed by --></script>.
// Other with no name: <script language="JavaScript">{script}</script> on one line. Other with a
// name asks the document for a member none has: the run-time error 438 ("HTMLtext"), which
// the wizard's trap takes. No line end follows.
QString fragment(const Fields& f);
}
