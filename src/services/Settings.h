#pragma once
#include "services/DetailsFile.h"
#include "services/PropertiesFile.h"

// The settings as values. The Options window publishes what its controls hold whenever one
// changes, and the layout file's reader its folders; every other window reads these values and
// never the controls themselves.
namespace Settings {
// The 29 settings of the Options window (the design values until it has loaded).
const DetailsRecord& details();
void setDetails(const DetailsRecord& r);

// The open and save dialogs' folders of \Options\Properties.dat (the user's home folder until
// the file is read); the dialogs give back the folders they move to.
PropertiesRecord& folders();

// The addresses the program reaches out to, from \Options\Online.ini (section [Online], one
// key a line), so that packagers and tests can point them elsewhere; the fallback where the
// file or the key is missing.
QString online(const QString& key, const QString& fallback);
// Where Update.DAT and the package Velloro.zip lie (an http or https address, no trailing "/").
QString updateServer();
// Where feedback mail goes.
QString feedbackAddress();
}
