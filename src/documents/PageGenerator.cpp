#include "documents/PageGenerator.h"

#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/WindowCounter.h"
#include "services/Workspace.h"

#include <QLineEdit>

namespace {
// The generator's own counters: generated page, start-up page, split page.
WindowCounter generatedPages, startupPages, splitPages, framePages;

template <class Window>
Window* newPageWindow(WindowCounter& counter)
{
    const int n = counter.next();
    auto* doc = new Window;
    doc->setCaption(QStringLiteral("Document ") + QString::number(n));
    workspace().addDocument(doc);
    return doc;
}

// The new window takes the title as its caption, and so does the main window.
void nameAfterTitle(DocumentWindow* doc, const QString& title)
{
    workspace().setDocumentCaption(title);
    doc->tempaddress()->clear();
    doc->setCaption(title);
}
}

DocumentWindow* GenerateWebPage(const PageText::Fields& fields, bool styled)
{
    auto* doc = newPageWindow<frmDocument>(generatedPages);
    doc->CodeMax1()->setText(styled ? PageText::styledPage(fields) : PageText::plainPage(fields));
    nameAfterTitle(doc, fields.title);
    if (DocumentWindow* active = ActiveForm())
        active->setWindowState(2);
    return doc;
}

DocumentWindow* GenerateSplitPage(const PageText::Fields& fields)
{
    auto* doc = newPageWindow<frmsplit>(splitPages);
    doc->CodeMax1()->setText(PageText::plainPage(fields));
    nameAfterTitle(doc, fields.title);
    return doc;
}

void GenerateFrames(FrameSetText::Layout layout, const FrameSetText::Fields& fields)
{
    const QStringList pages = FrameSetText::pages(layout, fields);
    // The second page keeps the contents caption in both layouts, though the rows call it the header.
    const QString captions[] = {QStringLiteral("Index Page"), QStringLiteral("Contents Page"), QStringLiteral("Main Page")};
    for (int i = 0; i < 3; ++i) {
        auto* doc = newPageWindow<frmDocument>(framePages);
        doc->setCaption(captions[i]);
        workspace().setDocumentCaption(captions[i]);
        doc->CodeMax1()->setText(pages[i]);
    }
    const bool columns = layout == FrameSetText::Layout::Columns;
    MsgBox(columns ? QStringLiteral("Frames Created") : QStringLiteral("Frames have been created"), Style::Information,
           columns ? QStringLiteral(":: Confirmation ::") : QStringLiteral(":: Completion ::"));
    workspace().setStatusText(1, QStringLiteral("Page Loaded :: Frames Have Been Created"));
}

void CreateStartupPage()
{
    auto* doc = newPageWindow<frmDocument>(startupPages);
    doc->CodeMax1()->setText(PageText::startupPage());
    Workspace& main = workspace();
    if (DocumentWindow* active = main.ActiveForm())
        active->setWindowState(2);
    main.setStatusText(1, QStringLiteral("Page Loaded ::  New Page"));
    main.setDocumentCaption(QStringLiteral("New Page"));
}
