#pragma once

#include <QString>

class AnimatorView;
class VKD_P_WidgetGraphicalOutput;

namespace workbench {

/// The user's choice of plots on an output page, which outlasts a change of the load cases or
/// contents that the page offers: the page itself then comes up with the plots that the catalogue
/// proposes. A plot or load case that is offered once more has the check mark that it had before.
/// As long as the user chose nothing, the proposal for the present offer stands.
class PlotChoice
{
public:
    /// Neither is owned; `view` is that of the page.
    PlotChoice(VKD_P_WidgetGraphicalOutput* page, AnimatorView* view);

    /// The page shows what the catalogue proposes.
    void setProposed();
    /// To be called before each change of the offer, and giveBack() after it.
    void remember();
    void giveBack();

private:
    QString shown() const;
    void show(const QString& plots);

    VKD_P_WidgetGraphicalOutput* m_page;
    AnimatorView* m_view;
    QString m_chosen; ///< the selection text of the user's plots; null for the proposal
    QString m_shown;  ///< what of it the page could show after the last change
};

} // namespace workbench
