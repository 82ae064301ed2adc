// Arbitrary bytes as Details.dat and Properties.dat. The load may fail only with the run-time
// errors of the reader and its conversions; whatever it accepts must survive the dialog's save
// and a second load unchanged.
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/DetailsFile.h"
#include "services/PropertiesFile.h"

#include <QByteArray>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "fuzz_details: %s\n", what);
    std::abort();
}

// The quoted form has no escaping: a text that holds a double quote is cut there on the next
// load. Such records are outside what the save can carry, so the round trip skips them.
bool quotedFormCanCarry(const DetailsRecord& r)
{
    const QString texts[] = {r.SSTART, r.WEBFOLDER, r.carot, r.systype, r.Text2, r.Text3, r.Text4,
                             r.txtSaveEx, r.txtOpenEx};
    for (const QString& t : texts)
        if (t.contains(QLatin1Char('"')))
            return false;
    for (int i = 0; i < 6; ++i)
        if (r.HeadingFont[i].contains(QLatin1Char('"')) || r.HeadingSize[i].contains(QLatin1Char('"')))
            return false;
    return true;
}

void fuzzDetails(const QString& text)
{
    DetailsRecord r;
    try {
        r = DetailsFile::parse(text);
    } catch (const RuntimeError& e) {
        if (e.number != 62 && e.number != 13 && e.number != 6 && e.number != 380)
            fail(qPrintable(QStringLiteral("parse raised %1").arg(e.number)));
        return;
    }
    for (int v : {r.CSS, r.ETAG, r.LNEW, r.SFORM, r.ToolTip})
        if (v < 0 || v > 2)
            fail("check value out of 0..2");
    if (!quotedFormCanCarry(r))
        return;

    const QString saved = DetailsFile::saveText(r);
    DetailsRecord again;
    try {
        again = DetailsFile::parse(saved);
    } catch (const RuntimeError& e) {
        std::fprintf(stderr, "saved text:\n%s\n", saved.toUtf8().constData());
        fail(qPrintable(QStringLiteral("saved text does not load: error %1").arg(e.number)));
    }
    if (!(again == r)) {
        std::fprintf(stderr, "saved text:\n%s\n", saved.toUtf8().constData());
        fail("saved text loads to a different record");
    }
}

bool survivesPlainForm(const QString& s)
{
    for (QChar c : s)
        if (c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\r') || c == QLatin1Char('\n'))
            return false;
    const auto blank = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); };
    return s.isEmpty() || (!blank(s.front()) && !blank(s.back()));
}

void fuzzProperties(const QString& text)
{
    PropertiesRecord r;
    try {
        r = PropertiesFile::parse(text);
    } catch (...) {
        fail("Properties.dat parse threw; its load ignores every error");
    }
    if (r.fieldsRead < 0 || r.fieldsRead > 8)
        fail("fieldsRead out of 0..8");

    // Paths the plain form can carry come back as they were, and the folded widths stay folded.
    const QString paths[] = {r.openDir, r.openDrive, r.openFileDir, r.saveDir, r.saveDrive, r.saveFileDir};
    for (const QString& p : paths)
        if (!survivesPlainForm(p))
            return;
    const PropertiesRecord again = PropertiesFile::parse(PropertiesFile::text(r, 475, 140));
    if (again.fieldsRead != 8 || again.openDir != r.openDir || again.openDrive != r.openDrive
        || again.openFileDir != r.openFileDir || again.saveDir != r.saveDir || again.saveDrive != r.saveDrive
        || again.saveFileDir != r.saveFileDir)
        fail("Properties.dat paths do not survive save and load");
    if (!PropertiesFile::sideFolded(again.sideWidth) || !PropertiesFile::rightFolded(again.rightWidth))
        fail("folded panels do not survive save and load");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextFiles::decode(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    fuzzDetails(text);
    fuzzProperties(text);
    return 0;
}
