#include "spelling/frmCheck.h"

#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/Twips.h"
#include "spelling/SpellEngine.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTextDocument>
#include <QVBoxLayout>

const QString frmCheck::caption = QStringLiteral("Velloro 2002 Spell Check");
const QString frmCheck::supportAddress = QStringLiteral("support@velloro.example");

namespace {
using Look::named;

// The per-user settings store of the application, under its title.
QSettings windowSettings()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, App::title());
}
}

frmCheck::frmCheck(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCheck"));
    setModal(false);
    setWindowTitle(caption);

    auto* outer = new QVBoxLayout(this);
    Shape1 = named(new QFrame(this), QStringLiteral("Shape1"));
    Shape1->setFixedHeight(6);
    Shape1->setAutoFillBackground(true);
    outer->addWidget(Shape1);

    auto* grid = new QGridLayout;
    txtWord = named(new QLineEdit(this), QStringLiteral("txtWord"));
    txtChangeTo = named(new QLineEdit(this), QStringLiteral("txtChangeTo"));
    lstSuggestions = named(new QListWidget(this), QStringLiteral("lstSuggestions"));
    auto* lblWord = new QLabel(QStringLiteral("&Not In Dictionary"), this);
    auto* lblChange = new QLabel(QStringLiteral("Change &To"), this);
    auto* lblList = new QLabel(QStringLiteral("&Suggested words"), this);
    lblWord->setBuddy(txtWord);
    lblChange->setBuddy(txtChangeTo);
    lblList->setBuddy(lstSuggestions);
    grid->addWidget(lblWord, 0, 0);
    grid->addWidget(txtWord, 1, 0);
    grid->addWidget(lblChange, 2, 0);
    grid->addWidget(txtChangeTo, 3, 0);
    grid->addWidget(lblList, 4, 0);
    grid->addWidget(lstSuggestions, 5, 0, 4, 1);

    cmdIgnore = Look::faceButton(QStringLiteral("cmdIgnore"), QStringLiteral("Ignore"), this);
    cmdIgnoreAll = Look::faceButton(QStringLiteral("cmdIgnoreAll"), QStringLiteral("Ignore All"), this);
    cmdAdd = Look::faceButton(QStringLiteral("cmdAdd"), QStringLiteral("Add"), this);
    cmdChange = Look::faceButton(QStringLiteral("cmdChange"), QStringLiteral("Change"), this);
    cmdClose = Look::faceButton(QStringLiteral("cmdClose"), QStringLiteral("Close"), this);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* b : {cmdIgnore, cmdIgnoreAll, cmdAdd, cmdChange, cmdClose}) {
        b->setAutoDefault(false);
        buttons->addWidget(b);
    }
    buttons->addStretch(1);
    grid->addLayout(buttons, 1, 1, 8, 1);
    outer->addLayout(grid, 1);

    auto* noteRow = new QHBoxLayout;
    auto* note = named(new QLabel(QStringLiteral("Note :: If the suggested word stays as No Suggestions, click here"), this),
                       QStringLiteral("Label4"));
    note->setWordWrap(true);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral(">"), this);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("X"), this);
    for (QPushButton* b : {Command1, Command2}) {
        b->setAutoDefault(false);
        b->setFixedWidth(28);
    }
    noteRow->addWidget(note, 1);
    noteRow->addWidget(Command1);
    noteRow->addWidget(Command2);
    outer->addLayout(noteRow);

    connect(cmdIgnore, &QPushButton::clicked, this, Event([this] { cmdIgnore_Click(); }));
    connect(cmdIgnoreAll, &QPushButton::clicked, this, Event([this] { cmdIgnoreAll_Click(); }));
    connect(cmdAdd, &QPushButton::clicked, this, Event([this] { cmdAdd_Click(); }));
    connect(cmdChange, &QPushButton::clicked, this, Event([this] { cmdChange_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Event([this] { cmdClose_Click(); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(lstSuggestions, &QListWidget::currentRowChanged, this, Event([this](int) { lstSuggestions_Click(); }));
    connect(txtChangeTo, &QLineEdit::textChanged, this, Event([this](const QString&) { txtChangeTo_Change(); }));
    txtWord->installEventFilter(this);

    // The walk serves the event queue on long runs of word characters, so the windows repaint;
    // not the user's clicks and keys, which could close the notepad under the walk or start a
    // second walk inside this one.
    walker.serveEvents = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
}

void frmCheck::ensureLoaded()
{
    if (formLoaded)
        return;
    formLoaded = true;
    Forms::add(this);
    Form_Load();
}

void frmCheck::Form_Load()
{
    QPalette p = Shape1->palette();
    p.setColor(QPalette::Window, Look::heading);
    Shape1->setPalette(p);
    LoadPosition();
    SetPosition();
}

void frmCheck::resetControls()
{
    // What a freshly loaded window shows.
    setWindowTitle(caption);
    txtWord->clear();
    txtChangeTo->clear();
    lstSuggestions->clear();
    lstSuggestions->setEnabled(true);
    for (QPushButton* b : {cmdIgnore, cmdIgnoreAll, cmdAdd, cmdChange, cmdClose}) {
        b->setVisible(true);
        b->setEnabled(true);
    }
}

bool frmCheck::QueryUnload()
{
    SavePosition();
    hide();
    Q_EMIT BeforeSave();
    return true;
}

bool frmCheck::Unload()
{
    if (!formLoaded)
        return true;
    if (!QueryUnload())
        return false;
    hide();
    Forms::remove(this);
    formLoaded = false;
    syncing = true;  // clearing the controls is no user's change
    resetControls();
    syncing = false;
    return true;
}

void frmCheck::closeEvent(QCloseEvent* event)
{
    // The window's own close box unloads it, as Close does.
    event->ignore();
    Event([this] { Unload(); })();
}

void frmCheck::reject() { Event([this] { Unload(); })(); }

bool frmCheck::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtWord && event->type() == QEvent::MouseButtonDblClick)
        Event([this] { txtWord_DblClick(); })();
    return QDialog::eventFilter(watched, event);
}

void frmCheck::showError(const RuntimeError& e)
{
    MsgBox(QStringLiteral("Err ") + QString::number(e.number) + QStringLiteral("\r\n") + e.description, Style::Exclamation);
}

QString frmCheck::controlText() const
{
    // The characters the control holds, one per line break, so that its offsets are the
    // control's selection offsets. Not the plain-text copy: that turns a no-break space into a
    // blank, and a full stop before one would then look like the ". " that starts a sentence.
    return textControl ? textControl->document()->toRawText() : QString();
}

void frmCheck::Spellcheck(RichTextBox* control)
{
    ensureLoaded();
    textControl = control;
    if (!textControl)
        throw RuntimeError::objectNotSet();
    wrapPosition = textControl->SelStart() - 1;
    endPosition = -1;
    cmdIgnore_Click();
}

void frmCheck::SetPosition()
{
    const bool onTop = modMain::state().SpellOnTop;
    if (bool(windowFlags() & Qt::WindowStaysOnTopHint) == onTop)
        return;
    const bool shown = isVisible();
    const QPoint at = pos();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    move(at);
    if (shown)
        show();
}

int frmCheck::getNextWordDivider(const QString& text, int start) { return walker.getNextWordDivider(text, start); }

bool frmCheck::CheckNextWord(int& start, int& end)
{
    try {
        if (!textControl)
            throw RuntimeError::objectNotSet();
        const QString text = controlText();
        const Spelling::WordStop stop = Spelling::checkNextWord(
            walker, text, start, end,
            [this](int offset) {
                textControl->setSelStart(offset);
                return textControl->SelStart();
            },
            [this](QStringView w) {
                QString word = w.toString();
                return IsCorrectWord(word);
            });
        if (stop.kind == Spelling::WordStop::None)
            return false;
        textControl->setSelStart(stop.start);
        textControl->setSelLength(stop.length);
        if (stop.kind == Spelling::WordStop::Misspelt) {
            QString copy = stop.word;
            ListAlternates(copy);
            cmdAdd->setVisible(true);
            cmdIgnoreAll->setVisible(true);
        } else {
            txtWord->setText(stop.word);
            lstSuggestions->clear();
            lstSuggestions->addItem(Spelling::properCase(stop.word));
            lstSuggestions->setCurrentRow(0);
            cmdAdd->setVisible(false);
            cmdIgnoreAll->setVisible(false);
        }
        show();
        return true;
    } catch (const RuntimeError& e) {
        showError(e);
        return false;
    }
}

RichTextBox* frmCheck::control() const
{
    if (!textControl)
        throw RuntimeError::objectNotSet();
    return textControl;
}

void frmCheck::cmdIgnore_Click()
{
    RichTextBox* textControl = control();
    int start = textControl->SelStart() + textControl->SelLength();
    if (CheckNextWord(start, endPosition)) {
        txtWord->setText(textControl->SelText());
        return;
    }
    if (wrapPosition == -1) {
        FinishCheck();
        return;
    }
    // The second pass: from the start of the text to where the caret stood.
    textControl->setSelStart(0);
    endPosition = wrapPosition;
    wrapPosition = -1;
    start = textControl->SelStart();
    if (!CheckNextWord(start, endPosition))
        FinishCheck();
}

void frmCheck::cmdIgnoreAll_Click()
{
    // Into the tree only: the word lasts until the tree is next replaced.
    const QString word = txtWord->text();
    const QString code = modMain::WordCode(word);
    if (!code.isEmpty())
        modMain::WordTree().Add(code, word);
    cmdIgnore_Click();
}

void frmCheck::cmdAdd_Click()
{
    bool cancel = false;
    Q_EMIT BeforeAdd(cancel);
    if (cancel)
        return;
    QString word = txtWord->text();
    bool unused = false;
    AddItem(word, unused);
    cmdIgnore_Click();
}

void frmCheck::cmdChange_Click()
{
    bool cancel = false;
    Q_EMIT BeforeChange(cancel);
    if (cancel)
        return;
    RichTextBox* textControl = control();
    const QString replacement = txtChangeTo->text();
    textControl->setSelText(replacement);
    // Back to the start of the replacement, so that it is examined in its turn.
    textControl->setSelStart(textControl->SelStart() - static_cast<int>(replacement.size()));
    cmdIgnore_Click();
}

void frmCheck::cmdClose_Click() { Unload(); }

void frmCheck::Command1_Click()
{
    MsgBox(QStringLiteral("You need to download a Dictionary and install in the applications folder, contact ") +
               supportAddress + QStringLiteral(" for more information."), Style::Critical, QStringLiteral(":: Dictionary Needed ::"));
}

void frmCheck::Command2_Click() { hide(); }

void frmCheck::lstSuggestions_Click()
{
    if (syncing)
        return;
    if (QListWidgetItem* item = lstSuggestions->currentItem())
        txtChangeTo->setText(item->text());
}

void frmCheck::txtChangeTo_Change()
{
    syncing = true;
    const QString typed = txtChangeTo->text();
    int found = -1;
    for (int i = 0; i < lstSuggestions->count(); ++i) {
        if (lstSuggestions->item(i)->text().startsWith(typed, Qt::CaseInsensitive)) {
            found = i;
            break;
        }
    }
    lstSuggestions->setCurrentRow(found);
    syncing = false;
}

void frmCheck::txtWord_DblClick() { txtChangeTo->setText(txtWord->text()); }

void frmCheck::FinishCheck()
{
    hide();
    Q_EMIT CompleteSpellCheck();
    MsgBox(QStringLiteral("Spell check complete"), Style::Information, windowTitle());
    cmdClose_Click();
}

void frmCheck::LoadPosition()
{
    QSettings s = windowSettings();
    const int top = s.value(QStringLiteral("WindowSettings/SpellTop"), 1000).toInt();
    const int left = s.value(QStringLiteral("WindowSettings/SpellLeft"), 1000).toInt();
    move(twipsToPixels(left), twipsToPixels(top));
}

void frmCheck::SavePosition()
{
    QSettings s = windowSettings();
    s.setValue(QStringLiteral("WindowSettings/SpellLeft"), pixelsToTwips(x()));
    s.setValue(QStringLiteral("WindowSettings/SpellTop"), pixelsToTwips(y()));
}

bool frmCheck::IsCorrectWord(QString& word)
{
    bool answer = false;
    try {
        word = Spelling::trimBlanks(word).toString();
        answer = Spelling::isCorrectWord(modMain::WordTree(), word);
    } catch (const RuntimeError& e) {
        showError(e);
    }
    return answer;
}

bool frmCheck::ListAlternates(QString& word)
{
    bool answer = false;
    try {
        txtWord->setText(word);
        word = Spelling::lowerCase(Spelling::trimBlanks(word));
        if (word.isEmpty())
            return false;
        lstSuggestions->clear();
        const Spelling::Alternates a =
            Spelling::listAlternates(modMain::WordTree(), word, modMain::state().DictionaryMissing);
        lstSuggestions->addItems(a.rows);
        switch (a.status) {
        case Spelling::Alternates::DictionaryNotFound:
            lstSuggestions->setEnabled(false);
            break;
        case Spelling::Alternates::NoSuggestions:
            txtChangeTo->setText(txtWord->text());
            lstSuggestions->setEnabled(false);
            break;
        default:
            lstSuggestions->setEnabled(true);
            // Selecting the row puts it in the replacement field.
            if (a.selected >= 0)
                lstSuggestions->setCurrentRow(a.selected);
            break;
        }
        answer = true;
    } catch (const RuntimeError& e) {
        showError(e);
    }
    return answer;
}

bool frmCheck::AddItem(QString& word, bool& unused)
{
    Q_UNUSED(unused);
    const QString code = modMain::WordCode(word);
    if (modMain::WordTree().holdsExactly(code, word)) {
        MsgBox(QStringLiteral("That item already exists"));
        return true;
    }
    if (code.isEmpty())
        return true;
    modMain::WordTree().Add(code, word);
    modMain::state().CustomWords.append(word);
    dirty = true;
    return true;
}
