#include "common/TestSupport.h"
#include "platform/Application.h"
#include "platform/Desktop.h"
#include "platform/ScriptedPrompts.h"

#include <QUrl>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Headless, and a Chromium that runs as root in a container.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    ::testing::InitGoogleTest(&argc, argv);
    VelloroApplication app(argc, argv);
    ScriptedPrompts::setFailureHandler([](const QString& msg) { ADD_FAILURE() << msg.toStdString(); });
    // Nothing a test does may start a browser, a file manager or another program.
    refuseDesktop();
    // Downloads go to TEMP: a folder of this process's own, so that test programs running side
    // by side never write the same file. A child that a test starts (and may kill) makes its
    // folder inside its parent's, which the parent removes with its own.
    const QString parent = qEnvironmentVariable("VELLORO_TEST_TEMP");
    QTemporaryDir temp = parent.isEmpty() ? QTemporaryDir() : QTemporaryDir(parent + QStringLiteral("/child-XXXXXX"));
    qputenv("TEMP", temp.path().toUtf8());
    qputenv("VELLORO_TEST_TEMP", temp.path().toUtf8());
    return RUN_ALL_TESTS();
}
