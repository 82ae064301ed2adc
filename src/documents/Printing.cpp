#include "documents/Printing.h"

#include "documents/DocumentWindow.h"
#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Workspace.h"

#include <QPrinter>

QPrinter& documentPrinter()
{
    static QPrinter printer;
    return printer;
}

void PrintDocument()
{
    DocumentWindow* doc = ActiveDocument();
    if (!doc->isNotepad())
        doc->RichTextBox1()->setText(doc->CodeMax1()->text());
    QPrinter& printer = documentPrinter();
    if (!prompts().print(printer, doc->RichTextBox1()->SelLength() != 0))
        return;
    doc->RichTextBox1()->SelPrint(&printer);
}
