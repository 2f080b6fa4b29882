#include "record/RowsChange.h"

#include "history/stepText.h"
#include "record/designRecord.h"

#include <QCoreApplication>

#include <algorithm>

namespace plib {

namespace {
constexpr char Context[] = "RowsChange"; // of the translations

/// The names of a step for one row and for several rows. The table is in the order of RowsStep.
struct StepNames
{
    const char* one;
    const char* several;
};

constexpr StepNames Names[] = {
    {QT_TRANSLATE_NOOP("RowsChange", "Groups of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Groups of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Type of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Type of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Direction and distance of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Direction and distance of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Reinforcement of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Reinforcement of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Crack control of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Crack control of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "New row %1"), QT_TRANSLATE_NOOP("RowsChange", "%1 new rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Deletion of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Deletion of %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Moving up of row %1"), nullptr},
    {QT_TRANSLATE_NOOP("RowsChange", "Moving down of row %1"), nullptr},
    {QT_TRANSLATE_NOOP("RowsChange", "Pasting into row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Pasting into %1 rows")},
    {QT_TRANSLATE_NOOP("RowsChange", "Duplicate of row %1"),
     QT_TRANSLATE_NOOP("RowsChange", "Duplicates of %1 rows")},
};
} // namespace

bool haveSameContent(const DesignParameterRow& a, const DesignParameterRow& b)
{
    return a.groups == b.groups && toBytes(a.record) == toBytes(b.record);
}

RowsChange changeBetween(const DesignRowList& before, const DesignRowList& after, std::size_t head,
                         std::size_t tail)
{
    const std::size_t common = std::min(before.size(), after.size());
    head = std::min(head, common);
    tail = std::min(tail, common - head);
    while (head + tail < common && haveSameContent(before[head], after[head]))
        ++head;
    while (head + tail < common &&
           haveSameContent(before[before.size() - 1 - tail], after[after.size() - 1 - tail]))
        ++tail;
    const auto middle = [head, tail](const DesignRowList& rows) {
        return DesignRowList(rows.begin() + std::ptrdiff_t(head),
                             rows.end() - std::ptrdiff_t(tail));
    };
    return {int(head), middle(before), middle(after)};
}

void replaceRows(DesignRowList& rows, int first, int count, const DesignRowList& by)
{
    const auto begin = rows.begin() + first;
    const int overwritten = std::min(count, int(by.size()));
    const auto place = std::copy(by.begin(), by.begin() + overwritten, begin);
    if (overwritten < count)
        rows.erase(place, begin + count);
    else
        rows.insert(place, by.begin() + overwritten, by.end());
}

QStringList nameOf(RowsStep step, const std::set<int>& rows)
{
    const StepNames& names = Names[int(step)];
    if (rows.size() == 1 || !names.several)
        return stepName(Context, names.one, QString::number(rows.empty() ? 0 : *rows.begin() + 1));
    return stepName(Context, names.several, QString::number(rows.size()));
}

} // namespace plib
