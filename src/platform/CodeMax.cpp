#include "platform/CodeMax.h"

#include "platform/EditorOptionsDialog.h"
#include "platform/FindReplaceDialog.h"
#include "platform/PlatformColour.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

#include <climits>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <Qsci/qscilexercpp.h>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qscilexerjava.h>
#include <Qsci/qscilexerpascal.h>
#include <Qsci/qscilexersql.h>
#include <Qsci/qscilexerxml.h>
#include <Qsci/qscimacro.h>

namespace {
QHash<QString, CodeMax::LexerFactory>& languageTable()
{
    static QHash<QString, CodeMax::LexerFactory> t = [] {
        QHash<QString, CodeMax::LexerFactory> m;
        m.insert(QStringLiteral("HTML"), [](QObject* p) { return new QsciLexerHTML(p); });
        m.insert(QStringLiteral("SQL"), [](QObject* p) { return new QsciLexerSQL(p); });
        m.insert(QStringLiteral("C/C++"), [](QObject* p) { return new QsciLexerCPP(p); });
        m.insert(QStringLiteral("Pascal"), [](QObject* p) { return new QsciLexerPascal(p); });
        m.insert(QStringLiteral("XML"), [](QObject* p) { return new QsciLexerXML(p); });
        m.insert(QStringLiteral("Java"), [](QObject* p) { return new QsciLexerJava(p); });
        return m;
    }();
    return t;
}

// Characters in UTF-8 text: every byte that does not continue a sequence starts one.
qint64 utf8Characters(const char* text, qsizetype length)
{
    qint64 n = 0;
    for (qsizetype i = 0; i < length; ++i)
        n += (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
    return n;
}

// QScintilla's accessible editor counts the characters from the start of the text to the caret
// at every caret move. Without a screen reader at the time the editor is first asked for, a
// plain accessible widget serves: it names the editor and costs nothing.
QAccessibleInterface* plainEditorAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String("CodeMax") || !object->isWidgetType() || QAccessible::isActive())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::EditableText);
}

void installPlainAccessible()
{
    static const bool installed = [] {
        QAccessible::installFactory(plainEditorAccessible);
        return true;
    }();
    Q_UNUSED(installed);
}

// The length of the UTF-8 bytes without a character left unfinished at their end.
qsizetype wholeCharacters(QByteArrayView bytes)
{
    for (qsizetype back = 1; back <= 4 && back <= bytes.size(); ++back) {
        const auto c = static_cast<uchar>(bytes[bytes.size() - back]);
        if ((c & 0xC0) == 0x80)
            continue;  // a continuation byte: its lead is further back
        const qsizetype length = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
        return length > back ? bytes.size() - back : bytes.size();
    }
    return bytes.size();
}

// Notices of changes about to be made, and nothing else: no notice after a change reaches
// QScintilla's handlers. And the notices of packed steps to undo or redo.
constexpr int beforeChangeNotices = QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_BEFOREDELETE
    | QsciScintillaBase::SC_MOD_CONTAINER;


}

CodeMax::CodeMax(QWidget* parent) : QsciScintilla(parent)
{
    setObjectName(QStringLiteral("CodeMax1"));
    setUtf8(true);
    QFont f(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    f.setPointSize(10);
    setEditorFont(f);
    setEolMode(EolWindows);
    setTabWidth(4);
    setBraceMatching(SloppyBraceMatch);
    // The screen is coloured in short steps while the editor is idle, so a jump far down a big
    // page shows at once; text beyond the screen is coloured when it is shown, so a key near
    // the top does not set off colouring the whole rest of the page again.
    SendScintilla(SCI_SETIDLESTYLING, SC_IDLESTYLING_TOVISIBLE);
    installPlainAccessible();
    // The character count follows each change, so the status line costs nothing per key
    // however long the text is.
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char* text, int length, int, int, int, int, int token, int) {
                if (type & SC_MOD_CONTAINER)
                    stepHeard(token, type & SC_PERFORMED_UNDO);
                else
                    textModified(position, type, text, length);
            });
    connect(this, &QsciScintilla::linesChanged, this, &CodeMax::updateLineNumberWidth);
}

