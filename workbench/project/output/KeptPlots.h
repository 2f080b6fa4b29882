#pragma once

#include <QSet>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

namespace workbench {

/// A plot or caption that a tree offers.
struct OfferedPlot
{
    bool isChecked;    ///< whether all of its load cases are checked
    QSet<int> numbers; ///< numbers of its load cases
};

/// Returns the plot or caption with this identifier, or std::nullopt if the tree does not offer it.
using FindOffered = std::function<std::optional<OfferedPlot>(const QString& identifier)>;

/// The plots and load cases of a saved selection text that a tree does not offer, for example
/// because the selection is from another model. The tree ignores them; this class adds them to the
/// next selection text that is saved.
class KeptPlots
{
public:
    KeptPlots() = default;
    KeptPlots(const QString& selection, const FindOffered& offered);

    bool isEmpty() const { return m_plots.isEmpty(); }
    /// Returns the selection text of a tree, extended by the plots and load cases that the tree
    /// does not offer.
    QString addedTo(const QString& selection, const FindOffered& offered) const;
    /// Returns the number of plots that the tree does not offer at all.
    int absentPlots(const FindOffered& offered) const;

private:
    struct Plot
    {
        QString identifier;
        QVector<int> numbers; ///< empty if all load cases are checked
    };

    static std::optional<Plot> plotOf(const QString& line);
    static std::optional<Plot> absentPart(const Plot& plot, const FindOffered& offered);

    QVector<Plot> m_plots;
};

} // namespace workbench
