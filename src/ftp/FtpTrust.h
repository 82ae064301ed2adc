#pragma once
#include <QString>

// What the user answered about server certificates that the system cannot check: one line a
// host in Options/FTP/Certificates.txt, "host answer fingerprint", the answer "trust" or
// "refuse", the fingerprint SHA-256 in the usual colon-separated hex. The file is the
// program's own and is written whole or not at all.
namespace FtpTrust {

enum class Answer { None, Trusted, Refused };

struct Entry {
    Answer answer = Answer::None;
    QString fingerprint;
};

QString path();
// The remembered answer for a host; None when there is none.
Entry lookUp(const QString& host);
// Remembers the answer for a host, replacing an older one. False when the file could not be written.
bool remember(const QString& host, Answer answer, const QString& fingerprint);
}
