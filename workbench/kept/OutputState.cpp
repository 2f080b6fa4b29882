#include "OutputState.h"

#include "numberTexts.h"
#include "projectKeys.h"
#include "ProjectWriting.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

namespace {
const QString PageKey = QStringLiteral("Page");
const QString ContentKey = QStringLiteral("Content");
const QString LeftOutKey = QStringLiteral("LeftOut");
constexpr int PlainLoadCase = 1;
} // namespace

OutputState OutputState::read(int index)
{
    const VKD_H_ProjectDialogPage entries(index, OutputDialogPage);
    OutputState state;
    state.page = entries.getEntry(PageKey, QString());
    state.content = entries.getEntry(ContentKey, QString()).toInt();
    state.leftOutNumbers = numbersOfKept(entries.getEntry(LeftOutKey, QString()));
    return state;
}

cd_error_t OutputState::write(int index) const
{
    return storeEntries(index, OutputDialogPage, [this](VKD_H_ProjectDialogPage& entries) {
        entries.setEntry(PageKey, page);
        entries.setEntry(ContentKey, QString::number(content));
        entries.setEntry(LeftOutKey, keptNumbers(leftOutNumbers));
    });
}

QString OutputState::solidsTag()
{
    return QStringLiteral("Bric");
}

bool OutputState::offers(const vkd::dbo::LoadCase& loadCase) const
{
    return loadCase.kind != PlainLoadCase || !leftOutNumbers.contains(loadCase.number);
}

} // namespace workbench
