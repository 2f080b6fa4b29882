#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <QTreeWidgetItem>

/// An item of the output tree: a caption, a plot, or the row of a load case under a plot. It stores
/// the data for the script and for the stored choice; the base class stores text, icon and check
/// state.
class GraphicalOutputTreeWidgetItem : public QTreeWidgetItem
{
public:
    /// The item type that distinguishes output items from plain ones.
    static constexpr int OutputType = UserType + 1;

    /// Creates an unchecked item with a text.
    explicit GraphicalOutputTreeWidgetItem(const QString& text = QString());
    /// Creates an item with the look of another one, see takeLook().
    explicit GraphicalOutputTreeWidgetItem(const QTreeWidgetItem& look);
    GraphicalOutputTreeWidgetItem(const GraphicalOutputTreeWidgetItem&) = delete;
    GraphicalOutputTreeWidgetItem& operator=(const GraphicalOutputTreeWidgetItem&) = delete;
    ~GraphicalOutputTreeWidgetItem() override;

    /// Copies text, icon, check state and flags. The tree of this item, if any, is not notified.
    void takeLook(const QTreeWidgetItem& other);

    plib::GraphicalOutputRecord record; ///< captions: of the first plot; rows: of the plot
    qint32 isLC = -1;                   ///< negative: the item has no script line of its own
    qint32 number = 0;                  ///< the load case of a row
    qint32 level = 0;                   ///< 0 and 1 captions, 2 plots, 3 rows
};

/// Returns the item as an output item, or null for a plain one. The tree algorithms find this
/// function by argument-dependent lookup, so it is not in a namespace.
inline GraphicalOutputTreeWidgetItem* outputItem(QTreeWidgetItem* item)
{
    return item->type() == GraphicalOutputTreeWidgetItem::OutputType
               ? static_cast<GraphicalOutputTreeWidgetItem*>(item)
               : nullptr;
}
