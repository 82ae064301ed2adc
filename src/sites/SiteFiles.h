#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

// A site project's index file, SiteDetails.dat: six header lines (a start marker, the site's
// title, author, date and e-mail address, an end marker), then one full path a line of every
// file of the project, in the order of adding. Lines end in CR LF.
namespace SiteFiles {

inline const QString detailsName = QStringLiteral("SiteDetails.dat");
inline const QString startMarker = QStringLiteral("'''Start Project Details'''");
inline const QString endMarker = QStringLiteral("'''End Of Details'''");

struct Details {
    QString title, author, date, email;
};

// The six header lines, each with its CR LF.
QString header(const Details& d);
// One path line of the file list.
QString pathLine(const QString& path);

// A project file as read: the header lines by position (up to six; the markers are not
// checked) and the path lines after them.
struct Project {
    QStringList header;
    QStringList paths;
    // A header line by position, or "" where the file has fewer lines.
    QString line(int index) const { return index < header.size() ? header[index] : QString(); }
};
// Any line end counts (CR LF, CR, LF), so a file edited by hand on this platform still reads;
// a last line without its line end counts, an empty tail after the last line end does not.
Project parse(const QByteArray& bytes);

// The text of a file's node in the project tree: the bare name when the path names a file that
// exists, otherwise "" (the file system's short listing finds nothing).
QString nodeText(const QString& path);

// The bytes of a project file with one more path line. A file whose last line has no line end
// gets one first, so the new path stands on its own line.
QByteArray withPath(const QByteArray& bytes, const QString& path);
}
