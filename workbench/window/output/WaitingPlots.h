#pragma once

#include <QSet>
#include <QStringList>

class QModelIndex;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class PlotNames;

/// The plots of an output tree that draw nothing by themselves but wait for load cases to choose.
/// Without any they look like plots that stand alone and can be checked like them. Only when they
/// come into the tree do the two differ: what stands alone is checked from the start.
class WaitingPlots
{
public:
    /// To be made while the tree shows the choice of the catalogue, and to live as long as it.
    /// `names` are those that plots get once they are in the tree; they outlive the object.
    WaitingPlots(QTreeWidget* tree, const PlotNames& names);
    WaitingPlots(const WaitingPlots&) = delete;
    WaitingPlots& operator=(const WaitingPlots&) = delete;

    /// False where plots of the same captions differ.
    bool contains(const QTreeWidgetItem* plot) const;

private:
    void learnAll();
    void learn(const QModelIndex& parent, int first, int last);

    QTreeWidget* m_tree;
    const PlotNames& m_names;
    // By the captions from the top, those that plots come with and those that they get.
    QSet<QStringList> m_waiting;
    QSet<QStringList> m_alone;
};

} // namespace workbench
