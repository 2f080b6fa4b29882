#include "window/presets/plotsInTree.h"

#include <VKD_P_WidgetGraphicalOutput_Role.h>

#include <QTreeWidget>

namespace workbench {

using namespace vkd::plib::widgetgraphicaloutput;

namespace {
PlotOnPage plotOf(const QTreeWidgetItem& item)
{
    const bool isWaiting = item.data(0, WaitsForLoadCasesRole).toBool();
    return {item.data(0, IdentifierRole).toString(), item.data(0, CaptionsRole).toStringList(),
            item.checkState(0), isWaiting ? 0 : qMax(1, item.childCount())};
}
} // namespace

PlotsOnPage plotsInTree(const QTreeWidget& tree)
{
    PlotsOnPage plots;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* chapter = tree.topLevelItem(i);
        for (int j = 0; j < chapter->childCount(); ++j)
            for (int k = 0; k < chapter->child(j)->childCount(); ++k)
                plots << plotOf(*chapter->child(j)->child(k));
    }
    return plots;
}

} // namespace workbench
