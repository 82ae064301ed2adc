#pragma once

// The whole start-up sequence, without entering the event loop: every library registers its
// windows and commands, then the splash and the main window load.
void Main();
