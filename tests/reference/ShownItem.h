#pragma once
#include "reference/ReferencePanels.h"

#include <QCoreApplication>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <gtest/gtest.h>

// The item of a reference tree with this key, its branches opened and scrolled into view so
// that the mouse can reach it; a failure of the test when there is none.
inline QTreeWidgetItem* shownItem(QTreeWidget* tree, const QString& key)
{
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        if ((*it)->data(0, NodeKeyRole).toString() == key) {
            for (QTreeWidgetItem* p = (*it)->parent(); p; p = p->parent())
                p->setExpanded(true);
            tree->scrollToItem(*it);
            QCoreApplication::processEvents();
            return *it;
        }
    ADD_FAILURE() << "no item " << key.toStdString();
    return nullptr;
}
