#include "window/design/groupRanges.h"

#include <vkd_dbo_packedNames.h>

#include <QStringList>

namespace workbench {

QString groupRanges(const QVector<int>& groups)
{
    QStringList parts;
    for (int first = 0, next = 0; first < groups.size(); first = next) {
        next = first + 1;
        const bool isName = groups[first] >= vkd::dbo::FirstPackedName;
        while (!isName && next < groups.size() && groups[next] == groups[next - 1] + 1 &&
               groups[next] < vkd::dbo::FirstPackedName)
            ++next;
        if (isName)
            parts << vkd::dbo::unpackedName(groups[first]);
        else if (groups[first] >= 0 && next - first < 3)
            for (int i = first; i < next; ++i)
                parts << QString::number(groups[i]);
        else if (groups[first] >= 0)
            parts << QStringLiteral("%1-%2").arg(groups[first]).arg(groups[next - 1]);
    }
    return parts.join(QLatin1String(", "));
}

} // namespace workbench
