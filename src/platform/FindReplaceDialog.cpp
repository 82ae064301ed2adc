#include "platform/FindReplaceDialog.h"

#include "platform/CodeMax.h"
#include "platform/Look.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>


using Look::named;

FindReplaceDialog* FindReplaceDialog::of(CodeMax* editor)
{
    if (auto* d = editor->findChild<FindReplaceDialog*>(QString(), Qt::FindDirectChildrenOnly))
        return d;
    return new FindReplaceDialog(editor);
}

FindReplaceDialog* FindReplaceDialog::open(CodeMax* editor)
{
    FindReplaceDialog* d = of(editor);
    // A selection on one line is almost always what the user wants to look for next.
    if (editor->hasSelectedText()) {
        const QString selected = editor->SelText();
        if (!selected.contains(QLatin1Char('\n')) && !selected.contains(QLatin1Char('\r')))
            d->findText->setText(selected);
    }
    d->updateButtons();   // the editor may have become read-only since
    d->show();
    d->raise();
    d->activateWindow();
    d->findText->setFocus();
    d->findText->selectAll();
    return d;
}

FindReplaceDialog::FindReplaceDialog(CodeMax* editor) : QDialog(editor), ed(editor)
{
    setObjectName(QStringLiteral("FindReplaceDialog"));
    setWindowTitle(tr("Find and Replace"));
    setModal(false);

    auto* outer = new QVBoxLayout(this);
    auto* body = new QHBoxLayout;
    outer->addLayout(body);

    auto* left = new QVBoxLayout;
    body->addLayout(left, 1);
    auto* fields = new QGridLayout;
    findText = named(new QLineEdit(this), QStringLiteral("findText"));
    replaceText = named(new QLineEdit(this), QStringLiteral("replaceText"));
    findText->setMinimumWidth(240);
    auto* findLabel = new QLabel(tr("Find what:"), this);
    findLabel->setBuddy(findText);
    auto* replaceLabel = new QLabel(tr("Replace with:"), this);
    replaceLabel->setBuddy(replaceText);
    fields->addWidget(findLabel, 0, 0);
    fields->addWidget(findText, 0, 1);
    fields->addWidget(replaceLabel, 1, 0);
    fields->addWidget(replaceText, 1, 1);
    left->addLayout(fields);

    auto* options = new QGroupBox(tr("Options"), this);
    auto* optionGrid = new QGridLayout(options);
    matchCase = named(new QCheckBox(tr("Match case"), options), QStringLiteral("matchCase"));
    wholeWord = named(new QCheckBox(tr("Whole word"), options), QStringLiteral("wholeWord"));
    regularExpression = named(new QCheckBox(tr("Regular expression"), options), QStringLiteral("regularExpression"));
    wrapAround = named(new QCheckBox(tr("Wrap around"), options), QStringLiteral("wrapAround"));
    wrapAround->setChecked(true);
    optionGrid->addWidget(matchCase, 0, 0);
    optionGrid->addWidget(wholeWord, 1, 0);
    optionGrid->addWidget(regularExpression, 0, 1);
    optionGrid->addWidget(wrapAround, 1, 1);
    left->addWidget(options);
    left->addStretch();

    auto* buttons = new QVBoxLayout;
    body->addLayout(buttons);
    findNextButton = Look::faceButton(QStringLiteral("findNext"), tr("Find Next"), this);
    findPreviousButton = Look::faceButton(QStringLiteral("findPrevious"), tr("Find Previous"), this);
    replaceButton = Look::faceButton(QStringLiteral("replace"), tr("Replace"), this);
    replaceAllButton = Look::faceButton(QStringLiteral("replaceAll"), tr("Replace All"), this);
    closeButton = Look::faceButton(QStringLiteral("close"), tr("Close"), this);
    for (QPushButton* b : {findNextButton, findPreviousButton, replaceButton, replaceAllButton}) {
        b->setMinimumWidth(110);
        buttons->addWidget(b);
    }
    buttons->addStretch();
    buttons->addWidget(closeButton);
    findNextButton->setDefault(true);

    statusLine = named(new QLabel(this), QStringLiteral("status"));
    statusLine->setMinimumHeight(statusLine->fontMetrics().height() + 4);
    statusLine->setFrameShape(QFrame::StyledPanel);
    statusLine->setFrameShadow(QFrame::Sunken);
    outer->addWidget(statusLine);

    connect(findNextButton, &QPushButton::clicked, this, [this] { findNext(); });
    connect(findPreviousButton, &QPushButton::clicked, this, [this] { findPrevious(); });
    connect(replaceButton, &QPushButton::clicked, this, [this] { replace(); });
    connect(replaceAllButton, &QPushButton::clicked, this, [this] { replaceAll(); });
    connect(closeButton, &QPushButton::clicked, this, &QWidget::hide);
    connect(findText, &QLineEdit::textChanged, this, [this] {
        updateButtons();
        say({});
    });
    for (QCheckBox* c : {matchCase, wholeWord, regularExpression, wrapAround})
        connect(c, &QCheckBox::toggled, this, [this] { say({}); });

    auto* next = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(next, &QShortcut::activated, this, [this] { findNext(); });
    auto* previous = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3), this);
    connect(previous, &QShortcut::activated, this, [this] { findPrevious(); });

    updateButtons();
    adjustSize();
    setFixedHeight(sizeHint().height());
}

