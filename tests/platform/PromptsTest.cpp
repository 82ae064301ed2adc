// Scripted prompts, and the program-wide net that turns an unguarded run-time error into the
// platform's box instead of ending the process.
#include "common/TestSupport.h"

#include "platform/Prompts.h"
#include "platform/EventProcedure.h"
#include "platform/RuntimeError.h"
#include "platform/ScriptedPrompts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {
// Captures the failures of unexpected prompts for the length of one test, then hands them
// back to GoogleTest.
class CapturedFailures {
public:
    CapturedFailures()
    {
        ScriptedPrompts::setFailureHandler([this](const QString& m) { messages.append(m); });
    }
    ~CapturedFailures()
    {
        ScriptedPrompts::setFailureHandler([](const QString& m) { ADD_FAILURE() << m.toStdString(); });
    }
    QStringList messages;
};

// An object whose event handler fails the way an unguarded procedure does.
class Failing : public QObject {
public:
    explicit Failing(std::function<void()> fail) : fail(std::move(fail)) {}
    int seen = 0;
    bool event(QEvent* e) override
    {
        if (e->type() == QEvent::User) {
            ++seen;
            fail();
            return true;
        }
        return QObject::event(e);
    }

private:
    std::function<void()> fail;
};

class Counting : public QObject {
public:
    int seen = 0;
    bool event(QEvent* e) override
    {
        if (e->type() == QEvent::User) {
            ++seen;
            return true;
        }
        return QObject::event(e);
    }
};

class PromptsTest : public ::testing::Test {
protected:
    ScriptedPrompts prompts;
};

const QString typeMismatchBox = QStringLiteral("Run-time error '13':\n\nType mismatch");
}

TEST_F(PromptsTest, RecordsEveryPromptAndAnswersInOrder)
{
    prompts.answerMsgBox(Answer::Yes)
        .answerMsgBox(Answer::No)
        .answerInput(QStringLiteral("typed"))
        .answerMsgBox(Answer::Cancel);
    EXPECT_EQ(prompts.pending(), 4);

    EXPECT_EQ(MsgBox(QStringLiteral("Would you like to save the page?"), 51, QStringLiteral(":: Velloro 2002 ::")),
              Answer::Yes);
    EXPECT_EQ(prompts.pending(), 3);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("MsgBox"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Would you like to save the page?"),
                      51, QStringLiteral(":: Velloro 2002 ::")));

    EXPECT_EQ(MsgBox(QStringLiteral("Second"), 4, QStringLiteral(":: Two ::")), Answer::No);
    EXPECT_EQ(InputBox(QStringLiteral("Enter a name"), QStringLiteral(":: Text Input ::")), QStringLiteral("typed"));
    EXPECT_EQ(prompts.last().kind, QStringLiteral("InputBox"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Enter a name"), -1, QStringLiteral(":: Text Input ::")));
    EXPECT_EQ(MsgBox(QStringLiteral("Third"), 1, QStringLiteral("t")), Answer::Cancel);
    EXPECT_EQ(prompts.pending(), 0);

    ASSERT_EQ(prompts.prompts().size(), 4);
    EXPECT_EQ(prompts.prompts()[0].text, QStringLiteral("Would you like to save the page?"));
    EXPECT_TRUE(isBox(prompts.prompts()[1], QStringLiteral("Second"), 4, QStringLiteral(":: Two ::")));
    EXPECT_EQ(prompts.prompts()[2].kind, QStringLiteral("InputBox"));
    EXPECT_EQ(prompts.prompts()[3].text, QStringLiteral("Third"));
}

TEST_F(PromptsTest, FileFolderColourAndFontPromptsAreAnsweredFromTheScript)
{
    QFont courier(QStringLiteral("Courier New"), 14);
    prompts.answerOpenFile(QStringLiteral("/tmp/page.htm"))
        .answerSaveFile(QString())
        .answerFolder(QStringLiteral("/tmp/site"))
        .answerColour(0x0000FF)
        .answerColour(std::nullopt)
        .answerFont(courier)
        .answerFont(std::nullopt);

    EXPECT_EQ(::prompts().openFile(QStringLiteral("Open"), QStringLiteral("HTML (*.htm)"), QString()),
              QStringLiteral("/tmp/page.htm"));
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(prompts.last().title, QStringLiteral("Open"));
    EXPECT_EQ(::prompts().saveFile(QStringLiteral("Save As"), QString(), QString()), QString()) << "cancelled";
    EXPECT_EQ(prompts.last().kind, QStringLiteral("SaveFile"));
    EXPECT_EQ(::prompts().folder(QStringLiteral("Pick"), QStringLiteral("/")), QStringLiteral("/tmp/site"));
    EXPECT_EQ(prompts.last().kind, QStringLiteral("Folder"));

    const std::optional<int> red = ::prompts().colour(0);
    ASSERT_TRUE(red.has_value());
    EXPECT_EQ(*red, 0x0000FF);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("Colour"));
    EXPECT_FALSE(::prompts().colour(0).has_value()) << "cancelled";

    const std::optional<QFont> f = ::prompts().font(QFont());
    ASSERT_TRUE(f.has_value());
    EXPECT_EQ(f->family(), QStringLiteral("Courier New"));
    EXPECT_EQ(f->pointSize(), 14);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("Font"));
    EXPECT_FALSE(::prompts().font(QFont()).has_value()) << "cancelled";
    EXPECT_EQ(prompts.pending(), 0);
    EXPECT_EQ(prompts.prompts().size(), 7);
}

