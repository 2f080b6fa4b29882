#pragma once

#include "groups/groupRows.h"

#include <QAbstractTableModel>

namespace vkd {
namespace h {

/// The rows of a group dialog with their check boxes. A group that belongs to another row of the
/// caller is dimmed until the user checks it and thereby reassigns it.
class GroupTableModel : public QAbstractTableModel
{
public:
    enum Column { Group, Title, Contents, Remark, ColumnCount };
    static constexpr int SortRole = Qt::UserRole;

    GroupTableModel(VKD_H_GroupKind kind, const QVector<GroupRow>& rows, QObject* parent);

    const QVector<GroupRow>& rows() const { return m_rows; }
    std::vector<int> groups() const;
    std::vector<int> checkedGroups() const;
    void setChecked(const QVector<int>& rows, bool isChecked);
    /// Returns the row of a group, which must be in the list.
    int rowOf(int group) const;
    /// Returns whether the remark column can contain text.
    bool hasRemarks() const;
    /// Returns the longest strings that the column can show, at most a few dozen.
    QStringList longestTexts(int column) const;
    /// Updates the views after the language has changed.
    void languageChanged();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const GroupRow& row, int column) const;
    QVariant sortValue(const GroupRow& row, int column) const;

    VKD_H_GroupKind m_kind;
    QVector<GroupRow> m_rows;
};

} // namespace h
} // namespace vkd
