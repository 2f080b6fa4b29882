#pragma once

#include <QStyledItemDelegate>

namespace vkd::properties::nextGen {

/// Draws the cells of a read-only QtTableView that could be edited otherwise as disabled ones.
class ReadOnlyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace vkd::properties::nextGen
