#pragma once
#include "platform/Forms.h"
#include "services/Workspace.h"

#include <QHash>
#include <QMainWindow>

class DirListBox;
class DocumentWindow;
class FileListBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QMdiArea;
class QMdiSubWindow;
class QMenuBar;
class QStatusBar;
class QToolBar;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

// The file panel's size column: up to 1000 bytes in bytes, above that in whole kilobytes.
QString fileSizeText(qint64 bytes);
// The pattern of a file type entry: the text between its brackets ("[*.htm]  .htm Files").
QString patternOf(const QString& fileTypeEntry);

// The main window: the parent of every document window and the source of the commands.
class frmMain : public QMainWindow, public Form, public Workspace {
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
    DocumentWindow* ActiveForm() const override;
    QList<DocumentWindow*> documents() const;
    // Makes a new document window a child, shows it and makes it the active one, and tells
    // the features of it.
    void addDocument(DocumentWindow* doc) override;
    void activate(DocumentWindow* doc) override;

    // The menu's dispatcher: runs the branch of a key as a click on its item does; an unknown
    // key, or one whose item is disabled, does nothing.
    void MenuClick(const QString& key);

    // Status bar panels 1 (messages), 2 ("Lines: "), 3 ("Chr: ").
    void setStatusText(int panel, const QString& text) override;
    QString statusText(int panel) const;

    // The caption: the version label, then " [ ", the name, " ]".
    void setDocumentCaption(const QString& name) override;
    void setCaption(const QString& caption) override { setWindowTitle(caption); }
    void setSideholderVisible(bool visible) override;
    void setTooltipText(const QString& text) override;
    void showSidePanel(const QString& name) override;

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

    // The left pane: exactly one of its five panels is visible.
    void showPanel(QFrame* panel);
    QList<QFrame*> sidePanels() const;
    // Windows: 0 cascade, 1 tile horizontally, 2 tile vertically, 3 line up the minimised ones.
    void Arrange(int how);
    // The button bars at the top or the bottom of the window.
    void alignCoolBar(Qt::ToolBarArea area);
    Qt::ToolBarArea coolBarArea() const { return barArea; }
    // The file panel's list from File1.
    void fillFileList();
    // Opens a file of the panel the way openchoice says.
    void openChosenFile(const QString& path);
    // Adds the reference library's panels (library, scripts, characters) to the left pane.
    void addSidePanel(QFrame* panel, QToolButton* button);
    // The main menu, built from its table once the windows are registered.
    void buildMenu();

    QMenuBar* SmartMenuXP1 = nullptr;
    QToolBar* Picture[5] = {};
    QComboBox *Combo1 = nullptr, *Combo2 = nullptr, *Combo4 = nullptr;
    // Drops the quick colour palette below itself.
    QToolButton* quickColour = nullptr;
    QFrame* LeftTool = nullptr;
    QFrame *frfiles = nullptr, *frproject = nullptr, *frjavascript = nullptr, *frchr = nullptr, *frlibrary = nullptr;
    DirListBox* PicBrowse = nullptr;
    FileListBox* File1 = nullptr;
    QTreeWidget* ListView1 = nullptr;
    QComboBox *Combo3 = nullptr, *openchoice = nullptr;
    QTreeWidget* TreeProject = nullptr;
    QLabel *prodate = nullptr, *proauthor = nullptr, *prosite = nullptr, *projectlocation = nullptr;

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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void buildLeftPane(QFrame* holder);
    QFrame* buildFilePanel();
    QFrame* buildProjectPanel();
    void buildButtonBars();
    void buildRightBar();
    void hint(QWidget* w, const QString& line);
    QHash<QObject*, QString> hints;
    class QStackedLayout* panelStack = nullptr;
    class QVBoxLayout* toolStrip = nullptr;
    QFrame* panelHost = nullptr;
    Qt::ToolBarArea barArea = Qt::TopToolBarArea;
    void subWindowActivated(QMdiSubWindow* w);
    QLabel* panels[3] = {};
    int sideWidth = 3470;
    int rightWidth = 720;
};
