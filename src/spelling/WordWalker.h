#pragma once
#include "spelling/SpellEngine.h"

#include <QString>
#include <QStringView>

#include <algorithm>
#include <functional>

// The walk of the spell check through a text: where a word ends, and whether the word stands
// at the start of a sentence. Positions: the walk takes and gives 1-based character indexes
// for the divider search, offsets from 0 elsewhere, as the dialog that drives it does.
class WordWalker {
public:
    // The divider after the word at a 1-based index (0 counts as 1): its offset from 0, or the
    // text's length plus 1 when the word runs to the end. Letters, digits and "-" belong to a
    // word, so do an apostrophe between letters and the dots of an abbreviation like "e.g.".
    int getNextWordDivider(QStringView text, int start);

    // Kept from one search to the next, as long as the walker lives.
    bool sentenceStart = false;
    int previousDivider = 0;
    bool previousWasFullStop = false;

    // Called now and then while a long run of word characters is scanned, so that a window
    // stays responsive.
    std::function<void()> serveEvents;

private:
    unsigned scanned = 0;
};

namespace Spelling {

struct WordStop {
    enum Kind { None, Misspelt, MissingCapital } kind = None;
    int start = 0;   // offset of the word
    int length = 0;  // as the walk counts it (it may reach one past the text at its end)
    QString word;
};

// One step of the check: from start (an offset) to end (-1: the text's length), the first word
// that fails the word test, or that lacks its capital at the start of the text or of a
// sentence. start and end are updated as the walk goes. moveCaret(offset) puts the control's
// caret there and answers where it landed; isCorrect(word) is the word test.
template <class MoveCaret, class IsCorrect>
WordStop checkNextWord(WordWalker& walker, QStringView text, int& start, int& end, MoveCaret&& moveCaret,
                       IsCorrect&& isCorrect)
{
    const int length = static_cast<int>(text.size());
    if (end == -1)
        end = length;
    if (start != 0) {
        const int divider = walker.getNextWordDivider(text, start);
        start = moveCaret(divider) + 1;
    } else if (walker.getNextWordDivider(text, 1) == 1) {
        start = 1;  // a one-letter first word is passed over
    }
    while (start <= end) {
        const int wordLength = walker.getNextWordDivider(text, start + 1) - start;
        if (wordLength == -1)
            return {};
        const int from = std::min(start, length);
        const QStringView word = text.mid(from, std::clamp(wordLength, 0, length - from));
        if (!word.isEmpty() && Spelling::leadingValue(word) == 0) {
            if (!isCorrect(word))
                return {WordStop::Misspelt, start, wordLength, word.toString()};
            if (start == 0 || walker.sentenceStart) {
                const QChar first = word.front();
                if (first != first.toUpper())
                    return {WordStop::MissingCapital, start, wordLength, word.toString()};
            }
        }
        start += wordLength + 1;
    }
    return {};
}

// The whole walk without stopping, as a check that is never answered: every word that fails
// the word test, in order, with its offset. Words lacking only their capital pass.
template <class IsCorrect, class Found>
void forEachMisspelt(QStringView text, IsCorrect&& isCorrect, Found&& found)
{
    WordWalker walker;
    int start = 0, end = -1;
    const int length = static_cast<int>(text.size());
    for (;;) {
        const WordStop stop =
            checkNextWord(walker, text, start, end, [length](int at) { return std::clamp(at, 0, length); }, isCorrect);
        if (stop.kind == WordStop::None)
            return;
        if (stop.kind == WordStop::Misspelt)
            found(stop.start, stop.word);
        // On from the end of the word, as Ignore goes on.
        start = stop.start + std::min(stop.length, length - stop.start);
    }
}
}
