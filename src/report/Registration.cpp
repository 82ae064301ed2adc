#include "report/Registration.h"

#include "documents/CodeDocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "report/frmReport.h"
#include "services/Commands.h"
#include "services/Workspace.h"

void registerReport()
{
    registerForm<frmReport>();
    // A page's report button hands over its text, and the window comes up with it.
    QObject::connect(&DocumentEvents::instance(), &DocumentEvents::documentAdded, [](DocumentWindow* doc) {
        if (auto* page = qobject_cast<CodeDocumentWindow*>(doc))
            QObject::connect(page, &CodeDocumentWindow::reportRequested, page, [](const QString& text) {
                form<frmReport>()->CodeMax1->setText(text);
                showForm(QStringLiteral("frmReport"));
            });
    });
}
