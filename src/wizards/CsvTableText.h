#pragma once
#include "wizards/CellTableText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QChar>
#include <QString>
#include <QStringView>
#include <functional>

// The table of a comma-separated or tab-delimited text.
namespace CsvTableText {

inline const QChar comma = QLatin1Char(',');
inline const QChar tab = QLatin1Char('\t');

// F: the separators of the text's first line, plus one (1 for an empty text).
qsizetype fieldCount(QStringView text, QChar separator);

// The opening tag (cell spacing 0), then a row for each line of the text and </table>, and a
// line end. CR LF, LF and CR each end a line; a last line without an end is a line, and
// nothing follows the text's last line end. A line is split at every separator (quotes mean
// nothing; an empty line has no fields) and gives at most F + 1 of its fields as cells, with
// no padding. Linear in the text: the result is measured first and built in one piece.
//
// With a progress step, the build tells now and then how far it has come (0 to 100 over both
// passes); a step that answers false stops it, and the result is empty.
using Progress = std::function<bool(int percent)>;
QString fragment(const CellTableText::Fields& f, QStringView text, QChar separator, const Progress& progress = {});
// The same table from and in UTF-8 (line ends and separators are single bytes there, never
// part of a longer character): the form the editor holds text in, for big files.
QByteArray fragmentUtf8(const CellTableText::Fields& f, QByteArrayView text, char separator,
                        const Progress& progress = {});
}
