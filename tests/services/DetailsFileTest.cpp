// \Options\Details.dat: the reset's text, the dialog's save, the load, damaged files.
#include "common/QtPrinters.h"
#include "platform/RuntimeError.h"
#include "services/DetailsFile.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

const std::array<QString, 6> designFonts{QStringLiteral("Arial"), QStringLiteral("MS Sans Serif"),
                                         QStringLiteral("Script"), QStringLiteral("Comic Sans MS"),
                                         QStringLiteral("Lucida Console"), QStringLiteral("Trebuchet MS")};
const std::array<QString, 6> designSizes{QStringLiteral("5"), QStringLiteral("8"), QStringLiteral("12"),
                                         QStringLiteral("14"), QStringLiteral("18"), QStringLiteral("24")};

// The reset file of a fresh installation, line by line.
const QString resetFile = QStringLiteral(
    "0\r\n"
    "1\r\n"
    "1\r\n"
    "1\r\n"
    "\"Maximised\"\r\n"
    "\"c:\\Velloro\\\"\r\n"
    "65\r\n"
    "\"HTML\"\r\n"
    "255&\r\n"
    "\"#FF0000\"\r\n"
    "16711680\r\n"
    "\"#0000FF\"\r\n"
    "65280\r\n"
    "\"#00FF00\"\r\n"
    "Arial\r\n"
    "5\r\n"
    "MS Sans Serif\r\n"
    "8\r\n"
    "Script\r\n"
    "12\r\n"
    "Comic Sans MS\r\n"
    "14\r\n"
    "Lucida Console\r\n"
    "18\r\n"
    "Trebuchet MS\r\n"
    "24\r\n"
    ".htm,.html,.asp,.aspx,.php\r\n"
    ".htm,.html,.asp,.aspx,.php\r\n"
    " 1 \r\n");

// The same settings after a save from the dialog: everything in the quoted form.
const QString savedFile = QStringLiteral(
    "0\r\n"
    "1\r\n"
    "1\r\n"
    "1\r\n"
    "\"Maximised\"\r\n"
    "\"c:\\Velloro\\\"\r\n"
    "\"65\"\r\n"
    "\"HTML\"\r\n"
    "255\r\n"
    "\"#FF0000\"\r\n"
    "16711680\r\n"
    "\"#0000FF\"\r\n"
    "65280\r\n"
    "\"#00FF00\"\r\n"
    "\"Arial\"\r\n"
    "\"5\"\r\n"
    "\"MS Sans Serif\"\r\n"
    "\"8\"\r\n"
    "\"Script\"\r\n"
    "\"12\"\r\n"
    "\"Comic Sans MS\"\r\n"
    "\"14\"\r\n"
    "\"Lucida Console\"\r\n"
    "\"18\"\r\n"
    "\"Trebuchet MS\"\r\n"
    "\"24\"\r\n"
    "\".htm,.html,.asp,.aspx,.php\"\r\n"
    "\".htm,.html,.asp,.aspx,.php\"\r\n"
    "1\r\n");

DetailsRecord savedRecord()
{
    DetailsRecord r;
    r.CSS = 0;
    r.ETAG = 1;
    r.LNEW = 1;
    r.SFORM = 1;
    r.SSTART = QStringLiteral("Maximised");
    r.WEBFOLDER = QStringLiteral("c:\\Velloro\\");
    r.carot = QStringLiteral("65");
    r.systype = QStringLiteral("HTML");
    r.Shape6 = 255;
    r.Text2 = QStringLiteral("#FF0000");
    r.Shape5 = 16711680;
    r.Text3 = QStringLiteral("#0000FF");
    r.Shape4 = 65280;
    r.Text4 = QStringLiteral("#00FF00");
    r.HeadingFont = designFonts;
    r.HeadingSize = designSizes;
    r.txtSaveEx = QStringLiteral(".htm,.html,.asp,.aspx,.php");
    r.txtOpenEx = QStringLiteral(".htm,.html,.asp,.aspx,.php");
    r.ToolTip = 1;
    return r;
}

// Replaces line `n` (1-based) of a CR LF text.
QString withLine(const QString& text, int n, const QString& replacement)
{
    QStringList lines = text.split(QStringLiteral("\r\n"));
    lines[n - 1] = replacement;
    return lines.join(QStringLiteral("\r\n"));
}

int parseError(const QString& text)
{
    try {
        DetailsFile::parse(text);
    } catch (const RuntimeError& e) {
        return e.number;
    }
    return 0;
}

} // namespace

// --- Reset -----------------------------------------------------------------------------------

TEST(DetailsReset, TextIsTheFactoryFileByteForByte)
{
    EXPECT_EQ(DetailsFile::resetText(designFonts, designSizes), resetFile);
}

TEST(DetailsReset, HeadingLinesComeFromTheControlsAsTheyStand)
{
    const std::array<QString, 6> fonts{QStringLiteral("F1"), QStringLiteral("F 2"), QStringLiteral("F3"),
                                       QStringLiteral("F4"), QStringLiteral("F5"), QStringLiteral("F6")};
    const std::array<QString, 6> sizes{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                       QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6")};
    const QStringList lines = DetailsFile::resetText(fonts, sizes).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 30);  // 29 lines, each ended by CR LF
    EXPECT_EQ(lines[29], QString());
    EXPECT_EQ(lines[14], QStringLiteral("F1"));
    EXPECT_EQ(lines[15], QStringLiteral("1"));
    EXPECT_EQ(lines[16], QStringLiteral("F 2"));
    EXPECT_EQ(lines[24], QStringLiteral("F6"));
    EXPECT_EQ(lines[25], QStringLiteral("6"));
    EXPECT_EQ(lines[26], QStringLiteral(".htm,.html,.asp,.aspx,.php"));
}