QString FindReplaceDialog::status() const { return statusLine->text(); }

void FindReplaceDialog::say(const QString& text) { statusLine->setText(text); }

void FindReplaceDialog::updateButtons()
{
    const bool any = !findText->text().isEmpty();
    findNextButton->setEnabled(any);
    findPreviousButton->setEnabled(any);
    replaceButton->setEnabled(any && !ed->isReadOnly());
    replaceAllButton->setEnabled(any && !ed->isReadOnly());
}

QString FindReplaceDialog::notFound() const
{
    return tr("Cannot find \"%1\".").arg(findText->text());
}

namespace {
using Sci = QsciScintillaBase;

// The editor counts positions in UTF-8 bytes, the text in UTF-16 units.
long bytesAt(const QString& text, int index) { return QStringView(text).first(index).toUtf8().size(); }
int indexAt(const QString& text, long bytes)
{
    const QByteArray utf8 = text.toUtf8();
    return static_cast<int>(QString::fromUtf8(utf8.first(qBound(0L, bytes, static_cast<long>(utf8.size())))).size());
}

bool isWordChar(char32_t c)
{
    return c == U'_' || QChar::isLetterOrNumber(c) || QChar::category(c) == QChar::Mark_NonSpacing ||
           QChar::category(c) == QChar::Mark_SpacingCombining;
}

char32_t codePointBefore(const QString& t, int i)
{
    if (i >= 2 && t[i - 1].isLowSurrogate() && t[i - 2].isHighSurrogate())
        return QChar::surrogateToUcs4(t[i - 2], t[i - 1]);
    return t[i - 1].unicode();
}

char32_t codePointAt(const QString& t, int i)
{
    if (i + 1 < t.size() && t[i].isHighSurrogate() && t[i + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(t[i], t[i + 1]);
    return t[i].unicode();
}

// One character on, never into the middle of a surrogate pair.
int nextIndex(const QString& t, int i)
{
    return (i + 1 < t.size() && t[i].isHighSurrogate() && t[i + 1].isLowSurrogate()) ? i + 2 : i + 1;
}

// One character on from an empty match, taking a CR LF line end as one: a search from between
// the two would find the end of the line again there.
int pastEmptyMatch(const QString& t, int i)
{
    return (i + 1 < t.size() && t[i] == QLatin1Char('\r') && t[i + 1] == QLatin1Char('\n')) ? i + 2 : nextIndex(t, i);
}
}

QRegularExpression FindReplaceDialog::regex() const
{
    QString p = findText->text();
    if (wholeWord->isChecked())
        p = QStringLiteral("\\b(?:") + p + QStringLiteral(")\\b");
    // The editor's lines end in CR LF: let ^ and $ take that pair (or either alone) as one
    // line end, so a replacement never lands between CR and LF.
    p.prepend(QStringLiteral("(*ANYCRLF)"));
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    if (!matchCase->isChecked())
        options |= QRegularExpression::CaseInsensitiveOption;
    return QRegularExpression(p, options);
}

bool FindReplaceDialog::ready()
{
    if (findText->text().isEmpty()) {
        say(tr("Type the text to find."));
        return false;
    }
    if (regularExpression->isChecked()) {
        const QRegularExpression re = regex();
        if (!re.isValid()) {
            say(tr("Invalid regular expression: %1.").arg(re.errorString()));
            return false;
        }
    }
    return true;
}

bool FindReplaceDialog::wholeWordAt(const QString& text, int start, int end) const
{
    if (start > 0 && isWordChar(codePointBefore(text, start)))
        return false;
    return end >= text.size() || !isWordChar(codePointAt(text, end));
}

FindReplaceDialog::Match FindReplaceDialog::firstFrom(const QString& text, int from) const
{
    if (from > text.size())
        return {};
    if (regularExpression->isChecked()) {
        const QRegularExpressionMatch m = regex().match(text, from);
        if (!m.hasMatch())
            return {};
        return {static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedEnd()), m.capturedTexts()};
    }
    const QString needle = findText->text();
    const Qt::CaseSensitivity cs = matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (int i = from;;) {
        i = static_cast<int>(text.indexOf(needle, i, cs));
        if (i < 0)
            return {};
        const int end = i + static_cast<int>(needle.size());
        if (!wholeWord->isChecked() || wholeWordAt(text, i, end))
            return {i, end, {}};
        i = nextIndex(text, i);
    }
}

FindReplaceDialog::Match FindReplaceDialog::lastBefore(const QString& text, int before, bool emptyThere) const
{
    if (regularExpression->isChecked()) {
        // Only the last match before the point is kept, not a list of all: a big page may hold
        // millions.
        QRegularExpressionMatch last;
        QRegularExpressionMatchIterator it = regex().globalMatch(text);
        while (it.hasNext()) {
            const QRegularExpressionMatch m = it.next();
            if (m.capturedEnd() > before || (m.capturedLength() == 0 && m.capturedStart() == before && !emptyThere))
                break;
            last = m;
        }
        if (!last.hasMatch())
            return {};
        return {static_cast<int>(last.capturedStart()), static_cast<int>(last.capturedEnd()), last.capturedTexts()};
    }
    const QString needle = findText->text();
    const Qt::CaseSensitivity cs = matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (int i = before - static_cast<int>(needle.size()); i >= 0; --i) {
        i = static_cast<int>(text.lastIndexOf(needle, i, cs));
        if (i < 0)
            return {};
        const int end = i + static_cast<int>(needle.size());
        if (!wholeWord->isChecked() || wholeWordAt(text, i, end))
            return {i, end, {}};
    }
    return {};
}

QList<FindReplaceDialog::Match> FindReplaceDialog::all(const QString& text) const
{
    QList<Match> found;
    if (regularExpression->isChecked()) {
        QRegularExpressionMatchIterator it = regex().globalMatch(text);
        while (it.hasNext()) {
            const QRegularExpressionMatch m = it.next();
            found.append({static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedEnd()), m.capturedTexts()});
        }
        return found;
    }
    for (Match m = firstFrom(text, 0); m.found(); m = firstFrom(text, m.end))
        found.append(m);
    return found;
}

