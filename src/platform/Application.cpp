#include "platform/Application.h"

#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"

#include <malloc.h>

VelloroApplication::VelloroApplication(int& argc, char** argv) : QApplication(argc, argv)
{
    // Big blocks (a page's text, a table made of a large file) come straight from the system
    // and go back to it when freed. Left to itself the allocator raises this bound after the
    // first big free and keeps later big blocks in its heaps, where a freed table of a worker
    // thread stays resident beside the editor's copy.
    mallopt(M_MMAP_THRESHOLD, 1024 * 1024);
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