TEST(DetailsReset, ItsOwnFileLoads)
{
    const DetailsRecord r = DetailsFile::parse(resetFile);
    EXPECT_EQ(r.CSS, 0);
    EXPECT_EQ(r.ETAG, 1);
    EXPECT_EQ(r.LNEW, 1);
    EXPECT_EQ(r.SFORM, 1);
    EXPECT_EQ(r.SSTART, QStringLiteral("Maximised"));
    EXPECT_EQ(r.WEBFOLDER, QStringLiteral("c:\\Velloro\\"));
    EXPECT_EQ(r.carot, QStringLiteral("65"));
    EXPECT_EQ(r.systype, QStringLiteral("HTML"));
    EXPECT_EQ(r.Shape6, 255);  // "255&": the text before the ampersand
    EXPECT_EQ(r.Text2, QStringLiteral("#FF0000"));
    EXPECT_EQ(r.Shape5, 16711680);
    EXPECT_EQ(r.Text3, QStringLiteral("#0000FF"));
    EXPECT_EQ(r.Shape4, 65280);
    EXPECT_EQ(r.Text4, QStringLiteral("#00FF00"));
    EXPECT_EQ(r.HeadingFont, designFonts);
    EXPECT_EQ(r.HeadingSize, designSizes);
    // Line 27 is unquoted and holds commas: its pieces fill the last three fields.
    EXPECT_EQ(r.txtSaveEx, QStringLiteral(".htm"));
    EXPECT_EQ(r.txtOpenEx, QStringLiteral(".html"));
    EXPECT_EQ(r.ToolTip, 0);  // ".asp" where a check value belongs
}

// --- Save ------------------------------------------------------------------------------------

TEST(DetailsSave, AllFieldsInTheQuotedFormByteForByte)
{
    EXPECT_EQ(DetailsFile::saveText(savedRecord()), savedFile);
}

TEST(DetailsSave, RoundTripKeepsWholeExtensionLists)
{
    DetailsRecord r = savedRecord();
    r.CSS = 1;
    r.ETAG = 0;
    r.LNEW = 2;
    r.SFORM = 0;
    r.SSTART = QStringLiteral("Normal");
    r.WEBFOLDER = QStringLiteral("/home/me/My Pages, old/");
    r.Shape6 = 0;
    r.Shape5 = 0xFFFFFF;
    r.Shape4 = -1;
    r.Text2 = QStringLiteral("  #0A0000  ");
    r.HeadingFont[2] = QStringLiteral("Times New Roman");
    r.txtSaveEx = QStringLiteral(".htm,.html,.asp,.aspx,.txt");
    r.txtOpenEx = QStringLiteral(".css , .js");
    r.ToolTip = 0;
    EXPECT_EQ(DetailsFile::parse(DetailsFile::saveText(r)), r);
}

// --- Load ------------------------------------------------------------------------------------

TEST(DetailsLoad, QuotedFileLoadsExactlyWithAnyLineEndAndExtraLines)
{
    QString lf = savedFile, cr = savedFile;
    lf.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    cr.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    // Fields after the twenty-ninth are ignored.
    for (const QString& text : QStringList{savedFile, lf, cr, savedFile + QStringLiteral("extra\r\n\"more\"\r\n")})
        EXPECT_EQ(DetailsFile::parse(text), savedRecord()) << text.toStdString();
}

TEST(DetailsLoad, ToolTipTakesAnyNonNumberAsZero)
{
    EXPECT_EQ(DetailsFile::parse(withLine(savedFile, 29, QStringLiteral("\"yes\""))).ToolTip, 0);
    EXPECT_EQ(DetailsFile::parse(withLine(savedFile, 29, QStringLiteral("0"))).ToolTip, 0);
    EXPECT_EQ(DetailsFile::parse(withLine(savedFile, 29, QStringLiteral("2"))).ToolTip, 2);
}

TEST(DetailsLoad, DamagedFilesRaiseTheirErrors)
{
    EXPECT_EQ(parseError(QString()), 62);
    // 28 fields: the last one is missing.
    const QString twentyEight = savedFile.left(savedFile.lastIndexOf(QStringLiteral("1\r\n")));
    ASSERT_TRUE(twentyEight.endsWith(QStringLiteral("\".htm,.html,.asp,.aspx,.php\"\r\n")));
    EXPECT_EQ(parseError(twentyEight), 62);
    EXPECT_EQ(parseError(withLine(savedFile, 1, QStringLiteral("yes"))), 13);
    EXPECT_EQ(parseError(withLine(savedFile, 1, QStringLiteral("\"yes\""))), 13);
    EXPECT_EQ(parseError(withLine(savedFile, 2, QStringLiteral("5"))), 380);
    EXPECT_EQ(parseError(withLine(savedFile, 9, QStringLiteral("red"))), 13);
    EXPECT_EQ(parseError(withLine(savedFile, 11, QStringLiteral("\"#0000FF\""))), 13);
    EXPECT_EQ(parseError(withLine(savedFile, 13, QStringLiteral("4294967295"))), 6);
    // A comma in an unquoted text line shifts the numbers: line 9's value lands in line 10's
    // place and line 8's second half in line 9's.
    EXPECT_EQ(parseError(withLine(savedFile, 8, QStringLiteral("HTML,XML"))), 13);
}

TEST(DetailsLoad, EmptyNumberFieldsAreZero)
{
    const DetailsRecord r = DetailsFile::parse(withLine(withLine(savedFile, 1, QString()), 9, QString()));
    EXPECT_EQ(r.CSS, 0);
    EXPECT_EQ(r.Shape6, 0);
}
