#pragma once

#include <QRegularExpression>
#include <QString>

namespace workbench {

/// Returns the name, with a number appended if `isUsed` returns true for the name itself. A short
/// number at the end of the name is incremented: a copy of "Walls (2)" is "Walls (3)".
template <typename IsUsed>
QString unusedName(const QString& name, const IsUsed& isUsed)
{
    if (!isUsed(name))
        return name;
    const auto match = QRegularExpression(QStringLiteral("^(.+) \\(([1-9]\\d?)\\)$")).match(name);
    const QString base = match.hasMatch() ? match.captured(1) : name;
    QString unused;
    int number = match.hasMatch() ? match.captured(2).toInt() : 1;
    do
        unused = base + QStringLiteral(" (%1)").arg(++number);
    while (isUsed(unused));
    return unused;
}

} // namespace workbench
