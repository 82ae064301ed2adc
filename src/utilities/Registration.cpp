#include "utilities/Registration.h"

#include "platform/Forms.h"
#include "utilities/Folders.h"

void registerUtilities()
{
    registerForm<Folders>();
    registerForm<frmFolder>();
    registerForm<Execute>();
}
