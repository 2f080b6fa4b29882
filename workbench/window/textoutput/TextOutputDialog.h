#pragma once

#include "project/output/TextOutputState.h"
#include "window/textoutput/ExtentFields.h"

#include <vkd_dbo_model.h>
#include <VKD_H_Dialog.h>
#include <VKD_P_RadioGroup>

#include <QTimer>

#include <list>
#include <memory>

class QLabel;
class QVBoxLayout;

namespace workbench {

class ChoiceBar;
class CombinationTable;
class ContentsPreview;
class PickTable;
struct PrintedContents;

/// The modeless dialog for the lists, load cases and combinations of the text output of a project.
/// For each of the three, it has a radio group of the library, a widget for an individual choice
/// and a line that shows the result.
class TextOutputDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// Shows the saved state of the project. The project must outlive the dialog.
    TextOutputDialog(ZobHandle project, QWidget* parent);

    /// Returns whether the project could be read. After a failure, the dialog must not be shown.
    const VkdStatus& readStatus() const { return m_readStatus; }

    /// Returns the state that is saved in the project.
    TextOutputState state() const;
    void setState(const TextOutputState& state);
    /// Returns whether the state differs from the saved state in the project.
    bool isChanged() const;
    void setUnchanged() { m_saved = state(); }

Q_SIGNALS:
    /// Emitted after changes, only once for all changes made by one event.
    void choiceChanged();
    /// Emitted when the user wants to save the table of contents.
    void exportRequested(const QString& contents);

private:
    QVBoxLayout* addBox(const QString& title, const QString& explanation);
    void addExtent();
    void addLoadCases(const QVector<vkd::dbo::LoadCase>& loadCases);
    void addCombinations(const QVector<vkd::dbo::LoadCase>& combinations);
    void readState(ZobHandle project);
    void updateKindRow();
    void fillKindRow();
    QLabel* addResult(QVBoxLayout* column, const char* name);
    void addOkRow();
    void showChoice();
    void showInFields();

    PrintedContents printed() const;
    ExtentFields::Choice printedExtent() const;
    QVector<int> printedLoadCases() const;
    QVector<int> printedCombinations() const;

    VKD_P_RadioGroup m_extent;
    VKD_P_RadioGroup m_loadCases;
    std::unique_ptr<VKD_P_RadioGroup> m_combinations;
    std::list<VKD_P_RadioGroup::ButtonID> m_kinds; ///< the kinds that m_combinations offers
    QVBoxLayout* m_boxes = nullptr;
    ContentsPreview* m_contents = nullptr;
    QWidget* m_kindRow = nullptr;
    ExtentFields* m_fields = nullptr;
    ChoiceBar* m_loadCaseBar = nullptr;
    PickTable* m_loadCaseTable = nullptr;
    ChoiceBar* m_combinationBar = nullptr;
    CombinationTable* m_combinationTable = nullptr;
    QLabel* m_extentResult = nullptr;
    QLabel* m_loadCaseResult = nullptr;
    QLabel* m_combinationResult = nullptr;
    VkdStatus m_readStatus;
    TextOutputState m_saved;
    QTimer m_changes; ///< runs after changes until the table of contents is updated
};

} // namespace workbench
