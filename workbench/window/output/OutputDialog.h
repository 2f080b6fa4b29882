#pragma once

#include "project/OutputState.h"
#include "window/output/checkedPlots.h"
#include "window/output/PlotChoice.h"
#include "window/output/TreeViewState.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_TabDialog.h>
#include <vkd_language.h>
#include <VKD_P_WidgetGraphicalOutput_AdditionalData>

#include <QTimer>

class AnimatorView;
class QTreeWidget;
class VKD_H_ZOBDoc;
class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

namespace workbench {

class LoadCaseTable;

/// The state of a dialog, for another dialog that replaces it.
struct OutputPresent
{
    OutputState state;
    bool isChanged;
    bool isVisible;
    int tab;
    TreeViewState plots;
};

/// The graphical output of a project in tabs: the page with its own view, the offered load cases,
/// and plots that are offered although the model lacks their contents. It is modeless. After OK it
/// is only hidden, because it creates the script of the current choice.
class OutputDialog : public VKD_H_TabDialog
{
    Q_OBJECT

public:
    /// Shows `state`. `document` is not owned and outlives the dialog.
    OutputDialog(VKD_H_ZOBDoc* document, const OutputState& state, QWidget* parent);
    ~OutputDialog() override;

    /// Returns the script of the current choice with English or German keywords; empty if no plot
    /// is checked.
    QString script(vkd::Language keywords);
    /// Returns the captions of the plots that the script draws, as shown in the tree of the page.
    QVector<PlotCaption> captions();
    /// Returns the state that is saved in the project.
    OutputState state();
    /// Returns whether the user has changed anything since the dialog was created or setUnchanged()
    /// was called.
    bool isChanged();
    void setUnchanged();
    /// Emits choiceChanged() at once if it is due.
    void finishChanges();

    OutputPresent present();
    /// Continues another dialog; this one must have been created with its state.
    void setPresent(const OutputPresent& present);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted after changes that affect the script, once for all changes of an event.
    void choiceChanged();

private:
    void addTabs();
    QWidget* newLoadCaseTab();
    QWidget* newContentTab();
    void restore(const OutputState& state);
    void bindOffers();
    void offerLoadCases();
    void listen();
    bool showsUsersView() const;
    void storeUsersCamera();
    QString fingerprint();

    VKD_H_ZOBDoc* m_document;
    VKD_H_PluginParameter m_parameter;
    AnimatorView* m_view;
    VKD_P_WidgetGraphicalOutput* m_page;
    QTreeWidget* m_plots;
    PlotChoice m_choice;
    LoadCaseTable* m_loadCases = nullptr;
    VKD_QT_RadioButtonGroup* m_contents = nullptr;
    VKD_P_WidgetGraphicalOutput_AdditionalData m_contentBinding;
    QTimer m_changes;
    QString m_unchanged;
};

} // namespace workbench
