#pragma once
#include <QDialog>

class CodeMax;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The code editor's own find and replace dialog (editor command 169). Each editor has one,
// made on first use and owned by the editor; it is not modal, so the user can edit between
// searches. Every search starts from the editor's current selection, so nothing it remembers
// can go stale while the text changes underneath.
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

    struct Match {
        long start = -1;
        long end = -1;
        bool found() const { return start >= 0; }
    };

    // Checks the find text and the pattern; says why on the status line when unusable.
    bool ready();
    int searchFlags() const;
    QByteArray pattern() const;
    // One search in the byte range [from, to); a backward search when from > to. Leaves the
    // editor's target on the match, ready for a replacement.
    Match search(long from, long to);
    Match find(bool forward, bool* wrapped);
    long replaceTarget();
    void select(const Match& m, bool forward);
    void say(const QString& text);
    void updateButtons();
    QString notFound() const;

    CodeMax* ed;
    bool badPattern = false;
};
