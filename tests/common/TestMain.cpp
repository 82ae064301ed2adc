#include "common/TestSupport.h"
#include "platform/Application.h"
#include "platform/Desktop.h"
#include "platform/ScriptedPrompts.h"

#include <QUrl>
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
    VelloroApplication::prepare();
    VelloroApplication app(argc, argv);
    ScriptedPrompts::setFailureHandler([](const QString& msg) { ADD_FAILURE() << msg.toStdString(); });
    // Nothing a test does may start a browser, a file manager or another program.
    refuseDesktop();
    return RUN_ALL_TESTS();
}
