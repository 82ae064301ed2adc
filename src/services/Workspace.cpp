#include "services/Workspace.h"

#include "platform/Forms.h"
#include "platform/RuntimeError.h"

namespace {
const QString mainWindowName = QStringLiteral("frmMain");

Workspace* asWorkspace(QWidget* w) { return dynamic_cast<Workspace*>(w); }
}

DocumentEvents& DocumentEvents::instance()
{
    static DocumentEvents events;
    return events;
}

Workspace& workspace()
{
    Workspace* w = asWorkspace(Forms::get(mainWindowName));
    if (!w)
        throw RuntimeError::objectRequired(mainWindowName);
    return *w;
}

Workspace* loadedWorkspace() { return asWorkspace(Forms::find(mainWindowName)); }

DocumentWindow* ActiveForm()
{
    // Asking must not start the main window: before it is loaded there is no document.
    Workspace* w = loadedWorkspace();
    return w ? w->ActiveForm() : nullptr;
}

DocumentWindow* ActiveDocument()
{
    DocumentWindow* doc = ActiveForm();
    if (!doc)
        throw RuntimeError::objectNotSet(QStringLiteral("ActiveForm"));
    return doc;
}

void setStatusText(int panel, const QString& text)
{
    if (Workspace* w = loadedWorkspace())
        w->setStatusText(panel, text);
}
