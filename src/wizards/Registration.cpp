#include "wizards/Registration.h"

#include "platform/Forms.h"
#include "wizards/emailform.h"
#include "wizards/lineform.h"
#include "wizards/pageproperties.h"

void registerWizards()
{
    registerForm<lineform>();
    registerForm<emailform>();
    registerForm<pageproperties>();
}
