#include "script/rowLabel.h"

namespace plib {

int secondNumber(const QString& label)
{
    constexpr int WithoutColon = 5;
    const int colon = label.indexOf(QLatin1Char(':'));
    const QStringView head = QStringView(label).left(colon >= 0 ? colon : WithoutColon);
    const auto plus = head.indexOf(QLatin1Char('+'));
    if (plus < 0)
        return NoSecondNumber;
    bool isNumber = false;
    const int number = head.mid(plus + 1).toInt(&isNumber);
    return isNumber ? number : NoSecondNumber;
}

QString rowLabel(double number, const QString& title)
{
    const QString shown = QString::number(number, 'g', 6);
    return shown + QLatin1Char(' ') + (title.isEmpty() ? QString() : QLatin1String(": ") + title);
}

} // namespace plib
