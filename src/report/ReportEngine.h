#pragma once
#include <QList>
#include <QString>
#include <QStringView>
#include <functional>

// The page report: a page's text is cut into tokens at blanks and before every "<", each token
// is compared exactly with a short table of tag texts, and the counts become 16 fixed result
// rows. Nothing here parses HTML; a tag is seen only when it stands alone as a token.
namespace Report {

// What one run counted. The presence flags are 0 or 1; the rest count tokens.
struct Counts {
    int htmlOpen = 0, htmlClose = 0, bodyOpen = 0, bodyClose = 0;
    int headOpen = 0, headClose = 0, titleOpen = 0, titleClose = 0;
    qint64 pOpen = 0, pClose = 0, bOpen = 0, bClose = 0, iOpen = 0, iClose = 0, uOpen = 0, uClose = 0;
    qint64 aOpen = 0, aClose = 0, images = 0, tableOpen = 0, tableClose = 0;
    qint64 trOpen = 0, trClose = 0, tdOpen = 0, tdClose = 0, links = 0, metas = 0;
    bool operator==(const Counts&) const = default;
};

struct Row {
    bool passed = true;  // a pass shows Ok.ico, a failure Info.ico
    QString caption;
    QString explanation;
};

struct TokenString {
    QString text;           // tokens joined by ","
    qsizetype separators = 0;
};

// Told how far the count has got: value tokens done of maximum (= separators + 1). Called
// once with 0 at the start, then every few thousand tokens, and once with maximum at the end.
using Progress = std::function<void(qsizetype value, qsizetype maximum)>;

// The start steps' removal of CR LF pairs (a lone CR or LF stays).
QString removeCrLf(QStringView text);

// The comma-joined token string of a text: a run of blanks gives one separator, commas are
// dropped, and every "<" starts a new token.
TokenString buildTokenString(QStringView text);

// Acts on tokens 0..separators of a token string by the token table.
Counts countTokens(QStringView tokenString, qsizetype separators, const Progress& progress = {});

// The whole run on a text already in small letters: CR LF removal, tokens and counts in one
// walk for the separators and one for the counts, without building any intermediate string.
Counts countPage(QStringView text, const Progress& progress = {});

// The 16 result rows for a run's counts.
QList<Row> rows(const Counts& counts);

// countPage then rows.
QList<Row> report(QStringView text, const Progress& progress = {});

}
