#include "window/output/checkedPlots.h"

#include <VKD_P_WidgetGraphicalOutput_Role.h>

#include <QTreeWidget>

namespace workbench {

QVector<PlotCaption> checkedPlots(QTreeWidget* tree)
{
    using namespace vkd::plib::widgetgraphicaloutput;
    constexpr auto checkedLeaves =
        QTreeWidgetItemIterator::Checked | QTreeWidgetItemIterator::NoChildren;
    QVector<PlotCaption> plots;
    const QTreeWidgetItem* last = nullptr;
    QString caption; // caption of the last plot, reused for all its rows
    for (QTreeWidgetItemIterator it(tree, checkedLeaves); *it; ++it) {
        const QVariant loadCase = (*it)->data(0, LoadCaseRole);
        const QTreeWidgetItem* plot = loadCase.isValid() ? (*it)->parent() : *it;
        if (plot->data(0, WaitsForLoadCasesRole).toBool())
            continue;
        if (plot != last)
            caption = plot->data(0, CaptionsRole).toStringList().join(QStringLiteral(" \u2013 "));
        last = plot;
        plots.append({caption, loadCase.toInt()});
    }
    return plots;
}

} // namespace workbench
