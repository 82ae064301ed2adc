#pragma once
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

#include <QString>
#include <QStringList>

#include <cmath>

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

// A number as the system writes it into a field or a fragment: the shortest general form with
// at most fifteen significant digits (50, 33.3333333333333, 99.009900990099).
inline QString number(double value) { return QString::number(value, 'G', 15); }

// A field's text used as a number: blanks around it are allowed, nothing else; "Type mismatch"
// for an empty or non-numeric text.
inline double value(const QString& text)
{
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(v))
        throw RuntimeError::typeMismatch();
    return v;
}

// {size}: the first character of the size list's text and nothing else ("" for an empty box).
inline QString sizeDigit(const QString& sizeText) { return sizeText.left(1); }
}
