#include "platform/Application.h"

#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"

VelloroApplication::VelloroApplication(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(App::title());
    setOrganizationName(QStringLiteral("Velloro"));
    setApplicationVersion(App::versionNumber());
}

bool VelloroApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& e) {
        ReportRunTimeError(e);
    } catch (const std::exception& e) {
        MsgBox(QStringLiteral("Run-time error '51':\n\nInternal error (%1)").arg(QString::fromLocal8Bit(e.what())), Style::Critical, App::title());
    }
    return false;
}
