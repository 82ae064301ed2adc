#pragma once

// The network and file utilities' windows.
void registerUtilities();
