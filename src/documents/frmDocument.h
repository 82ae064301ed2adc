#pragma once
#include "documents/CodeDocumentWindow.h"

class QTabWidget;

// The web page window: the code editor on one tab, the browser preview on the other.
class frmDocument : public CodeDocumentWindow {
    Q_OBJECT
public:
    explicit frmDocument(QWidget* parent = nullptr);

    QComboBox* SYNTAXTYPE() override { return syntax; }
    void Form_Activate() override;
    // Writes the preview file and shows it; runs on the refresh button and every tab change.
    void RefreshPreview();

    QTabWidget* SSTab1 = nullptr;
    QLabel* Label1 = nullptr;

protected:
    QString previewSuffix() const override { return QStringLiteral("_TMP.htm"); }
    void refreshPreview() override { RefreshPreview(); }
    void showSource() override;

private:
    void editorChanged();
    QComboBox* syntax = nullptr;
};
