#pragma once

#include <QSortFilterProxyModel>

namespace vkd {
namespace h {

class GroupTableModel;

/// A sorted proxy model of the rows whose number, name or title contains the filter text. The
/// comparison is case-insensitive.
class GroupFilterModel : public QSortFilterProxyModel
{
public:
    /// Neither argument may be null.
    GroupFilterModel(GroupTableModel* groups, QObject* parent);

    void setText(const QString& text);
    /// Returns the visible rows as row indexes of the source model.
    QVector<int> shownRows() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    GroupTableModel* m_groups;
    QString m_text;
};

} // namespace h
} // namespace vkd
