// The spell check window on a notepad: whole checks with their stops, changes, additions and
// the two passes around the caret, the list and the replacement field, the window's place in
// the settings store, the spell checker's members, and the commands that start a check.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"
#include "spelling/SpellEngine.h"
#include "spelling/clsSpell.h"
#include "spelling/frmCheck.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTest>

namespace {
const QString checkTitle = QStringLiteral("Velloro 2002 Spell Check");
const QString appTitle = QStringLiteral("Velloro 2002");

class SpellCheckTest : public WindowTest {
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.file(QStringLiteral("settings")));
        modMain::resetForTesting();
        startWithoutPage();
    }

    void dictionary(const QByteArray& bytes) { folder.write(QStringLiteral("dictionary.txt"), bytes); }
    QByteArray dictionaryFile() const { return folder.read(QStringLiteral("dictionary.txt")); }

    notepad* openPad(const QString& text, int caret = 0)
    {
        auto* pad = new notepad;
        pad->setCaption(QStringLiteral("Notepad [ %1 ]").arg(++pads));
        frmMain::instance()->addDocument(pad);
        pad->RichTextBox1()->setText(text);
        pad->RichTextBox1()->setSelStart(caret);
        return pad;
    }
    static frmCheck* checkOf(notepad* pad) { return spellcheckerOf(pad)->SpellCheckerForm(); }
    // A notepad with this text and the caret at caret, checked against this word list.
    std::pair<notepad*, frmCheck*> startCheck(const QByteArray& words, const QString& text, int caret = 0)
    {
        dictionary(words);
        notepad* pad = openPad(text, caret);
        pad->startspell();
        return {pad, checkOf(pad)};
    }
    static QString selected(notepad* pad) { return pad->RichTextBox1()->SelText(); }
    static QString text(notepad* pad) { return pad->RichTextBox1()->text(); }
    static QStringList rows(frmCheck* f)
    {
        QStringList r;
        for (int i = 0; i < f->lstSuggestions->count(); ++i)
            r << f->lstSuggestions->item(i)->text();
        return r;
    }
    static bool shows(QWidget* w) { return w->isVisible(); }

    int pads = 0;
    int completed = 0;
};
}

TEST_F(SpellCheckTest, WindowControlsAndTexts)
{
    auto* pad = openPad(QString());
    frmCheck* f = checkOf(pad);
    EXPECT_EQ(f->objectName(), QStringLiteral("frmCheck"));
    EXPECT_EQ(f->windowTitle(), checkTitle);
    const std::pair<const char*, const char*> buttons[] = {{"cmdIgnore", "Ignore"}, {"cmdIgnoreAll", "Ignore All"},
        {"cmdAdd", "Add"}, {"cmdChange", "Change"}, {"cmdClose", "Close"}, {"Command1", ">"}, {"Command2", "X"}};
    for (const auto& [name, caption] : buttons) {
        auto* b = f->findChild<QPushButton*>(QString::fromLatin1(name));
        ASSERT_NE(b, nullptr) << name;
        EXPECT_EQ(b->text(), QString::fromLatin1(caption));
    }
    for (const char* name : {"txtWord", "txtChangeTo"})
        EXPECT_NE(f->findChild<QLineEdit*>(QString::fromLatin1(name)), nullptr) << name;
    EXPECT_NE(f->findChild<QListWidget*>(QStringLiteral("lstSuggestions")), nullptr);
    QStringList labels;
    for (QLabel* l : f->findChildren<QLabel*>())
        labels << l->text();
    for (const char* l : {"&Not In Dictionary", "Change &To", "&Suggested words",
                          "Note :: If the suggested word stays as No Suggestions, click here"})
        EXPECT_TRUE(labels.contains(QString::fromLatin1(l))) << l;
    EXPECT_EQ(f->Shape1->palette().color(QPalette::Window), QColor(52, 129, 211));

    prompts.answerMsgBox(Answer::OK);
    f->Command1->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("You need to download a Dictionary and install in the applications "
                                                  "folder, contact support@velloro.example for more information."));
    EXPECT_EQ(prompts.last().style, 16);
    EXPECT_EQ(prompts.last().title, QStringLiteral(":: Dictionary Needed ::"));
}

