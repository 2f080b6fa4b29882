#include "project/KeptPlots.h"

#include <QStringList>

#include <algorithm>

namespace workbench {

namespace {
const QString Checked = QStringLiteral("Checked");
const QString Partially = QStringLiteral("Partially");

QString partlyChecked(const QString& identifier)
{
    return Partially + QLatin1Char(':') + identifier + QLatin1String(" : ");
}

QString joined(const QVector<int>& numbers)
{
    QString text;
    for (int number : numbers)
        text += QString::number(number) + QLatin1Char(',');
    return text;
}
} // namespace

/// Returns the plot that a line of a selection text checks, if any.
std::optional<KeptPlots::Plot> KeptPlots::plotOf(const QString& line)
{
    const QStringList parts = line.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const bool isPartial = parts.value(0) == Partially && parts.size() > 2;
    if (parts.size() < 2 || (parts[0] != Checked && !isPartial))
        return std::nullopt;
    Plot plot{parts[1].trimmed(), {}};
    if (isPartial)
        for (const QString& number : parts[2].split(QLatin1Char(','), Qt::SkipEmptyParts))
            plot.numbers << number.trimmed().toInt();
    return isPartial && plot.numbers.isEmpty() ? std::nullopt : std::make_optional(plot);
}

/// Returns the plot with only those load cases that the tree does not offer. A plot that is checked
/// in the tree includes all its load cases, even if they are added later.
std::optional<KeptPlots::Plot> KeptPlots::absentPart(const Plot& plot, const FindOffered& offered)
{
    const auto found = offered(plot.identifier);
    if (!found)
        return plot;
    Plot rest{plot.identifier, {}};
    if (!found->isChecked)
        std::copy_if(plot.numbers.begin(), plot.numbers.end(), std::back_inserter(rest.numbers),
                     [&found](int number) { return !found->numbers.contains(number); });
    return rest.numbers.isEmpty() ? std::nullopt : std::make_optional(rest);
}

KeptPlots::KeptPlots(const QString& selection, const FindOffered& offered)
{
    for (const QString& line : selection.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        if (const auto plot = plotOf(line); plot && absentPart(*plot, offered))
            m_plots << *plot;
}

QString KeptPlots::addedTo(const QString& selection, const FindOffered& offered) const
{
    QString text = selection;
    for (const Plot& plot : m_plots) {
        const auto absent = absentPart(plot, offered);
        if (!absent)
            continue;
        const QString head = partlyChecked(plot.identifier);
        const int place = text.indexOf(QLatin1Char('\n') + head);
        if (plot.numbers.isEmpty())
            text += Checked + QLatin1Char(':') + plot.identifier + QLatin1Char('\n');
        else if (place < 0)
            text += head + joined(absent->numbers) + QLatin1Char('\n');
        else
            text.insert(place + 1 + head.size(), joined(absent->numbers));
    }
    return text;
}

int KeptPlots::absentPlots(const FindOffered& offered) const
{
    return int(std::count_if(m_plots.begin(), m_plots.end(),
                             [&offered](const Plot& plot) { return !offered(plot.identifier); }));
}

} // namespace workbench
