#pragma once

#include "project/output/OutputState.h"
#include "window/choice/TypedFilters.h"
#include "window/output/checkedPlots.h"
#include "window/output/RefusedTexts.h"
#include "window/output/TreeViewState.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_TabDialog.h>
#include <vkd_language.h>

#include <QTimer>

class AnimatorView;
class QTreeWidget;
class VKD_H_ZOBDoc;
class VKD_P_WidgetGraphicalOutput;

namespace workbench {

class OutputOffers;
class UserDefinedView;

/// The state of a dialog, which can be passed to a dialog that replaces it.
struct OutputPresent
{
    OutputState state;
    bool isChanged;
    QString unchanged; ///< the last saved state as text; empty if it is unknown
    int tab;
    TreeViewState plots;
    RefusedTexts refused;
    TypedFilters filters;
    QByteArray steps; ///< undo steps of the page
};

/// The tabs for the graphical output of a project. OutputDock shows them. The tabs contain the page
/// with its own view, the offered load cases, and the option to offer plots whose content the model
/// lacks. The class is a dialog because the page looks for a tab dialog among its ancestors. Apply
/// emits accepted() and Discard emits rejected(); neither hides the tabs.
class OutputDialog : public VKD_H_TabDialog
{
    Q_OBJECT

public:
    /// Shows `state`. `document` is not owned and must outlive the dialog.
    OutputDialog(VKD_H_ZOBDoc* document, const OutputState& state, QWidget* parent);
    ~OutputDialog() override;

    /// Returns the script of the current selection with English or German keywords, or an empty
    /// string if no plot is checked.
    QString script(vkd::Language keywords);
    /// Returns the captions of the plots that the script draws, as shown in the tree of the page.
    QVector<PlotCaption> captions();
    /// Returns the state that is saved in the project.
    OutputState state();
    /// Returns the number of chosen plots that the page does not offer. They are saved, too.
    int absentPlots() const;
    /// Returns whether the user has made any changes since the dialog was created or setUnchanged()
    /// was called.
    bool isChanged();
    void setUnchanged();
    /// Sets the saved state, as text, with which isChanged() compares the state of the dialog.
    void setUnchanged(const QString& text) { m_unchanged = text; }
    /// Returns whether there are changes, or texts that a field refuses. Such a text is not part of
    /// the state, but the user must not lose it without being asked.
    bool hasUnsavedInput();
    /// Enables or disables Apply and Discard.
    void enableButtons(bool canApply, bool canDiscard);
    /// Gives the focus to the tree of plots, or to the first field if another tab is shown.
    void enter();
    /// Frees the memory of the plots. After this call, the dialog can only be destroyed.
    void removePlots();
    /// Emits a pending choiceChanged() immediately.
    void finishChanges();

    OutputPresent present();
    /// Continues the work of another dialog. This dialog must have been created with the state of
    /// the other dialog.
    void setPresent(const OutputPresent& present);

    void done(int result) override;

Q_SIGNALS:
    /// Emitted after changes that affect the script, only once for all changes made by one event.
    void choiceChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setButtons();
    void setButtonTexts();
    void addTabs();
    void restore(const OutputState& state);
    void listen();

    VKD_H_ZOBDoc* m_document;
    VKD_H_PluginParameter m_parameter;
    AnimatorView* m_view;
    VKD_P_WidgetGraphicalOutput* m_page;
    UserDefinedView* m_userDefinedView;
    QTreeWidget* m_plots;
    OutputOffers* m_offers;
    QTimer m_changes;
    QString m_unchanged;
};

} // namespace workbench
