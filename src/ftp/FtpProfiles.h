#pragma once
#include <QString>
#include <QStringList>

// The FTP accounts under Options/FTP: Main.DAT lists the profile names one a line, and each
// profile is a seven-line <name>.DAT between a start and an end marker. The password is kept in
// the clear, so every profile file is readable by its owner only.
// How a connection is made: in the clear, in TLS when the server offers it, or in TLS or not at all.
enum class FtpSecurity { Plain, IfOffered, Required };

namespace FtpProfiles {

struct Profile {
    QString name;
    QString address;
    QString username;
    QString password;
    QString date;
};

QString folder();                       // App::path() + "/Options/FTP"
QString indexPath();                    // .../Main.DAT
QString profilePath(const QString& name);

// The names of Main.DAT, in order; nothing when it is missing.
QStringList readIndex();
// Appends one name as a line (the file is made when missing).
bool appendIndex(const QString& name);
// Deletes Main.DAT and writes it anew with these names.
bool rewriteIndex(const QStringList& names);
// Makes Main.DAT when it is missing.
bool ensureIndex();

// The seven lines of a profile file.
QByteArray profileText(const Profile& p);
// Writes the profile file (owner-only), replacing what was there.
bool writeProfile(const Profile& p);
// Reads the six fields at the top of <name>.DAT through the field reader: the start marker
// is dropped and fields 2 to 6 fill the profile. A comma cuts a field and shifts the later
// ones. False when the file is missing or runs out of fields.
bool readProfile(const QString& name, Profile& p);

// A profile's security choice is kept beside its file, in <name>.TLS (one word and CR LF:
// "plain", "if-offered" or "required"), so the profile file keeps its seven lines. A profile
// without one was made before the choice existed and stays plain.
QString securityPath(const QString& name);
FtpSecurity readSecurity(const QString& name);
bool writeSecurity(const QString& name, FtpSecurity security);
}
