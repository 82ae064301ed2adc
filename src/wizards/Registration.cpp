#include "wizards/Registration.h"

#include "platform/Forms.h"
#include "wizards/CSVWizard.h"
#include "wizards/TableWizard.h"
#include "wizards/Tableform.h"
#include "wizards/emailform.h"
#include "wizards/lineform.h"

void registerWizards()
{
    registerForm<lineform>();
    registerForm<emailform>();
    registerForm<Tableform>();
    registerForm<TableWizard>();
    registerForm<CSVWizard>();
}
