#pragma once

#include <QStringList>
#include <QVariantMap>
#include <QVector>

namespace workbench {

/// A plot that an output page offers.
struct PlotOnPage
{
    QString identifier;
    QStringList captions; ///< from the top level to the plot, in the current language
    Qt::CheckState state;
    int newPictures; ///< pictures that are added if the plot is checked with all load cases
};

/// The plots of a page, in the order of its tree.
using PlotsOnPage = QVector<PlotOnPage>;

/// Returns the contents of a preset with the chosen plots. A plot is chosen if any of its load
/// cases is checked.
QVariantMap chosenPlots(const PlotsOnPage& page);

/// The plots in the contents of a preset, as captions for display.
struct PresetCaptions
{
    QStringList offered; ///< in the order of the page and in the current language
    QStringList absent;  ///< plots that the page does not offer, with the captions in the preset
};

PresetCaptions captionsOf(const QVariantMap& contents, const PlotsOnPage& page);

/// Returns the number of pictures that are added when a preset with these contents is applied.
int addedPictures(const QVariantMap& contents, const PlotsOnPage& page);

/// Specifies whether the plots of a preset replace the chosen plots or are added to them.
enum class PlotsOfPreset { Replace, Add };

/// Returns the selection text after a preset with these contents is applied. If some load cases of
/// a plot are already checked, they do not change; other plots are checked with all their load
/// cases. `shown` is the selection text of the page, and `all` is the same text, extended by the
/// plots and load cases that the page does not offer.
QString selectionWithPreset(const QVariantMap& contents, PlotsOfPreset mode, const QString& shown,
                            const QString& all);

} // namespace workbench
