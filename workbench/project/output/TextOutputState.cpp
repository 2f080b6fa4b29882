#include "project/output/TextOutputState.h"

#include "project/dialogPages.h"
#include "project/numberTexts.h"
#include "project/putEntries.h"

#include <VKD_H_ProjectDialogPage.h>

#include <QStringList>

#include <tuple>

namespace workbench {

namespace {
const QString ExtentKey = QStringLiteral("Extent");
const QString LoadCasesKey = QStringLiteral("LoadCases");
const QString CombinationsKey = QStringLiteral("Combinations");
const QString ListsKey = QStringLiteral("Lists");
const QString AllValuesKey = QStringLiteral("AllValues");
const QString LeftOutLoadCasesKey = QStringLiteral("LeftOutLoadCases");
const QString LeftOutCombinationsKey = QStringLiteral("LeftOutCombinations");
const QString KindsKey = QStringLiteral("Kinds");

/// Returns a string such as "103=8;104=0".
QString kindsText(const QMap<int, int>& kinds)
{
    QStringList texts;
    for (auto entry = kinds.begin(); entry != kinds.end(); ++entry)
        texts << QStringLiteral("%1=%2").arg(entry.key()).arg(entry.value());
    return texts.join(QLatin1Char(';'));
}

QMap<int, int> kindsFromSaved(const QString& text)
{
    QMap<int, int> kinds;
    const QStringList entries = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& entry : entries)
        kinds.insert(entry.section(QLatin1Char('='), 0, 0).toInt(),
                     entry.section(QLatin1Char('='), 1).toInt());
    return kinds;
}

auto fields(const TextOutputState& state)
{
    return std::tie(state.extent, state.loadCases, state.combinations, state.lists, state.allValues,
                    state.leftOutLoadCases, state.leftOutCombinations, state.kinds);
}
} // namespace

TextOutputState TextOutputState::read(ZobHandle project, int defaultLists, VkdStatus* status)
{
    const VKD_H_ProjectDialogPage entries(project, TextOutputDialogPage);
    if (status)
        *status = entries.readStatus();
    const auto entry = [&entries](const QString& key) { return entries.getEntry(key, QString()); };
    TextOutputState state;
    state.extent = entry(ExtentKey);
    state.loadCases = entry(LoadCasesKey);
    state.combinations = entry(CombinationsKey);
    state.lists = entries.getEntry(ListsKey, QString::number(defaultLists)).toInt();
    state.allValues = entry(AllValuesKey).toInt() != 0;
    state.leftOutLoadCases = numbersFromSaved(entry(LeftOutLoadCasesKey));
    state.leftOutCombinations = numbersFromSaved(entry(LeftOutCombinationsKey));
    state.kinds = kindsFromSaved(entry(KindsKey));
    return state;
}

VkdStatus TextOutputState::put(ZobHandle project) const
{
    return putEntries(project, TextOutputDialogPage, [this](VKD_H_ProjectDialogPage& entries) {
        entries.setEntry(ExtentKey, extent);
        entries.setEntry(LoadCasesKey, loadCases);
        entries.setEntry(CombinationsKey, combinations);
        entries.setEntry(ListsKey, QString::number(lists));
        entries.setEntry(AllValuesKey, QString::number(int(allValues)));
        entries.setEntry(LeftOutLoadCasesKey, savedNumbers(leftOutLoadCases));
        entries.setEntry(LeftOutCombinationsKey, savedNumbers(leftOutCombinations));
        entries.setEntry(KindsKey, kindsText(kinds));
    });
}

bool TextOutputState::operator==(const TextOutputState& other) const
{
    return fields(*this) == fields(other);
}

} // namespace workbench
