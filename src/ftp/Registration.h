#pragma once

// The upload, advanced and profile windows, and the upload window's intake of a saved page
// whose preview bar asks for it.
void registerFtp();