CodeMax::~CodeMax() { delete recording; }

void CodeMax::moveStepsDue(int type, int position, int length)
{
    // Quiet, the editor tells of a change only before it; otherwise it is heard after it.
    const bool inserted = type & (quiet ? SC_MOD_BEFOREINSERT : SC_MOD_INSERTTEXT);
    const bool deleted = type & (quiet ? SC_MOD_BEFOREDELETE : SC_MOD_DELETETEXT);
    for (DueStep& due : stepsDue) {
        if (inserted && position <= due.position)
            due.position += length;
        else if (deleted && position + length <= due.position)
            due.position -= length;
    }
}

void CodeMax::textModified(int position, int type, const char* text, int length)
{
    if (!stepsDue.empty())
        moveStepsDue(type, position, length);
    if (quiet) {
        if (!(type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE)))
            return;
        // A notice before a change is also the moment after the one before it.
        countInsertion();
        if (type & SC_MOD_BEFOREINSERT) {
            insertedAt = position;
            insertedLength = length;
        } else if (position == 0 && length == SendScintilla(SCI_GETLENGTH)) {
            characters = 0;  // all of it: nothing to count
        } else {
            // The text to go is still there to count.
            characters -= SendScintilla(SCI_COUNTCHARACTERS, static_cast<unsigned long>(position),
                                        static_cast<long>(position + length));
        }
        // The change is not done yet: tell it once it is, here or at the next turn of the loop.
        if (!changePending) {
            changePending = true;
            QMetaObject::invokeMethod(this, &CodeMax::changeDone, Qt::QueuedConnection);
        }
        return;
    }
    if (!(type & (SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT)))
        return;
    if (text)
        characters += (type & SC_MOD_INSERTTEXT ? 1 : -1) * utf8Characters(text, length);
    if (SendScintilla(SCI_GETLENGTH) > quietAbove)
        setQuiet(true);
    Q_EMIT Change();
}

void CodeMax::setQuiet(bool on)
{
    if (quiet == on)
        return;
    quiet = on;
    SendScintilla(SCI_SETMODEVENTMASK, static_cast<unsigned long>(on ? beforeChangeNotices : SC_MODEVENTMASKALL));
}

long CodeMax::insertedCharacters() const
{
    return insertedLength == 0 ? 0
        : SendScintilla(SCI_COUNTCHARACTERS, static_cast<unsigned long>(insertedAt), static_cast<long>(insertedAt + insertedLength));
}

void CodeMax::countInsertion()
{
    characters += insertedCharacters();
    insertedLength = 0;
}

void CodeMax::changeDone()
{
    forgetUnreachableSteps();
    countInsertion();
    setQuiet(SendScintilla(SCI_GETLENGTH) > quietAbove);
    if (!changePending)
        return;
    changePending = false;
    // QScintilla tells of new lines only after a change, which it did not hear of.
    if (lines() != numberedLines)
        updateLineNumberWidth();
    Q_EMIT Change();
}

void CodeMax::keyPressEvent(QKeyEvent* e)
{
    QsciScintilla::keyPressEvent(e);
    takeStepsDue();
    changeDone();
}

void CodeMax::inputMethodEvent(QInputMethodEvent* e)
{
    QsciScintilla::inputMethodEvent(e);
    changeDone();
}

void CodeMax::setText(const QString& text)
{
    // Assigning a big text would be counted twice over by the notice after it. The text goes
    // in by its length, so a NUL does not end it.
    setQuiet(true);
    const bool readOnly = isReadOnly();
    setReadOnly(false);
    const QByteArray bytes = text.toUtf8();
    SendScintilla(SCI_CLEARALL);
    SendScintilla(SCI_APPENDTEXT, static_cast<unsigned long>(bytes.size()), bytes.constData());
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    setReadOnly(readOnly);
    changeDone();
}

