#include "documents/Registration.h"

#include "documents/OpenSave.h"
#include "documents/Openform.h"
#include "documents/PProperties.h"
#include "documents/Saveas.h"
#include "documents/Templates.h"
#include "documents/findform.h"
#include "documents/frmgoto.h"
#include "documents/tmplsave.h"
#include "platform/Forms.h"
#include "services/Commands.h"

void registerDocuments()
{
    registerForm<Openform>();
    registerForm<PProperties>();
    registerForm<Saveas>();
    registerForm<tmplsave>();
    registerForm<findform>();
    registerForm<frmgoto>();
    registerForm<Templates>();

    Commands::add(QStringLiteral("Save"), [] { MenuSave(); });
    Commands::add(QStringLiteral("Save As"), [] { MenuSaveAs(); });
    Commands::add(QStringLiteral("Create Templates"), [] { CreateTemplates(); });
    Commands::add(QStringLiteral("Quick Notepad"), [] { NewNotepad(); });
}
