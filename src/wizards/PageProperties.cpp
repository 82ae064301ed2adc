#include "wizards/PageProperties.h"

#include "wizards/Html.h"

namespace PageProperties {

namespace {
// The selection's two properties as the box takes them: a negative value is refused, a value
// behind the text is cut back to its end, and a new start leaves nothing selected.
bool setSelStart(WorkCopy& w, int start)
{
    if (start < 0)
        return false;
    w.selStart = qMin(start, static_cast<int>(w.text.size()));
    w.selLength = 0;
    return true;
}

bool setSelLength(WorkCopy& w, int length)
{
    if (length < 0)
        return false;
    w.selLength = qMin(length, static_cast<int>(w.text.size()) - w.selStart);
    return true;
}

// SelText: the selection is replaced and the caret stands behind the new text.
void setSelText(Result& r, const QString& text)
{
    WorkCopy& w = r.copy;
    r.replacedStart = w.selStart;
    r.replacedLength = w.selLength;
    r.inserted = text;
    w.text.replace(w.selStart, w.selLength, text);
    w.selStart += static_cast<int>(text.size());
    w.selLength = 0;
}

Result failed(Result r)
{
    r.outcome = Outcome::InvalidProperty;
    return r;
}

// Background and text colour: P from find, Q the next double quote from P + L + 3, the span
// from P - 1 with the length (Q - P) + 1.
Result attribute(const WorkCopy& w, const QString& marker, const QString& markerWithEquals, const QString& written)
{
    Result r{Outcome::Changed, w};
    if (r.copy.text.isEmpty()) {
        r.outcome = Outcome::NoData;
        return r;
    }
    const int p = find(r.copy, marker);
    const int l = static_cast<int>(markerWithEquals.size());
    const int q = inStr(p + l + 3, r.copy.text, QStringLiteral("\""));
    if (!setSelStart(r.copy, p - 1) || !setSelLength(r.copy, (q - p) + 1))
        return failed(r);
    setSelText(r, written);
    return r;
}
}

int find(WorkCopy& w, const QString& what)
{
    const int at = static_cast<int>(w.text.indexOf(what, 0, Qt::CaseInsensitive));
    if (at < 0)
        return -1;
    w.selStart = at;
    w.selLength = static_cast<int>(what.size());
    return at;
}

int inStr(int start, const QString& text, const QString& what)
{
    if (start < 1 || start > text.size())
        return 0;
    return static_cast<int>(text.indexOf(what, start - 1, Qt::CaseSensitive)) + 1;
}

QString styleBlock(const LinkStyles& s)
{
    const QString& n = Html::crlf;
    return QStringLiteral("<style>") + n +                                                                   //
           QStringLiteral("<!-- A:link  {color:") + s.Text7 + QStringLiteral("; text-decoration:") + s.Combo7 +
           QStringLiteral(" }") + n +                                                                        //
           QStringLiteral("A:visited {color:") + s.Text8 + QStringLiteral("; text-decoration:") + s.Combo8 +
           QStringLiteral(" }") + n +                                                                        //
           QStringLiteral("A:active {color:") + s.Text9 + QStringLiteral("; text-decoration:") + s.Combo9 +
           QStringLiteral("}") + n +                                                                         //
           QStringLiteral("A:hover {color:") + s.Text10 + QStringLiteral(";text-decoration:") + s.Combo10 +
           QStringLiteral("} -->") + n +                                                                     //
           QStringLiteral("</style>") + n;
}

Result margins(const WorkCopy& w, const QString& top, const QString& left)
{
    Result r{Outcome::Changed, w};
    if (r.copy.text.isEmpty()) {
        r.outcome = Outcome::NoData;
        return r;
    }
    find(r.copy, QStringLiteral("<body"));
    setSelText(r, QStringLiteral("<body topmargin=") + top + QStringLiteral(" leftmargin=") + left);
    return r;
}

Result background(const WorkCopy& w, const QString& colour)
{
    return attribute(w, QStringLiteral("bgColor"), QStringLiteral("bgColor="), QStringLiteral(" bgcolor=") + colour);
}

Result textColour(const WorkCopy& w, const QString& colour)
{
    return attribute(w, QStringLiteral("text"), QStringLiteral("text="), QStringLiteral(" text=") + colour);
}

Result selectStyle(const WorkCopy& w)
{
    // L is the length of "<style>=", 8: the span runs through "</style>" and one more character.
    Result r{Outcome::Changed, w};
    const int p = find(r.copy, QStringLiteral("<style>"));
    const int q = inStr(p + 8 + 3, r.copy.text, QStringLiteral("</style>"));
    if (!setSelStart(r.copy, p) || !setSelLength(r.copy, (q - p) + 8))
        return failed(r);
    return r;
}

Result updateStyle(const WorkCopy& w, const LinkStyles& s)
{
    Result r = selectStyle(w);
    if (r.outcome == Outcome::Changed)
        setSelText(r, styleBlock(s));
    return r;
}

Result addStyle(const WorkCopy& w, const LinkStyles& s)
{
    Result r{Outcome::Changed, w};
    find(r.copy, QStringLiteral("</title>"));
    setSelText(r, QStringLiteral("</title>") + Html::crlf + Html::crlf + styleBlock(s));
    return r;
}

}
