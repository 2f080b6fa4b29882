#pragma once

#include "GraphicalOutputRecord.h"

#include <QTreeWidgetItem>

/// An item of the output tree: a caption, a plot, or the row of a load case under a plot. It holds
/// what a script and a stored choice need of it; text, icon and check box are the base's.
class GraphicalOutputTreeWidgetItem : public QTreeWidgetItem
{
public:
    /// Tells output items from plain ones.
    static constexpr int OutputType = UserType + 1;

    /// Unchecked, with a text.
    explicit GraphicalOutputTreeWidgetItem(const QString& text = QString());
    /// A copy of the item alone, without its place in a tree and without children.
    GraphicalOutputTreeWidgetItem(const GraphicalOutputTreeWidgetItem& other);
    GraphicalOutputTreeWidgetItem& operator=(const GraphicalOutputTreeWidgetItem&) = delete;
    ~GraphicalOutputTreeWidgetItem() override;

    /// Takes over text, icon, check state and flags. Its tree, if it is in one, hears nothing.
    void takeLook(const GraphicalOutputTreeWidgetItem& other);

    plib::GraphicalOutputRecord record; ///< of the first record that came by, or that of the plot
    qint32 isLC = -1;                   ///< negative: makes no line of the script by itself
    qint32 number = 0;                  ///< the load case of a row
    qint32 level = 0;                   ///< 0 and 1 captions, 2 plots, 3 rows
};

/// The output item that this is, or null for a plain one. The algorithms on trees find it by the
/// type of its argument, so it stands in no namespace.
inline GraphicalOutputTreeWidgetItem* outputItem(QTreeWidgetItem* item)
{
    return item->type() == GraphicalOutputTreeWidgetItem::OutputType
               ? static_cast<GraphicalOutputTreeWidgetItem*>(item)
               : nullptr;
}
