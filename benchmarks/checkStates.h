#pragma once

#include <QTreeWidgetItem>

/// The baseline for trees that update check states automatically: sets each item individually.
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
