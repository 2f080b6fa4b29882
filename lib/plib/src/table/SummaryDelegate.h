#pragma once

#include <QStyledItemDelegate>

/// Paints the summaries of a row. Their lines break only between values. The text of the cell does
/// not change, so that copying does not copy invisible characters. VKD_QT_TableWidgetButton paints
/// the same text over the cell.
class SummaryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
};
