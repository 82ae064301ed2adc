#include "services/DetailsFile.h"

#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/FieldReader.h"

#include <QStringList>

namespace {
using TextFiles::crlf;
QString quoted(const QString& s) { return QLatin1Char('"') + s + QLatin1Char('"'); }
}

namespace DetailsFile {

DetailsRecord designValues()
{
    DetailsRecord r;
    r.CSS = 0;
    r.ETAG = 1;
    r.LNEW = 1;
    r.SFORM = 1;
    r.SSTART = QStringLiteral("Maximized");
    r.WEBFOLDER = QStringLiteral("c:\\Velloro\\");
    r.carot = QStringLiteral("65");
    r.systype = QStringLiteral("HTML");
    r.Shape6 = 255;
    r.Text2 = QStringLiteral("#FF0000");
    r.Shape5 = 16711680;
    r.Text3 = QStringLiteral("#0000FF");
    r.Shape4 = 65280;
    r.Text4 = QStringLiteral("#00FF00");
    r.HeadingFont = {QStringLiteral("Arial"), QStringLiteral("MS Sans Serif"), QStringLiteral("Script"),
                     QStringLiteral("Comic Sans MS"), QStringLiteral("Lucida Console"), QStringLiteral("Trebuchet MS")};
    r.HeadingSize = {QStringLiteral("5"), QStringLiteral("8"), QStringLiteral("12"),
                     QStringLiteral("14"), QStringLiteral("18"), QStringLiteral("24")};
    r.txtSaveEx = QStringLiteral(".htm,.html,.asp,.aspx,.txt");
    r.txtOpenEx = QStringLiteral(".htm,.html,.asp,.aspx,.txt");
    r.ToolTip = 1;
    return r;
}

DetailsRecord parse(const QString& text)
{
    FieldReader in(text);
    // All fields are read before any is used, as the load reads into variables first.
    QString f[fieldCount];
    for (auto& field : f)
        field = in.next();

    DetailsRecord r;
    r.CSS = FieldReader::toCheckValue(f[0]);
    r.ETAG = FieldReader::toCheckValue(f[1]);
    r.LNEW = FieldReader::toCheckValue(f[2]);
    r.SFORM = FieldReader::toCheckValue(f[3]);
    r.SSTART = f[4];
    r.WEBFOLDER = f[5];
    r.carot = f[6];
    r.systype = f[7];
    r.Shape6 = FieldReader::toLong(f[8]);
    r.Text2 = f[9];
    r.Shape5 = FieldReader::toLong(f[10]);
    r.Text3 = f[11];
    r.Shape4 = FieldReader::toLong(f[12]);
    r.Text4 = f[13];
    for (int i = 0; i < 6; ++i) {
        r.HeadingFont[i] = f[14 + 2 * i];
        r.HeadingSize[i] = f[15 + 2 * i];
    }
    r.txtSaveEx = f[26];
    r.txtOpenEx = f[27];
    try {
        r.ToolTip = FieldReader::toCheckValue(f[28]);
    } catch (const RuntimeError&) {
        r.ToolTip = 0;
    }
    return r;
}

QString saveText(const DetailsRecord& r)
{
    QString s;
    auto num = [&s](qint64 v) { s += QString::number(v) + crlf; };
    auto str = [&s](const QString& v) { s += quoted(v) + crlf; };
    num(r.CSS);
    num(r.ETAG);
    num(r.LNEW);
    num(r.SFORM);
    str(r.SSTART);
    str(r.WEBFOLDER);
    str(r.carot);
    str(r.systype);
    num(r.Shape6);
    str(r.Text2);
    num(r.Shape5);
    str(r.Text3);
    num(r.Shape4);
    str(r.Text4);
    for (int i = 0; i < 6; ++i) {
        str(r.HeadingFont[i]);
        str(r.HeadingSize[i]);
    }
    str(r.txtSaveEx);
    str(r.txtOpenEx);
    num(r.ToolTip);
    return s;
}

QString resetText(const std::array<QString, 6>& headingFonts, const std::array<QString, 6>& headingSizes)
{
    QStringList lines = {
        QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"),
        QStringLiteral("\"Maximised\""), QStringLiteral("\"c:\\Velloro\\\""), QStringLiteral("65"),
        QStringLiteral("\"HTML\""),
        QStringLiteral("255&"), QStringLiteral("\"#FF0000\""),
        QStringLiteral("16711680"), QStringLiteral("\"#0000FF\""),
        QStringLiteral("65280"), QStringLiteral("\"#00FF00\"")};
    for (int i = 0; i < 6; ++i) {
        lines << headingFonts[i] << headingSizes[i];
    }
    lines << QStringLiteral(".htm,.html,.asp,.aspx,.php") << QStringLiteral(".htm,.html,.asp,.aspx,.php")
          << QStringLiteral(" 1 ");
    return lines.join(crlf) + crlf;
}

} // namespace DetailsFile
