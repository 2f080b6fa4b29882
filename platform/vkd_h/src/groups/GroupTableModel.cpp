#include "groups/GroupTableModel.h"

#include "groups/DialogText.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace vkd {
namespace h {

namespace {
QString remark(const GroupRow& row, bool isChecked)
{
    QStringList texts;
    if (!row.isInModel)
        texts << DialogText::tr("not in the model");
    if (!row.hasAreas)
        texts << DialogText::tr("no area elements");
    if (row.isTaken)
        texts << (isChecked ? DialogText::tr("also in another row")
                            : DialogText::tr("used by another row"));
    return texts.join(QLatin1String(", "));
}

bool isSetApart(const GroupRow& row)
{
    return row.isTaken && !row.isChecked;
}

QVariant italic()
{
    QFont font;
    font.setItalic(true);
    return font;
}

QVariant dimmed()
{
    QColor color = QGuiApplication::palette().color(QPalette::Text);
    color.setAlphaF(0.65);
    return color;
}

/// Escapes the text, because a tool tip would interpret angle brackets as markup.
QString toolTip(const QString& text)
{
    return text.isEmpty()
               ? text
               : QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}
} // namespace

GroupTableModel::GroupTableModel(VKD_H_GroupKind kind, const QVector<GroupRow>& rows,
                                 QObject* parent)
    : QAbstractTableModel(parent)
    , m_kind(kind)
    , m_rows(rows)
{
}

std::vector<int> GroupTableModel::groups() const
{
    std::vector<int> groups;
    for (const GroupRow& row : m_rows)
        groups.push_back(row.group);
    return groups;
}

std::vector<int> GroupTableModel::checkedGroups() const
{
    std::vector<int> groups;
    for (const GroupRow& row : m_rows)
        if (row.isChecked)
            groups.push_back(row.group);
    return groups;
}

void GroupTableModel::setChecked(const QVector<int>& rows, bool isChecked)
{
    if (rows.isEmpty())
        return;
    for (int row : rows)
        m_rows[row].isChecked = isChecked;
    const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
    Q_EMIT dataChanged(index(*first, 0), index(*last, ColumnCount - 1),
                       {Qt::CheckStateRole, Qt::DisplayRole, Qt::FontRole, Qt::ForegroundRole});
}

int GroupTableModel::rowOf(int group) const
{
    const auto found =
        std::lower_bound(m_rows.begin(), m_rows.end(), group,
                         [](const GroupRow& row, int value) { return row.group < value; });
    return int(found - m_rows.begin());
}

bool GroupTableModel::hasRemarks() const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [](const GroupRow& row) {
        return row.isTaken || !row.isInModel || !row.hasAreas;
    });
}

void GroupTableModel::languageChanged()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, ColumnCount - 1), {Qt::DisplayRole});
}

QStringList GroupTableModel::longestTexts(int column) const
{
    constexpr int Most = 50;
    QStringList texts;
    for (const GroupRow& row : m_rows) {
        texts << text(row, column);
        if (column == Remark)
            texts << remark(row, !row.isChecked);
    }
    const int count = qMin(Most, texts.size());
    std::partial_sort(texts.begin(), texts.begin() + count, texts.end(),
                      [](const QString& a, const QString& b) { return a.size() > b.size(); });
    return texts.mid(0, count);
}

int GroupTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int GroupTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags GroupTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == Group ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant GroupTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const GroupRow& row = m_rows[index.row()];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole: return text(row, column);
    case Qt::ToolTipRole: return toolTip(text(row, column));
    case Qt::CheckStateRole:
        return column == Group ? QVariant(row.isChecked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::FontRole: return isSetApart(row) ? italic() : QVariant();
    case Qt::ForegroundRole: return isSetApart(row) ? dimmed() : QVariant();
    case SortRole: return sortValue(row, column);
    default: return {};
    }
}

bool GroupTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != Group || role != Qt::CheckStateRole)
        return false;
    setChecked({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

QVariant GroupTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Group:
        return m_kind == VKD_H_GroupKind::Secondary ? DialogText::tr("Name")
                                                    : DialogText::tr("Group");
    case Title: return DialogText::tr("Title");
    case Contents: return DialogText::tr("Contents");
    default: return DialogText::tr("Remark");
    }
}

QString GroupTableModel::text(const GroupRow& row, int column) const
{
    switch (column) {
    case Group: return row.name;
    case Title: return row.title;
    case Contents: return row.contents;
    default: return remark(row, row.isChecked);
    }
}

/// Uses only values that do not change when rows are checked, because rows must not move under the
/// mouse pointer.
QVariant GroupTableModel::sortValue(const GroupRow& row, int column) const
{
    switch (column) {
    case Group: return m_kind == VKD_H_GroupKind::Secondary ? QVariant(row.name) : row.group;
    case Contents: return row.elements;
    case Remark: return (row.isInModel ? 0 : 4) + (row.hasAreas ? 0 : 2) + (row.isTaken ? 1 : 0);
    default: return row.title;
    }
}

} // namespace h
} // namespace vkd