TEST_F(PromptsTest, EmptyTitleIsTheApplicationTitle)
{
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK).answerInput(QStringLiteral("x"));
    MsgBox(QStringLiteral("Plain"));
    EXPECT_EQ(prompts.last().title, QStringLiteral("Velloro 2002"));
    EXPECT_EQ(prompts.last().style, 0);
    MsgBox(QStringLiteral("Styled"), 64, QString());
    EXPECT_EQ(prompts.last().title, QStringLiteral("Velloro 2002"));
    EXPECT_EQ(prompts.last().style, 64);
    InputBox(QStringLiteral("Name?"));
    EXPECT_EQ(prompts.last().title, QStringLiteral("Velloro 2002"));
}

TEST_F(PromptsTest, UnexpectedPromptReachesTheFailureHandler)
{
    {
        CapturedFailures failures;
        const int answer = MsgBox(QStringLiteral("Nobody expects this"), 16, QStringLiteral(":: Oops ::"));
        ASSERT_EQ(failures.messages.size(), 1);
        EXPECT_TRUE(failures.messages[0].contains(QStringLiteral("Nobody expects this")))
            << failures.messages[0].toStdString();
        EXPECT_NE(answer, Answer::OK) << "an unexpected box is not silently confirmed";
        // It is still recorded, so the test can tell what came up.
        EXPECT_EQ(prompts.last().text, QStringLiteral("Nobody expects this"));

        // An answer of another kind is not spent on the wrong prompt.
        prompts.answerInput(QStringLiteral("for the input box"));
        MsgBox(QStringLiteral("Wrong kind"));
        EXPECT_EQ(failures.messages.size(), 2);
        EXPECT_TRUE(failures.messages[1].contains(QStringLiteral("Wrong kind")));
        EXPECT_EQ(prompts.pending(), 1);
        EXPECT_EQ(InputBox(QStringLiteral("Now")), QStringLiteral("for the input box"));
        EXPECT_EQ(failures.messages.size(), 2);
    }
    // The GoogleTest handler is back: an expected prompt raises nothing.
    prompts.answerMsgBox(Answer::OK);
    EXPECT_EQ(MsgBox(QStringLiteral("fine")), Answer::OK);
}

