#pragma once
#include "platform/RuntimeError.h"

#include <limits>

// A window counter: private to the routine that creates windows, rising by one before each
// window, never falling. Going past the largest 32-bit value is a run-time error (6).
class WindowCounter {
public:
    int next()
    {
        if (value == std::numeric_limits<int>::max())
            throw RuntimeError::overflow(QStringLiteral("window counter"));
        return ++value;
    }
    int current() const { return value; }

private:
    int value = 0;
};
