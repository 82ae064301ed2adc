#pragma once
#include "platform/Forms.h"

#include <QHash>
#include <QMainWindow>
#include <functional>

class DocumentWindow;
class QFrame;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QStatusBar;
class QToolButton;

// The main window: the parent of every document window and the source of the commands.
class frmMain : public QMainWindow, public Form {
    Q_OBJECT
public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    // The single main window, created and loaded on first touch.
    static frmMain* instance();
    // The loaded main window, or null (never creates one).
    static frmMain* loaded();

    void Form_Load() override;

    // The active child window, or null when there is none. Works while the main window is
    // not focused.
    DocumentWindow* ActiveForm() const;
    QList<DocumentWindow*> documents() const;
    // Makes a new document window a child, shows it and makes it the active one.
    void addDocument(DocumentWindow* doc);
    void activate(DocumentWindow* doc);

    // The menu's dispatcher: runs the branch of a key; an unknown key does nothing.
    void MenuClick(const QString& key);
    using Command = std::function<void()>;
    static void registerCommand(const QString& key, Command command);
    static bool hasCommand(const QString& key);

    // Status bar panels 1 (messages), 2 ("Lines: "), 3 ("Chr: ").
    void setStatusText(int panel, const QString& text);
    QString statusText(int panel) const;

    // The caption: the version label, then " [ ", the name, " ]".
    void setDocumentCaption(const QString& name);

    // The two side holders; widths in twips, each with two states, folded and open.
    int SideholderWidth() const { return sideWidth; }
    void setSideholderWidth(int twips);
    int RightHolderWidth() const { return rightWidth; }
    void setRightHolderWidth(int twips);
    // Folds or opens a holder: its width, and the caption and tip of its button.
    void foldSide(bool folded);
    void foldRight(bool folded);
    void LeftMenuIn_Click();
    void RightMenuIn_Click();

    QMdiArea* MDIClient = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    QFrame* Sideholder = nullptr;
    QFrame* LeftMoveIn = nullptr;
    QToolButton* LeftMenuIn = nullptr;
    QFrame* RightHolder = nullptr;
    QToolButton* RightMenuIn = nullptr;
    QFrame* Tooltipframe = nullptr;
    QLabel* Tooltiptext = nullptr;
    QToolButton* SmartNetButton75 = nullptr;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void buildLayout();
    void subWindowActivated(QMdiSubWindow* w);
    QLabel* panels[3] = {};
    int sideWidth = 3470;
    int rightWidth = 720;
};
