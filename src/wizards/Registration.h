#pragma once

// The insertion wizards, each under its name; the menu, the bars and the context menus find
// them through the table of keys to windows.
void registerWizards();
