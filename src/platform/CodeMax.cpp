#include "platform/CodeMax.h"

#include "platform/EditorOptionsDialog.h"
#include "platform/FindReplaceDialog.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"

#include <Qsci/qscilexercpp.h>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qscilexerjava.h>
#include <Qsci/qscilexerpascal.h>
#include <Qsci/qscilexersql.h>
#include <Qsci/qscilexerxml.h>
#include <Qsci/qscimacro.h>

#include <QFile>
#include <climits>
#include <QFileInfo>
#include <QFontDatabase>

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
qint64 utf8Characters(const char* text, int length)
{
    qint64 n = 0;
    for (int i = 0; i < length; ++i)
        n += (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
    return n;
}

QColor fromPlatformColour(int c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }
}

CodeMax::CodeMax(QWidget* parent) : QsciScintilla(parent)
{
    setObjectName(QStringLiteral("CodeMax1"));
    setUtf8(true);
    QFont f(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    f.setPointSize(10);
    setFont(f);
    setEolMode(EolWindows);
    setTabWidth(4);
    setBraceMatching(SloppyBraceMatch);
    // Colouring a long text goes on while the editor is idle, after the visible part.
    SendScintilla(SCI_SETIDLESTYLING, SC_IDLESTYLING_ALL);
    // The character count follows each change, so the status line costs nothing per key
    // however long the text is.
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int, int type, const char* text, int length, int, int, int, int, int, int) {
                if (!(type & (SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT)))
                    return;
                if (text)
                    characters += (type & SC_MOD_INSERTTEXT ? 1 : -1) * utf8Characters(text, length);
                Q_EMIT Change();
            });
    connect(this, &QsciScintilla::linesChanged, this, &CodeMax::updateLineNumberWidth);
}

CodeMax::~CodeMax() { delete recording; }

QString CodeMax::SelText() const { return selectedText(); }

void CodeMax::setSelText(const QString& text)
{
    // Replacing the selection (empty or not) is one editor action, which a macro records; the
    // caret then stands behind the text, as it will when the macro plays.
    const long start = SendScintilla(SCI_GETSELECTIONSTART);
    replaceSelectedText(text);
    const long end = start + text.toUtf8().size();
    SendScintilla(SCI_SETSEL, start, end);
}

int CodeMax::SelLength() const { return selectedText().size(); }

int CodeMax::TextLength() const { return static_cast<int>(characters); }

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
    const QString selected = selectedText();
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
        throw RuntimeError(53, QStringLiteral("File not found"), QStringLiteral("CodeMax.OpenFile"));
    // UTF-8 goes into the editor piece by piece as it is read: no whole copy of the file, none
    // as wide text and none in the undo history, which a big file cannot afford. Loading is not
    // an edit to undo.
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    SendScintilla(SCI_CLEARALL);
    // The pieces are one change to the rest of the program: it hears of the whole text once.
    const bool wasBlocked = blockSignals(true);
    SendScintilla(SCI_ALLOCATE, static_cast<unsigned long>(qMin<qint64>(file.size() + 1, INT_MAX)));
    constexpr qint64 piece = 16 << 20;
    QByteArray carry;  // the start of a character cut by the end of a piece
    bool utf8 = true;
    while (utf8 && !file.atEnd()) {
        QByteArray chunk = carry + file.read(piece);
        // Hold back an incomplete sequence at the end for the next piece.
        qsizetype cut = chunk.size();
        for (qsizetype back = 1; back <= 3 && back <= chunk.size(); ++back) {
            const auto b = static_cast<unsigned char>(chunk[chunk.size() - back]);
            if ((b & 0xC0) == 0x80)
                continue;
            const int need = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : b >= 0xC0 ? 2 : 1;
            if (need > back)
                cut = chunk.size() - back;
            break;
        }
        carry = chunk.mid(cut);
        chunk.truncate(cut);
        if (!QByteArrayView(chunk).isValidUtf8()) {
            utf8 = false;
            break;
        }
        SendScintilla(SCI_APPENDTEXT, static_cast<unsigned long>(chunk.size()), chunk.constData());
    }
    if (!carry.isEmpty())
        utf8 = false;  // the file ends inside a character
    blockSignals(wasBlocked);
    if (utf8) {
        const long bytes = SendScintilla(SCI_GETLENGTH);
        characters = SendScintilla(SCI_COUNTCHARACTERS, 0UL, bytes);
        updateLineNumberWidth();
        Q_EMIT Change();
    } else {
        // Not UTF-8: the whole file again, as text with the fallback for other bytes.
        file.seek(0);
        setText(TextFiles::decode(file.readAll()));
    }
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    SendScintilla(SCI_SETUNDOCOLLECTION, 1UL);
    SendScintilla(SCI_GOTOPOS, 0UL);
}

void CodeMax::SaveFile(const QString& path, bool overwrite)
{
    if (!overwrite && QFileInfo::exists(path))
        throw RuntimeError(58, QStringLiteral("File already exists"), QStringLiteral("CodeMax.SaveFile"));
    QString error;
    if (!TextFiles::writeBytes(path, utf8Text(), &error))
        throw RuntimeError(75, QStringLiteral("Path/File access error"), QStringLiteral("CodeMax.SaveFile"));
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
        // The editor's face and size for every style, keeping each style's weight and slant.
        lx->setDefaultFont(font());
        for (int style = 0; style < 128; ++style) {
            if (lx->description(style).isEmpty())
                continue;
            QFont f = lx->font(style);
            f.setFamily(font().family());
            f.setPointSize(font().pointSize());
            lx->setFont(f, style);
        }
        setLexer(lx);
    } else {
        setLexer(nullptr);
    }
    if (old)
        old->deleteLater();
    // setLexer resets the margins' look; keep the line numbers as they were.
    updateLineNumberWidth();
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
    if (!lineNumbers) {
        setMarginWidth(0, 0);
        return;
    }
    setMarginWidth(0, QStringLiteral("0") + QString::number(qMax(lines(), 100)));
}

void CodeMax::setDisplayWhitespace(bool on) { setWhitespaceVisibility(on ? WsVisible : WsInvisible); }

void CodeMax::setColour(int item, int platformColour)
{
    const QColor c = fromPlatformColour(platformColour);
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
