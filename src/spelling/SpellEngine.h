#pragma once
#include "spelling/clsWordTree.h"

#include <QChar>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <cstdint>
#include <memory>

// A character of a word is a whole code point: a surrogate pair is one character, never two.
namespace Spelling {
struct Character {
    char32_t code;
    int units;  // 1 or 2
};
// The character that begins at text[i] (a lone surrogate stands for itself).
inline Character characterAt(QStringView text, qsizetype i)
{
    const char16_t c = text[i].unicode();
    if (QChar::isHighSurrogate(c) && i + 1 < text.size() && QChar::isLowSurrogate(text[i + 1].unicode()))
        return {QChar::surrogateToUcs4(c, text[i + 1].unicode()), 2};
    return {c, 1};
}
// Writes the character at out: one unit, or two for a character outside the first plane.
inline int putCharacter(char16_t* out, char32_t c)
{
    if (!QChar::requiresSurrogates(c)) {
        out[0] = char16_t(c);
        return 1;
    }
    out[0] = QChar::highSurrogate(c);
    out[1] = QChar::lowSurrogate(c);
    return 2;
}
// The small-letter form of text into out, which takes text.size() units: a character whose
// small form would need another number of units stays as it is, so the length never changes.
void lowerCharacters(QStringView text, char16_t* out);
}

// The spell checker's module: the phonetic code, the list file and the state that every spell
// checker of the process shares.
namespace modMain {

// The shared state: one tree, one list of added words, one list file for all checkers.
struct SpellState {
    std::unique_ptr<clsWordTree> WordTree = std::make_unique<clsWordTree>();
    // Element 0 is never used; added words are elements 1 and up.
    QStringList CustomWords{QString()};
    QString DictionaryPath;
    bool SpellOnTop = false;
    bool DictionaryMissing = false;
};
SpellState& state();
inline clsWordTree& WordTree() { return *state().WordTree; }

// Four characters: the first letter upper-cased and three digits; repeats are skipped only
// when the same letter follows itself. "Robert" R163, "Jackson" J222, "" "000 ".
QString WordCode(QStringView word);
// The same code as UTF-16 units: four, or five when the first character lies outside the
// first plane.
struct CodeUnits {
    std::array<char16_t, 5> units;
    int size;
    QStringView view() const { return QStringView(units.data(), size); }
};
CodeUnits wordCodeUnits(QStringView word);

// Reads the list file into a new tree. Missing file: error 53 and DictionaryMissing set.
// Every error is raised again with the source "vbwSpellCheck".
void LoadWordList(const QString& path);
// The same load from bytes already in memory (the fuzz harness and the benchmark).
void loadWordBytes(const QByteArray& bytes);
// Appends CustomWords 1.. to the file; nothing when the list file was missing; errors ignored.
void SaveCustomWords(const QString& path);

// Resets the shared state as the process starts it (tests).
void resetForTesting();

// The size of a piece of the list file.
constexpr qsizetype pieceSize = 0x10000;
}

// The number rules the word walk needs.
namespace Spelling {
// A number as a whole: plain or scientific, with an optional sign ("12", "-1.5", ".5", "1e3").
bool isNumeric(QStringView text);
// The value of the number that leads the text ("12th" 12, "3d" 3, "0x" 0, "abc" 0); blanks,
// tabs and line feeds inside are passed over.
double leadingValue(QStringView text);
// Blanks off both ends (blanks only, as the platform's trim does).
QStringView trimBlanks(QStringView text);
// Every word of the text with a capital first letter and the rest small.
QString properCase(const QString& text);
// Small letters, character by character (the length never changes).
QString lowerCase(QStringView text);

// The words the word test accepts, and what the suggestion list shows for a word.
bool isCorrectWord(const clsWordTree& tree, QStringView word);

struct Alternates {
    enum Status { Empty, DictionaryNotFound, NoSuggestions, Listed } status = Empty;
    QStringList rows;
    int selected = -1;  // the row to select, from 0; -1 none
};
// The rows of the suggestion list for a word already trimmed and lower-cased.
Alternates listAlternates(const clsWordTree& tree, const QString& lowerWord, bool dictionaryMissing);
}