FindReplaceDialog::Match FindReplaceDialog::find(const QString& text, bool forward, bool* wrapped)
{
    *wrapped = false;
    const int selStart = indexAt(text, ed->SendScintilla(Sci::SCI_GETSELECTIONSTART));
    const int selEnd = indexAt(text, ed->SendScintilla(Sci::SCI_GETSELECTIONEND));
    const bool caretOnly = selStart == selEnd;
    Match m;
    if (forward) {
        m = firstFrom(text, selEnd);
        // An empty match where the caret already stands would be found again and again.
        if (m.found() && m.empty() && m.start == selEnd && caretOnly)
            m = selEnd < text.size() ? firstFrom(text, pastEmptyMatch(text, selEnd)) : Match{};
    } else {
        m = lastBefore(text, selStart, !caretOnly);
    }
    if (!m.found() && wrapAround->isChecked()) {
        m = forward ? firstFrom(text, 0) : lastBefore(text, static_cast<int>(text.size()), true);
        *wrapped = m.found();
    }
    return m;
}

void FindReplaceDialog::select(const QString& text, const Match& m, bool forward)
{
    lastStart = bytesAt(text, m.start);
    lastEnd = lastStart + QStringView(text).mid(m.start, m.end - m.start).toUtf8().size();
    const long line = ed->SendScintilla(Sci::SCI_LINEFROMPOSITION, static_cast<unsigned long>(lastStart));
    ed->SendScintilla(Sci::SCI_ENSUREVISIBLEENFORCEPOLICY, static_cast<unsigned long>(line));
    // The caret goes to the end the search moves towards, so the next search starts there.
    if (forward)
        ed->SendScintilla(Sci::SCI_SETSEL, static_cast<unsigned long>(lastStart), lastEnd);
    else
        ed->SendScintilla(Sci::SCI_SETSEL, static_cast<unsigned long>(lastEnd), lastStart);
}

bool FindReplaceDialog::findNext()
{
    if (!ready())
        return false;
    const QString text = ed->text();
    bool wrapped = false;
    const Match m = find(text, true, &wrapped);
    if (!m.found()) {
        say(notFound());
        return false;
    }
    select(text, m, true);
    say(wrapped ? tr("Passed the end of the text; continued from the start.") : QString());
    return true;
}

bool FindReplaceDialog::findPrevious()
{
    if (!ready())
        return false;
    const QString text = ed->text();
    bool wrapped = false;
    const Match m = find(text, false, &wrapped);
    if (!m.found()) {
        say(notFound());
        return false;
    }
    select(text, m, false);
    say(wrapped ? tr("Passed the start of the text; continued from the end.") : QString());
    return true;
}

