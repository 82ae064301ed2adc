#pragma once
#include <Qsci/qscilexercustom.h>

#include <memory>
#include <vector>

struct LanguageRecord;

// Colours text by a language record: keywords, operators (symbols or words), line and block
// comments, strings with their escape character, numbers, and the three further word lists.
// The record is compiled once into lookup tables that every editor using the language shares.
class RecordLexer : public QsciLexerCustom {
    Q_OBJECT
public:
    enum Style {
        Default = 0,
        LineComment,
        BlockComment,
        Keyword,         // Keywords
        Operator,        // Operators and the terminator
        String,
        Number,
        ElementName,     // TagElementNames
        AttributeName,   // TagAttributeNames
        Entity,          // TagEntities
        StyleCount
    };

    struct Tables;
    static std::shared_ptr<const Tables> compile(const LanguageRecord& record);

    explicit RecordLexer(std::shared_ptr<const Tables> tables, QObject* parent = nullptr);
    explicit RecordLexer(const LanguageRecord& record, QObject* parent = nullptr);
    ~RecordLexer() override;

    const char* language() const override;
    QString description(int style) const override;
    bool caseSensitive() const override;
    QColor defaultColor(int style) const override;
    QFont defaultFont(int style) const override;
    QColor defaultPaper(int style) const override;
    // One font for all styles keeps each style's weight, so keywords stay bold.
    void setFont(const QFont& f, int style = -1) override;

    void styleText(int start, int end) override;

private:
    std::shared_ptr<const Tables> tables;
    std::vector<char> styles;   // reused between calls
};
