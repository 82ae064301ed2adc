#pragma once

// The reference library's windows.
void registerReference();
