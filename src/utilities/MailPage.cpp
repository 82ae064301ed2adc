#include "utilities/MailPage.h"

#include "documents/DocumentWindow.h"
#include "platform/Desktop.h"
#include "platform/Prompts.h"
#include "services/Workspace.h"

#include <QLineEdit>

namespace MailPage {
QStringList mailArguments(const QString& to, const QString& subject, const QString& body, const QString& attachment)
{
    return {QStringLiteral("--utf8"), QStringLiteral("--subject"), subject, QStringLiteral("--body"), body,
            QStringLiteral("--attach"), attachment, to};
}

void EmailActivePage()
{
    DocumentWindow* doc = ActiveForm();
    if (!doc) {
        MsgBox(QStringLiteral("No Active document open to email."), Style::Critical);
        return;
    }
    const QString path = doc->tempaddress()->text();
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("The current open webpage hasnt been saved yet."), Style::Critical);
        return;
    }
    Desktop::startProgram(QStringLiteral("xdg-email"),
                          mailArguments(placeholderRecipient, QStringLiteral("File Attachment"),
                                        QStringLiteral("Find my webpage attached ..."), path));
}
}
