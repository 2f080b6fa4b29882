#include "project/OutputState.h"

#include "project/dialogPages.h"
#include "project/numberTexts.h"
#include "project/putEntries.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>

#include <algorithm>

namespace workbench {

namespace {
const QString PageKey = QStringLiteral("Page");
const QString ContentKey = QStringLiteral("Content");
const QString LeftOutKey = QStringLiteral("LeftOut");
constexpr int PlainLoadCase = 1;

/// The name contains only the digits of the number; a "+" would request a combined picture.
QString rowName(const vkd::dbo::LoadCase& loadCase)
{
    const QString number = QString::number(loadCase.number) + QLatin1Char(' ');
    return loadCase.title.isEmpty() ? number : number + QLatin1String(": ") + loadCase.title;
}
} // namespace

OutputState OutputState::read(ZobHandle project)
{
    const VKD_H_ProjectDialogPage entries(project, OutputDialogPage);
    OutputState state;
    state.page = entries.getEntry(PageKey, QString());
    state.content = entries.getEntry(ContentKey, QString()).toInt();
    state.leftOutNumbers = numbersFromSaved(entries.getEntry(LeftOutKey, QString()));
    return state;
}

VkdStatus OutputState::put(ZobHandle project) const
{
    return putEntries(project, OutputDialogPage, [this](VKD_H_ProjectDialogPage& entries) {
        entries.setEntry(PageKey, page);
        entries.setEntry(ContentKey, QString::number(content));
        entries.setEntry(LeftOutKey, savedNumbers(leftOutNumbers));
    });
}

QString OutputState::solidsTag()
{
    return QStringLiteral("Bric");
}

std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
OutputState::offeredRows(ZobHandle project) const
{
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> rows;
    const auto loadCases = vkd::dbo::readLoadCases(project);
    for (const vkd::dbo::LoadCase& loadCase : loadCases)
        if (loadCase.kind != PlainLoadCase || !leftOutNumbers.contains(loadCase.number))
            rows.push_back({loadCase.kind, loadCase.number, rowName(loadCase)});
    std::sort(rows.begin(), rows.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return rows;
}

} // namespace workbench
