#include "groups/groupTexts.h"

#include "groups/DialogText.h"
#include "groups/groupChoice.h"
#include "groups/shownName.h"

#include <algorithm>

namespace vkd {
namespace h {

namespace {
/// Lists only the first few parts of the input, because pasted text may be long.
QString listed(const QStringList& parts)
{
    constexpr int Most = 5;
    constexpr int Longest = 20;
    QStringList shown;
    for (const QString& part : parts.mid(0, Most))
        shown << (part.size() > Longest ? part.left(Longest) + QChar(0x2026) : part);
    if (parts.size() > Most)
        shown << QString(QChar(0x2026));
    return shown.join(QLatin1String(", "));
}

/// Lists the first few groups by number or name.
QString listed(const std::vector<int>& groups)
{
    QStringList names;
    for (int group : groups)
        names << (isOfKind(VKD_H_GroupKind::Secondary, group) ? shownName(group)
                                                              : QString::number(group));
    return listed(names);
}
} // namespace

QString inputText(const GroupInput& input, const std::vector<int>& withoutAreas)
{
    QStringList messages;
    if (!input.unreadable.isEmpty())
        messages << DialogText::tr("Cannot read: %1. Type numbers and ranges such as 1-5 9.")
                        .arg(listed(input.unreadable));
    if (!input.missing.isEmpty())
        messages << DialogText::tr("There is no group %1.").arg(listed(input.missing));
    if (!withoutAreas.empty())
        messages << DialogText::tr("Without area elements: %1").arg(listed(withoutAreas));
    return messages.join(QLatin1Char('\n'));
}

QString countText(const QVector<GroupRow>& rows, const QVector<int>& shown)
{
    int checked = 0;
    int takenOver = 0;
    int withoutAreas = 0;
    for (const GroupRow& row : rows) {
        checked += row.isChecked ? 1 : 0;
        takenOver += row.isChecked && row.isTaken ? 1 : 0;
        withoutAreas += row.isChecked && !row.hasAreas ? 1 : 0;
    }
    const auto hidden = checked - int(std::count_if(shown.begin(), shown.end(),
                                                    [&](int row) { return rows[row].isChecked; }));
    QStringList texts{DialogText::tr("%1 of %2 groups checked").arg(checked).arg(rows.size())};
    if (takenOver > 0)
        texts << DialogText::tr("%1 also in another row").arg(takenOver);
    if (withoutAreas > 0)
        texts << DialogText::tr("%1 without area elements").arg(withoutAreas);
    if (hidden > 0)
        texts << DialogText::tr("%1 hidden by the filter").arg(hidden);
    return texts.join(QLatin1String(", "));
}

QString notShownText(VKD_H_GroupKind kind, const std::vector<int>& opened,
                     const std::vector<int>& checked)
{
    const std::vector<int> groups = groupsNotShown(kind, opened);
    const QString count = QString::number(groups.size());
    const QString names = listed(groups);
    const bool isReplaced = isOtherChoice(kind, opened, checked);
    if (groups.empty())
        return QString();
    if (groups.size() == 1 && isReplaced)
        return DialogText::tr("OK replaces 1 group of the row that is not shown here: %1")
            .arg(names);
    if (groups.size() == 1)
        return DialogText::tr("1 group of the row is not shown here: %1. OK keeps it if nothing is "
                              "changed, and otherwise replaces it.")
            .arg(names);
    if (isReplaced)
        return DialogText::tr("OK replaces %1 groups of the row that are not shown here: %2")
            .arg(count, names);
    return DialogText::tr("%1 groups of the row are not shown here: %2. OK keeps them if nothing "
                          "is changed, and otherwise replaces them.")
        .arg(count, names);
}

} // namespace h
} // namespace vkd