TEST_F(SpellCheckTest, WholeCheckWithChangesCapitalsAndTheFinishBox)
{
    dictionary("the\r\ncat\r\nsat\r\non\r\nmat\r\ndog\r\nran\r\n");
    auto* pad = openPad(QStringLiteral("Teh cat sat on the mat. the dog rann."));
    QObject::connect(spellcheckerOf(pad), &clsSpell::CompleteSpellCheck, [this] { ++completed; });
    pad->startspell();
    frmCheck* f = checkOf(pad);

    saveShot(f, QStringLiteral("spellcheck"));
    // A misspelt word: selected in place, its bucket listed, the longest prefix chosen.
    EXPECT_TRUE(shows(f));
    EXPECT_EQ(pad->RichTextBox1()->SelStart(), 0);
    EXPECT_EQ(selected(pad), QStringLiteral("Teh"));
    EXPECT_EQ(f->txtWord->text(), QStringLiteral("Teh"));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("the")});
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("the"));
    EXPECT_TRUE(shows(f->cmdAdd));
    EXPECT_TRUE(shows(f->cmdIgnoreAll));

    // The replacement is examined in its turn: the first word of the text needs its capital.
    f->cmdChange->click();
    EXPECT_EQ(text(pad), QStringLiteral("the cat sat on the mat. the dog rann."));
    EXPECT_EQ(selected(pad), QStringLiteral("the"));
    EXPECT_EQ(f->txtWord->text(), QStringLiteral("the"));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("The")});
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("The"));
    EXPECT_FALSE(shows(f->cmdAdd));
    EXPECT_FALSE(shows(f->cmdIgnoreAll));

    f->cmdChange->click();
    EXPECT_EQ(text(pad), QStringLiteral("The cat sat on the mat. the dog rann."));
    // After ". " the next word needs its capital too.
    EXPECT_EQ(pad->RichTextBox1()->SelStart(), 24);
    EXPECT_EQ(selected(pad), QStringLiteral("the"));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("The")});

    f->cmdIgnore->click();
    EXPECT_EQ(selected(pad), QStringLiteral("rann"));
    EXPECT_EQ(rows(f), (QStringList{QStringLiteral("ran"), QStringLiteral("ran")})) << "the list's last word stands twice";
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("ran"));
    EXPECT_TRUE(shows(f->cmdAdd)) << "a misspelt word shows Add again";
    EXPECT_TRUE(shows(f->cmdIgnoreAll));
    EXPECT_EQ(completed, 0);

    prompts.answerMsgBox(Answer::OK);
    f->cmdChange->click();
    EXPECT_EQ(text(pad), QStringLiteral("The cat sat on the mat. the dog ran."));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Spell check complete"), 64, checkTitle));
    EXPECT_EQ(completed, 1);
    EXPECT_FALSE(shows(f));
    EXPECT_FALSE(f->isFormLoaded());
    EXPECT_FALSE(Forms::loaded().contains(f));
    EXPECT_EQ(prompts.pending(), 0);
}

TEST_F(SpellCheckTest, TwoPassesAroundTheCaret)
{
    // The caret stands before "fourr": that word to the end, then the start up to the caret.
    auto [pad, f] = startCheck("one\r\ntwo\r\nthree\r\nfour\r\nfive\r\nsix\r\n",
                               QStringLiteral("One twoo three fourr five sixx"), 14);
    EXPECT_EQ(f->wrapPosition, 13);
    EXPECT_EQ(selected(pad), QStringLiteral("fourr"));
    f->cmdIgnore->click();
    EXPECT_EQ(selected(pad), QStringLiteral("sixx"));
    f->cmdIgnore->click();
    EXPECT_EQ(selected(pad), QStringLiteral("twoo"));
    EXPECT_EQ(pad->RichTextBox1()->SelStart(), 4);
    EXPECT_EQ(f->wrapPosition, -1);
    EXPECT_EQ(f->endPosition, 13);
    prompts.answerMsgBox(Answer::OK);
    f->cmdIgnore->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
    EXPECT_EQ(prompts.pending(), 0);

    // With the caret at the start there is one pass only.
    auto* other = openPad(QStringLiteral("One twoo"), 0);
    other->startspell();
    EXPECT_EQ(checkOf(other)->wrapPosition, -1);
    EXPECT_EQ(selected(other), QStringLiteral("twoo"));
    prompts.answerMsgBox(Answer::OK);
    checkOf(other)->cmdIgnore->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
}

