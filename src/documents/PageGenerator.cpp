#include "documents/PageGenerator.h"

#include "documents/PageText.h"
#include "documents/frmDocument.h"
#include "documents/frmsplit.h"
#include "platform/CheckValue.h"
#include "platform/CodeMax.h"
#include "platform/WindowCounter.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QLineEdit>

namespace {
// The generator's own counters: generated page, start-up page, split page.
WindowCounter generatedPages, startupPages, splitPages;

template <class Window>
Window* newPageWindow(WindowCounter& counter)
{
    const int n = counter.next();
    auto* doc = new Window;
    doc->setCaption(QStringLiteral("Document ") + QString::number(n));
    frmMain::instance()->addDocument(doc);
    return doc;
}

PageText::Fields startupFields()
{
    Startup* s = form<Startup>();
    PageText::Fields f;
    f.title = s->title->text();
    f.Text3 = s->Text3->text();
    f.Text4 = s->Text4->text();
    f.Text1 = s->Text1->text();
    f.Text7 = s->Text7->text();
    f.Text8 = s->Text8->text();
    f.Text9 = s->Text9->text();
    f.Text10 = s->Text10->text();
    f.Combo7 = s->Combo7->currentText();
    f.Combo8 = s->Combo8->currentText();
    f.Combo9 = s->Combo9->currentText();
    f.Combo10 = s->Combo10->currentText();
    return f;
}

// The steps after the text went in: the start screen hides and forgets its sound tag, and
// the new window takes the title as its caption.
void finishGeneratedPage(DocumentWindow* doc, const QString& title)
{
    Startup* s = form<Startup>();
    s->hide();
    s->Text1->clear();
    frmMain::instance()->setDocumentCaption(title);
    doc->tempaddress()->clear();
    doc->setCaption(title);
}
}

void PrepareSoundTag()
{
    Startup* s = form<Startup>();
    s->Text1->setText(PageText::soundTag(s->mlocation->text(), s->mloop->text(), s->Text1->text()));
    GenerateWebPage();
}

void GenerateWebPage()
{
    auto* doc = newPageWindow<frmDocument>(generatedPages);
    const PageText::Fields fields = startupFields();
    const bool styled = checkValue(form<Startup>()->CSS) != 0;
    doc->CodeMax1()->setText(styled ? PageText::styledPage(fields) : PageText::plainPage(fields));
    finishGeneratedPage(doc, fields.title);
    if (DocumentWindow* active = frmMain::instance()->ActiveForm())
        active->setWindowState(2);
}

void GenerateSplitPage()
{
    auto* doc = newPageWindow<frmsplit>(splitPages);
    const PageText::Fields fields = startupFields();
    doc->CodeMax1()->setText(PageText::plainPage(fields));
    finishGeneratedPage(doc, fields.title);
}

void CreateStartupPage()
{
    auto* doc = newPageWindow<frmDocument>(startupPages);
    doc->CodeMax1()->setText(PageText::startupPage());
    frmMain* main = frmMain::instance();
    if (DocumentWindow* active = main->ActiveForm())
        active->setWindowState(2);
    main->setStatusText(1, QStringLiteral("Page Loaded ::  New Page"));
    main->setDocumentCaption(QStringLiteral("New Page"));
}
