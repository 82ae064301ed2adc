// The command registry, the one table of keys to windows, and the active document service.
#include "common/TestSupport.h"

#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"
#include "services/Workspace.h"
#include "shell/MenuTable.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace {
class CommandsTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }
};
}

// A misspelt window name would leave its item greyed out for ever: every window the table names
// exists in this build, and its keys are offered.
TEST_F(CommandsTest, EveryWindowTheKeysNameExists)
{
    for (const auto& [key, window] : Commands::windowKeys()) {
        EXPECT_TRUE(Forms::hasFactory(window)) << key.toStdString() << " -> " << window.toStdString() << " exists nowhere";
        EXPECT_TRUE(Commands::available(key)) << key.toStdString();
    }
}

// A key that only shows a window is in the table and nowhere else; a branch of its own is
// left for keys that take a step first (the notepad redirect, the file chooser).
TEST_F(CommandsTest, WindowKeysHaveNoSecondRegistration)
{
    const QStringList withSteps = {QStringLiteral("Insert Text"), QStringLiteral("Insert Tabbed Text"),
                                   QStringLiteral("Insert .CSV File"), QStringLiteral("Insert TAB File")};
    for (const auto& [key, window] : Commands::windowKeys())
        EXPECT_EQ(Commands::has(key), withSteps.contains(key)) << key.toStdString();
}

TEST_F(CommandsTest, ClickRunsBranchesAndWindowsAndSwallowsFailures)
{
    // A key that shows a window.
    Commands::click(QStringLiteral("GoTo Line"));
    ASSERT_TRUE(Forms::isLoaded(QStringLiteral("frmgoto")));
    EXPECT_TRUE(Forms::find(QStringLiteral("frmgoto"))->isVisible());

    // A branch that needs a document ends quietly without one, through click; run lets the
    // run-time error through to the caller.
    ASSERT_EQ(ActiveForm(), nullptr);
    EXPECT_NO_THROW(Commands::click(QStringLiteral("Undo")));
    try {
        Commands::run(QStringLiteral("Undo"));
        ADD_FAILURE() << "no run-time error without a document";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 91);
        EXPECT_EQ(e.description, QStringLiteral("Object variable or With block variable not set"));
    }
    // An unknown key does nothing.
    EXPECT_FALSE(Commands::available(QStringLiteral("No Such Key")));
    EXPECT_NO_THROW(Commands::click(QStringLiteral("No Such Key")));
}

// One service answers for the active document, however many windows there are.
TEST_F(CommandsTest, ActiveDocumentFollowsTheMainWindow)
{
    EXPECT_EQ(ActiveForm(), nullptr);
    frmDocument* page = newPage(QStringLiteral("x"));
    EXPECT_EQ(ActiveForm(), page);
    EXPECT_EQ(ActiveDocument(), page);
    EXPECT_FALSE(page->isNotepad());
    notepad* pad = newPad();
    EXPECT_EQ(ActiveDocument(), pad);
    EXPECT_TRUE(pad->isNotepad());
    frmMain::instance()->activate(page);
    EXPECT_EQ(ActiveForm(), page);
}

// Items that would do nothing are not offered: every item of the menu is enabled exactly when
// its key leads somewhere in this build.
TEST_F(CommandsTest, MenuItemsWithoutABranchAreDisabled)
{
    int items = 0;
    for (QAction* a : frmMain::instance()->SmartMenuXP1->findChildren<QAction*>()) {
        if (a->objectName().isEmpty() || a->menu() || a->isSeparator())
            continue;
        ++items;
        EXPECT_EQ(a->isEnabled(), Commands::available(a->objectName())) << a->objectName().toStdString();
    }
    EXPECT_GT(items, 100);
    QAction* update = frmMain::instance()->SmartMenuXP1->findChild<QAction*>(QStringLiteral("Check Version"));
    ASSERT_NE(update, nullptr);
    EXPECT_TRUE(update->isEnabled()) << "the update check exists";
    QAction* line = frmMain::instance()->SmartMenuXP1->findChild<QAction*>(QStringLiteral("Horizontal Line"));
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->isEnabled()) << "the line wizard exists";
}
