#pragma once

#include "project/OutputState.h"
#include "window/output/checkedPlots.h"
#include "window/output/PlotChoice.h"
#include "window/output/TreeViewState.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_TabDialog.h>
#include <VKD_P_WidgetGraphicalOutput_AdditionalData>

#include <QTimer>

class AnimatorView;
class QTreeWidget;
class VKD_H_ZOBDoc;
class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

namespace workbench {

class LoadCaseTable;

/// All that another dialog needs to take the place of one.
struct OutputPresent
{
    OutputState state;
    bool isChanged;
    bool isVisible;
    int tab;
    TreeViewState plots;
};

/// The graphical output of a project in tabs: the page with a view of its own, the load cases that
/// it offers, and what more it offers than the model holds. It is not modal and stays when it is
/// closed by OK, for the script of the present choice to be had at any time.
class OutputDialog : public VKD_H_TabDialog
{
    Q_OBJECT

public:
    /// Shows `state`. `document` is not owned and outlives the dialog.
    OutputDialog(VKD_H_ZOBDoc* document, const OutputState& state, QWidget* parent);
    ~OutputDialog() override;

    /// The script of the present choice with English or German keywords, empty without a plot.
    QString script(bool english);
    /// What the script draws, as it is called in the tree of the page.
    QVector<PlotCaption> captions();
    /// For the project to keep.
    OutputState state();
    /// Whether the user changed anything since the dialog was made or setUnchanged() was called.
    bool isChanged();
    void setUnchanged();

    OutputPresent present();
    /// For a dialog that was made with the state of the other one.
    void setPresent(const OutputPresent& present);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Something that the script depends on changed, once for all changes of an event.
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
