#pragma once

// The spell checker: every new notepad gets its own checker, and "Spell Checker" checks the
// active notepad.
void registerSpelling();
