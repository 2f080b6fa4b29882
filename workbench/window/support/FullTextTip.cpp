#include "window/support/FullTextTip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace workbench {

FullTextTip::FullTextTip(QAbstractItemView* view)
    : QObject(view)
    , m_view(view)
{
    view->viewport()->installEventFilter(this);
}

bool FullTextTip::isElided(const QModelIndex& cell) const
{
    const QRect visible = m_view->visualRect(cell) & m_view->viewport()->rect();
    return m_view->sizeHintForIndex(cell).width() > visible.width();
}

bool FullTextTip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const auto help = static_cast<QHelpEvent*>(event);
    const QModelIndex cell = m_view->indexAt(help->pos());
    if (!cell.isValid() || cell.data(Qt::ToolTipRole).isValid() || !isElided(cell))
        return false;
    QToolTip::showText(help->globalPos(), cell.data().toString().trimmed(), m_view->viewport(),
                       m_view->visualRect(cell));
    return true;
}

} // namespace workbench
