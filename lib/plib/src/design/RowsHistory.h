#pragma once

#include "design/TableSelection.h"
#include "record/RowsChange.h"

#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <memory>

class DesignParameter;
class QAction;

namespace plib {

struct RecordedChange;

/// Undo and redo of the design page, a child of it. It has a copy of the rows and finds the change
/// of a step by comparing them, so that the operations contain no code for undoing them. Recording
/// takes time for the changed rows only.
///
/// Reading and writing the project start a new history, because writing converts the rows to the
/// stored form.
class RowsHistory : public QObject
{
    Q_OBJECT

public:
    explicit RowsHistory(DesignParameter* page);
    ~RowsHistory() override;

    /// Forgets all steps.
    void restart();
    void record(RowsStep step, const std::set<int>& rows, const TableSelection& selectedBefore);

private:
    class Command;
    void showSteps();
    void replace(const RecordedChange& change, bool isUndo);
    void dropOldSteps();

    DesignParameter* m_page;
    DesignRowList m_known; ///< the rows after the last step
    QUndoStack m_stack;
    QAction* m_undo;
    QAction* m_redo;
};

/// Records the changes of a step that the user makes, from its construction to its destruction.
/// `rows` are the numbers of the rows that the step may change, except those that it moves.
class RecordedStep
{
public:
    RecordedStep(DesignParameter* page, RowsStep step, std::set<int> rows);
    ~RecordedStep();
    RecordedStep(const RecordedStep&) = delete;
    RecordedStep& operator=(const RecordedStep&) = delete;

private:
    QPointer<RowsHistory> m_history;
    RowsStep m_step;
    std::set<int> m_rows;
    TableSelection m_selection;
};

} // namespace plib
