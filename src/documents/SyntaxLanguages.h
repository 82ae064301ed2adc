#pragma once
#include <QString>
#include <QStringList>

// A syntax language as the code editor takes it. List fields are single strings whose entries
// are separated by one line feed; the word lists end with a line feed after their last entry.
// A field the language leaves unassigned is empty.
struct LanguageRecord {
    QString name;                 // the name the editor knows it by
    bool CaseSensitive = false;   // keywords (and the other word lists) match case-sensitively
    QString Keywords;
    QString Operators;            // symbols or words
    QString SingleLineComments;   // introducers of a comment to the end of the line
    QString MultiLineComments1;   // comment openers ...
    QString MultiLineComments2;   // ... and their closers, paired by position
    QString ScopeKeywords1;       // block openers: never set
    QString ScopeKeywords2;       // block closers: never set
    QString StringDelims;
    QString EscapeChar;           // inside strings
    QString TerminatorChar;       // statement terminator
    QString TagElementNames;      // further word lists, each coloured in its own style
    QString TagAttributeNames;
    QString TagEntities;
    int Style = 0;                // 0: procedural
};

// The entries of a list field, in order, duplicates kept.
QStringList listEntries(const QString& list);

// Each defines its language once per run (a second call does nothing) and registers it with
// the code editor under its name.
void DefinePhpLanguage();
void DefineJavaScriptLanguage();
void DefineDelphiLanguage();
void DefineBasicLanguage();

// The record of a defined language, or null for a name no Define call has registered. The
// record stays valid for the rest of the run.
const LanguageRecord* languageRecord(const QString& name);

// Registers a record's colouring with the code editor under record.name, replacing an earlier
// record of that name in place. The Define procedures end in this.
const LanguageRecord* registerRecordLanguage(const LanguageRecord& record);

// The records as literal data, built afresh on each call.
namespace LanguageRecords {
LanguageRecord php();
LanguageRecord javaScript();
LanguageRecord delphi();
LanguageRecord basic();
}
