#include "shell/MainMenu.h"

#include "platform/EventProcedure.h"
#include "platform/Forms.h"
#include "platform/Look.h"
#include "services/Commands.h"
#include "shell/MenuCommands.h"
#include "shell/MenuTable.h"
#include "shell/frmMain.h"

#include <QHash>
#include <QMenu>
#include <QMenuBar>

namespace {
// The keys that open a submenu although no item hangs below them.
bool opensSubmenu(const MenuEntry& e)
{
    return e.key == QLatin1String("Web") || !menuChildren(e.key).isEmpty();
}

QKeySequence shortcutOf(const MenuEntry& e)
{
    if (e.shortcut == 0)
        return {};
    // Function keys start at code 112; letters are their own codes.
    const int key = e.shortcut >= 112 && e.shortcut <= 123 ? Qt::Key_F1 + (e.shortcut - 112) : e.shortcut;
    return QKeySequence(QKeyCombination(Qt::ControlModifier, Qt::Key(key)));
}

void fill(QMenu* menu, const QString& parentKey, QHash<QKeySequence, bool>& taken, int depth)
{
    // A submenu that names itself again would never end.
    if (depth > 8)
        return;
    for (const MenuEntry& e : menuChildren(parentKey)) {
        if (!e.visible)
            continue;
        if (e.style == 4 && !menu->isEmpty())
            menu->addSeparator();
        QAction* action = nullptr;
        if (opensSubmenu(e)) {
            QMenu* sub = menu->addMenu(e.caption);
            sub->setObjectName(e.key);
            action = sub->menuAction();
            fill(sub, e.key, taken, depth + 1);
            sub->setEnabled(e.enabled && !sub->isEmpty());
        } else {
            action = menu->addAction(e.caption);
            const QString key = e.key;
            QObject::connect(action, &QAction::triggered, action,
                             Event([key] { frmMain::instance()->MenuClick(key); }));
            action->setEnabled(menuKeyRuns(key));
            // One item per key combination: the first in the menu's order has it.
            const QKeySequence seq = shortcutOf(e);
            if (!seq.isEmpty() && !taken.contains(seq)) {
                taken.insert(seq, true);
                action->setShortcut(seq);
            }
        }
        action->setObjectName(e.key);
        action->setData(e.key);
        if (e.picture)
            action->setIcon(LoadMenuIcon(e.key));
    }
}
}

QIcon LoadMenuIcon(const QString& name) { return Look::menuIcon(name); }

bool menuKeyRuns(const QString& key)
{
    if (const MenuEntry* e = menuEntry(key); e && !e->enabled)
        return false;
    return Commands::available(key);
}

QMenuBar* buildMainMenu(QWidget* parent)
{
    auto* bar = new QMenuBar(parent);
    bar->setObjectName(QStringLiteral("SmartMenuXP1"));
    QHash<QKeySequence, bool> taken;
    for (const MenuEntry& top : menuChildren(QString())) {
        QMenu* menu = bar->addMenu(top.caption);
        menu->setObjectName(top.key);
        menu->menuAction()->setObjectName(top.key);
        menu->menuAction()->setData(top.key);
        fill(menu, top.key, taken, 0);
    }
    return bar;
}
