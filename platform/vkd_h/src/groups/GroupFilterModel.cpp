#include "groups/GroupFilterModel.h"

#include "groups/GroupTableModel.h"

namespace vkd {
namespace h {

GroupFilterModel::GroupFilterModel(GroupTableModel* groups, QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_groups(groups)
{
    setSortRole(GroupTableModel::SortRole);
    setSortLocaleAware(true);
    setSourceModel(groups);
}

void GroupFilterModel::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    invalidateFilter();
}

QVector<int> GroupFilterModel::shownRows() const
{
    QVector<int> rows;
    for (int row = 0; row < rowCount(); ++row)
        rows.append(mapToSource(index(row, 0)).row());
    return rows;
}

bool GroupFilterModel::filterAcceptsRow(int row, const QModelIndex&) const
{
    const GroupRow& group = m_groups->rows()[row];
    return group.name.contains(m_text, Qt::CaseInsensitive) ||
           group.title.contains(m_text, Qt::CaseInsensitive);
}

} // namespace h
} // namespace vkd
