#pragma once
#include "platform/Forms.h"

#include <QWidget>

class CodeMax;
class QComboBox;
class QLabel;
class QLineEdit;
class QMdiSubWindow;
class QPlainTextEdit;
class RichTextBox;
class WebBrowser;

// A child window of the main window: the document contract. Every tool reaches the active
// document through ActiveForm() (services/Workspace.h) and these members; asking a window for a member its
// kind lacks is a run-time error (438), as the callers expect.
class DocumentWindow : public QWidget, public Form {
    Q_OBJECT
public:
    explicit DocumentWindow(QWidget* parent = nullptr);

    // "Pad" marks a notepad; the code windows answer "".
    virtual QString Tag() const { return {}; }
    // The window kind test: the only test of the tag.
    bool isNotepad() const { return Tag() == QLatin1String("Pad"); }
    virtual CodeMax* CodeMax1();
    virtual RichTextBox* RichTextBox1();
    QLineEdit* tempaddress() const { return tempaddressBox; }
    virtual QLabel* Changedvalue();
    virtual QComboBox* SYNTAXTYPE();
    virtual QPlainTextEdit* tempbox();
    virtual WebBrowser* WebBrowser1();
    virtual QLabel* linkpreview();
    virtual void startspell();

    QString Caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }
    // 0 normal, 1 minimised, 2 maximised.
    void setWindowState(int state);
    int WindowState() const;
    QMdiSubWindow* subWindow() const;

    // Runs when the window becomes the active child: the main caption and, for the web page
    // window, the status panels and the editor's focus.
    virtual void Form_Activate();
    // The name shown for the document: its file's path, or its caption while it has none.
    QString documentName() const;

    bool Unload() override;

protected:
    bool QueryUnload() override;
    void closeEvent(QCloseEvent* e) override;
    // The preview copy beside a saved file ("_TMP.htm", "_.TMP"), deleted on close.
    virtual QString previewSuffix() const { return {}; }
    // Whether the window tracks changes; a window without does ask on every close.
    virtual bool tracksChanges() const { return true; }
    // Writes this window's text to a path on "Yes" in the close question.
    virtual void saveForClose(const QString& path);

    [[noreturn]] void lacks(const char* member) const;

    QLineEdit* tempaddressBox = nullptr;

private:
    bool unloading = false;
};
