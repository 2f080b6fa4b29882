#pragma once

#include <QString>

class AnimatorView;
class VKD_P_WidgetGraphicalOutput;

namespace workbench {

/// The user's choice of plots on an output page. It preserves the choice when the offered load
/// cases or contents change; the page itself would return to the plots that the catalogue proposes.
/// A plot or load case that is offered again gets its previous check mark. As long as the user has
/// chosen nothing, the proposal for the current offer applies.
class PlotChoice
{
public:
    /// Neither is owned; `view` is the view of the page.
    PlotChoice(VKD_P_WidgetGraphicalOutput* page, AnimatorView* view);

    /// Remembers the plots that the page shows now as the proposal of the catalogue.
    void setProposed();
    /// Must be called before each change of the offered load cases or contents, and giveBack()
    /// after it.
    void remember();
    void giveBack();

private:
    QString shown() const;
    void show(const QString& plots);

    VKD_P_WidgetGraphicalOutput* m_page;
    AnimatorView* m_view;
    QString m_chosen; ///< the selection text of the user's plots; null for the proposal
    QString m_shown;  ///< the part of the text that the page could show after the last change
};

} // namespace workbench