TEST_F(SpellCheckTest, AnEmptyTextFinishesAtOnce)
{
    dictionary("word\r\n");
    auto* pad = openPad(QString());
    prompts.answerMsgBox(Answer::OK);
    pad->startspell();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
    EXPECT_FALSE(checkOf(pad)->isVisible());
}

TEST_F(SpellCheckTest, LinesOfTheNotepadKeepTheirOffsets)
{
    auto [pad, f] = startCheck("first\r\nline\r\nsecond\r\n", QStringLiteral("First line\r\nSecond lnie\r\nThird"));
    EXPECT_EQ(selected(pad), QStringLiteral("lnie"));
    f->cmdIgnore->click();
    EXPECT_EQ(selected(pad), QStringLiteral("Third"));
    EXPECT_EQ(f->txtWord->text(), QStringLiteral("Third"));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("No Suggestions")});
    EXPECT_FALSE(f->lstSuggestions->isEnabled());
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("Third"));
    f->cmdClose->click();  // a prompt here would fail the test
    EXPECT_FALSE(f->isFormLoaded());
    EXPECT_FALSE(f->isVisible());
}

TEST_F(SpellCheckTest, ANoBreakSpaceIsTheControlsOwnCharacter)
{
    // A no-break space after a full stop is not the blank of ". ": the word after it needs no
    // capital. The stops are selected at the control's own offsets (a line break is one).
    struct Case { const char16_t* text; const char* stop; int at; };
    const Case cases[] = {
        {u"Go.\u00A0then go", nullptr, 0},
        {u"Go. then go", "then", 4},
        {u"Go\r\nthen.\u00A0go wnet", "wnet", 12},
    };
    dictionary("go\r\nthen\r\n");
    for (const Case& c : cases) {
        const QString written = QString::fromUtf16(c.text);
        SCOPED_TRACE(written.toStdString());
        notepad* pad = openPad(written);
        ASSERT_EQ(text(pad), written);
        if (!c.stop)
            prompts.answerMsgBox(Answer::OK);
        pad->startspell();
        frmCheck* f = checkOf(pad);
        if (!c.stop) {
            EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
            EXPECT_EQ(prompts.pending(), 0);
            continue;
        }
        EXPECT_TRUE(f->isVisible());
        EXPECT_EQ(pad->RichTextBox1()->SelStart(), c.at);
        EXPECT_EQ(selected(pad), QString::fromLatin1(c.stop));
        EXPECT_EQ(f->txtWord->text(), QString::fromLatin1(c.stop));
        f->cmdClose->click();
    }
}

TEST_F(SpellCheckTest, AddWritesAtTheNextSaveIgnoreAllNever)
{
    auto [pad, f] = startCheck("the\r\ncat\r\n", QStringLiteral("The Velloro cat qwzx the qwzx Velloro"));
    EXPECT_EQ(selected(pad), QStringLiteral("Velloro"));
    f->cmdAdd->click();
    EXPECT_TRUE(f->dirty);
    EXPECT_EQ(modMain::state().CustomWords, (QStringList{QString(), QStringLiteral("Velloro")}));
    EXPECT_EQ(selected(pad), QStringLiteral("qwzx"));
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\ncat\r\n")) << "nothing is written before the window goes";

    // Ignore All lets both words pass; the finish unloads the window, which saves the addition only.
    prompts.answerMsgBox(Answer::OK);
    f->cmdIgnoreAll->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\ncat\r\nVelloro\r\n"));

    // The tree of the moment still knows "qwzx"; the dirty flag stays, so the next unload
    // appends the same words again.
    prompts.answerMsgBox(Answer::OK);
    pad->RichTextBox1()->setSelStart(0);
    pad->startspell();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\ncat\r\nVelloro\r\nVelloro\r\n"));
}

