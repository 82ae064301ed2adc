// Run-time errors and the two guards: the trap that ends a procedure, and statement-by-statement.
#include "common/QtPrinters.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <vector>

TEST(RuntimeErrorText, PlatformBoxFormat)
{
    EXPECT_EQ(runtimeErrorText(RuntimeError::typeMismatch()), QStringLiteral("Run-time error '13':\n\nType mismatch"));
    EXPECT_EQ(runtimeErrorText(RuntimeError::overflow()), QStringLiteral("Run-time error '6':\n\nOverflow"));
    EXPECT_EQ(runtimeErrorText(RuntimeError::pastEndOfFile()), QStringLiteral("Run-time error '62':\n\nInput past end of file"));
    EXPECT_EQ(runtimeErrorText(RuntimeError::invalidProperty()), QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    EXPECT_EQ(runtimeErrorText(RuntimeError::invalidCall()),
              QStringLiteral("Run-time error '5':\n\nInvalid procedure call or argument"));
    EXPECT_EQ(runtimeErrorText(RuntimeError::objectRequired()), QStringLiteral("Run-time error '424':\n\nObject required"));
    EXPECT_EQ(runtimeErrorText(RuntimeError(53, QStringLiteral("File not found"))),
              QStringLiteral("Run-time error '53':\n\nFile not found"));
}

TEST(RuntimeErrorText, NumbersSourceAndWhatAreKept)
{
    const RuntimeError e = RuntimeError::pastEndOfFile(QStringLiteral("Input #"));
    EXPECT_EQ(e.number, 62);
    EXPECT_EQ(e.source, QStringLiteral("Input #"));
    EXPECT_EQ(RuntimeError::noSuchMember(QStringLiteral("CodeMax1")).number, 438);
    EXPECT_TRUE(RuntimeError::noSuchMember(QStringLiteral("CodeMax1"))
                    .description.startsWith(QStringLiteral("Object doesn't support this property or method")));
    EXPECT_STREQ(RuntimeError::typeMismatch().what(), "Run-time error '13':\n\nType mismatch");
}

// --- The trap that ends the procedure --------------------------------------------------------

TEST(OnErrorExitGuard, EndsTheBodyAtTheFailingStatementOrReturnsTrue)
{
    std::vector<int> ran;
    const bool completed = OnErrorExit([&] {
        ran.push_back(1);
        ran.push_back(2);
        throw RuntimeError::typeMismatch();
        ran.push_back(3);  // never reached
    });
    EXPECT_FALSE(completed);
    EXPECT_EQ(ran, (std::vector<int>{1, 2}));

    // Nothing fails: true.
    int statements = 0;
    EXPECT_TRUE(OnErrorExit([&] {
        ++statements;
        ++statements;
    }));
    EXPECT_EQ(statements, 2);
}

// --- Errors ignored statement by statement ---------------------------------------------------

TEST(ResumeNextGuard, EveryStatementRunsAndFailuresAreCounted)
{
    std::vector<int> ran;
    ResumeNext r;
    r([&] { ran.push_back(1); })
     ([&] { throw RuntimeError::pastEndOfFile(); })
     ([&] { ran.push_back(3); })
     ([&] { ran.push_back(4); throw RuntimeError::overflow(); ran.push_back(-4); })
     ([&] { ran.push_back(5); });
    EXPECT_EQ(ran, (std::vector<int>{1, 3, 4, 5}));
    EXPECT_EQ(r.errors(), 2);
}

TEST(ResumeNextGuard, TestGivesTheConditionOrEntersTheBranchOnAFailure)
{
    ResumeNext r;
    EXPECT_TRUE(r.test([] { return true; }));
    EXPECT_FALSE(r.test([] { return false; }));
    EXPECT_EQ(r.errors(), 0);
    // A failing test enters the branch.
    bool branchRan = false;
    if (r.test([]() -> bool { throw RuntimeError::typeMismatch(); }))
        branchRan = true;
    EXPECT_TRUE(branchRan);
    EXPECT_EQ(r.errors(), 1);
}
