#include "window/design/sharedGroupsQuestion.h"

#include <vkd_dbo_groupTexts.h>

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

namespace workbench {

namespace {
constexpr int MostGroups = 5;
constexpr int MostRows = 10;

/// Translates a string in the context of the page that asks the question.
struct DialogText
{
    Q_DECLARE_TR_FUNCTIONS(workbench::DesignPage)
};

QString groupName(int group)
{
    if (group == -1)
        return DialogText::tr("\u201CRemaining Groups\u201D");
    return DialogText::tr("Group %1").arg(vkd::dbo::groupText(group));
}

QString line(int group, const QVector<int>& rows)
{
    QStringList numbers;
    for (int row : rows.mid(0, MostRows))
        numbers << QString::number(row + 1);
    const QString last = rows.size() > MostRows ? QString(QChar(0x2026)) : numbers.takeLast();
    const QString first = numbers.join(QLatin1String(", "));
    const QString sentence =
        rows.size() == 2 ? DialogText::tr("%1 is in rows %2 and %3; two records would be stored.")
                         : DialogText::tr("%1 is in rows %2 and %3; %4 records would be stored.");
    return rows.size() == 2
               ? sentence.arg(groupName(group), first, last)
               : sentence.arg(groupName(group), first, last, QString::number(rows.size()));
}
} // namespace

QString sharedGroupsQuestion(const QVector<QVector<int>>& groupsOfRows)
{
    QMap<int, QVector<int>> rowsOfGroups;
    for (int row = 0; row < groupsOfRows.size(); ++row)
        for (int group : groupsOfRows[row])
            rowsOfGroups[group].append(row);
    QStringList lines;
    for (auto it = rowsOfGroups.cbegin(); it != rowsOfGroups.cend(); ++it) {
        if (lines.size() == MostGroups) {
            lines << DialogText::tr("%1 more groups are in several rows.")
                         .arg(rowsOfGroups.size() - MostGroups);
            break;
        }
        lines << line(it.key(), it.value());
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace workbench
