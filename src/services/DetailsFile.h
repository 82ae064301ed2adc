#pragma once
#include <QString>
#include <array>

// The 29 fields of \Options\Details.dat, in file order, with the control each one mirrors.
struct DetailsRecord {
    int CSS = 0;                // 1  check
    int ETAG = 1;               // 2  check
    int LNEW = 1;               // 3  check
    int SFORM = 1;              // 4  check
    QString SSTART;             // 5
    QString WEBFOLDER;          // 6
    QString carot;              // 7
    QString systype;            // 8
    qint32 Shape6 = 255;        // 9  swatch of "Pre-set 1", blue-green-red long
    QString Text2;              // 10
    qint32 Shape5 = 16711680;   // 11
    QString Text3;              // 12
    qint32 Shape4 = 65280;      // 13
    QString Text4;              // 14
    std::array<QString, 6> HeadingFont;  // 15, 17, ... 25
    std::array<QString, 6> HeadingSize;  // 16, 18, ... 26
    QString txtSaveEx;          // 27
    QString txtOpenEx;          // 28
    int ToolTip = 1;            // 29 check

    bool operator==(const DetailsRecord&) const = default;
};

namespace DetailsFile {
constexpr int fieldCount = 29;

// The controls' values as the dialog is designed, before any file was read.
DetailsRecord designValues();

// Reads the 29 fields. Run-time errors as the reader and conversions raise them; the tool-tip
// field alone takes anything that is not a number as 0, since a reset file holds ".asp" there.
DetailsRecord parse(const QString& text);

// The dialog's save: all 29 fields in the quoted form, CR LF after each.
QString saveText(const DetailsRecord& r);

// The reset's text: the factory defaults in their mixed forms, with the heading fonts and
// sizes taken from the dialog's controls.
QString resetText(const std::array<QString, 6>& headingFonts, const std::array<QString, 6>& headingSizes);
}
