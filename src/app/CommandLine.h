#pragma once
#include <QString>
#include <QStringList>
#include <optional>

class QTextStream;

// The program's command-line tools for scripts and CI: the page report and the spell check of
// files, help and version. They need no window and no display.
namespace CommandLine {
// The tool the arguments (without the program's name) ask for, run with out and err as its
// standard streams: its exit status. Nothing when they ask for the program itself (no option
// of ours, or files to open).
std::optional<int> run(const QStringList& arguments, QTextStream& out, QTextStream& err);

// The same from main(), before any window exists: a core application only while a tool runs.
std::optional<int> runFromMain(int argc, char** argv);

// The report rows of one page's text, one line each: file, "pass" or "fail", caption, tab
// separated. failed is set when a row fails.
QString reportLines(const QString& file, const QString& pageText, bool* failed);
// The misspelt words of a text, one line each: "file:line:column: word" (from 1, in
// characters, a CR LF counting as one line end).
QString spellLines(const QString& file, const QString& text);
}
