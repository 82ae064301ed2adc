#pragma once
#include <QString>
#include <QStringList>

// The page by e-mail: a new mail in the desktop's mail program with the saved page attached,
// for the user to address and send.
namespace MailPage {
// The address the new mail starts with, for the user to replace.
inline const QString placeholderRecipient = QStringLiteral("someone@example.com");
// The desktop's mail command line (xdg-email) for a new mail.
QStringList mailArguments(const QString& to, const QString& subject, const QString& body, const QString& attachment);
// "Email File": the active document's saved file in a new mail, or the reason why not.
void EmailActivePage();
}
