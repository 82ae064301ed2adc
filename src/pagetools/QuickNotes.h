#pragma once
#include <QString>
#include <QStringList>

// The quick notes' rules, without a window: a note is the file <name>.dat in the notes folder,
// and the folder's file list is the index.
namespace QuickNotes {

// The file of the note of this name.
QString notePath(const QString& folder, const QString& name);

// Whether the name makes one file in the notes folder: no separator, no NUL, and short enough
// for the file system with its ".dat". Any other name stays inside the folder.
bool isFileName(const QString& name);

// Whether a note of this name is among the files: letter case does not tell two names apart,
// as it does not in the file system the notes were made for.
bool isStored(const QStringList& files, const QString& name);

// The search: "Partial word" keeps the rows that hold the text in any letter case (an empty
// text is in every row); "Exact Word" keeps the rows equal to the text as a whole.
enum class Match { Partial, Exact };
QStringList search(const QStringList& rows, const QString& text, Match match);
}
