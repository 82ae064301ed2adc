#include "sites/Registration.h"

#include "platform/Forms.h"
#include "sites/ProjAdd.h"
#include "sites/SiteManagment.h"

void registerSites()
{
    registerForm<SiteManagment>();
    registerForm<ProjAdd>();
}
