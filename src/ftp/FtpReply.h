#pragma once
#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// The text side of the control channel: the reply buffer, the numeric code of a reply line,
// the verb table and the passive reply. None of it touches a socket, so it can be fed any bytes.
namespace FtpReply {

// Bytes of the control channel that do not yet end in CR LF are kept until a later arrival
// completes them. A line is cut off the front at every CR LF; a bare CR or LF is part of a line.
class Buffer {
public:
    // Appends one arrival and hands back the complete lines it finished, in order, without
    // their CR LF.
    QList<QString> append(const QByteArray& bytes);
    const QByteArray& pending() const { return buffer; }
    void clear();

private:
    QByteArray buffer;
    // Where the search for the next CR LF resumes, so a long line that arrives in small pieces
    // is not scanned again from its start on every arrival.
    qsizetype scanned = 0;
};

// The text of a directory listing as its data channel delivers it: each arrival's text, read as
// the editor reads files; a character cut by the end of one arrival is held for the next, so
// the text is the same however the bytes were cut.
class Listing {
public:
    QString append(const QByteArray& bytes);
    // What is still held when the channel closes (the start of a character that never ended).
    QString finish();
    void clear() { held.clear(); }

private:
    QByteArray held;
};

// The code of a reply line: the numeric value of its first three characters, taking leading
// digits (after blanks and a sign) and 0 where there are none. "230-" is 230, "OK" is 0, "5" is 5.
qint16 replyCode(const QString& line);

// The verb of a command line: the text before the first blank, or the first four characters
// when there is no blank.
QString verbOf(const QString& command);

struct VerbEntry {
    qint16 awaited = 0;   // 0: no wait
    qint16 second = 0;    // 0: none
    // A reply that means the same as the awaited one: 125 "data connection already open" for
    // STOR, which servers send instead of 150 when the passive connection came first.
    qint16 alike = 0;
    QString dataTag;      // what the data channel carries during the wait, or empty
};
// The entry of a verb; verbs not in the table await nothing.
VerbEntry lookUp(const QString& verb);

struct Passive {
    bool ok = false;
    quint16 port = 0;
    int errorNumber = 0;       // the run-time error when not ok
    QString errorDescription;
};
// The data port of a 227 line: between the first "(" and the first ")" after it, six numbers
// split at ","; the port is 256 times the fifth plus the sixth. The four address numbers are
// read and dropped: the data connection goes to the control connection's peer. Fewer than six
// fields is "Subscript out of range"; a port outside 0..65535 is "Invalid property value".
Passive parsePassive(const QString& line);
}
