#pragma once
#include "documents/DocumentWindow.h"

#include <QHash>

class QMenu;
class QToolButton;
class QHBoxLayout;
class QFrame;

// What the web page window and the split window share: the code editor, the hidden rich text
// copy, the change mark, the browser with its link preview, the preview bar and the context
// menu with its own dispatcher.
class CodeDocumentWindow : public DocumentWindow {
    Q_OBJECT
public:
    explicit CodeDocumentWindow(QWidget* parent = nullptr);

    CodeMax* CodeMax1() override { return editor; }
    RichTextBox* RichTextBox1() override { return workCopy; }
    QLabel* Changedvalue() override { return changed; }
    WebBrowser* WebBrowser1() override { return browser; }
    QLabel* linkpreview() override { return linkLabel; }

    // The preview file: temp.html in the application folder for an unsaved document, else the
    // document's path plus the window's own suffix.
    QString previewPath() const;
    // Writes the editor's text to the preview file and shows it in the browser.
    void writeAndShowPreview(const QString& path);

    // The context menu and its dispatcher (keys as the menu items carry them).
    QMenu* SmartMenuXP1 = nullptr;
    void ContextMenuClick(const QString& key);
    QAction* contextAction(const QString& key) const;

    // The preview bar's buttons by their names.
    QToolButton* previewButton(const QString& name) const;

    // A Ctrl+click in the preview: the editor's caret to the source of the clicked place.
    void showSourceOf(const QString& tag, int index, const QString& text, int offset);

Q_SIGNALS:
    // The preview bar's upload button with a saved page: the upload window takes the path.
    void uploadRequested(const QString& path);
    // The preview bar's report button: the report window takes the page's text.
    void reportRequested(const QString& text);

protected:
    // The preview bar; the window puts it where its layout wants it.
    QFrame* buildPreviewBar(const QString& name, bool withZoom, const QString& reportTip);
    void showTextStatus();
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // The window's own refresh (the first button).
    virtual void refreshPreview() = 0;
    // Brings the editor into view where the preview hides it.
    virtual void showSource() {}

private:
    void buildContextMenu();
    void uploadPage();
    void launchPage();
    void fullScreen();

    CodeMax* editor = nullptr;
    RichTextBox* workCopy = nullptr;
    QLabel* changed = nullptr;
    WebBrowser* browser = nullptr;
    QLabel* linkLabel = nullptr;
    QHash<QString, QAction*> contextActions;
    QHash<QString, QToolButton*> buttons;
};
