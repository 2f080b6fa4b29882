#pragma once

#include "ComboList.h"
#include "vkd_h_export.h"

#include <QTableWidgetItem>
#include <QVector>

#include <list>

/// A column header of a VKD_H_TableWidget. It stores the id of the column, which does not depend on
/// the column's position, and creates the empty items for its cells.
class VKD_H_EXPORT VKD_H_TwHeaderItem : public QTableWidgetItem
{
public:
    /// `longText` is shown as a tool tip if `withToolTip` is true. `alignment` applies to the
    /// cells.
    VKD_H_TwHeaderItem(int id, const QString& text, const QString& longText, bool withToolTip,
                       Qt::Alignment alignment);

    int columnId() const { return m_id; }
    /// Creates a cell of this column; the caller owns it.
    virtual QTableWidgetItem* createEmptyItem() const;
    QTableWidgetItem* clone() const override;

protected:
    QTableWidgetItem* aligned(QTableWidgetItem* item) const;

private:
    int m_id;
    Qt::Alignment m_alignment;
};

/// The header of a column with combo boxes.
class VKD_H_EXPORT VKD_H_TwHeaderComboBoxItem : public VKD_H_TwHeaderItem
{
public:
    VKD_H_TwHeaderComboBoxItem(int id, const std::list<ComboList>& entries, const QString& text,
                               const QString& longText, bool withToolTip, Qt::Alignment alignment);

    QTableWidgetItem* createEmptyItem() const override;
    QTableWidgetItem* clone() const override;

private:
    QVector<ComboList> m_entries;
};

/// The header of a column with check boxes.
class VKD_H_EXPORT VKD_H_TwHeaderCheckBoxItem : public VKD_H_TwHeaderItem
{
public:
    using VKD_H_TwHeaderItem::VKD_H_TwHeaderItem;

    QTableWidgetItem* createEmptyItem() const override;
    QTableWidgetItem* clone() const override;
};

/// A cell with a combo box. It stores only the text of the entry and looks up the id by this text.
class VKD_H_EXPORT VKD_H_TwSimpleComboBoxItem : public QTableWidgetItem
{
public:
    explicit VKD_H_TwSimpleComboBoxItem(const QVector<ComboList>& entries);

    const QVector<ComboList>& entries() const { return m_entries; }
    /// Returns the id of the displayed entry, or -99999 if no entry has this text.
    int getCurrentId() const;
    QTableWidgetItem* clone() const override;

private:
    QVector<ComboList> m_entries;
};

/// A cell with a check box.
class VKD_H_EXPORT VKD_H_TwSimpleCheckBoxItem : public QTableWidgetItem
{
public:
    VKD_H_TwSimpleCheckBoxItem();

    bool isChecked() const { return checkState() == Qt::Checked; }
    void setChecked(bool checked) { setCheckState(checked ? Qt::Checked : Qt::Unchecked); }
    QTableWidgetItem* clone() const override;
};
