#include "spelling/WordWalker.h"

namespace {
inline bool wordCharacter(char16_t c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
}

// "[A-z]" by character code: the capitals, the six characters after them and the small letters.
inline bool letterRange(char16_t c) { return c >= 'A' && c <= 'z'; }
}

int WordWalker::getNextWordDivider(QStringView text, int start)
{
    const int length = static_cast<int>(text.size());
    const char16_t* t = reinterpret_cast<const char16_t*>(text.data());
    // 1-based index i is t[i - 1].
    for (int i = start < 1 ? 1 : start; i <= length; ++i) {
        const char16_t c = t[i - 1];
        if (wordCharacter(c)) {
            if (serveEvents && (++scanned & 63) == 0)
                serveEvents();
            continue;
        }
        // An apostrophe between letters ("don't").
        if (c == '\'' && i >= 2 && i + 1 <= length && letterRange(t[i - 2]) && letterRange(t[i]))
            continue;
        // The first dot of an abbreviation ("e.g."): the second dot belongs to the word too.
        if (c == '.' && i >= 2 && i + 2 <= length && letterRange(t[i - 2]) && letterRange(t[i]) && t[i + 1] == '.') {
            i += 2;
            continue;
        }
        // c ends the word. The word after ". " starts a sentence, up to the divider after it.
        const bool afterFullStopBlank = previousDivider >= 2 && previousDivider <= length &&
                                        t[previousDivider - 2] == '.' && t[previousDivider - 1] == ' ';
        if (!afterFullStopBlank)
            sentenceStart = false;
        if (previousWasFullStop) {
            sentenceStart = true;
            previousWasFullStop = false;
        }
        if (c == '.')
            previousWasFullStop = true;
        previousDivider = i;
        return i - 1;
    }
    return length + 1;
}