QString CodeMax::text() const { return QString::fromUtf8(utf8Text()); }

QString CodeMax::SelText() const
{
    const long start = SendScintilla(SCI_GETSELECTIONSTART);
    const long length = SendScintilla(SCI_GETSELECTIONEND) - start;
    const char* data = rangePointer(start, length);
    return length > 0 && data ? QString::fromUtf8(data, length) : QString();
}

void CodeMax::setSelText(const QString& text) { setSelUtf8(text.toUtf8()); }

void CodeMax::setSelUtf8(const QByteArray& bytes)
{
    // Replacing the selection (empty or not) is one editor action, which a macro records; the
    // caret then stands behind the text, as it will when the macro plays. A text with a NUL
    // goes in by its length instead, which no macro records.
    const long start = SendScintilla(SCI_GETSELECTIONSTART);
    // QScintilla copies the text of every notice after a change; for a big insertion only the
    // notices before it are heard, which carry no copy, and the count follows at changeDone.
    if (bytes.size() > quietAbove)
        setQuiet(true);
    if (bytes.contains('\0')) {
        SendScintilla(SCI_TARGETFROMSELECTION);
        SendScintilla(SCI_REPLACETARGET, static_cast<unsigned long>(bytes.size()), bytes.constData());
    } else {
        SendScintilla(SCI_REPLACESEL, 0UL, bytes.constData());
    }
    SendScintilla(SCI_SETSEL, start, start + static_cast<long>(bytes.size()));
    changeDone();
}

void CodeMax::setSelPieces(TextPieces&& pieces)
{
    const long start = SendScintilla(SCI_GETSELECTIONSTART);
    const long end = SendScintilla(SCI_GETSELECTIONEND);
    PackedStep step{start, TextPieces::of(QByteArrayView(rangePointer(start, end - start), end - start)), std::move(pieces)};
    // Room for the whole text first: a buffer grown piece by piece is copied whole at each step.
    const long kept = SendScintilla(SCI_GETLENGTH) - (end - start);
    const long total = static_cast<long>(step.inserted.totalSize());
    allocateFor(kept + total);
    const bool collecting = SendScintilla(SCI_GETUNDOCOLLECTION);
    putText(start, end - start, step.inserted);
    // A step only for a text that went in (a read-only editor takes none).
    if (collecting && SendScintilla(SCI_GETLENGTH) == kept + total) {
        // The editor's history holds the step as a number; the text stays packed here.
        const int token = ++lastStepToken;
        packedSteps.emplace(token, std::move(step));
        SendScintilla(SCI_ADDUNDOACTION, static_cast<unsigned long>(token), 0L);
    }
    SendScintilla(SCI_SETSEL, start, start + total);
    changeDone();
}

void CodeMax::allocateFor(qint64 length)
{
    // And room for typing after the text: a buffer grown at the first key is copied whole. The
    // editor clears all the room it gets, which is then memory held at once, so it is small.
    const qint64 size = length + length / 64 + (64 << 10);
    SendScintilla(SCI_ALLOCATE, static_cast<unsigned long>(qMin<qint64>(size, INT_MAX)));
}

const char* CodeMax::rangePointer(long start, long length) const
{
    return reinterpret_cast<const char*>(SendScintilla(SCI_GETRANGEPOINTER, static_cast<unsigned long>(start), length));
}