TEST_F(SpellCheckTest, AddOfAKnownWordAndCancelledEvents)
{
    dictionary("the\r\ncat\r\n");
    auto* pad = openPad(QStringLiteral("The dgo"));
    clsSpell* checker = spellcheckerOf(pad);
    bool cancelAdd = true, cancelChange = true, cancelSave = true;
    int saves = 0;
    QObject::connect(checker, &clsSpell::BeforeAdd, [&](bool& cancel) { cancel = cancelAdd; });
    QObject::connect(checker, &clsSpell::BeforeChange, [&](bool& cancel) { cancel = cancelChange; });
    QObject::connect(checker, &clsSpell::BeforeSave, [&](bool& cancel) {
        ++saves;
        cancel = cancelSave;
    });
    pad->startspell();
    frmCheck* f = checkOf(pad);
    EXPECT_EQ(selected(pad), QStringLiteral("dgo"));
    f->cmdAdd->click();
    f->cmdChange->click();
    EXPECT_EQ(text(pad), QStringLiteral("The dgo"));
    EXPECT_EQ(selected(pad), QStringLiteral("dgo")) << "a cancelled command leaves the stop as it is";
    EXPECT_FALSE(f->dirty);

    // A word already in its bucket, exactly: the box, and the walk goes on.
    f->txtWord->setText(QStringLiteral("cat"));
    cancelAdd = false;
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    f->cmdAdd->click();
    EXPECT_TRUE(isBox(prompts.prompts().at(0), QStringLiteral("That item already exists"), -1, appTitle));
    EXPECT_EQ(prompts.prompts().at(1).text, QStringLiteral("Spell check complete"));
    EXPECT_EQ(saves, 0) << "nothing added: no save question";

    // An addition whose save a listener cancels.
    bool unused = false;
    QString word = QStringLiteral("dgo");
    f->AddItem(word, unused);
    f->ensureLoaded();
    f->cmdClose->click();
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\ncat\r\n"));
    cancelSave = false;
    f->ensureLoaded();
    f->cmdClose->click();
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\ncat\r\ndgo\r\n"));
}

TEST_F(SpellCheckTest, ANewNotepadsFirstCheckReplacesTheTreeOfAll)
{
    dictionary("the\r\n");
    auto* first = openPad(QStringLiteral("The qwzx"));
    first->startspell();
    EXPECT_EQ(selected(first), QStringLiteral("qwzx"));
    prompts.answerMsgBox(Answer::OK);
    checkOf(first)->cmdIgnoreAll->click();
    EXPECT_TRUE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("qwzx")));

    auto* second = openPad(QStringLiteral("The qwzx"));
    second->startspell();
    EXPECT_EQ(selected(second), QStringLiteral("qwzx")) << "the list was loaded again for the new checker";
    EXPECT_EQ(checkOf(second)->windowTitle(), checkTitle);
    EXPECT_NE(checkOf(second), checkOf(first));
}

TEST_F(SpellCheckTest, AMissingListDoesNothingVisible)
{
    auto* pad = openPad(QStringLiteral("The qwzx"));
    pad->startspell();  // a prompt here would fail the test
    EXPECT_TRUE(modMain::state().DictionaryMissing);
    EXPECT_FALSE(checkOf(pad)->isVisible());
    EXPECT_EQ(prompts.prompts().size(), 0);

    // Listing alternates with the flag set says so.
    frmCheck* f = checkOf(pad);
    QString word = QStringLiteral("Qwzx ");
    EXPECT_TRUE(f->ListAlternates(word));
    EXPECT_EQ(word, QStringLiteral("qwzx"));
    EXPECT_EQ(f->txtWord->text(), QStringLiteral("Qwzx "));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("Dictionary not found")});
    EXPECT_FALSE(f->lstSuggestions->isEnabled());
    QString blank = QStringLiteral("   ");
    EXPECT_FALSE(f->ListAlternates(blank));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("Dictionary not found")}) << "an empty word changes nothing else";
}

