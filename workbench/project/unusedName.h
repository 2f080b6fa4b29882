#pragma once

#include <QString>

namespace workbench {

/// Returns the name, with a number appended if `isUsed` returns true for the name itself.
template <typename IsUsed>
QString unusedName(const QString& name, const IsUsed& isUsed)
{
    QString unused = name;
    for (int number = 2; isUsed(unused); ++number)
        unused = QStringLiteral("%1 (%2)").arg(name).arg(number);
    return unused;
}

} // namespace workbench
