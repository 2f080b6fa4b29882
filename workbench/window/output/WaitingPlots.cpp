#include "window/output/WaitingPlots.h"

#include "window/output/PlotNames.h"

#include <QTreeWidget>

namespace workbench {

namespace {
QStringList captionsOf(const QTreeWidgetItem* plot)
{
    const QTreeWidgetItem* second = plot->parent();
    return {second->parent()->text(0), second->text(0), plot->text(0)};
}
} // namespace

WaitingPlots::WaitingPlots(QTreeWidget* tree, const PlotNames& names)
    : m_tree(tree)
    , m_names(names)
{
    learnAll();
    QObject::connect(
        tree->model(), &QAbstractItemModel::rowsInserted, tree,
        [this](const QModelIndex& parent, int first, int last) { learn(parent, first, last); });
}

bool WaitingPlots::contains(const QTreeWidgetItem* plot) const
{
    const QStringList captions = captionsOf(plot);
    return plot->childCount() == 0 && m_waiting.contains(captions) && !m_alone.contains(captions);
}

void WaitingPlots::learnAll()
{
    const QAbstractItemModel* model = m_tree->model();
    for (int top = 0; top < model->rowCount(); ++top) {
        const QModelIndex topIndex = model->index(top, 0);
        for (int second = 0; second < model->rowCount(topIndex); ++second) {
            const QModelIndex index = model->index(second, 0, topIndex);
            learn(index, 0, model->rowCount(index) - 1);
        }
    }
}

void WaitingPlots::learn(const QModelIndex& parent, int first, int last)
{
    const QModelIndex top = parent.parent();
    if (!top.isValid() || top.parent().isValid())
        return; // no plots
    const QTreeWidgetItem* second = m_tree->topLevelItem(top.row())->child(parent.row());
    for (int row = first; row <= last; ++row) {
        const QTreeWidgetItem* plot = second->child(row);
        if (plot->childCount() > 0)
            continue;
        const QStringList captions = captionsOf(plot);
        (plot->checkState(0) == Qt::Unchecked ? m_waiting : m_alone)
            << captions << m_names.renamed(captions);
    }
}

} // namespace workbench
