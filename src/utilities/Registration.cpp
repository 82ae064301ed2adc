#include "utilities/Registration.h"

#include "platform/Forms.h"
#include "services/Commands.h"
#include "utilities/FeedBack.h"
#include "utilities/Folders.h"
#include "utilities/FullPreview.h"
#include "utilities/MailPage.h"
#include "utilities/frmUpdate.h"
#include "utilities/sourcepage.h"

void registerUtilities()
{
    registerForm<Folders>();
    registerForm<frmFolder>();
    registerForm<Execute>();
    registerForm<sourcepage>();
    registerForm<FullPreview>();
    registerForm<frmUpdate>();
    registerForm<FeedBack>();
    Commands::add(QStringLiteral("Email File"), [] { MailPage::EmailActivePage(); });
}
