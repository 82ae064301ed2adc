#include "colour/Registration.h"

#include "colour/ColorQuick.h"
#include "colour/cfinderform.h"
#include "platform/Forms.h"

void registerColourTools()
{
    registerForm<cfinderform>();
    registerForm<ColorQuick>();
}
