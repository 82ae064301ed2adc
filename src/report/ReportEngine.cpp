#include "report/ReportEngine.h"

namespace Report {
namespace {

constexpr char16_t blank = u' ';
constexpr char16_t comma = u',';
constexpr char16_t open = u'<';
// The longest text in the token table ("</table>", "</title>"): anything longer matches nothing,
// so a token is held in a fixed buffer and never allocated.
constexpr int longest = 8;
// How many tokens pass between two progress reports: often enough for a moving bar, rare
// enough that the report costs nothing next to the count.
constexpr qsizetype progressEvery = 1 << 14;

template <qsizetype N>
bool is(const char16_t* t, int len, const char16_t (&lit)[N])
{
    if (len != N - 1)
        return false;
    for (int i = 0; i < len; ++i)
        if (t[i] != lit[i])
            return false;
    return true;
}

// One token against the table; a token matches at most one row.
void act(Counts& c, const char16_t* t, int len)
{
    if (len < 2 || len > longest || t[0] != open)
        return;
    if (t[1] == u'/') {
        if (is(t, len, u"</html>")) c.htmlClose = 1;
        else if (is(t, len, u"</body>")) c.bodyClose = 1;
        else if (is(t, len, u"</head>")) c.headClose = 1;
        else if (is(t, len, u"</title>")) c.titleClose = 1;
        else if (is(t, len, u"</p>")) ++c.pClose;
        else if (is(t, len, u"</b>")) ++c.bClose;
        else if (is(t, len, u"</i>")) ++c.iClose;
        else if (is(t, len, u"</u>")) ++c.uClose;
        else if (is(t, len, u"</a>")) ++c.aClose;
        else if (is(t, len, u"</table>")) ++c.tableClose;
        else if (is(t, len, u"</tr>")) ++c.trClose;
        else if (is(t, len, u"</td>")) ++c.tdClose;
        return;
    }
    if (is(t, len, u"<html>")) c.htmlOpen = 1;
    else if (is(t, len, u"<body>") || is(t, len, u"<body")) c.bodyOpen = 1;
    else if (is(t, len, u"<head>")) c.headOpen = 1;
    else if (is(t, len, u"<title>")) c.titleOpen = 1;
    else if (is(t, len, u"<p") || is(t, len, u"<p>")) ++c.pOpen;
    else if (is(t, len, u"<b>")) ++c.bOpen;
    else if (is(t, len, u"<i>")) ++c.iOpen;
    else if (is(t, len, u"<u>")) ++c.uOpen;
    else if (is(t, len, u"<a")) ++c.aOpen;
    else if (is(t, len, u"<img")) ++c.images;
    else if (is(t, len, u"<table>") || is(t, len, u"<table")) ++c.tableOpen;
    else if (is(t, len, u"<tr>")) ++c.trOpen;
    else if (is(t, len, u"<td>") || is(t, len, u"<td")) ++c.tdOpen;
    else if (is(t, len, u"<link")) ++c.links;
    else if (is(t, len, u"<meta")) ++c.metas;
}

// Reports progress per token, but calls out only now and then.
class Stepper {
public:
    Stepper(const Progress& p, qsizetype maximum) : progress(p), max(maximum)
    {
        if (progress)
            progress(0, max);
    }
    void step()
    {
        ++done;
        if (progress && --untilNext == 0) {
            untilNext = progressEvery;
            progress(done, max);
        }
    }
    void finish()
    {
        if (progress && untilNext != progressEvery)
            progress(done, max);
    }

private:
    const Progress& progress;
    qsizetype max;
    qsizetype done = 0;
    qsizetype untilNext = progressEvery;
};

// Walks a text as the start steps and the token string see it, without building anything:
// CR LF pairs vanish, commas are dropped, the first blank of a run and every "<" separate.
// Each finished token goes to onToken as its first `longest + 1` characters and its length.
template <class OnSeparator, class OnChar>
void walk(QStringView text, OnSeparator onSeparator, OnChar onChar)
{
    const char16_t* s = text.utf16();
    const qsizetype n = text.size();
    bool inRun = false;  // the run counter is above 0
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t ch = s[i];
        if (ch == u'\r' && i + 1 < n && s[i + 1] == u'\n') {
            ++i;
        } else if (ch == blank) {
            if (!inRun) {
                inRun = true;
                onSeparator();
            }
        } else if (ch == comma) {
        } else if (ch == open) {
            onSeparator();
            onChar(ch);
        } else {
            onChar(ch);
            inRun = false;
        }
    }
}
}

QString removeCrLf(QStringView text)
{
    QString out;
    out.reserve(text.size());
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        if (text[i] == u'\r' && i + 1 < n && text[i + 1] == u'\n') {
            ++i;
            continue;
        }
        out.append(text[i]);
    }
    return out;
}

TokenString buildTokenString(QStringView text)
{
    TokenString t;
    t.text.reserve(text.size() + text.size() / 8);
    // CR LF pairs are removed before the token string is built; walk does both.
    walk(
        text,
        [&] {
            t.text.append(QChar(comma));
            ++t.separators;
        },
        [&](char16_t ch) { t.text.append(QChar(ch)); });
    return t;
}

