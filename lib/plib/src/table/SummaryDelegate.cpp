#include "table/SummaryDelegate.h"

#include "record/rowText.h"

QString SummaryDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    return QStyledItemDelegate::displayText(plib::withBreaksBetweenValues(value.toString()),
                                            locale);
}
