#pragma once

#include "StructLineEdit.h"
#include "VKD_H_TableItems.h"

/// The header of a column with numbers.
class VKD_H_EXPORT VKD_H_TwHeaderLineEditItem : public VKD_H_TwHeaderItem
{
public:
    VKD_H_TwHeaderLineEditItem(int id, const StructLineEdit& description, const QString& text,
                               const QString& longText, bool withToolTip, Qt::Alignment alignment);

    /// Returns the description of a number field for this dimension code; see
    /// vkd_h_defaultStructLineEdit().
    static StructLineEdit getDefaultStrcLe(int code);

    QTableWidgetItem* createEmptyItem() const override;
    QTableWidgetItem* clone() const override;

private:
    StructLineEdit m_description;
};

/// A cell with a number; its editor is a VKD_H_LineEdit.
class VKD_H_EXPORT VKD_H_TwSimpleLineEditItem : public QTableWidgetItem
{
public:
    explicit VKD_H_TwSimpleLineEditItem(const StructLineEdit& description);

    const StructLineEdit& description() const { return m_description; }
    /// Sets the value, given in base units.
    void setVal(double value);
    /// Returns the value in base units. Returns the description's "not set" value if the cell is
    /// empty or its text is not an acceptable number. If `ok` is not null, `*ok` is set to whether
    /// the cell has a value.
    double getVal(bool* ok) const;
    QTableWidgetItem* clone() const override;

private:
    StructLineEdit m_description;
    double m_value; ///< exact value that m_shown displays
    QString m_shown;
};