Counts countTokens(QStringView tokenString, qsizetype separators, const Progress& progress)
{
    Counts c;
    Stepper stepper(progress, separators + 1);
    const char16_t* s = tokenString.utf16();
    const qsizetype n = tokenString.size();
    qsizetype pos = 0;
    for (qsizetype i = 0; i <= separators; ++i) {
        // A token string with fewer separators than claimed gives empty tokens past its end.
        qsizetype end = pos;
        while (end < n && s[end] != comma)
            ++end;
        if (pos < n)
            act(c, s + pos, static_cast<int>(std::min<qsizetype>(end - pos, longest + 1)));
        pos = end + 1;
        stepper.step();
    }
    stepper.finish();
    return c;
}

Counts countPage(QStringView text, const Progress& progress)
{
    qsizetype separators = 0;
    walk(text, [&] { ++separators; }, [](char16_t) {});

    Counts c;
    Stepper stepper(progress, separators + 1);
    char16_t token[longest + 1];
    int len = 0;  // capped at longest + 1: longer tokens match nothing
    auto add = [&](char16_t ch) {
        if (len <= longest)
            token[len++] = ch;
    };
    walk(
        text,
        [&] {
            act(c, token, len);
            len = 0;
            stepper.step();
        },
        add);
    act(c, token, len);
    stepper.step();
    stepper.finish();
    return c;
}

