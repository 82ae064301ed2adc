#pragma once
#include "documents/DocumentWindow.h"

class QTabWidget;

// The web page window: the code editor on one tab, the browser preview on the other, and a
// hidden rich text copy for printing and file transfers.
class frmDocument : public DocumentWindow {
    Q_OBJECT
public:
    explicit frmDocument(QWidget* parent = nullptr);

    CodeMax* CodeMax1() override { return editor; }
    RichTextBox* RichTextBox1() override { return workCopy; }
    QLabel* Changedvalue() override { return changed; }
    QComboBox* SYNTAXTYPE() override { return syntax; }
    WebBrowser* WebBrowser1() override;
    QLabel* linkpreview() override { return linkLabel; }

    void Form_Activate() override;

    QTabWidget* SSTab1 = nullptr;
    QLabel* Label1 = nullptr;

protected:
    QString previewSuffix() const override { return QStringLiteral("_TMP.htm"); }

private:
    void editorChanged();
    void showTextStatus();

    CodeMax* editor = nullptr;
    RichTextBox* workCopy = nullptr;
    QLabel* changed = nullptr;
    QComboBox* syntax = nullptr;
    WebBrowser* browser = nullptr;
    QLabel* linkLabel = nullptr;
};
