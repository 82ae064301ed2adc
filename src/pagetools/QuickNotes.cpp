#include "pagetools/QuickNotes.h"

namespace QuickNotes {
namespace {
const QString extension = QStringLiteral(".dat");
// The longest file name, in bytes, that the file systems of this platform take.
constexpr qsizetype longestFileName = 255;
}

QString notePath(const QString& folder, const QString& name) { return folder + QLatin1Char('/') + name + extension; }

bool isFileName(const QString& name)
{
    return !name.contains(QLatin1Char('/')) && !name.contains(QChar(0))
        && (name + extension).toUtf8().size() <= longestFileName;
}

bool isStored(const QStringList& files, const QString& name)
{
    return files.contains(name + extension, Qt::CaseInsensitive);
}

QStringList search(const QStringList& rows, const QString& text, Match match)
{
    QStringList found;
    for (const QString& row : rows)
        if (match == Match::Partial ? row.contains(text, Qt::CaseInsensitive) : row == text)
            found << row;
    return found;
}
}
