#pragma once
#include "reference/ReferenceData.h"

#include <QString>
#include <Qt>

class QFrame;
class QTableWidget;
class QTreeWidget;
class QWidget;

// The three reference panels of the main window's left holder. Each is built filled and
// working; the main window only places it and switches it on and off with the others.

// `frlibrary`: the reference tree `TreeView1`, the chosen code `Text1` and `Command3` "Insert".
QFrame* createLibraryPanel(QWidget* parent);
// `frjavascript`: the script list `JavaList`, the hidden chosen key `javatext` and `Command5`,
// which opens the chosen script page.
QFrame* createScriptPanel(QWidget* parent);
// `frchr`: the character grid `Flex`, the chosen code `Text2` and `Command4` "Insert".
QFrame* createCharacterPanel(QWidget* parent);

// Where a tree item keeps its node's key and image number.
inline constexpr int NodeKeyRole = Qt::UserRole;
inline constexpr int NodeImageRole = Qt::UserRole + 1;

// The pieces the panels share with the sidebar, which shows the same kinds of lists.
// A code tree as the panels show it: no header, one column, scrolling sideways.
QTreeWidget* newReferenceTree(const QString& name, QWidget* parent);
// The character grid `Flex`, filled: three columns, whole rows chosen, nothing editable.
QTableWidget* newCharacterGrid(QWidget* parent);
// The code column of a grid row: what the grid inserts.
QString characterCode(const QTableWidget* grid, int row);
// The text at the caret, under the trap that makes a failure silent: a notepad, which has no
// code editor, or no document at all.
void insertSilently(const QString& text);

// Clears a tree and fills it with the nodes in their order, opening the branches marked so.
// The sidebar fills its own tree with this too.
void fillTree(QTreeWidget* tree, const QList<ReferenceData::Node>& nodes);
// Clears the character grid and fills it with the table's rows; the first row is current.
void fillCharacterGrid(QTableWidget* grid);
