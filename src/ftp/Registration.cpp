#include "ftp/Registration.h"

#include "documents/CodeDocumentWindow.h"
#include "ftp/ftpUsers.h"
#include "ftp/ftpadvanced.h"
#include "ftp/ftpnormal.h"
#include "platform/Forms.h"
#include "services/Workspace.h"

#include <QFileInfo>

void registerFtp()
{
    registerForm<ftpUsers>();
    registerForm<ftpnormal>();
    registerForm<ftpadvanced>();
    // A saved page's upload button queues its file and brings the upload window up.
    QObject::connect(&DocumentEvents::instance(), &DocumentEvents::documentAdded, [](DocumentWindow* doc) {
        if (auto* page = qobject_cast<CodeDocumentWindow*>(doc))
            QObject::connect(page, &CodeDocumentWindow::uploadRequested, page, [](const QString& path) {
                ftpnormal* n = form<ftpnormal>();
                n->addFile(QFileInfo(path).fileName(), path);
                n->show();
                n->raise();
            });
    });
}
