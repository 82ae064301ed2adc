#pragma once
#include <QString>

// The whole start-up sequence, without entering the event loop.
void Main();
// The long step behind the splash, run by the main window's load.
void InitialiseApplication();
// Shut-down: every form from the last down, each document asking its save question. Stops
// when a window refuses to close; false then.
bool CloseAllWindows();
// Shows a single window by name.
void showForm(const QString& name);
