#include "pagetools/Registration.h"

#include "pagetools/FormDesign.h"
#include "pagetools/GifLoader.h"
#include "pagetools/HelpSystem.h"
#include "pagetools/Quick.h"
#include "platform/Forms.h"

void registerPagetools()
{
    registerForm<Quick>();
    registerForm<GifLoader>();
    registerForm<HelpSystem>();
    registerForm<FormDesign>();
}