void CodeMax::putText(long position, long replaced, const TextPieces& text)
{
    // Outside the undo history, which has the packed step instead of a copy of the text, and
    // heard only before each piece, which spares QScintilla's copy of it in the notices after.
    const bool collecting = SendScintilla(SCI_GETUNDOCOLLECTION);
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    setQuiet(true);
    SendScintilla(SCI_SETSEL, position, position + replaced);
    SendScintilla(SCI_REPLACESEL, 0UL, "");
    // Each piece goes in as whole characters, an unfinished one at its end with the next:
    // the characters are counted piece by piece.
    QByteArray carry;
    for (qsizetype i = 0; i < text.size(); ++i) {
        QByteArray piece = text.piece(i);
        if (!carry.isEmpty())
            piece.prepend(std::exchange(carry, QByteArray()));
        const qsizetype whole = wholeCharacters(piece);
        carry = piece.sliced(whole);
        SendScintilla(SCI_ADDTEXT, static_cast<unsigned long>(whole), piece.constData());
    }
    if (!carry.isEmpty())
        SendScintilla(SCI_ADDTEXT, static_cast<unsigned long>(carry.size()), carry.constData());
    SendScintilla(SCI_SETUNDOCOLLECTION, static_cast<unsigned long>(collecting));
}

bool CodeMax::holds(long position, const TextPieces& text) const
{
    // The ends of the text are enough to tell it from any other edit.
    const long length = static_cast<long>(text.totalSize());
    if (position < 0 || position + length > SendScintilla(SCI_GETLENGTH))
        return false;
    if (text.empty())
        return true;
    const QByteArray first = text.piece(0), last = text.piece(text.size() - 1);
    return QByteArrayView(rangePointer(position, first.size()), first.size()) == first
        && QByteArrayView(rangePointer(position + length - last.size(), last.size()), last.size()) == last;
}

void CodeMax::stepHeard(int token, bool undone)
{
    // The editor tells of the step in the middle of its undo, when the text cannot be changed;
    // the step is taken right after it.
    const auto step = packedSteps.find(token);
    if (step == packedSteps.end())
        return;
    step->second.undone = undone;
    stepsDue.push_back({token, undone, step->second.position});
    QMetaObject::invokeMethod(this, &CodeMax::takeStepsDue, Qt::QueuedConnection);
}

void CodeMax::takeStepsDue()
{
    if (stepsDue.empty())
        return;
    // Putting a step's text back is part of an undo, not an edit of its own for a macro to record.
    const bool recordingMacro = recording != nullptr;
    if (recordingMacro)
        SendScintilla(SCI_STOPRECORD);
    while (!stepsDue.empty()) {
        // One at a time: taking one moves those after it.
        const DueStep due = stepsDue.front();
        stepsDue.erase(stepsDue.begin());
        const auto found = packedSteps.find(due.token);
        if (found == packedSteps.end())
            continue;
        const PackedStep& step = found->second;
        const TextPieces& from = due.undone ? step.inserted : step.removed;
        const TextPieces& to = due.undone ? step.removed : step.inserted;
        if (!holds(due.position, from))
            continue;  // never cut what the step did not leave there
        putText(due.position, static_cast<long>(from.totalSize()), to);
        SendScintilla(SCI_GOTOPOS, due.position + static_cast<long>(to.totalSize()));
    }
    if (recordingMacro)
        SendScintilla(SCI_STARTRECORD);
    changeDone();
}

void CodeMax::forgetUnreachableSteps()
{
    if (packedSteps.empty())
        return;
    // Undone steps are out of reach once nothing is left to redo, done ones once nothing is
    // left to undo: the editor has let go of them.
    const bool canUndo = SendScintilla(SCI_CANUNDO), canRedo = SendScintilla(SCI_CANREDO);
    std::erase_if(packedSteps, [&](const auto& entry) { return entry.second.undone ? !canRedo : !canUndo; });
}

void CodeMax::undo()
{
    QsciScintilla::undo();
    takeStepsDue();
}

void CodeMax::redo()
{
    QsciScintilla::redo();
    takeStepsDue();
}

int CodeMax::SelLength() const { return SelText().size(); }

int CodeMax::TextLength() const { return static_cast<int>(characters + insertedCharacters()); }

QByteArray CodeMax::utf8Text() const
{
    const long bytes = SendScintilla(SCI_GETLENGTH);
    const auto* data = reinterpret_cast<const char*>(SendScintilla(SCI_GETCHARACTERPOINTER));
    return QByteArray(data, bytes);
}

