#pragma once
#include <QObject>
#include <QPointer>
#include <QString>

class frmCheck;
class notepad;
class RichTextBox;

namespace modMain {
// The text control being checked, shared by all spell checkers.
QPointer<RichTextBox>& SpellTextBox();
}

// The spell checker a document window holds: the list file, the check window and its events.
class clsSpell : public QObject {
    Q_OBJECT
public:
    explicit clsSpell(QObject* parent = nullptr);
    ~clsSpell() override;

    void setShowOnTop(bool onTop);
    bool ShowOnTop() const;
    quintptr WindowhWnd();
    frmCheck* SpellCheckerForm();
    // Saves pending additions first when the path changes from one that was set.
    void setDictionary(const QString& path);
    QString Dictionary() const;
    void setAllowAdd(bool allow);
    bool AllowAdd();
    void setSpellCaption(const QString& text);
    QString SpellCaption();
    // Only a text control will do: anything else raises "Invalid TextBox object." and the
    // old control stays.
    void setTextBox(QObject* control);
    RichTextBox* TextBox() const;

    // Loads the list on this checker's first check, then checks from the caret (or the start).
    void Spellcheck(bool fromStart);
    void AddCustomItem(const QString& word);
    void LoadDictionary();
    void SaveDictionary();

    static constexpr int invalidTextBoxError = static_cast<int>(0x80041388u);
    static constexpr int itemExistsError = static_cast<int>(0x80041389u);

Q_SIGNALS:
    void BeforeChange(bool& cancel);
    void BeforeAdd(bool& cancel);
    void BeforeSave(bool& cancel);
    void CompleteSpellCheck();

private:
    void frmSpellCheck_BeforeSave();
    // The saving of additions: only when the window added words and no listener cancels.
    void saveAdditions();

    // The window goes with this object, unless a sweep of all windows took it first.
    QPointer<frmCheck> frmSpellCheck;
    frmCheck* window();
    bool listLoaded = false;
};

// The notepad's spell check: its own checker on its text; a control that will not do shows
// "Please wait until the dictionary loads", and a failing load does nothing visible.
void startSpellCheck(notepad* pad);
// The menu's and the button bar's "Spell Checker": the active notepad's check, or the refusal
// for any other window (or none).
void SpellCheckActiveDocument();
// The checker a notepad holds, made on first use.
clsSpell* spellcheckerOf(notepad* pad);
