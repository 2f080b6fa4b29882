#pragma once

#include <QTreeWidgetItem>

/// The baseline of trees whose states follow each other: each item is set on its own.
inline void setAll(QTreeWidgetItem* item, Qt::CheckState state)
{
    item->setCheckState(0, state);
    for (int i = 0; i < item->childCount(); ++i)
        setAll(item->child(i), state);
}

inline Qt::CheckState other(Qt::CheckState state)
{
    return state == Qt::Checked ? Qt::Unchecked : Qt::Checked;
}
