#pragma once
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "spelling/WordWalker.h"

#include <QDialog>
#include <QPointer>

class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class RichTextBox;

// The spell check window: walks through a text control word by word, stops at each word that
// fails and lets the user change, ignore or add it. Modeless; the word under examination is the
// control's selection. Each spell checker owns one; unloading it hides it and forgets what its
// controls showed, while its own fields (the dirty flag, the walk's state) stay.
class frmCheck : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmCheck(QWidget* parent = nullptr);

    void Form_Load() override;
    bool Unload() override;
    // Loads the window when it is not loaded (every outside use of it does).
    void ensureLoaded();
    bool isFormLoaded() const { return formLoaded; }

    void Spellcheck(RichTextBox* textControl);
    void SetPosition();
    int getNextWordDivider(const QString& text, int start);
    bool CheckNextWord(int& start, int& end);
    void FinishCheck();
    void LoadPosition();
    void SavePosition();

    // The dictionary operations (the word tree's only readers and writers).
    bool IsCorrectWord(QString& word);
    bool ListAlternates(QString& word);
    bool AddItem(QString& word, bool& unused);

    void cmdIgnore_Click();
    void cmdIgnoreAll_Click();
    void cmdAdd_Click();
    void cmdChange_Click();
    void cmdClose_Click();
    void Command1_Click();
    void Command2_Click();
    void lstSuggestions_Click();
    void txtChangeTo_Change();
    void txtWord_DblClick();

    QLineEdit* txtWord = nullptr;
    QLineEdit* txtChangeTo = nullptr;
    QListWidget* lstSuggestions = nullptr;
    QPushButton* cmdIgnore = nullptr;
    QPushButton* cmdIgnoreAll = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdChange = nullptr;
    QPushButton* cmdClose = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QFrame* Shape1 = nullptr;

    // The form's fields.
    QPointer<RichTextBox> textControl;
    int wrapPosition = -1;
    int endPosition = -1;
    bool syncing = false;
    bool dirty = false;
    WordWalker walker;  // the sentence state and the divider search's remembered values

    static const QString caption;
    static const QString supportAddress;

Q_SIGNALS:
    void BeforeChange(bool& cancel);
    void BeforeAdd(bool& cancel);
    void BeforeSave();
    void CompleteSpellCheck();

protected:
    bool QueryUnload() override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void resetControls();
    QString controlText() const;
    RichTextBox* control() const;  // the control in use; none is error 91
    void showError(const RuntimeError& e);

    bool formLoaded = false;
};