TEST_F(SpellCheckTest, ListAndReplacementFieldFollowEachOther)
{
    auto [pad, f] = startCheck("rupert\r\nrobert\r\nrivard\r\nZed\r\n", QStringLiteral("Ruport zed"));
    EXPECT_EQ(rows(f), (QStringList{QStringLiteral("rupert"), QStringLiteral("robert"), QStringLiteral("rivard")}));
    EXPECT_EQ(f->lstSuggestions->currentRow(), 0);
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("rupert"));

    // Typing selects the first row that begins so, ignoring case, and keeps what was typed.
    f->txtChangeTo->clear();
    QTest::keyClicks(f->txtChangeTo, QStringLiteral("RO"));
    EXPECT_EQ(f->lstSuggestions->currentRow(), 1);
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("RO"));
    QTest::keyClicks(f->txtChangeTo, QStringLiteral("x"));
    EXPECT_EQ(f->lstSuggestions->currentRow(), -1);
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("ROx"));

    // A click on a row copies it.
    const QRect r = f->lstSuggestions->visualItemRect(f->lstSuggestions->item(2));
    QTest::mouseClick(f->lstSuggestions->viewport(), Qt::LeftButton, {}, r.center());
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("rivard"));
    // A double click on the word copies it.
    QTest::mouseDClick(f->txtWord, Qt::LeftButton);
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("Ruport"));
    EXPECT_EQ(f->lstSuggestions->currentRow(), -1);

    // A proper noun typed small: the one right row.
    f->cmdIgnore->click();
    EXPECT_EQ(selected(pad), QStringLiteral("zed"));
    EXPECT_EQ(rows(f), QStringList{QStringLiteral("Zed")});
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("Zed"));

    // X hides the window and keeps the stop.
    f->Command2->click();
    EXPECT_FALSE(f->isVisible());
    EXPECT_TRUE(f->isFormLoaded());
    EXPECT_EQ(selected(pad), QStringLiteral("zed"));
}

TEST_F(SpellCheckTest, WindowPlaceInTheSettingsStore)
{
    auto [pad, f] = startCheck("the\r\n", QStringLiteral("The qwzx"));
    EXPECT_EQ(f->pos(), QPoint(67, 67)) << "1000 twips each by default";
    f->move(100, 200);
    f->close();  // the close box takes the unload path
    EXPECT_FALSE(f->isFormLoaded());
    {
        QSettings s(QSettings::NativeFormat, QSettings::UserScope, appTitle);
        EXPECT_EQ(s.value(QStringLiteral("WindowSettings/SpellLeft")).toInt(), 1500);
        EXPECT_EQ(s.value(QStringLiteral("WindowSettings/SpellTop")).toInt(), 3000);
    }
    pad->RichTextBox1()->setSelStart(0);
    pad->startspell();
    EXPECT_TRUE(f->isFormLoaded());
    EXPECT_EQ(f->pos(), QPoint(100, 200));
    EXPECT_TRUE(f->windowFlags() & Qt::WindowStaysOnTopHint);
    spellcheckerOf(pad)->setShowOnTop(false);
    EXPECT_FALSE(f->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(spellcheckerOf(pad)->ShowOnTop());
    EXPECT_TRUE(f->isVisible()) << "the change keeps the window shown";
}

TEST_F(SpellCheckTest, SpellCheckerMembers)
{
    dictionary("the\r\n");
    auto* pad = openPad(QStringLiteral("The qwzx"));
    clsSpell* s = spellcheckerOf(pad);
    EXPECT_EQ(s->Dictionary(), folder.path() + QStringLiteral("/dictionary.txt"));
    EXPECT_TRUE(s->ShowOnTop());
    EXPECT_TRUE(s->AllowAdd());
    s->setAllowAdd(false);
    EXPECT_FALSE(s->SpellCheckerForm()->cmdAdd->isEnabled());
    EXPECT_NE(s->WindowhWnd(), quintptr(0));
    // A window that was never given a control: the platform's box, and the program goes on.
    prompts.answerMsgBox(Answer::OK);
    s->SpellCheckerForm()->cmdIgnore->click();
    EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Run-time error '91':"))) << prompts.last().text.toStdString();

    // Only a text control will do, and the old one stays.
    s->setTextBox(pad->RichTextBox1());
    try {
        s->setTextBox(pad);
        FAIL() << "no error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, static_cast<int>(0x80041388u));
        EXPECT_EQ(e.source, QStringLiteral("Spell Checker"));
        EXPECT_EQ(e.description, QStringLiteral("Invalid TextBox object."));
    }
    EXPECT_EQ(s->TextBox(), pad->RichTextBox1());

    // An item added from outside is lower-cased; the list is saved on demand.
    s->LoadDictionary();
    s->AddCustomItem(QStringLiteral("NewWord"));
    EXPECT_TRUE(Spelling::isCorrectWord(modMain::WordTree(), QStringLiteral("NEWWORD")));
    s->SaveDictionary();
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\nnewword\r\n"));

    // A new path saves what is pending to the old one first.
    s->setDictionary(folder.file(QStringLiteral("other.txt")));
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\nnewword\r\nnewword\r\n"));
    EXPECT_EQ(s->Dictionary(), folder.file(QStringLiteral("other.txt")));
}

TEST_F(SpellCheckTest, CommandsThatStartACheck)
{
    dictionary("the\r\n");
    // No document, then a web page: the refusal.
    const QString refusal = QStringLiteral("Currently spell check does not support web pages, or there is no page open.");
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    frmMain::instance()->MenuClick(QStringLiteral("Spell Checker"));
    EXPECT_TRUE(isBox(prompts.last(), refusal, -1, QStringLiteral(":: Notepad Only ::")));
    newPage();
    SpellCheckActiveDocument();
    EXPECT_TRUE(isBox(prompts.last(), refusal, -1, QStringLiteral(":: Notepad Only ::")));
    EXPECT_EQ(prompts.pending(), 0);

    // A notepad: the menu command and the popup item start its check.
    auto* pad = openPad(QStringLiteral("The qwzx"));
    ASSERT_EQ(frmMain::instance()->ActiveForm(), pad);
    frmMain::instance()->MenuClick(QStringLiteral("Spell Checker"));
    EXPECT_EQ(selected(pad), QStringLiteral("qwzx"));
    checkOf(pad)->cmdClose->click();
    QAction* item = pad->mnu->findChild<QAction*>(QStringLiteral("spellchecker"));
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->isEnabled());
    pad->RichTextBox1()->setSelStart(0);
    item->trigger();
    EXPECT_TRUE(checkOf(pad)->isVisible());
    EXPECT_EQ(selected(pad), QStringLiteral("qwzx"));
}

