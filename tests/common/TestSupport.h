#pragma once
#include "platform/ScriptedPrompts.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

// A throw-away application folder for one test. With copyData the shipped data/ folder is
// copied in first, so the program starts as it does for a user.
class TempAppFolder {
public:
    explicit TempAppFolder(bool copyData = true);
    QString path() const { return dir.path(); }
    QString file(const QString& relative) const { return dir.path() + QLatin1Char('/') + relative; }
    QByteArray read(const QString& relative) const;
    void write(const QString& relative, const QByteArray& bytes) const;

private:
    QTemporaryDir dir;
};

// Base fixture for window tests: a fresh application folder, scripted prompts, and every form
// destroyed at the end.
class WindowTest : public ::testing::Test {
protected:
    explicit WindowTest(bool copyData = true) : folder(copyData) {}
    void TearDown() override;
    // Lets queued events (deferred deletes, activations) run.
    static void processEvents();
    // Runs the start-up with settings that make no first page and keep the start screen
    // hidden: the main window alone, as a test of a single window wants it.
    void startWithoutPage();
    // A web page window or a notepad with this text, made the active child of the main window.
    static class frmDocument* newPage(const QString& text = {});
    static class notepad* newPad(const QString& text = {});

    TempAppFolder folder;
    ScriptedPrompts prompts;
};

// Makes every hand-over to the desktop (an address, a file, a program) fail the test: nothing a
// test does may start a browser, a file manager or another program.
void refuseDesktop();

// While it lives, the addresses handed to the desktop are recorded instead (and count as opened).
class DesktopRecorder {
public:
    DesktopRecorder();
    ~DesktopRecorder();
    QStringList opened;
};

// With VELLORO_SHOT_DIR set (run under a real display), saves a picture of the widget there as
// <name>.png, so a person can look at what a test built.
void saveShot(QWidget* w, const QString& name);

// The names of the controls the Tab key reaches in a window, in order, once round: the window is
// shown and made active, the first control of its focus chain takes the focus, and real Tab
// keys are pressed.
QStringList tabOrder(QWidget* window);

// The texts of a list's rows, top to bottom.
QStringList rows(const class QListWidget* list);

// Makes a string's line ends visible in failure messages.
std::string visible(const QString& s);

// Whether a prompt shows this text and, where given, this style and title:
// EXPECT_TRUE(isBox(prompts.last(), text, 16, title)).
::testing::AssertionResult isBox(const ScriptedPrompts::Prompt& p, const QString& text, int style = -1,
                                 const QString& title = QString());
