#include "spelling/clsSpell.h"

#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/Forms.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"
#include "spelling/SpellEngine.h"
#include "spelling/frmCheck.h"

#include <QPushButton>

namespace {
const QString facadeSource = QStringLiteral("Spell Checker");
}

namespace modMain {
QPointer<RichTextBox>& SpellTextBox()
{
    static QPointer<RichTextBox> box;
    return box;
}
}

clsSpell::clsSpell(QObject* parent) : QObject(parent)
{
    setObjectName(QStringLiteral("spellchecker"));
    window();
    setDictionary(App::userFile(QStringLiteral("dictionary.txt")));
    modMain::state().CustomWords = QStringList{QString()};
    modMain::state().SpellOnTop = true;
}

clsSpell::~clsSpell()
{
    // Unloading the window runs its unload question, and with it the saving of additions.
    if (!frmSpellCheck)
        return;
    try {
        frmSpellCheck->Unload();
    } catch (const RuntimeError&) {
    }
    delete frmSpellCheck.data();
}

frmCheck* clsSpell::window()
{
    if (!frmSpellCheck) {
        frmSpellCheck = new frmCheck;
        connect(frmSpellCheck, &frmCheck::BeforeAdd, this, [this](bool& cancel) { Q_EMIT BeforeAdd(cancel); });
        connect(frmSpellCheck, &frmCheck::BeforeChange, this, [this](bool& cancel) { Q_EMIT BeforeChange(cancel); });
        connect(frmSpellCheck, &frmCheck::BeforeSave, this, [this] { frmSpellCheck_BeforeSave(); });
        connect(frmSpellCheck, &frmCheck::CompleteSpellCheck, this, [this] { Q_EMIT CompleteSpellCheck(); });
    }
    return frmSpellCheck;
}

void clsSpell::setShowOnTop(bool onTop)
{
    modMain::state().SpellOnTop = onTop;
    SpellCheckerForm()->SetPosition();
}

bool clsSpell::ShowOnTop() const { return modMain::state().SpellOnTop; }

quintptr clsSpell::WindowhWnd() { return static_cast<quintptr>(SpellCheckerForm()->winId()); }

frmCheck* clsSpell::SpellCheckerForm()
{
    frmCheck* w = window();
    w->ensureLoaded();
    return w;
}

void clsSpell::setDictionary(const QString& path)
{
    const QString old = modMain::state().DictionaryPath;
    if (path != old && !old.isEmpty())
        saveAdditions();
    modMain::state().DictionaryPath = path;
}

QString clsSpell::Dictionary() const { return modMain::state().DictionaryPath; }

void clsSpell::setAllowAdd(bool allow) { SpellCheckerForm()->cmdAdd->setEnabled(allow); }
bool clsSpell::AllowAdd() { return SpellCheckerForm()->cmdAdd->isEnabled(); }
void clsSpell::setSpellCaption(const QString& text) { SpellCheckerForm()->setWindowTitle(text); }
QString clsSpell::SpellCaption() { return SpellCheckerForm()->windowTitle(); }

void clsSpell::setTextBox(QObject* control)
{
    auto* box = qobject_cast<RichTextBox*>(control);
    if (!box)
        throw RuntimeError(invalidTextBoxError, QStringLiteral("Invalid TextBox object."), facadeSource);
    modMain::SpellTextBox() = box;
}

RichTextBox* clsSpell::TextBox() const { return modMain::SpellTextBox(); }

void clsSpell::Spellcheck(bool fromStart)
{
    if (!listLoaded) {
        modMain::LoadWordList(Dictionary());
        listLoaded = true;
    }
    RichTextBox* box = modMain::SpellTextBox();
    if (!box)
        throw RuntimeError::objectNotSet(facadeSource);
    if (fromStart)
        box->setSelStart(0);
    SpellCheckerForm()->Spellcheck(box);
}

void clsSpell::AddCustomItem(const QString& word)
{
    QString lowered = Spelling::lowerCase(word);
    bool unused = false;
    if (!SpellCheckerForm()->AddItem(lowered, unused))
        throw RuntimeError(itemExistsError, QStringLiteral("That item already exists in the dictionary"), facadeSource);
}

void clsSpell::LoadDictionary() { modMain::LoadWordList(Dictionary()); }
void clsSpell::SaveDictionary() { modMain::SaveCustomWords(Dictionary()); }

void clsSpell::frmSpellCheck_BeforeSave() { saveAdditions(); }

void clsSpell::saveAdditions()
{
    if (Forms::count() == 0)
        return;
    if (!frmSpellCheck || !frmSpellCheck->dirty)
        return;
    bool cancel = false;
    Q_EMIT BeforeSave(cancel);
    if (cancel)
        return;
    modMain::SaveCustomWords(Dictionary());
}

clsSpell* spellcheckerOf(notepad* pad)
{
    if (auto* existing = pad->findChild<clsSpell*>(QStringLiteral("spellchecker"), Qt::FindDirectChildrenOnly))
        return existing;
    return new clsSpell(pad);
}

void startSpellCheck(notepad* pad)
{
    clsSpell* checker = spellcheckerOf(pad);
    try {
        checker->setTextBox(pad->RichTextBox1());
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Please wait until the dictionary loads"));
        return;
    }
    // A missing or unreadable list is ignored here: the command then does nothing visible.
    ResumeNext()([checker] { checker->Spellcheck(false); });
}

void SpellCheckActiveDocument()
{
    DocumentWindow* doc = ActiveForm();
    if (doc && doc->isNotepad())
        doc->startspell();
    else
        MsgBox(QStringLiteral("Currently spell check does not support web pages, or there is no page open."), Style::OkOnly,
               QStringLiteral(":: Notepad Only ::"));
}
