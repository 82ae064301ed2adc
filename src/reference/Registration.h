#pragma once

// The reference library has no window of its own yet: its panels are placed by the main window.
void registerReference();
