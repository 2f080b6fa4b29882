#pragma once

#include <QStyledItemDelegate>

namespace vkd::properties::nextGen {

/// Draws the editable cells of a read-only QtTableView as disabled cells.
class ReadOnlyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace vkd::properties::nextGen
