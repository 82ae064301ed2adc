#include "reference/Registration.h"

void registerReference() {}
