#pragma once

// The colour tools' windows.
void registerColourTools();
