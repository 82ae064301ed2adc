#pragma once
#include <QByteArray>

class QTextDocument;

// The rich text files of the notepad: fonts, sizes, colours, bold/italic/underline, paragraph
// indents and alignment, tabs, line breaks and any Unicode text. Everything else a file may hold
// (pictures, style sheets, document information, fields' instructions) is read past.
namespace Rtf {

// True when the bytes begin as a rich text file does ("{\rtf").
bool looksLikeRtf(const QByteArray& bytes);

// The document as a rich text file: 7-bit ASCII, CR LF after each paragraph.
QByteArray write(const QTextDocument& doc);

// Replaces the document's contents with the file's. False, with the document untouched, when
// the bytes are not a rich text file. Damaged files give whatever could be read before the damage.
bool read(const QByteArray& bytes, QTextDocument* doc);

} // namespace Rtf
