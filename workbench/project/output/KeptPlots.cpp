#include "project/output/KeptPlots.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace workbench {

namespace {
const QString Checked = QStringLiteral("Checked");
const QString Partially = QStringLiteral("Partially");
const QString EndOfIdentifier = QStringLiteral(" : "); // in the line of a partly checked plot

QString joined(const QVector<int>& numbers)
{
    QString text;
    for (int number : numbers)
        text += QString::number(number) + QLatin1Char(',');
    return text;
}

/// Adds load cases to the partly checked plots of a tree's selection text, and removes these plots
/// from `numbers`.
QString withNumbers(const QString& selection, QHash<QString, QString>* numbers)
{
    const QString begin = QLatin1Char('\n') + Partially + QLatin1Char(':');
    QString text;
    int copied = 0;
    for (int line = selection.indexOf(begin); line >= 0; line = selection.indexOf(begin, copied)) {
        const int identifier = line + begin.size();
        const int end = selection.indexOf(EndOfIdentifier, identifier);
        if (end < 0)
            break;
        const int list = end + EndOfIdentifier.size();
        text.append(selection.constData() + copied, list - copied);
        text += numbers->take(selection.mid(identifier, end - identifier));
        copied = list;
    }
    return text.append(selection.constData() + copied, selection.size() - copied);
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
    QVector<Plot> absentPlots;
    QHash<QString, QString> numbers; // load cases to add, by plot
    for (const Plot& plot : m_plots)
        if (const auto absent = absentPart(plot, offered)) {
            absentPlots << *absent;
            if (!absent->numbers.isEmpty())
                numbers[plot.identifier] += joined(absent->numbers);
        }
    QString text = withNumbers(selection, &numbers);
    for (const Plot& plot : qAsConst(absentPlots))
        if (plot.numbers.isEmpty())
            text += Checked + QLatin1Char(':') + plot.identifier + QLatin1Char('\n');
        else if (numbers.contains(plot.identifier))
            text += Partially + QLatin1Char(':') + plot.identifier + EndOfIdentifier +
                    numbers.take(plot.identifier) + QLatin1Char('\n');
    return text;
}

int KeptPlots::absentPlots(const FindOffered& offered) const
{
    return int(std::count_if(m_plots.begin(), m_plots.end(),
                             [&offered](const Plot& plot) { return !offered(plot.identifier); }));
}

} // namespace workbench
