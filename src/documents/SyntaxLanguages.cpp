#include "documents/SyntaxLanguages.h"

#include "documents/RecordLexer.h"
#include "platform/CodeMax.h"

#include <map>
#include <memory>

namespace {
// Defined records live to the end of the run, so pointers handed out stay valid.
std::map<QString, std::unique_ptr<LanguageRecord>>& definedRecords()
{
    static std::map<QString, std::unique_ptr<LanguageRecord>> records;
    return records;
}
}

QStringList listEntries(const QString& list)
{
    QStringList entries = list.split(QLatin1Char('\n'));
    if (!entries.isEmpty() && entries.last().isEmpty())
        entries.removeLast();
    return entries;
}

const LanguageRecord* languageRecord(const QString& name)
{
    const auto it = definedRecords().find(name);
    return it == definedRecords().end() ? nullptr : it->second.get();
}

const LanguageRecord* registerRecordLanguage(const LanguageRecord& record)
{
    auto& slot = definedRecords()[record.name];
    if (slot)
        *slot = record;
    else
        slot = std::make_unique<LanguageRecord>(record);
    // The lists are compiled once here; every editor that takes the language shares them.
    std::shared_ptr<const RecordLexer::Tables> tables = RecordLexer::compile(*slot);
    CodeMax::registerLanguage(record.name, [tables](QObject* parent) { return new RecordLexer(tables, parent); });
    return slot.get();
}

void DefinePhpLanguage()
{
    static bool defined = false;
    if (defined)
        return;
    defined = true;
    registerRecordLanguage(LanguageRecords::php());
}

void DefineJavaScriptLanguage()
{
    static bool defined = false;
    if (defined)
        return;
    defined = true;
    registerRecordLanguage(LanguageRecords::javaScript());
}

void DefineDelphiLanguage()
{
    static bool defined = false;
    if (defined)
        return;
    defined = true;
    registerRecordLanguage(LanguageRecords::delphi());
}

void DefineBasicLanguage()
{
    static bool defined = false;
    if (defined)
        return;
    defined = true;
    registerRecordLanguage(LanguageRecords::basic());
}