QList<Row> rows(const Counts& c)
{
    const auto n = [](qint64 v) { return QString::number(v); };
    const auto row = [](bool pass, QString caption, QString explanation) {
        return Row{pass, std::move(caption), std::move(explanation)};
    };
    // The same failure text serves the tag pairs; only the tag names differ.
    const auto pairFailure = [&](const QString& open, const QString& close, qint64 o, qint64 cl) {
        return QStringLiteral("The search has failed to correctly find the same amount of %1 tags and %2 tags. "
                              "The number should be the same, but you have ").arg(open, close)
               + n(o) + QLatin1Char(' ') + open + QStringLiteral(" and ") + n(cl) + QLatin1Char(' ') + close
               + QStringLiteral(" ends, check through the code and make sure you have the same amount.");
    };
    const auto completion = [](const QString& tag) {
        return QStringLiteral("Search passed a simple test to see if both <%1> and </%1> tags were in the document.").arg(tag);
    };
    const auto notFound = [](const QString& tag) {
        return QStringLiteral("The search has failed to find either <%1> or </%1> tags, this can lead to untidy code.").arg(tag);
    };

    QList<Row> r;
    r.reserve(16);
    if (c.htmlOpen == 1 && c.htmlClose == 1)
        r << row(true, QStringLiteral("Passed <html> tag Completion "), completion(QStringLiteral("html")));
    else
        r << row(false, QStringLiteral("Failed <html> tag Completion "), notFound(QStringLiteral("html")));
    if (c.bodyOpen == 1 && c.bodyClose == 1)
        r << row(true, QStringLiteral("Passed <body> tag Completion "), completion(QStringLiteral("body")));
    else
        r << row(false, QStringLiteral("Failed </body> tag Completion "), notFound(QStringLiteral("body")));
    if (c.headOpen == 1 && c.headClose == 1)
        r << row(true, QStringLiteral("Passed <head> tag Completion "), completion(QStringLiteral("head")));
    else
        r << row(false, QStringLiteral("Failed <head> tag Completion "), notFound(QStringLiteral("head")));
    if (c.titleOpen == 1 && c.titleClose == 1)
        r << row(true, QStringLiteral("Passed <title> tag Completion "), completion(QStringLiteral("title")));
    else
        r << row(false, QStringLiteral("Failed <title> tag Completion "),
                 QStringLiteral("The search has failed to find either <title> or </title> tags, this may be beacuse "
                                "you no space after the >and<, this can lead to untidy code."));

    if (c.pOpen == c.pClose)
        r << row(true, QStringLiteral("Passed <p> tag Completion"),
                 QStringLiteral("The search has found correct number of start and finishes for <p> (Paragraph). There are ")
                     + n(c.pOpen) + QStringLiteral(" start's and ") + n(c.pClose) + QStringLiteral(" ends."));
    else
        r << row(false, QStringLiteral("Failed <p> tag Completion"),
                 QStringLiteral("The search has failed to correctly find the same amount of (<p> + <p) tags and </p> tags. "
                                "The number should be the same, but you have ")
                     + n(c.pOpen) + QStringLiteral(" (<p> + <p)  and ") + n(c.pClose)
                     + QStringLiteral(" </p> ends, check through the code and make sure you have the same amount."));
    // The pass text of <b> is the one of <i>, with the <b> counts.
    const auto italicPass = [&](qint64 o, qint64 cl) {
        return QStringLiteral("The search has found correct number of start and finishes for <i>. There are ") + n(o)
               + QStringLiteral(" start and ") + n(cl) + QStringLiteral(" ends.");
    };
    if (c.bOpen == c.bClose)
        r << row(true, QStringLiteral("Passed <b> tag Completion"), italicPass(c.bOpen, c.bClose));
    else
        r << row(false, QStringLiteral("Failed <b> tag Completion"),
                 pairFailure(QStringLiteral("<b>"), QStringLiteral("</b>"), c.bOpen, c.bClose));
    if (c.iOpen == c.iClose)
        r << row(true, QStringLiteral("Passed <i> tag Completion"), italicPass(c.iOpen, c.iClose));
    else
        r << row(false, QStringLiteral("Failed <i> tag Completion"),
                 pairFailure(QStringLiteral("<i>"), QStringLiteral("</i>"), c.iOpen, c.iClose));
    if (c.uOpen == c.uClose)
        r << row(true, QStringLiteral("Passed <u> tag Completion"),
                 QStringLiteral("The search has found correct number of start and finishes for <u>. There are ")
                     + n(c.uOpen) + QStringLiteral(" starte and ") + n(c.uClose) + QStringLiteral(" ends."));
    else
        r << row(false, QStringLiteral("Failed <u> tag Completion"),
                 pairFailure(QStringLiteral("<u>"), QStringLiteral("</u>"), c.uOpen, c.uClose));
    if (c.aOpen == c.aClose)
        r << row(true, QStringLiteral("Passed <a> tag Completion"),
                 QStringLiteral("The search has found correct number of start and finishes for links. There are ")
                     + n(c.aOpen) + QStringLiteral(" starte and ") + n(c.aClose) + QStringLiteral(" ends."));
    else
        r << row(false, QStringLiteral("Failed <a> tag Completion"),
                 pairFailure(QStringLiteral("<a"), QStringLiteral("</a>"), c.aOpen, c.aClose));

    if (c.images >= 1)
        r << row(true, QStringLiteral("Found ") + n(c.images) + QStringLiteral(" Images "),
                 QStringLiteral("The Search has foune ") + n(c.images) + QStringLiteral(" images in the document."));
    else
        r << row(false, QStringLiteral("No images where found"), QStringLiteral("No images where found in the doucment search."));

    if (c.tableOpen == c.tableClose)
        r << row(true, QStringLiteral("Found ") + n(c.tableOpen) + QStringLiteral(" Tables."),
                 QStringLiteral("The Search has found ") + n(c.tableOpen) + QStringLiteral(" tables in the document."));
    else
        r << row(false, QStringLiteral("Failed <table> tag completion"),
                 pairFailure(QStringLiteral("<table>"), QStringLiteral("</table>"), c.tableOpen, c.tableClose));
    if (c.trOpen == c.trClose)
        r << row(true, QStringLiteral("Found ") + n(c.trOpen) + QStringLiteral(" Table Rows."),
                 QStringLiteral("The Search has found ") + n(c.trOpen) + QStringLiteral(" Rows within tables in the document."));
    else
        r << row(false, QStringLiteral("Failed <tr> tag completion"),
                 pairFailure(QStringLiteral("<tr>"), QStringLiteral("</tr>"), c.trOpen, c.trClose));
    if (c.tdOpen == c.tdClose)
        r << row(true, QStringLiteral("Found ") + n(c.tdOpen) + QStringLiteral(" Table Cells."),
                 QStringLiteral("The Search has found ") + n(c.tdOpen)
                     + QStringLiteral(" Cells within tables in the document. The start and finish tags are correct."));
    else
        r << row(false, QStringLiteral("Failed <td> tag completion"),
                 QStringLiteral("The search has failed to correctly find the same amount of <td> tags and </td> tags. "
                                "The number should be the same, but you have ")
                     + n(c.tdOpen) + QStringLiteral(" <td> or <td and ") + n(c.tdClose)
                     + QStringLiteral(" </td> ends, check through the code and make sure you have the same amount. "
                                      "If you dont have the same amount the html code will be untidy"));

    if (c.links != 0)
        r << row(true, QStringLiteral("Found ") + n(c.links) + QStringLiteral(" external links."),
                 QStringLiteral("The search has found ") + n(c.links)
                     + QStringLiteral(" external links, which start with <link . This may be pointing towards css or js pages."));
    else
        r << row(false, QStringLiteral("No External Links Found"),
                 QStringLiteral("The Search has found no external links, the kind that point to css or js files, "
                                "this is different to hyperlinks."));
    if (c.metas != 0)
        r << row(true, QStringLiteral("Found ") + n(c.metas) + QStringLiteral(" META tag groups."),
                 QStringLiteral("The search has found ") + n(c.metas)
                     + QStringLiteral(" META tag groups, these are defined at the top of the html code and display "
                                      "details of the HTML Page, More data in next Beta"));
    else
        r << row(false, QStringLiteral("No META tag group's Found"),
                 QStringLiteral("The Search has found no META tag groupd like the author, or keywords. Adding these "
                                "tags recieves better recognition in search engines"));

    r << row(true, QStringLiteral("Check Completed Succesfully"), QStringLiteral("Check Completed Succesfully"));
    return r;
}

QList<Row> report(QStringView text, const Progress& progress) { return rows(countPage(text, progress)); }

}
