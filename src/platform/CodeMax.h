#pragma once
#include "platform/TextPieces.h"

#include <Qsci/qsciscintilla.h>

#include <QHash>
#include <functional>
#include <map>
#include <vector>
#include <memory>

class QIODevice;
class QsciLexer;
class QsciMacro;

// The code editor control of the document windows: QScintilla with the members the program
// uses, under their own names, and the editor command numbers of ExecuteCmd.
class CodeMax : public QsciScintilla {
    Q_OBJECT
public:
    // Editor command numbers understood by ExecuteCmd.
    enum Command {
        UpperCase = 125, SelectAll = 137, LowerCase = 147, LineUp = 149, LineDown = 157,
        DeleteLine = 160, FindReplace = 169, CollapseRight = 201, RecordMacro = 213,
        PlayMacro1 = 214, PlayMacro10 = 223, EditorProperties = 224
    };
    // Colour slots of the control.
    enum ColourItem { LeftMarginColour = 1, LineNumberColour = 26, LineNumberBackColour = 27 };

    explicit CodeMax(QWidget* parent = nullptr);
    ~CodeMax() override;

    // Above this many bytes the editor stops listening to QScintilla's notices after a change,
    // each of which counts the characters from the start of the text up to the change (a
    // quarter of a second at the end of a 50 MB page). It counts from the notices sent before
    // a change instead, and tells Change once the change is done.
    static constexpr long quietAbove = 1L << 20;
    bool isQuiet() const { return quiet; }

    void setText(const QString& text) override;

    // The text and the selection as the editor holds them, NUL characters and all: QScintilla's
    // own text() and selectedText() stop at the first NUL, and its setters measure with strlen.
    using QsciScintilla::text;
    QString text() const;
    QString SelText() const;
    // Replaces the selection (or inserts at the caret) and leaves the new text selected.
    void setSelText(const QString& text);
    // The same with text already in the editor's own form, UTF-8 (a big table made that way
    // goes in without a second copy).
    void setSelUtf8(const QByteArray& bytes);
    // The same for a text in packed pieces, unpacked one at a time: a big text is never held
    // twice beside the editor's own copies. One change and one step to undo, kept packed.
    void setSelPieces(TextPieces&& pieces);
    int SelLength() const;
    int TextLength() const;   // in characters
    // The text as the file holds it, straight from the editor's buffer.
    QByteArray utf8Text() const;
    int LineCount() const;
    void DeleteSel();

    // Runs an editor command by number; an unknown number is a run-time error (5).
    void ExecuteCmd(int command);
    // The editor's undo and redo, and the packed steps among them taken at once.
    void undo() override;
    void redo() override;

    // File transfers; failures are run-time errors (53 not found, 58 exists, 75 access).
    void OpenFile(const QString& path);
    // The text from an open device as OpenFile reads a file; a read that fails is error 57
    // and leaves the editor empty.
    void load(QIODevice& source);
    void SaveFile(const QString& path, bool overwrite);

    // The syntax language by name; an unknown name or "" shows plain text.
    void setLanguage(const QString& name);
    QString Language() const { return languageName; }
    using LexerFactory = std::function<QsciLexer*(QObject* parent)>;
    static void registerLanguage(const QString& name, LexerFactory factory);
    static QStringList languages();

    // The face and size of the text, in every style of every language chosen from now on; each
    // style keeps its own weight and slant.
    void setEditorFont(const QFont& font);
    QFont editorFont() const { return textFont; }

    void setDisplayLeftMargin(bool on);
    void setLineNumbering(bool on);
    void setDisplayWhitespace(bool on);
    bool LineNumbering() const { return lineNumbers; }
    bool DisplayLeftMargin() const { return marginWidth(1) > 0; }
    bool DisplayWhitespace() const { return whitespaceVisibility() != WsInvisible; }
    void setColour(int item, int platformColour);
    int HighlightedLine() const;
    void setHighlightedLine(int line);

    // Macros: 213 starts and stops recording into the chosen slot (1 to 10), 214..223 play.
    void setMacroRecordSlot(int slot);
    int macroRecordSlot() const { return recordSlot; }
    bool isRecordingMacro() const { return recording != nullptr; }
    bool hasMacro(int slot) const;

Q_SIGNALS:
    // Fires on every change of the text, also when the text is assigned by code. In a text
    // above quietAbove it fires once the change is done: at once after a key, after setText,
    // setSelText and OpenFile, and otherwise once per turn of the event loop.
    void Change();
    void findReplaceRequested();       // command 169
    void propertiesRequested();        // command 224

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void inputMethodEvent(QInputMethodEvent* e) override;

private:
    void textModified(int position, int type, const char* text, int length);
    void setQuiet(bool on);
    void changeDone();
    void countInsertion();
    long insertedCharacters() const;
    void collapseSelectionRight();
    void changeCase(bool upper);
    void toggleRecording();
    void playMacro(int slot);
    void updateLineNumberWidth();
    void applyFont(QsciLexer* lexer);
    // Makes the editor's buffer big enough for a text of this many bytes at once.
    void allocateFor(qint64 length);
    const char* rangePointer(long start, long length) const;
    // Replaces `replaced` bytes at the position with the text, outside the undo history.
    void putText(long position, long replaced, const TextPieces& text);
    bool holds(long position, const TextPieces& text) const;
    void stepHeard(int token, bool undone);
    void moveStepsDue(int type, int position, int length);
    void takeStepsDue();
    void forgetUnreachableSteps();

    QString languageName;
    QFont textFont;
    bool lineNumbers = false;
    int recordSlot = 1;
    QsciMacro* recording = nullptr;
    // slot -> recorded macro; one store for every editor, so a macro recorded in one page
    // plays in any other.
    static QHash<int, QString>& macros();
    int highlighted = -1;
    qint64 characters = 0;
    bool quiet = false;
    bool changePending = false;  // a change heard of before it was done, not yet told
    // An insertion heard of before it was made, counted where it stands once it is done: the
    // notice before an insertion does not carry its text.
    long insertedAt = 0;
    long insertedLength = 0;
    int numberedLines = 0;  // the line count the number margin was last sized for
    // A big insertion in the undo history: the editor's history holds only its number, the
    // text it put in and the text it replaced are held here, packed. The editor tells of an
    // undo or redo of it while it may not change the text; the step is then due.
    struct PackedStep {
        long position;
        TextPieces removed;
        TextPieces inserted;
        bool undone = false;
    };
    std::map<int, PackedStep> packedSteps;
    // A step due where its text stands now: an edit made before it is taken moves it.
    struct DueStep {
        int token;
        bool undone;
        long position;
    };
    std::vector<DueStep> stepsDue;
    int lastStepToken = 0;
};
