#pragma once
#include <QList>
#include <QString>
#include <functional>
#include <utility>

// The program's commands by key: the main menu, the button bars and the context menus all run
// a key here. A key runs its own registered branch or, failing that, shows the window that the
// one table of keys to windows names for it; an unknown key does nothing.
namespace Commands {
using Command = std::function<void()>;

// Registers the branch of a key; a key is registered once (the first registration holds).
void add(const QString& key, Command command);
bool has(const QString& key);
// Runs the branch of a key as it stands: a run-time error goes to the caller.
void run(const QString& key);
// Runs a key the way a click on a menu item or button does: a key that does nothing in this
// build does nothing, and a run-time error ends the command without a word. Saving alone says
// its own words: its failures go to the caller.
void click(const QString& key);
// Whether the key does something in this build: a key that names a window needs that window
// (whatever steps its branch takes first); any other key needs a branch of its own.
bool available(const QString& key);

// The window a key shows, or "" for keys of another kind.
QString windowOf(const QString& key);
// Every key that shows a window, with that window's name, in the table's order.
QList<std::pair<QString, QString>> windowKeys();

}

// Shows a single window by its name: created and loaded on first touch, then raised.
void showForm(const QString& name);
