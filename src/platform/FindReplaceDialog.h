#pragma once
#include <QDialog>
#include <QRegularExpression>
#include <QStringList>

class CodeMax;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The code editor's own find and replace dialog (editor command 169). Each editor has one,
// made on first use and owned by the editor; it is not modal, so the user can edit between
// searches. Every search starts from the editor's current selection, so nothing it remembers
// can go stale while the text changes underneath. Matching is done on the text as Unicode
// (the editor's own search folds the case of ASCII letters only); the editor still does the
// selecting and the replacing, so undo and the change event work as for typing.
class FindReplaceDialog : public QDialog {
    Q_OBJECT
public:
    // The editor's dialog, made on first use.
    static FindReplaceDialog* of(CodeMax* editor);
    // Shows and raises the editor's dialog; a selection on one line becomes the text to find.
    static FindReplaceDialog* open(CodeMax* editor);

    CodeMax* editor() const { return ed; }

    // Each selects what it found and tells the status line; false when nothing was found
    // (or the pattern is unusable).
    bool findNext();
    bool findPrevious();
    // Replaces the selection when it is a match, then moves on to the next match; when the
    // selection is not a match it only finds the next one.
    bool replace();
    // Replaces every match in the text as one undo step; the count, or -1 when the pattern
    // is unusable.
    int replaceAll();

    QString status() const;

    QLineEdit* findText = nullptr;
    QLineEdit* replaceText = nullptr;
    QCheckBox* matchCase = nullptr;
    QCheckBox* wholeWord = nullptr;
    QCheckBox* regularExpression = nullptr;
    QCheckBox* wrapAround = nullptr;
    QPushButton* findNextButton = nullptr;
    QPushButton* findPreviousButton = nullptr;
    QPushButton* replaceButton = nullptr;
    QPushButton* replaceAllButton = nullptr;
    QPushButton* closeButton = nullptr;
    QLabel* statusLine = nullptr;

private:
    explicit FindReplaceDialog(CodeMax* editor);

    // A match in a snapshot of the editor's text, in QString positions.
    struct Match {
        int start = -1;
        int end = -1;
        QStringList captures;
        bool found() const { return start >= 0; }
        bool empty() const { return start == end; }
    };

    // Checks the find text and the pattern; says why on the status line when unusable.
    bool ready();
    QRegularExpression regex() const;
    // The first match starting at or after from.
    Match firstFrom(const QString& text, int from) const;
    // The last match ending at or before `before`; an empty one right there counts only when
    // emptyThere is true.
    Match lastBefore(const QString& text, int before, bool emptyThere) const;
    // Every match, first to last, none overlapping.
    QList<Match> all(const QString& text) const;
    bool wholeWordAt(const QString& text, int start, int end) const;
    Match find(const QString& text, bool forward, bool* wrapped);
    QString replacementFor(const Match& m) const;
    void select(const QString& text, const Match& m, bool forward);
    void say(const QString& text);
    void updateButtons();
    QString notFound() const;

    CodeMax* ed;
    // What this dialog selected last, in the editor's own positions: an empty match can be
    // replaced only when it is the one just found.
    long lastStart = -1, lastEnd = -1;
};
