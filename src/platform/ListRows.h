#pragma once
#include <QListWidget>
#include <QStringList>

// The texts of a list box's rows, in order (a file list's names too).
inline QStringList rowsOf(const QListWidget* list)
{
    QStringList rows;
    rows.reserve(list->count());
    for (int i = 0; i < list->count(); ++i)
        rows << list->item(i)->text();
    return rows;
}
