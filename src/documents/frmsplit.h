#pragma once
#include "documents/CodeDocumentWindow.h"

class QSplitter;
class QTimer;

// The split view window: the code editor above the preview bar above the browser. The preview
// follows the typing.
class frmsplit : public CodeDocumentWindow {
    Q_OBJECT
public:
    explicit frmsplit(QWidget* parent = nullptr);

    // On every change: the change mark and the status at once, then the text written to
    // temp.html and shown. While the user types, the browser may lag behind the editor: the
    // writes are gathered into one at most every previewDelayMs.
    void SplitChanged();
    // The status, and the preview beside the saved file ("_.TMP") or temp.html.
    void SplitRefresh();
    // Runs a pending preview write now (tests and shut-down).
    void flushPreview();

    static constexpr int previewDelayMs = 120;
    QFrame* Frame1 = nullptr;
    QSplitter* splitter = nullptr;

protected:
    QString previewSuffix() const override { return QStringLiteral("_.TMP"); }
    void refreshPreview() override { SplitChanged(); }

private:
    void writeLivePreview();
    QTimer* previewTimer = nullptr;
};
