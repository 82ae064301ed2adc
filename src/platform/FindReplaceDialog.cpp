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

#include <regex>

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
        const QString selected = editor->selectedText();
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

int FindReplaceDialog::searchFlags() const
{
    int flags = 0;
    if (matchCase->isChecked())
        flags |= QsciScintillaBase::SCFIND_MATCHCASE;
    if (regularExpression->isChecked())
        flags |= QsciScintillaBase::SCFIND_REGEXP | QsciScintillaBase::SCFIND_CXX11REGEX;
    else if (wholeWord->isChecked())
        flags |= QsciScintillaBase::SCFIND_WHOLEWORD;
    return flags;
}

QByteArray FindReplaceDialog::pattern() const
{
    QString p = findText->text();
    // The editor's whole-word flag does not apply to patterns: say it in the pattern.
    if (regularExpression->isChecked() && wholeWord->isChecked())
        p = QStringLiteral("\\b(?:") + p + QStringLiteral(")\\b");
    return p.toUtf8();
}

bool FindReplaceDialog::ready()
{
    if (findText->text().isEmpty()) {
        say(tr("Type the text to find."));
        return false;
    }
    if (regularExpression->isChecked()) {
        // The editor compiles the same ECMAScript dialect on wide characters; a pattern it
        // would refuse is caught here, where the reason can still be told.
        try {
            auto flags = std::regex::ECMAScript;
            if (!matchCase->isChecked())
                flags |= std::regex::icase;
            const std::wregex check(QString::fromUtf8(pattern()).toStdWString(), flags);
        } catch (const std::regex_error& e) {
            say(tr("Invalid regular expression: %1").arg(QString::fromLocal8Bit(e.what())));
            return false;
        }
    }
    return true;
}

FindReplaceDialog::Match FindReplaceDialog::search(long from, long to)
{
    const QByteArray p = pattern();
    ed->SendScintilla(QsciScintillaBase::SCI_SETSEARCHFLAGS, static_cast<unsigned long>(searchFlags()));
    ed->SendScintilla(QsciScintillaBase::SCI_SETTARGETSTART, static_cast<unsigned long>(from));
    ed->SendScintilla(QsciScintillaBase::SCI_SETTARGETEND, static_cast<unsigned long>(to));
    const long pos = ed->SendScintilla(QsciScintillaBase::SCI_SEARCHINTARGET,
                                       static_cast<uintptr_t>(p.size()), p.constData());
    if (ed->SendScintilla(QsciScintillaBase::SCI_GETSTATUS) != QsciScintillaBase::SC_STATUS_OK) {
        ed->SendScintilla(QsciScintillaBase::SCI_SETSTATUS, 0UL);
        badPattern = true;
        return {};
    }
    if (pos < 0) {
        badPattern = pos == -2;
        return {};
    }
    return {pos, ed->SendScintilla(QsciScintillaBase::SCI_GETTARGETEND)};
}

FindReplaceDialog::Match FindReplaceDialog::find(bool forward, bool* wrapped)
{
    *wrapped = false;
    badPattern = false;
    const long length = ed->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    const long selStart = ed->SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART);
    const long selEnd = ed->SendScintilla(QsciScintillaBase::SCI_GETSELECTIONEND);
    const long from = forward ? selEnd : selStart;
    const long limit = forward ? length : 0;

    Match m = search(from, limit);
    // An empty match where the caret already stands would be found again and again: step
    // one character on.
    if (m.found() && m.start == m.end && m.start == from && selStart == selEnd) {
        if (from == limit)
            m = {};
        else
            m = search(ed->SendScintilla(forward ? QsciScintillaBase::SCI_POSITIONAFTER
                                                 : QsciScintillaBase::SCI_POSITIONBEFORE,
                                         static_cast<unsigned long>(from)),
                       limit);
    }
    if (!m.found() && !badPattern && wrapAround->isChecked()) {
        m = forward ? search(0, length) : search(length, 0);
        *wrapped = m.found();
    }
    return m;
}

