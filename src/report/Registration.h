#pragma once

// The page report window, and its intake of the page whose preview bar asks for it.
void registerReport();
