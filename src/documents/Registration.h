#pragma once

// The document windows' dialogs (open, save, templates, find, go to) and the commands of open
// and save, under their names and menu keys.
void registerDocuments();
