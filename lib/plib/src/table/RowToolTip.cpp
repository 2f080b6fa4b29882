#include "table/RowToolTip.h"

#include "design/DesignParameter.h"
#include "record/designRecord.h"
#include "table/DesignParameterTable.h"

#include <vkd_dbo_groups.h>
#include <VKD_H_ZOBDoc.h>

#include <QHelpEvent>
#include <QToolTip>

namespace plib {

RowToolTip::RowToolTip(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    page->state().table->viewport()->installEventFilter(this);
}

bool RowToolTip::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType() && child->parent() == m_page->state().table->viewport())
            child->installEventFilter(this);
        return false;
    }
    if (event->type() != QEvent::ToolTip)
        return false;
    show(*static_cast<QHelpEvent*>(event));
    return true;
}

/// The note about groups that are in several rows is the item's own tool tip.
void RowToolTip::show(const QHelpEvent& event)
{
    DesignParameterTable* table = m_page->state().table;
    const QTableWidgetItem* item =
        table->itemAt(table->viewport()->mapFromGlobal(event.globalPos()));
    if (!item) {
        QToolTip::hideText();
        return;
    }
    if (!m_titles)
        m_titles = vkd::dbo::readGroupTitles(m_page->state().doc->handle());
    const DesignParameterRow& row = m_page->state().rows[std::size_t(item->row())];
    QStringList notes{table->item(item->row(), DesignParameterTable::Selection)->toolTip()};
    if (row.record.type == NoDesign)
        notes << tr("A row without design shows its values once it has another type.");
    notes.removeAll(QString());
    QToolTip::showText(event.globalPos(),
                       descriptionHtml(describeRow(row, *m_titles), notes.join(QLatin1Char('\n'))),
                       table, table->visualItemRect(item).translated(table->viewport()->pos()));
}

} // namespace plib
