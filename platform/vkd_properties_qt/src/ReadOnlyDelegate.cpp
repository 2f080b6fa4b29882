#include "ReadOnlyDelegate.h"

#include "QtTableView.h"

namespace vkd::properties::nextGen {

void ReadOnlyDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto view = qobject_cast<const QtTableView*>(option->widget);
    if (view && view->is_read_only() &&
        (index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)))
        option->state &= ~QStyle::State_Enabled;
}

} // namespace vkd::properties::nextGen
