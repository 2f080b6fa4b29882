#include "project/output/textContents.h"

namespace workbench {

QString textContents(const QVector<PrintedList>& lists)
{
    QString text;
    int number = 0;
    for (const PrintedList& list : lists) {
        text += QStringLiteral("%1  %2\n").arg(++number).arg(list.name);
        int place = 0;
        for (const vkd::dbo::LoadCase& loadCase : list.cases) {
            text += QStringLiteral("    %1.%2  %3").arg(number).arg(++place).arg(loadCase.number);
            text += loadCase.title.isEmpty() ? QStringLiteral("\n")
                                             : QStringLiteral(": %1\n").arg(loadCase.title);
        }
    }
    return text;
}

} // namespace workbench
