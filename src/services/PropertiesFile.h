#pragma once
#include <QString>

// \Options\Properties.dat: the last folders of the open and save dialogs and the widths of the
// two side panels, 8 fields in the plain form.
struct PropertiesRecord {
    QString openDir, openDrive, openFileDir;  // Openform Dir1, Drive1, File1
    QString saveDir, saveDrive, saveFileDir;  // Saveas Dir1, Drive1, File1
    QString sideWidth;                        // frmMain Sideholder width, twips, as read
    QString rightWidth;                       // frmMain RightHolder width
    int fieldsRead = 0;                       // how many fields the file held
};

namespace PropertiesFile {
// Reads as many of the 8 fields as the file holds; never throws (the load ignores errors).
PropertiesRecord parse(const QString& text);
// Plain form: paths as they stand, the widths as numbers with a blank before and behind.
QString text(const PropertiesRecord& r, double sideWidthTwips, double rightWidthTwips);
// The stored panel states: exactly "475" folds the left panel, exactly "140" the right one.
bool sideFolded(const QString& field);
bool rightFolded(const QString& field);
}
