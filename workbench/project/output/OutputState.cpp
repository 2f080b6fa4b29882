#include "project/output/OutputState.h"

#include "project/dialogPages.h"
#include "project/numberTexts.h"
#include "project/putEntries.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>

#include <algorithm>

namespace workbench {

namespace {
constexpr char PageKey[] = "Page";
constexpr char ContentKey[] = "Content";
constexpr char LeftOutKey[] = "LeftOut";

/// The name contains only the digits of the number; a "+" would request a combined picture.
QString rowName(const vkd::dbo::LoadCase& loadCase)
{
    const QString number = QString::number(loadCase.number) + QLatin1Char(' ');
    return loadCase.title.isEmpty() ? number : number + QLatin1String(": ") + loadCase.title;
}
} // namespace

bool OutputState::operator==(const OutputState& other) const
{
    return page == other.page && content == other.content && leftOutNumbers == other.leftOutNumbers;
}

QString OutputState::text() const
{
    QList<int> leftOut = leftOutNumbers.values();
    std::sort(leftOut.begin(), leftOut.end());
    QString text = page;
    for (int number : leftOut)
        text += QString::number(number) + QLatin1Char(';');
    return text + QString::number(content);
}

OutputState OutputState::read(ZobHandle project)
{
    return fromEntries(VKD_H_ProjectDialogPage(project, OutputDialogPage));
}

QString OutputState::entryKey(const char* name, int number)
{
    const QString key = QLatin1String(name);
    return number == 1 ? key : key + QLatin1Char(' ') + QString::number(number);
}

OutputState OutputState::fromEntries(const VKD_H_ProjectDialogPage& entries, int number)
{
    const auto entry = [&](const char* name) {
        return entries.getEntry(entryKey(name, number), QString());
    };
    OutputState state;
    state.page = entry(PageKey);
    state.content = entry(ContentKey).toInt();
    state.leftOutNumbers = numbersFromSaved(entry(LeftOutKey));
    return state;
}

void OutputState::setEntries(VKD_H_ProjectDialogPage* entries, int number) const
{
    entries->setEntry(entryKey(PageKey, number), page);
    entries->setEntry(entryKey(ContentKey, number), QString::number(content));
    entries->setEntry(entryKey(LeftOutKey, number), savedNumbers(leftOutNumbers));
}

void OutputState::deleteEntries(VKD_H_ProjectDialogPage* entries, int number)
{
    for (const char* name : {PageKey, ContentKey, LeftOutKey})
        entries->deleteEntry(entryKey(name, number));
}

VkdStatus OutputState::put(ZobHandle project) const
{
    return putEntries(project, OutputDialogPage,
                      [this](VKD_H_ProjectDialogPage& entries) { setEntries(&entries); });
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
        if (loadCase.kind != vkd::dbo::PlainLoadCase || !leftOutNumbers.contains(loadCase.number))
            rows.push_back({loadCase.kind, loadCase.number, rowName(loadCase)});
    std::sort(rows.begin(), rows.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return rows;
}

} // namespace workbench
