#pragma once

#include "project/output/OutputState.h"
#include "window/output/PlotChoice.h"

#include <VKD_P_WidgetGraphicalOutput_AdditionalData>

#include <QObject>

class VKD_H_TabDialog;
class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

namespace workbench {

class LoadCaseTable;

/// The load cases and the content that an output page offers, in two tabs. The user's choice of
/// plots is preserved when they change. Each change is an undo step of the page.
class OutputOffers : public QObject
{
    Q_OBJECT

public:
    /// The page owns the object. `view` is the view of the page.
    OutputOffers(ZobHandle project, VKD_P_WidgetGraphicalOutput* page, AnimatorView* view);

    /// Adds the tabs and the action for presets to the dialog. `projectPath` is the initial path in
    /// file dialogs.
    void addTo(VKD_H_TabDialog* dialog, const QString& projectPath);

    /// Shows the saved state without emitting a signal, and clears the undo steps of the page.
    void restore(const OutputState& saved);
    /// Returns the string of the page, including the chosen plots that the page does not offer.
    QString page() const { return m_choice.page(); }
    /// Returns the number of chosen plots that the page does not offer.
    int absentPlots() const { return m_choice.absentPlots(); }
    /// Returns the undo steps of the page, for another page with the same state.
    QByteArray steps() const;
    /// Continues with the undo steps of another page, unless the pages have different states.
    void setSteps(const QByteArray& steps);
    /// Sets the content and the load cases in `state`.
    void readTo(OutputState* state) const;

Q_SIGNALS:
    void changed();

private:
    QWidget* newLoadCaseTab(QWidget* parent);
    QWidget* newContentTab(QWidget* parent);
    void applyPreset(const QVariantMap& preset, PlotsOfPreset mode, const QStringList& stepName);
    void addPresets(VKD_H_TabDialog* dialog, const QString& projectPath);
    void connectTabs();
    void begin();
    void finish();
    void offerLoadCases();
    QString offersText() const;
    QByteArray stepsHead() const;
    QString stateText() const;
    Q_SLOT void restoreState(const QString& text);

    ZobHandle m_project;
    VKD_P_WidgetGraphicalOutput* m_page;
    PlotChoice m_choice;
    QObject* m_steps; ///< the page's undo steps; see VKD_P_WidgetGraphicalOutput_Steps.h
    LoadCaseTable* m_loadCases = nullptr;
    VKD_QT_RadioButtonGroup* m_contents = nullptr;
    VKD_P_WidgetGraphicalOutput_AdditionalData m_contentBinding;
    QSet<int> m_absentNumbers; ///< unchecked load cases in the saved state that the project lacks
    OutputState m_known;       ///< content and load cases after the last change
};

} // namespace workbench
