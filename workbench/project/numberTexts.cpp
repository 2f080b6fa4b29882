#include "project/numberTexts.h"

#include <QStringList>

#include <algorithm>

namespace workbench {

QString savedNumbers(const QSet<int>& numbers)
{
    QList<int> sorted = numbers.values();
    std::sort(sorted.begin(), sorted.end());
    QStringList texts;
    for (int number : qAsConst(sorted))
        texts << QString::number(number);
    return texts.join(QLatin1Char(';'));
}

QSet<int> numbersFromSaved(const QString& text)
{
    QSet<int> numbers;
    const QStringList parts = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& part : parts)
        numbers << part.toInt();
    return numbers;
}

QString shownNumbers(const QVector<int>& numbers)
{
    constexpr int ShortestRun = 3;
    QStringList texts;
    for (int first = 0; first < numbers.size();) {
        int end = first + 1;
        while (end < numbers.size() && numbers[end] - 1 == numbers[end - 1])
            ++end;
        if (end - first >= ShortestRun)
            texts << QStringLiteral("%1–%2").arg(numbers[first]).arg(numbers[end - 1]);
        else
            for (int i = first; i < end; ++i)
                texts << QString::number(numbers[i]);
        first = end;
    }
    return texts.join(QLatin1String(", "));
}

} // namespace workbench
