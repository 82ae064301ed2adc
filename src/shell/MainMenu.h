#pragma once
#include <QIcon>
#include <QString>

class QMenuBar;
class QAction;
class QWidget;

// The picture of a menu key: "Options/Images/" + name + ".ico" in the application folder; a
// null icon when the file is missing.
QIcon LoadMenuIcon(const QString& name);

// The main menu built from the table. Each item's action carries its key as object name and
// data; a click runs the main window's dispatcher. Items whose window this build lacks are
// disabled, as are the items the table disables.
QMenuBar* buildMainMenu(QWidget* parent);

// Whether the dispatcher may run a key: its item is enabled and the key does something in this
// build (a branch of its own, or a window that exists).
bool menuKeyRuns(const QString& key);
