#include "platform/CodeMax.h"

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
    case EditorProperties: Q_EMIT propertiesRequested(); return;
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

bool CodeMax::hasMacro(int slot) const { return !macros.value(slot).isEmpty(); }

void CodeMax::toggleRecording()
{
    if (!recording) {
        recording = new QsciMacro(this);
        recording->startRecording();
        return;
    }
    recording->endRecording();
    macros.insert(recordSlot, recording->save());
    delete recording;
    recording = nullptr;
}

void CodeMax::playMacro(int slot)
{
    const QString m = macros.value(slot);
    if (m.isEmpty())
        return;
    QsciMacro macro(m, this);
    macro.play();
}

void CodeMax::OpenFile(const QString& path)
{
    bool ok = false;
    const QString text = TextFiles::readText(path, &ok);
    if (!ok)
        throw RuntimeError(53, QStringLiteral("File not found"), QStringLiteral("CodeMax.OpenFile"));
    setText(text);
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
        lx->setDefaultFont(font());
        lx->setFont(font());
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
