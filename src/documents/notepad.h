#pragma once
#include "documents/DocumentWindow.h"

class QFrame;
class QMenu;
class QTimer;
class QTextEdit;

// "0007" for line 7: the number behind "0000", of which the last four characters are kept.
QString lineNumberText(int line);

// The notepad: rich text with a line number strip and a tab ruler. It has no change state:
// its close question comes on every close.
class notepad : public DocumentWindow {
    Q_OBJECT
public:
    explicit notepad(QWidget* parent = nullptr);

    QString Tag() const override { return QStringLiteral("Pad"); }
    RichTextBox* RichTextBox1() override { return box; }
    QPlainTextEdit* tempbox() override { return staging; }
    // Starts the spell check of the text.
    void startspell() override;

    // The popup menu and its dispatcher (the items' names are the keys).
    QMenu* mnu = nullptr;
    void MenuClick(const QString& key);

    QWidget* lineNumPanel = nullptr;
    QFrame* Frame1 = nullptr;
    QFrame* Shape1 = nullptr;
    QFrame* Shape2 = nullptr;
    QLineEdit* tabnumber = nullptr;
    QTimer* Timer1 = nullptr;

    // The first paragraph shown and the numbers the strip shows, top to bottom.
    QStringList visibleLineNumbers() const;
    // The ruler marker's position in twips; moving it shifts the selection's indent.
    void moveTabMarker(int leftTwips);

Q_SIGNALS:
    // Asks the spell checker, which attaches itself to every new notepad, to check the text.
    void spellCheckRequested();

protected:
    bool tracksChanges() const override { return false; }
    void saveForClose(const QString& path) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenu();
    void textChanged();
    void tabnumberChanged();

    RichTextBox* box = nullptr;
    QPlainTextEdit* staging = nullptr;
    int tabLeft = 0;  // the marker's last position, twips
    int dragOffset = 0;
    bool dragging = false;
};
