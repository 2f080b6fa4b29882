#pragma once

#include "project/output/KeptPlots.h"

#include <QHash>

class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

/// Finds captions and plots in the tree of an output page by identifier. Among items with the same
/// identifier, a caption takes precedence over its descendants, and the last plot over the others,
/// as when a page reads its saved string. The object is valid until the tree is rebuilt.
class OfferedPlots
{
public:
    explicit OfferedPlots(const QTreeWidget& tree);

    std::optional<OfferedPlot> operator()(const QString& identifier) const;

private:
    void add(const QTreeWidgetItem* parent, int level);

    QHash<QString, const QTreeWidgetItem*> m_items;
};

} // namespace workbench