void FindReplaceDialog::select(const Match& m, bool forward)
{
    const long line = ed->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, static_cast<unsigned long>(m.start));
    ed->SendScintilla(QsciScintillaBase::SCI_ENSUREVISIBLEENFORCEPOLICY, static_cast<unsigned long>(line));
    // The caret goes to the end the search moves towards, so the next search starts there.
    if (forward)
        ed->SendScintilla(QsciScintillaBase::SCI_SETSEL, static_cast<unsigned long>(m.start), m.end);
    else
        ed->SendScintilla(QsciScintillaBase::SCI_SETSEL, static_cast<unsigned long>(m.end), m.start);
}

bool FindReplaceDialog::findNext()
{
    if (!ready())
        return false;
    bool wrapped = false;
    const Match m = find(true, &wrapped);
    if (badPattern) {
        say(tr("Invalid regular expression."));
        return false;
    }
    if (!m.found()) {
        say(notFound());
        return false;
    }
    select(m, true);
    say(wrapped ? tr("Passed the end of the text; continued from the start.") : QString());
    return true;
}

bool FindReplaceDialog::findPrevious()
{
    if (!ready())
        return false;
    bool wrapped = false;
    const Match m = find(false, &wrapped);
    if (badPattern) {
        say(tr("Invalid regular expression."));
        return false;
    }
    if (!m.found()) {
        say(notFound());
        return false;
    }
    select(m, false);
    say(wrapped ? tr("Passed the start of the text; continued from the end.") : QString());
    return true;
}

long FindReplaceDialog::replaceTarget()
{
    const QByteArray r = replaceText->text().toUtf8();
    const unsigned int message = regularExpression->isChecked() ? QsciScintillaBase::SCI_REPLACETARGETRE
                                                                : QsciScintillaBase::SCI_REPLACETARGET;
    return ed->SendScintilla(message, static_cast<uintptr_t>(r.size()), r.constData());
}

bool FindReplaceDialog::replace()
{
    if (!ready() || ed->isReadOnly())
        return false;
    const long selStart = ed->SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART);
    const long selEnd = ed->SendScintilla(QsciScintillaBase::SCI_GETSELECTIONEND);
    bool replaced = false;
    if (selStart != selEnd) {
        // Only a selection that is itself a match is replaced; anything else the user may have
        // selected by hand stays as it is.
        badPattern = false;
        const Match m = search(selStart, ed->SendScintilla(QsciScintillaBase::SCI_GETLENGTH));
        if (m.found() && m.start == selStart && m.end == selEnd) {
            const long n = replaceTarget();
            ed->SendScintilla(QsciScintillaBase::SCI_SETEMPTYSELECTION, static_cast<unsigned long>(selStart + n));
            replaced = true;
        }
    }
    const bool more = findNext();
    if (replaced) {
        if (more)
            say(tr("Replaced 1 occurrence."));
        else
            say(tr("Replaced 1 occurrence. No more found."));
    }
    return replaced;
}

int FindReplaceDialog::replaceAll()
{
    if (!ready() || ed->isReadOnly())
        return -1;
    badPattern = false;
    int count = 0;
    long lastEnd = -1;
    long pos = 0;
    ed->beginUndoAction();
    for (;;) {
        const long length = ed->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
        if (pos > length)
            break;
        const Match m = search(pos, length);
        if (!m.found())
            break;
        const long n = replaceTarget();
        ++count;
        lastEnd = m.start + n;
        pos = lastEnd;
        if (m.start == m.end) {
            // An empty match would match again right behind its replacement.
            const long newLength = ed->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
            if (pos >= newLength)
                break;
            pos = ed->SendScintilla(QsciScintillaBase::SCI_POSITIONAFTER, static_cast<unsigned long>(pos));
        }
    }
    ed->endUndoAction();
    if (badPattern) {
        say(tr("Invalid regular expression."));
        return -1;
    }
    if (count == 0) {
        say(notFound());
        return 0;
    }
    ed->SendScintilla(QsciScintillaBase::SCI_SETEMPTYSELECTION, static_cast<unsigned long>(lastEnd));
    say(count == 1 ? tr("Replaced 1 occurrence.") : tr("Replaced %1 occurrences.").arg(count));
    return count;
}
