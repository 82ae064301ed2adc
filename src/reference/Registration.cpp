#include "reference/Registration.h"

#include "platform/Forms.h"
#include "reference/sidebar.h"

void registerReference() { registerForm<sidebar>(); }
