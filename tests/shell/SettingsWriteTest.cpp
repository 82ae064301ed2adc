// A settings file replaced while the writing process dies: the old or the new file remains,
// never a torn one.
#include "common/TestSupport.h"

#include "platform/TextFiles.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThread>

#include <csignal>

namespace {
const char* childPathVariable = "VELLORO_TORN_WRITE_PATH";
constexpr qsizetype bigSize = 64 * 1024 * 1024;
}

// Run by the test below in a child process: writes the big file over and over.
TEST(SettingsWrite, DISABLED_ChildWritesUntilKilled)
{
    const QString path = qEnvironmentVariable(childPathVariable);
    if (path.isEmpty())
        GTEST_SKIP() << "runs only as the child of KilledWriterLeavesOldOrNewFile";
    const QByteArray big(bigSize, 'n');
    for (;;)
        TextFiles::writeBytes(path, big);
}

TEST(SettingsWrite, KilledWriterLeavesOldOrNewFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Details.dat"));
    const QByteArray old = "0\r\n1\r\n";
    ASSERT_TRUE(TextFiles::writeBytes(path, old));

    for (int round = 0; round < 3; ++round) {
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QString::fromLatin1(childPathVariable), path);
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--gtest_also_run_disabled_tests"),
                     QStringLiteral("--gtest_filter=SettingsWrite.DISABLED_ChildWritesUntilKilled")});
        ASSERT_TRUE(child.waitForStarted());
        QThread::msleep(150 + 120 * round);
        ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
        child.waitForFinished();

        const QByteArray now = TextFiles::readBytes(path);
        const bool isOld = now == old;
        const bool isNew = now.size() == bigSize && now.count('n') == bigSize;
        EXPECT_TRUE(isOld || isNew) << "torn file of " << now.size() << " bytes in round " << round;
    }
}
