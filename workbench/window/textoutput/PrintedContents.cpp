#include "window/textoutput/PrintedContents.h"

#include "project/numberTexts.h"
#include "window/textoutput/PickTable.h"

namespace workbench {

QVector<PrintedList> PrintedContents::lists(const PickTable& loadCaseTable,
                                            const PickTable& combinationTable) const
{
    const auto [chosen, allValues] = extent;
    const QVector<vkd::dbo::LoadCase> loads = loadCaseTable.rowsOf(loadCases);
    const QVector<vkd::dbo::LoadCase> results = loads + combinationTable.rowsOf(combinations);
    QVector<PrintedList> printed;
    for (int list = 1; list <= chosen; list *= 2) {
        const bool isResult = list & ExtentFields::ResultLists;
        const QVector<vkd::dbo::LoadCase> cases = isResult ? results
                                                  : list == ExtentFields::Loads
                                                      ? loads
                                                      : QVector<vkd::dbo::LoadCase>();
        const bool isPrinted =
            (chosen & list) && (list == ExtentFields::System || !cases.isEmpty());
        const QString name = ExtentFields::listNames(list);
        if (isPrinted)
            printed.append(
                {isResult ? tr("%1 (%2)").arg(name, ExtentFields::valuesName(allValues)) : name,
                 cases});
    }
    return printed;
}

QString PrintedContents::extentText() const
{
    const auto [chosen, allValues] = extent;
    if (!chosen)
        return tr("Printed lists: none");
    const QString printed = tr("Printed lists: %1").arg(ExtentFields::listNames(chosen));
    if (!(chosen & ExtentFields::ResultLists))
        return printed;
    return tr("%1. Result values: %2").arg(printed, ExtentFields::valuesName(allValues));
}

QString PrintedContents::loadCaseText(int count) const
{
    if (!(extent.lists & (ExtentFields::Loads | ExtentFields::ResultLists)))
        return tr("Printed load cases: none, as neither loads nor results are printed");
    if (loadCases.isEmpty())
        return tr("Printed load cases: none");
    return tr("Printed load cases (%1 of %2): %3")
        .arg(loadCases.size())
        .arg(count)
        .arg(shownNumbers(loadCases));
}

QString PrintedContents::combinationText(int count) const
{
    if (!(extent.lists & ExtentFields::ResultLists))
        return tr("Printed combinations: none, as no results are printed");
    if (combinations.isEmpty())
        return tr("Printed combinations: none");
    return tr("Printed combinations (%1 of %2): %3")
        .arg(combinations.size())
        .arg(count)
        .arg(shownNumbers(combinations));
}

} // namespace workbench
