#include "services/PropertiesFile.h"

#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/FieldReader.h"

namespace PropertiesFile {

PropertiesRecord parse(const QString& text)
{
    PropertiesRecord r;
    FieldReader in(text);
    QString* fields[] = {&r.openDir, &r.openDrive, &r.openFileDir, &r.saveDir,
                         &r.saveDrive, &r.saveFileDir, &r.sideWidth, &r.rightWidth};
    for (QString* f : fields) {
        try {
            *f = in.next();
            ++r.fieldsRead;
        } catch (const RuntimeError&) {
            break;
        }
    }
    return r;
}

namespace {
// A number of a numeric type in the plain form: one blank before and one behind.
QString plainNumber(double v) { return QLatin1Char(' ') + QString::number(v, 'g', 7) + QLatin1Char(' '); }

bool equalsNumber(const QString& field, double wanted)
{
    bool ok = false;
    const double v = field.trimmed().toDouble(&ok);
    return ok && v == wanted;
}
}

QString text(const PropertiesRecord& r, double sideWidthTwips, double rightWidthTwips)
{
    using TextFiles::crlf;
    return r.openDir + crlf + r.openDrive + crlf + r.openFileDir + crlf + r.saveDir + crlf + r.saveDrive
           + crlf + r.saveFileDir + crlf + plainNumber(sideWidthTwips) + crlf + plainNumber(rightWidthTwips) + crlf;
}

bool sideFolded(const QString& field) { return equalsNumber(field, 475); }
bool rightFolded(const QString& field) { return equalsNumber(field, 140); }

}
