#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <QTreeWidgetItem>

/// An item of the output tree: a caption, a plot, or the row of a load case under a plot. It stores
/// the data for the script and for the stored selection. The base class stores the text, the icon
/// and the check state.
class GraphicalOutputTreeWidgetItem : public QTreeWidgetItem
{
public:
    /// The item type that distinguishes output items from plain items.
    static constexpr int OutputType = UserType + 1;

    /// Creates an unchecked item with the given text.
    explicit GraphicalOutputTreeWidgetItem(const QString& text = QString());
    /// Creates an item with the appearance of another item (see takeLook()).
    explicit GraphicalOutputTreeWidgetItem(const QTreeWidgetItem& look);
    GraphicalOutputTreeWidgetItem(const GraphicalOutputTreeWidgetItem&) = delete;
    GraphicalOutputTreeWidgetItem& operator=(const GraphicalOutputTreeWidgetItem&) = delete;
    ~GraphicalOutputTreeWidgetItem() override;

    /// Copies the text, icon, check state and flags. If this item is in a tree, the tree is not
    /// notified.
    void takeLook(const QTreeWidgetItem& other);

    plib::GraphicalOutputRecord record; ///< record of the plot; for captions, of the first plot
    qint32 isLC = -1;                   ///< negative: the item has no script line of its own
    qint32 number = 0;                  ///< load case of a row
    qint32 level = 0;                   ///< 0 and 1: captions, 2: plots, 3: rows
};

/// Returns the item as an output item, or null for a plain item. This function must be in the
/// global namespace, so that the tree algorithms find it by argument-dependent lookup.
inline GraphicalOutputTreeWidgetItem* outputItem(QTreeWidgetItem* item)
{
    return item->type() == GraphicalOutputTreeWidgetItem::OutputType
               ? static_cast<GraphicalOutputTreeWidgetItem*>(item)
               : nullptr;
}

/// These functions exist for OutputNode, too, so that the tree algorithms work with both classes.
inline const plib::GraphicalOutputRecord& recordOf(const GraphicalOutputTreeWidgetItem* item)
{
    return item->record;
}

inline void setRecord(GraphicalOutputTreeWidgetItem* item,
                      const plib::GraphicalOutputRecord& record)
{
    item->record = record;
}
