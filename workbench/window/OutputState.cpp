#include "OutputState.h"

#include "dialogPages.h"

#include <VKD_H_ProjectDialogPage.h>

#include <QStringList>

#include <algorithm>

namespace workbench {

namespace {
const QString PageKey = QStringLiteral("Page");
const QString ContentKey = QStringLiteral("Content");
const QString LeftOutKey = QStringLiteral("LeftOut");

QString numbersText(const QSet<int>& numbers)
{
    QList<int> sorted = numbers.values();
    std::sort(sorted.begin(), sorted.end());
    QStringList texts;
    for (int number : sorted)
        texts << QString::number(number);
    return texts.join(QLatin1Char(';'));
}
} // namespace

OutputState OutputState::read(int index)
{
    const VKD_H_ProjectDialogPage entries(index, OutputDialogPage);
    OutputState state;
    state.page = entries.getEntry(PageKey, QString());
    state.content = entries.getEntry(ContentKey, QString()).toInt();
    const QStringList numbers =
        entries.getEntry(LeftOutKey, QString()).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& number : numbers)
        state.leftOutNumbers << number.toInt();
    return state;
}

bool OutputState::write(int index) const
{
    VKD_H_ProjectDialogPage entries(index, OutputDialogPage);
    entries.setEntry(PageKey, page);
    entries.setEntry(ContentKey, QString::number(content));
    entries.setEntry(LeftOutKey, numbersText(leftOutNumbers));
    return entries.save();
}

} // namespace workbench
