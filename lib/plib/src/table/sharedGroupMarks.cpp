#include "table/sharedGroupMarks.h"

#include "record/sharedGroups.h"
#include "table/DesignParameterTable.h"
#include "VKD_P_DesignParameter_Role.h"

#include <QStyle>
#include <QVector>

#include <algorithm>

namespace plib {

namespace {
constexpr int SharedGroupsRole = vkd::plib::designparameter::SharedGroupsRole;

void mark(QTableWidgetItem* item, const QVector<int>& groups, const QString& text)
{
    const QStyle* style = item->tableWidget()->style();
    item->setData(SharedGroupsRole, QVariant::fromValue(groups));
    item->setIcon(style->standardIcon(QStyle::SP_MessageBoxWarning));
    item->setToolTip(text);
    item->setData(Qt::AccessibleDescriptionRole, text);
}

void unmark(QTableWidgetItem* item)
{
    if (!item->data(SharedGroupsRole).isValid())
        return; // true for nearly all rows; changing items takes time
    for (int role : {SharedGroupsRole, int(Qt::DecorationRole), int(Qt::ToolTipRole),
                     int(Qt::AccessibleDescriptionRole)})
        item->setData(role, QVariant());
}
} // namespace

void markSharedGroups(DesignParameterTable* table, const std::vector<DesignParameterRow>& rows)
{
    const std::vector<SharedGroup> shared = sharedGroups(rows);
    const auto ofRows = sharedGroupsOfRows(shared, rows.size());
    for (int row = 0; row < int(rows.size()); ++row) {
        QTableWidgetItem* item = table->item(row, DesignParameterTable::Selection);
        const auto& here = ofRows[std::size_t(row)];
        if (!item)
            continue;
        if (here.empty()) {
            unmark(item);
            continue;
        }
        QVector<int> groups;
        std::transform(here.begin(), here.end(), std::back_inserter(groups),
                       [](const SharedGroup* group) { return group->group; });
        mark(item, groups, sharedGroupsText(row, here));
    }
}

} // namespace plib