int CodeMax::LineCount() const { return lines(); }

void CodeMax::DeleteSel() { removeSelectedText(); }

void CodeMax::collapseSelectionRight()
{
    // With a selection the caret goes behind it; without one it moves one step right.
    if (hasSelectedText()) {
        const long end = SendScintilla(SCI_GETSELECTIONEND);
        SendScintilla(SCI_SETEMPTYSELECTION, end);
    } else {
        SendScintilla(SCI_CHARRIGHT);
    }
}

void CodeMax::changeCase(bool upper)
{
    // The editor's own case commands know only ASCII letters; the text's own rules know all.
    if (!hasSelectedText())
        return;
    const QString selected = SelText();
    setSelText(upper ? selected.toUpper() : selected.toLower());
}

void CodeMax::ExecuteCmd(int command)
{
    switch (command) {
    case UpperCase: changeCase(true); return;
    case SelectAll: selectAll(true); return;
    case LowerCase: changeCase(false); return;
    case LineUp: SendScintilla(SCI_LINEUP); return;
    case LineDown: SendScintilla(SCI_LINEDOWN); return;
    case DeleteLine: SendScintilla(SCI_LINEDELETE); return;
    case FindReplace: Q_EMIT findReplaceRequested(); FindReplaceDialog::open(this); return;
    case CollapseRight: collapseSelectionRight(); return;
    case RecordMacro: toggleRecording(); return;
    case EditorProperties: Q_EMIT propertiesRequested(); EditorOptionsDialog::open(this); return;
    default:
        if (command >= PlayMacro1 && command <= PlayMacro10) {
            playMacro(command - PlayMacro1 + 1);
            return;
        }
        throw RuntimeError::invalidCall(QStringLiteral("CodeMax.ExecuteCmd"));
    }
}

void CodeMax::setMacroRecordSlot(int slot)
{
    if (slot < 1 || slot > 10)
        throw RuntimeError::invalidCall(QStringLiteral("CodeMax.setMacroRecordSlot"));
    recordSlot = slot;
}

QHash<int, QString>& CodeMax::macros()
{
    static QHash<int, QString> store;
    return store;
}

bool CodeMax::hasMacro(int slot) const { return !macros().value(slot).isEmpty(); }

void CodeMax::toggleRecording()
{
    if (!recording) {
        recording = new QsciMacro(this);
        recording->startRecording();
        return;
    }
    recording->endRecording();
    macros().insert(recordSlot, recording->save());
    delete recording;
    recording = nullptr;
}

void CodeMax::playMacro(int slot)
{
    const QString m = macros().value(slot);
    if (m.isEmpty())
        return;
    QsciMacro macro(m, this);
    macro.play();
}

void CodeMax::OpenFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError::fileNotFound(QStringLiteral("CodeMax.OpenFile"));
    load(file);
}

void CodeMax::load(QIODevice& source)
{
    // The file goes into the editor piece by piece as it is read: no whole copy of it, none as
    // wide text and none in the undo history, which a big file cannot afford. Loading is not an
    // edit to undo. The pieces are counted as they go in and told as one change.
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    setQuiet(true);
    SendScintilla(SCI_CLEARALL);
    allocateFor(source.size());
    const auto finish = [this] {
        SendScintilla(SCI_EMPTYUNDOBUFFER);
        SendScintilla(SCI_SETUNDOCOLLECTION, 1UL);
        SendScintilla(SCI_GOTOPOS, 0UL);
        changePending = true;  // even an empty file replaces what was there
        changeDone();
    };
    // Each piece is counted as it goes in, faster than the editor counts it afterwards.
    const auto append = [this](const QByteArray& text) {
        SendScintilla(SCI_APPENDTEXT, static_cast<unsigned long>(text.size()), text.constData());
        insertedLength = 0;
        characters += utf8Characters(text.constData(), text.size());
    };
    constexpr qint64 piece = 16 << 20;
    QByteArray held;  // the start of a character cut by the end of a piece
    while (!source.atEnd()) {
        const QByteArray bytes = source.read(piece);
        if (bytes.isEmpty()) {
            // A read that fails half way (a disk or a mount that went away) would otherwise
            // leave a cut page that a save could put in place of the whole one.
            SendScintilla(SCI_CLEARALL);
            finish();
            throw RuntimeError::deviceIoError(QStringLiteral("CodeMax.OpenFile"));
        }
        append(TextFiles::toEditorText(held + bytes, &held));
    }
    if (!held.isEmpty())  // the file ends inside a character
        append(TextFiles::toEditorText(held));
    finish();
}

