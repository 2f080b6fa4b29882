#include "design/HostRows.h"

#include "design/DesignParameter.h"
#include "design/GroupsEntry.h"
#include "design/RowsHistory.h"
#include "exchange/wholeRows.h"
#include "record/designEntries.h"
#include "record/designRows.h"
#include "record/designStore.h"
#include "table/DesignParameterTable.h"
#include "VKD_P_DesignParameter_Rows.h"

#include <QMetaMethod>

#include <algorithm>

namespace plib {

namespace {
RowsHistory* historyOf(const DesignParameter* page)
{
    return page->findChild<RowsHistory*>(QString(), Qt::FindDirectChildrenOnly);
}
} // namespace

HostRows::HostRows(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    setObjectName(QLatin1String(vkd::plib::designparameter::RowsObject));
    const RowsHistory* history = historyOf(page);
    connect(history, &RowsHistory::modifiedChanged, this, &HostRows::modifiedChanged);
    connect(history, &RowsHistory::rowsChanged, this, &HostRows::rowsChanged);
}

bool HostRows::isModified() const
{
    return historyOf(m_page)->isModified();
}

void HostRows::setModified(bool isModified)
{
    historyOf(m_page)->setModified(isModified);
}

QVector<int> HostRows::groups(int row) const
{
    const DesignRowList& rows = m_page->state().rows;
    if (row < 0 || row >= int(rows.size()))
        return {};
    const std::vector<int>& found = rows[std::size_t(row)].groups;
    QVector<int> sorted(found.begin(), found.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

bool HostRows::setGroups(int row, const QVector<int>& groups)
{
    finishEditing();
    const GroupLists lists =
        listsAfterAssigning(m_page->state(), row, {groups.begin(), groups.end()});
    if (lists.empty())
        return false;
    const int first = lists.begin()->first;
    const int last = lists.rbegin()->first;
    const auto begin = m_page->state().rows.begin();
    DesignRowList changed(begin + first, begin + last + 1);
    std::set<int> rows;
    for (const auto& [number, list] : lists) {
        changed[std::size_t(number - first)].groups = list;
        rows.insert(number);
    }
    const RecordedStep step(m_page, RowsStep::Groups, rows);
    m_page->replaceRows(first, int(changed.size()), changed,
                        TableSelection(*m_page->state().table));
    return true;
}

bool HostRows::finishEditing()
{
    if (!m_page->findChild<GroupsEntry*>()->finish())
        return false;
    m_page->finishEditing();
    return true;
}

/// Writes a copy, because writing converts the rows to the stored form.
void HostRows::write(VKD_H_ZOBDoc* document, VKD_H_ProjectDialogPage* page)
{
    finishEditing();
    DesignParameterData copy = m_page->state();
    bool isConverted = m_page->isConverted();
    copy.designDoc = document;
    writeRowsToZob(copy, isConverted);
    if (page)
        writeRowsToEntries(copy, *page);
}

QByteArray HostRows::rows() const
{
    return bytesOfWholeRows(m_page->state().rows);
}

bool HostRows::setRows(const QByteArray& bytes)
{
    const DesignParameterData& data = m_page->state();
    const std::optional<DesignRowList> rows = wholeRowsOf(bytes, data.barData);
    if (!rows)
        return false;
    m_page->replaceRows(0, int(data.rows.size()), *rows, TableSelection());
    historyOf(m_page)->restart();
    return true;
}

QByteArray HostRows::steps() const
{
    return historyOf(m_page)->steps();
}

bool HostRows::setSteps(const QByteArray& steps)
{
    return historyOf(m_page)->setSteps(steps);
}

bool HostRows::isPickingPossible() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&HostRows::pickingRequested));
}

} // namespace plib
