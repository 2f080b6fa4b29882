#pragma once

#include "project/output/KeptPlots.h"
#include "project/presets/plotPresets.h"
#include "window/output/TreeViewState.h"

class AnimatorView;
class QTreeWidget;
class VKD_P_WidgetGraphicalOutput;

namespace workbench {

/// Returns a saved string of a page without its plots, but with its settings.
QString withoutPlots(QString page);

/// The user's choice of plots on an output page. The class preserves the choice and the view of the
/// tree when the offered load cases or content change; the page itself would revert to the plots
/// that the catalogue proposes. When a plot or load case is offered again, its previous check state
/// is restored. As long as the user has not changed the choice, the catalogue's proposal for the
/// offered plots applies.
class PlotChoice
{
public:
    /// `view` is the view of the page. Neither argument is owned.
    PlotChoice(VKD_P_WidgetGraphicalOutput* page, AnimatorView* view);

    /// Stores the page's current plots as the catalogue's proposal.
    void setProposed();
    /// Shows a saved string of a page. Plots and load cases that the page does not offer are kept.
    void setSaved(const QString& page);
    /// Returns the string of the page, including the plots that the page does not offer.
    QString page() const;
    /// Returns a digest of all chosen plots, including those that the page does not offer.
    QString chosenDigest() const;
    /// Applies the contents of a preset. Plots and load cases that the page does not offer are
    /// kept.
    void apply(const QVariantMap& preset, PlotsOfPreset mode);
    /// Returns the number of chosen plots that the page does not offer.
    int absentPlots() const;
    /// Must be called before each change to the offered load cases or content; giveBack() must be
    /// called after the change.
    void remember();
    void giveBack();
    /// Returns the choice as text for an undo step.
    QString stateText() const;
    /// Restores the choice from an undo step. remember() must have been called, and the page must
    /// already offer the load cases and the content of the step. The page itself restores its plots
    /// afterwards.
    void restoreState(const QString& text);

private:
    QString pageString() const;
    QString shownPlots() const;
    QString withKept(const QString& plots) const;
    void showChosen();

    VKD_P_WidgetGraphicalOutput* m_page;
    AnimatorView* m_view;
    QTreeWidget* m_tree;
    TreeViewState m_look; ///< the view of the tree before the change
    QString m_chosen;     ///< selection text of the user's plots; empty for the proposal
    QString m_shown;      ///< digest of the plots that the page showed after the last change
    KeptPlots m_kept;     ///< plots in m_chosen that the page does not offer
};

} // namespace workbench
