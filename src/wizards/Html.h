#pragma once
#include "platform/TextFiles.h"

#include <QString>
#include <QStringList>

// The few text steps the wizards' fragments share. The fragments are the system's own markup,
// byte for byte, and often not valid HTML: nothing here quotes, escapes or checks a value.
namespace Html {
// Carriage return plus line feed: every line end a fragment writes.
using TextFiles::crlf;

// The alignment list of every wizard that offers a position, in order; "Center" is the default.
inline QStringList alignments()
{
    return {QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("Right")};
}

// The text wizard's own alignment list: its last row is in lower case.
inline QStringList textAlignments()
{
    return {QStringLiteral("Center"), QStringLiteral("Left"), QStringLiteral("right")};
}

// The font-size list, "1  (8pt)" to "7  (36pt)" (two blanks after the digit); the default is
// the third row.
inline QStringList fontSizes()
{
    return {QStringLiteral("1  (8pt)"),  QStringLiteral("2  (10pt)"), QStringLiteral("3  (12pt)"),
            QStringLiteral("4  (14pt)"), QStringLiteral("5  (18pt)"), QStringLiteral("6  (24pt)"),
            QStringLiteral("7  (36pt)")};
}

// {size}: the first character of the size list's text and nothing else ("" for an empty box).
inline QString sizeDigit(const QString& sizeText) { return sizeText.left(1); }
}