TEST_F(SpellCheckTest, TheBuiltDictionaryChecksEnglish)
{
    QFile built(QStringLiteral(VELLORO_BUILT_DICTIONARY));
    ASSERT_TRUE(built.open(QIODevice::ReadOnly));
    const QByteArray bytes = built.readAll();
    EXPECT_GT(bytes.count("\r\n"), 150000) << "the larger word list, with today's words";
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n")) << "every line ends with CR LF";
    dictionary(bytes);

    auto* pad = openPad(QStringLiteral("This is a simple sentense about Paris and the world's oceans, isn't it? "
                                       "It was written in 2024 by Mr. Smith. Counterintuitive zookeepers keep "
                                       "airbags by the airlock after the breakout."));
    pad->startspell();
    frmCheck* f = checkOf(pad);
    EXPECT_EQ(selected(pad), QStringLiteral("sentense"));
    EXPECT_TRUE(rows(f).contains(QStringLiteral("sentence")));
    EXPECT_EQ(f->txtChangeTo->text(), QStringLiteral("sentence"));
    prompts.answerMsgBox(Answer::OK);
    f->cmdChange->click();
    EXPECT_EQ(prompts.last().text, QStringLiteral("Spell check complete"));
    EXPECT_TRUE(text(pad).startsWith(QStringLiteral("This is a simple sentence about Paris")));
}

TEST_F(SpellCheckTest, AReplacementThatFailsIsAStopAgain)
{
    auto [pad, f] = startCheck("the\r\ncat\r\n", QStringLiteral("The dgo cat"));
    EXPECT_EQ(selected(pad), QStringLiteral("dgo"));
    f->txtChangeTo->setText(QStringLiteral("dgoo"));
    f->cmdChange->click();
    EXPECT_EQ(text(pad), QStringLiteral("The dgoo cat"));
    EXPECT_EQ(pad->RichTextBox1()->SelStart(), 4);
    EXPECT_EQ(selected(pad), QStringLiteral("dgoo"));
    EXPECT_EQ(f->txtWord->text(), QStringLiteral("dgoo"));
}

TEST_F(SpellCheckTest, AnAdditionIsSavedWhenItsNotepadCloses)
{
    auto [pad, f] = startCheck("the\r\n", QStringLiteral("The qwzx zzyq"));
    f->cmdAdd->click();
    EXPECT_EQ(selected(pad), QStringLiteral("zzyq"));
    f->Command2->click();
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\n"));
    prompts.answerMsgBox(Answer::No);  // the notepad's save question
    EXPECT_TRUE(pad->Unload());
    processEvents();
    EXPECT_EQ(dictionaryFile(), QByteArray("the\r\nqwzx\r\n"));
}
