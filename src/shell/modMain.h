#pragma once

// The long step behind the splash, run by the main window's load.
void InitialiseApplication();
// Shut-down: every form from the last down, each document asking its save question. Stops
// when a window refuses to close; false then.
bool CloseAllWindows();
// The shell's windows and the menu's own branches, under their names and keys. Runs after the
// features have registered theirs: a key a feature claimed keeps the feature's branch.
void registerShell();
