#pragma once
#include <QObject>
#include <QString>

class DocumentWindow;

// What the layers below the shell need of the main window: its document area, its captions
// and its status line. The main window implements it; everything else reaches it here, by the
// window's name, and never includes the shell.
class Workspace {
public:
    virtual ~Workspace() = default;

    // The active child window, or null when there is none.
    virtual DocumentWindow* ActiveForm() const = 0;
    // Makes a new document window a child, shows it and makes it the active one.
    virtual void addDocument(DocumentWindow* doc) = 0;
    virtual void activate(DocumentWindow* doc) = 0;
    // Status bar panels 1 (messages), 2 ("Lines: "), 3 ("Chr: ").
    virtual void setStatusText(int panel, const QString& text) = 0;
    // The caption: the version label, then " [ ", the name, " ]".
    virtual void setDocumentCaption(const QString& name) = 0;
    // The main window's caption as it stands.
    virtual void setCaption(const QString& caption) = 0;
    // The left holder (the notepad's "Quick Side").
    virtual void setSideholderVisible(bool visible) = 0;
    // The tool-tip frame's line.
    virtual void setTooltipText(const QString& text) = 0;
    // Shows one panel of the left holder by its name ("frproject") and hides the other four.
    virtual void showSidePanel(const QString& name) = 0;
};

// Tells the features of each new document window, so that a feature can attach itself to it
// (the spell checker to a notepad, the upload and report windows to a page's buttons).
class DocumentEvents : public QObject {
    Q_OBJECT
public:
    static DocumentEvents& instance();
Q_SIGNALS:
    void documentAdded(DocumentWindow* doc);
};

// The main window, created and loaded on first touch.
Workspace& workspace();
// The loaded main window, or null: for steps that only report to it.
Workspace* loadedWorkspace();

// The active document, or null. Read anew at every use: nothing caches it.
DocumentWindow* ActiveForm();
// The active document; with none, the run-time error 91 that the callers' traps expect.
DocumentWindow* ActiveDocument();
// A status panel's text, when the main window is loaded.
void setStatusText(int panel, const QString& text);
