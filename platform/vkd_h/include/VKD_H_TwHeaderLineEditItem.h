#pragma once

#include "StructLineEdit.h"
#include "VKD_H_TableItems.h"

/// The header of a column of numbers.
class VKD_H_EXPORT VKD_H_TwHeaderLineEditItem : public VKD_H_TwHeaderItem
{
public:
    VKD_H_TwHeaderLineEditItem(int id, const StructLineEdit& description, const QString& text,
                               const QString& longText, bool withToolTip, Qt::Alignment alignment);

    /// The description of an input field for this dimension code, in a table or not; see
    /// vkd_h_defaultStructLineEdit().
    static StructLineEdit getDefaultStrcLe(int code);

    QTableWidgetItem* createEmptyItem() const override;
    QTableWidgetItem* clone() const override;

private:
    StructLineEdit m_description;
};

/// A cell with a number, which is edited in a VKD_H_LineEdit.
class VKD_H_EXPORT VKD_H_TwSimpleLineEditItem : public QTableWidgetItem
{
public:
    explicit VKD_H_TwSimpleLineEditItem(const StructLineEdit& description);

    const StructLineEdit& description() const { return m_description; }
    /// Shows a value in base units.
    void setVal(double value);
    /// The value in base units; the description's "not set" for an empty cell and for a text that
    /// is no acceptable number. `ok`, unless null, tells whether there is a number.
    double getVal(bool* ok) const;
    QTableWidgetItem* clone() const override;

private:
    StructLineEdit m_description;
    double m_value; ///< exactly, while the cell shows m_shown
    QString m_shown;
};
