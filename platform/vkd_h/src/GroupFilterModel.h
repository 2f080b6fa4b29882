#pragma once

#include <QSortFilterProxyModel>

namespace vkd {
namespace h {

class GroupTableModel;

/// The sorted rows of which the number, the name or the title contains a text, in any case.
class GroupFilterModel : public QSortFilterProxyModel
{
public:
    /// Neither argument may be null.
    GroupFilterModel(GroupTableModel* groups, QObject* parent);

    void setText(const QString& text);
    /// The rows that are shown, as rows of the table.
    QVector<int> shownRows() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    GroupTableModel* m_groups;
    QString m_text;
};

} // namespace h
} // namespace vkd
