#pragma once
#include <QByteArray>
#include <QString>

// Text files as the program reads and writes them: composed text carries its own CR LF and is
// written as UTF-8; reading takes UTF-8 and falls back to Windows-1252 for invalid bytes.
namespace TextFiles {
// The line end of every text the program composes: carriage return plus line feed.
inline const QString crlf = QStringLiteral("\r\n");

QString decode(const QByteArray& bytes);
QByteArray encode(const QString& text);
// Bytes of a file as the editor holds text, UTF-8, read as decode() reads them: well-formed
// UTF-8 as it is, every other byte as Windows-1252. With `held`, a character cut by the end of
// the bytes is left out and handed back there, to go in front of the next piece of the file;
// piece by piece, the result is the same as for the whole file.
QByteArray toEditorText(QByteArray bytes, QByteArray* held = nullptr);

bool exists(const QString& path);
// Creates the file empty when it is missing (the parent folder is made too). False on failure.
bool createIfMissing(const QString& path);

// Reads the whole file; a missing or unreadable file gives nothing and ok=false.
QByteArray readBytes(const QString& path, bool* ok = nullptr);
QString readText(const QString& path, bool* ok = nullptr);

// Replaces the file as a whole through a temporary file, so a failure never leaves half a file.
bool writeBytes(const QString& path, const QByteArray& bytes, QString* error = nullptr);
// The same for a file only its owner may read (a password): the temporary file is made
// owner-only before a byte goes in.
bool writePrivate(const QString& path, const QByteArray& bytes, QString* error = nullptr);
bool writeText(const QString& path, const QString& text, QString* error = nullptr);
// A scratch file of the program's own (a preview): written in place, without the cost of
// making the write durable.
bool writeScratch(const QString& path, const QByteArray& bytes);
}
