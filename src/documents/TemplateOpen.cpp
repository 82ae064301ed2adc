#include "documents/TemplateOpen.h"

#include "documents/frmDocument.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "platform/RuntimeError.h"
#include "platform/WindowCounter.h"
#include "services/Workspace.h"

#include <QLineEdit>

namespace {
// The web page counter of the template browser's open operation.
WindowCounter templatePages;
}

DocumentWindow* OpenTemplatePage(const QString& path)
{
    // The counter's overflow is a run-time error for the caller; the rest runs under the trap.
    const int n = templatePages.next();
    auto* doc = new frmDocument;
    doc->setCaption(QStringLiteral("Document ") + QString::number(n));
    workspace().addDocument(doc);
    OnErrorExit([&] {
        doc->CodeMax1()->OpenFile(path);
        doc->tempaddress()->setText(path);
        workspace().setCaption(QStringLiteral("Velloro 2002 :: [ ") + path + QStringLiteral(" ]"));
        if (QWidget* browser = Forms::find(QStringLiteral("Templates")))
            browser->hide();
    });
    return doc;
}

QString ScriptTemplatePath(const QString& key)
{
    return App::path() + QStringLiteral("/Templates/Javascript/") + key + QStringLiteral(".htm");
}

DocumentWindow* OpenScriptTemplate(const QString& key) { return OpenTemplatePage(ScriptTemplatePath(key)); }
