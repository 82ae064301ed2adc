#pragma once
#include <QColor>
#include <QObject>
#include <QTextCursor>

#include <functional>

class QImage;
class QTextCharFormat;
class QTextBlockFormat;

class QTextDocument;
class QTextEdit;
class QPagedPaintDevice;

// The rich text control. The visible one (the notepad's text) shows a QTextEdit; the hidden
// work copy of the code windows has no widget at all, only a document.
class RichTextBox : public QObject {
    Q_OBJECT
public:
    enum class Kind { Visible, Hidden };
    RichTextBox(Kind kind, QWidget* parentWidget, QObject* owner);

    QTextEdit* widget() const { return edit; }   // null for the hidden copy
    QTextDocument* document() const { return doc; }

    QString text() const;
    void setText(const QString& text);
    int SelStart() const;
    void setSelStart(int pos);
    int SelLength() const;
    void setSelLength(int length);
    QString SelText() const;
    void setSelText(const QString& text);

    QString SelFontName() const;
    void setSelFontName(const QString& name);
    double SelFontSize() const;
    void setSelFontSize(double points);
    int SelColor() const;                 // platform colour value
    void setSelColor(int platformColour);
    bool SelBold() const;
    void setSelBold(bool on);
    bool SelItalic() const;
    void setSelItalic(bool on);
    bool SelUnderline() const;
    void setSelUnderline(bool on);
    int SelIndent() const;                // twips
    void setSelIndent(int twips);
    int SelRightIndent() const;
    void setSelRightIndent(int twips);
    int SelHangingIndent() const;
    void setSelHangingIndent(int twips);

    // A picture embedded in the document at the selection, which it replaces; the caret goes
    // behind it. The name identifies it among the document's resources. The rich
    // text file written by SaveFile holds text only: the picture is not saved with it.
    void addPicture(const QImage& picture, const QString& name);

    // Case-insensitive search from the start: selects the match, gives its 0-based position or -1.
    int find(const QString& what);
    int GetLineFromChar(int pos) const;

    // Files: RTF on saving; loading reads RTF, and a file that is not RTF as plain text.
    void LoadFile(const QString& path);
    void SaveFile(const QString& path);
    void SelPrint(QPagedPaintDevice* device);

Q_SIGNALS:
    void Change();

private:
    QTextCursor cursor() const;
    void setCursor(const QTextCursor& c);
    void mergeFormat(const QTextCharFormat& f);
    void mergeBlock(const std::function<void(QTextBlockFormat&)>& change);

    QTextDocument* doc = nullptr;
    QTextEdit* edit = nullptr;
    QTextCursor own;  // the selection of the hidden copy
};
