#pragma once
#include "platform/TextPieces.h"
#include "wizards/CellTableText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <functional>

// The table of a comma-separated or tab-delimited text, read and made in UTF-8, the form the
// editor holds text in (line ends and separators are single bytes there, never part of a
// longer character), so that a big file is held once as bytes and once as its table.
namespace CsvTableText {

constexpr char comma = ',';
constexpr char tab = '\t';

// F: the separators of the text's first line, plus one (1 for an empty text).
qsizetype fieldCount(QByteArrayView text, char separator);

// The opening tag (cell spacing 0), then a row for each line of the text and </table>, and a
// line end. CR LF, LF and CR each end a line; a last line without an end is a line, and
// nothing follows the text's last line end. A line is split at every separator (quotes mean
// nothing; an empty line has no fields) and gives at most F + 1 of its fields as cells, with
// no padding. Linear in the text, in one pass, made in packed pieces of about TextPieces::aimedSize
// that the editor takes one by one.
//
// With a progress step, the build tells now and then how far it has come (0 to 100); a step
// that answers false stops it, and the result is empty.
using Progress = std::function<bool(int percent)>;
TextPieces pieces(const CellTableText::Fields& f, QByteArrayView text, char separator, const Progress& progress = {});
// The same table in one piece.
QByteArray fragment(const CellTableText::Fields& f, QByteArrayView text, char separator, const Progress& progress = {});
}
