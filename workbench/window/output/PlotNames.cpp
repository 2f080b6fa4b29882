#include "window/output/PlotNames.h"

#include <QTreeWidget>

namespace workbench {

PlotNames::PlotNames(const QVector<PlotTitles>& from, const QVector<PlotTitles>& to)
{
    if (from.size() != to.size())
        return;
    for (int i = 0; i < from.size(); ++i) {
        QStringList path;
        for (size_t level = 0; level < from[i].size(); ++level) {
            path << from[i][level];
            add(path, to[i][level]);
        }
    }
}

void PlotNames::add(const QStringList& path, const QString& name)
{
    const auto known = m_names.find(path);
    if (known == m_names.end())
        m_names.insert(path, name);
    else if (*known != name)
        *known = path.last();
}

void PlotNames::apply(QTreeWidget* tree) const
{
    if (m_names.isEmpty())
        return;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        rename(tree->topLevelItem(i), {});
}

QStringList PlotNames::renamed(const QStringList& captions) const
{
    QStringList names;
    for (int depth = 1; depth <= captions.size(); ++depth)
        names << m_names.value(captions.mid(0, depth), captions[depth - 1]);
    return names;
}

/// Rows of load cases have names of the project's, which no catalogue has at this depth.
void PlotNames::rename(QTreeWidgetItem* item, QStringList path) const
{
    path << item->text(0);
    const auto name = m_names.find(path);
    if (name == m_names.end())
        return;
    item->setText(0, *name);
    for (int i = 0; i < item->childCount(); ++i)
        rename(item->child(i), path);
}

} // namespace workbench
