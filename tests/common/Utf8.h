#pragma once
#include <QString>

// A text written out in a test, letters beyond ASCII and all, as the program holds it.
inline QString u(const char* s) { return QString::fromUtf8(s); }