void CodeMax::SaveFile(const QString& path, bool overwrite)
{
    if (!overwrite && QFileInfo::exists(path))
        throw RuntimeError::fileAlreadyExists(QStringLiteral("CodeMax.SaveFile"));
    QString error;
    if (!TextFiles::writeBytes(path, utf8Text(), &error))
        throw RuntimeError::pathFileAccess(QStringLiteral("CodeMax.SaveFile"));
}

void CodeMax::registerLanguage(const QString& name, LexerFactory factory)
{
    languageTable().insert(name, std::move(factory));
}

QStringList CodeMax::languages()
{
    QStringList l = languageTable().keys();
    l.sort();
    return l;
}

void CodeMax::setLanguage(const QString& name)
{
    languageName = name;
    QsciLexer* old = lexer();
    const auto factory = languageTable().value(name);
    if (factory) {
        QsciLexer* lx = factory(this);
        applyFont(lx);
        setLexer(lx);
    } else {
        setLexer(nullptr);
        setFont(textFont);  // letting go of a language resets plain text's style
    }
    if (old)
        old->deleteLater();
    // setLexer resets the margins' look; keep the line numbers as they were.
    updateLineNumberWidth();
}

void CodeMax::applyFont(QsciLexer* lx)
{
    lx->setDefaultFont(textFont);
    for (int style = 0; style < 128; ++style) {
        if (lx->description(style).isEmpty())
            continue;
        QFont f = lx->font(style);
        f.setFamily(textFont.family());
        f.setPointSize(textFont.pointSize());
        lx->setFont(f, style);
    }
}

void CodeMax::setEditorFont(const QFont& f)
{
    textFont = f;
    if (QsciLexer* lx = lexer())
        applyFont(lx);
    else
        setFont(f);  // plain text's own style
}

void CodeMax::setDisplayLeftMargin(bool on) { setMarginWidth(1, on ? 12 : 0); }

void CodeMax::setLineNumbering(bool on)
{
    lineNumbers = on;
    setMarginLineNumbers(0, on);
    updateLineNumberWidth();
}

void CodeMax::updateLineNumberWidth()
{
    numberedLines = lines();
    if (!lineNumbers) {
        setMarginWidth(0, 0);
        return;
    }
    setMarginWidth(0, QStringLiteral("0") + QString::number(qMax(lines(), 100)));
}

void CodeMax::setDisplayWhitespace(bool on) { setWhitespaceVisibility(on ? WsVisible : WsInvisible); }

void CodeMax::setColour(int item, int platformColour)
{
    const QColor c = PlatformColour::toQColor(platformColour);
    switch (item) {
    case LeftMarginColour: setFoldMarginColors(c, c); setMarginsBackgroundColor(c); break;
    case LineNumberColour: setMarginsForegroundColor(c); break;
    case LineNumberBackColour: setMarginsBackgroundColor(c); break;
    default: throw RuntimeError::invalidCall(QStringLiteral("CodeMax.setColour"));
    }
}

int CodeMax::HighlightedLine() const { return highlighted; }

void CodeMax::setHighlightedLine(int line)
{
    highlighted = line;
    setCaretLineVisible(line >= 0);
    if (line >= 0)
        setCursorPosition(line, 0);
}
