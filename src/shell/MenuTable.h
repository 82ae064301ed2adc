#pragma once
#include <QList>
#include <QString>

// One item of the main menu as the start-up creates it. Items with an empty parent are the
// menu bar's titles; the others hang below the item whose key equals their parent key, letter
// case aside ("keyFile" and "KeyFile" name the same menu).
struct MenuEntry {
    QString parent;
    QString key;
    bool picture = true;  // loaded from "Options/Images/" + key + ".ico"
    QString caption;
    int style = 2;        // 2 plain, 4 with a separator above, 0 the help group
    int shortcut = 0;     // a virtual key code, used with Ctrl; 0 none
    int flag = 0;
    bool enabled = true;
    bool visible = true;
};

// The whole menu, in the order the items are created.
const QList<MenuEntry>& menuTable();
// The entries below one parent key, in order (the parent key compared without letter case).
QList<MenuEntry> menuChildren(const QString& parent);
// The first entry with this key, or null.
const MenuEntry* menuEntry(const QString& key);
