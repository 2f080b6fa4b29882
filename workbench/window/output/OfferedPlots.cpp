#include "window/output/OfferedPlots.h"

#include <VKD_P_WidgetGraphicalOutput_Role.h>

#include <QTreeWidget>

namespace workbench {

using namespace vkd::plib::widgetgraphicaloutput;

OfferedPlots::OfferedPlots(const QTreeWidget& tree)
{
    add(tree.invisibleRootItem(), 0);
}

void OfferedPlots::add(const QTreeWidgetItem* parent, int level)
{
    for (int i = parent->childCount() - 1; i >= 0; --i) {
        const QTreeWidgetItem* item = parent->child(i);
        const QString identifier = item->data(0, IdentifierRole).toString();
        if (!m_items.contains(identifier))
            m_items.insert(identifier, item);
        if (level < PlotLevel)
            add(item, level + 1);
    }
}

std::optional<OfferedPlot> OfferedPlots::operator()(const QString& identifier) const
{
    const QTreeWidgetItem* item = m_items.value(identifier);
    if (!item)
        return std::nullopt;
    OfferedPlot plot{item->checkState(0) == Qt::Checked, {}};
    for (int i = 0; i < item->childCount(); ++i)
        if (const QVariant number = item->child(i)->data(0, LoadCaseRole); number.isValid())
            plot.numbers << number.toInt();
    return plot;
}

} // namespace workbench