QString FindReplaceDialog::replacementFor(const Match& m) const
{
    const QString r = replaceText->text();
    if (!regularExpression->isChecked())
        return r;
    // \0 to \9 are the groups of the match; \n, \r, \t and \\ the usual characters.
    QString out;
    for (qsizetype i = 0; i < r.size(); ++i) {
        if (r[i] != QLatin1Char('\\') || i + 1 == r.size()) {
            out += r[i];
            continue;
        }
        const QChar c = r[++i];
        if (c.isDigit() && c.digitValue() >= 0 && c.digitValue() <= 9)
            out += m.captures.value(c.digitValue());
        else if (c == QLatin1Char('n'))
            out += QLatin1Char('\n');
        else if (c == QLatin1Char('r'))
            out += QLatin1Char('\r');
        else if (c == QLatin1Char('t'))
            out += QLatin1Char('\t');
        else if (c == QLatin1Char('\\'))
            out += QLatin1Char('\\');
        else
            out += QLatin1Char('\\') + c;
    }
    return out;
}

namespace {
// Replaces a byte range of the editor through its target, as one editing step.
long replaceBytes(CodeMax* ed, long start, long end, const QString& with)
{
    const QByteArray bytes = with.toUtf8();
    ed->SendScintilla(Sci::SCI_SETTARGETRANGE, static_cast<unsigned long>(start), end);
    ed->SendScintilla(Sci::SCI_REPLACETARGET, static_cast<uintptr_t>(bytes.size()), bytes.constData());
    return bytes.size();
}
}

bool FindReplaceDialog::replace()
{
    if (!ready() || ed->isReadOnly())
        return false;
    const QString text = ed->text();
    const long selStartBytes = ed->SendScintilla(Sci::SCI_GETSELECTIONSTART);
    const long selEndBytes = ed->SendScintilla(Sci::SCI_GETSELECTIONEND);
    bool replaced = false;
    // Only a selection that is itself a match is replaced; anything else the user may have
    // selected by hand stays as it is. An empty match counts only when it was just found.
    if (selStartBytes != selEndBytes || (selStartBytes == lastStart && selEndBytes == lastEnd)) {
        const int selStart = indexAt(text, selStartBytes);
        const int selEnd = indexAt(text, selEndBytes);
        const Match m = firstFrom(text, selStart);
        if (m.found() && m.start == selStart && m.end == selEnd) {
            const long n = replaceBytes(ed, selStartBytes, selEndBytes, replacementFor(m));
            ed->SendScintilla(Sci::SCI_SETEMPTYSELECTION, static_cast<unsigned long>(selStartBytes + n));
            lastStart = lastEnd = -1;
            replaced = true;
        }
    }
    const bool more = findNext();
    if (replaced)
        say(more ? tr("Replaced 1 occurrence.") : tr("Replaced 1 occurrence. No more found."));
    return replaced;
}

int FindReplaceDialog::replaceAll()
{
    if (!ready() || ed->isReadOnly())
        return -1;
    const QString text = ed->text();
    const QList<Match> matches = all(text);
    if (matches.isEmpty()) {
        say(notFound());
        return 0;
    }
    // Byte positions of every match in one walk through the text.
    struct Edit {
        long start, end;
        QString with;
    };
    QList<Edit> edits;
    edits.reserve(matches.size());
    long bytes = 0;
    int at = 0;
    for (const Match& m : matches) {
        bytes += QStringView(text).mid(at, m.start - at).toUtf8().size();
        const long start = bytes;
        bytes += QStringView(text).mid(m.start, m.end - m.start).toUtf8().size();
        at = m.end;
        edits.append({start, bytes, replacementFor(m)});
    }
    // From the last to the first, so that the positions still to come stay true; as one step
    // for undo.
    long shift = 0;
    long lastLength = 0;
    ed->beginUndoAction();
    for (qsizetype i = edits.size() - 1; i >= 0; --i) {
        const Edit& e = edits[i];
        const long n = replaceBytes(ed, e.start, e.end, e.with);
        if (i == edits.size() - 1)
            lastLength = n;
        else
            shift += n - (e.end - e.start);
    }
    ed->endUndoAction();
    lastStart = lastEnd = -1;
    ed->SendScintilla(Sci::SCI_SETEMPTYSELECTION, static_cast<unsigned long>(edits.last().start + shift + lastLength));
    const int count = static_cast<int>(edits.size());
    say(count == 1 ? tr("Replaced 1 occurrence.") : tr("Replaced %1 occurrences.").arg(count));
    return count;
}