TEST_F(PromptsTest, NestedScriptsTakeOverAndHandBack)
{
    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    MsgBox(QStringLiteral("to the outer"));
    {
        ScriptedPrompts inner;
        EXPECT_EQ(&::prompts(), &inner);
        inner.answerMsgBox(Answer::Retry);
        EXPECT_EQ(MsgBox(QStringLiteral("to the inner"), 5), Answer::Retry);
        EXPECT_EQ(inner.prompts().size(), 1);
        {
            ScriptedPrompts innermost;
            innermost.answerMsgBox(Answer::Ignore);
            EXPECT_EQ(MsgBox(QStringLiteral("to the innermost"), 2), Answer::Ignore);
        }
        EXPECT_EQ(&::prompts(), &inner) << "the innermost script handed back to the inner one";
        inner.answerMsgBox(Answer::Abort);
        EXPECT_EQ(MsgBox(QStringLiteral("inner again"), 2), Answer::Abort);
        EXPECT_EQ(inner.prompts().size(), 2);
    }
    EXPECT_EQ(&::prompts(), &prompts);
    EXPECT_EQ(MsgBox(QStringLiteral("outer again")), Answer::OK);
    ASSERT_EQ(prompts.prompts().size(), 2);
    EXPECT_EQ(prompts.prompts()[0].text, QStringLiteral("to the outer"));
    EXPECT_EQ(prompts.prompts()[1].text, QStringLiteral("outer again"));
}

TEST_F(PromptsTest, UnguardedRunTimeErrorShowsThePlatformBoxAndTheProgramGoesOn)
{
    Failing failing([] { throw RuntimeError(13, QStringLiteral("Type mismatch")); });
    Counting healthy;
    prompts.answerMsgBox(Answer::OK);

    QEvent first(QEvent::User);
    EXPECT_NO_THROW(QCoreApplication::sendEvent(&failing, &first));
    EXPECT_EQ(failing.seen, 1);
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("MsgBox"));
    EXPECT_TRUE(isBox(prompts.last(), typeMismatchBox, 16, QStringLiteral("Velloro 2002")));

    // The program goes on: other objects get their events, and the failing one fails again
    // with a box of its own the next time.
    QEvent next(QEvent::User);
    QCoreApplication::sendEvent(&healthy, &next);
    EXPECT_EQ(healthy.seen, 1);
    EXPECT_EQ(prompts.prompts().size(), 1);

    prompts.answerMsgBox(Answer::OK);
    QEvent again(QEvent::User);
    EXPECT_NO_THROW(QCoreApplication::sendEvent(&failing, &again));
    EXPECT_EQ(prompts.prompts().size(), 2);
    EXPECT_EQ(prompts.last().text, typeMismatchBox);
}

TEST_F(PromptsTest, NetCatchesFailuresInQueuedEventsAndTheLoopKeepsRunning)
{
    Failing failing([] { throw RuntimeError::invalidCall(); });
    Counting healthy;
    prompts.answerMsgBox(Answer::OK);

    QCoreApplication::postEvent(&failing, new QEvent(QEvent::User));
    QCoreApplication::postEvent(&healthy, new QEvent(QEvent::User));
    bool timerRan = false;
    QTimer::singleShot(0, &healthy, [&timerRan] { timerRan = true; });
    EXPECT_NO_THROW(QCoreApplication::processEvents());
    QCoreApplication::processEvents();

    EXPECT_EQ(failing.seen, 1);
    EXPECT_EQ(healthy.seen, 1) << "the event queued behind the failure was still delivered";
    EXPECT_TRUE(timerRan);
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("Run-time error '5':\n\nInvalid procedure call or argument"), 16));
}

TEST_F(PromptsTest, NetCatchesAFailingClickHandler)
{
    // A user's click on a button whose event procedure fails unguarded.
    QPushButton button(QStringLiteral("Go"));
    button.setObjectName(QStringLiteral("Command1"));
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, Event([&clicks] {
        ++clicks;
        throw RuntimeError(13, QStringLiteral("Type mismatch"));
    }));
    button.resize(80, 24);
    button.show();

    auto click = [&button] {
        const QPointF at(10, 10);
        const QPointF global = button.mapToGlobal(at);
        QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &press);
        QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &release);
    };

    prompts.answerMsgBox(Answer::OK).answerMsgBox(Answer::OK);
    EXPECT_NO_THROW(click());
    EXPECT_EQ(clicks, 1);
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_TRUE(isBox(prompts.last(), typeMismatchBox, 16));

    // The same button can be used again afterwards.
    EXPECT_NO_THROW(click());
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(prompts.prompts().size(), 2);
}
