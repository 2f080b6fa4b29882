#pragma once

#include "record/RowsChange.h"
#include "table/TableSelection.h"

#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <memory>

class DesignParameter;
class QAction;

namespace plib {

struct RecordedChange;

/// Provides undo and redo for the design page, whose child it is. It keeps a copy of the rows and
/// compares it with the rows to find the change of a step, so that the operations need no code for
/// undo. Recording takes time only for the changed rows.
///
/// Reading and writing the project start a new history, because writing converts the rows to the
/// stored form.
class RowsHistory : public QObject
{
    Q_OBJECT

public:
    explicit RowsHistory(DesignParameter* page);
    ~RowsHistory() override;

    /// Clears the history. The rows count as unmodified.
    void restart();
    /// Returns whether the rows differ from those that were read or written last.
    bool isModified() const { return !m_stack.isClean(); }
    void setModified(bool isModified);
    void record(const QString& name, const std::set<int>& rows,
                const TableSelection& selectedBefore);

Q_SIGNALS:
    void modifiedChanged(bool isModified);
    /// Emitted after each step, after undo and redo, and after restart().
    void rowsChanged();

private:
    class Command;
    void showSteps();
    void replace(const RecordedChange& change, bool isUndo);
    void dropOldSteps();

    DesignParameter* m_page;
    DesignRowList m_known; ///< rows after the last step
    QUndoStack m_stack;
    QAction* m_undo;
    QAction* m_redo;
};

/// Records the changes that the user makes in one step, from construction to destruction of this
/// object. `rows` contains the indexes of the rows that the step may change, except rows that it
/// only moves.
class RecordedStep
{
public:
    RecordedStep(DesignParameter* page, RowsStep step, std::set<int> rows);
    /// Records a step with a name of its own.
    RecordedStep(DesignParameter* page, const QString& name, std::set<int> rows);
    ~RecordedStep();
    RecordedStep(const RecordedStep&) = delete;
    RecordedStep& operator=(const RecordedStep&) = delete;

private:
    QPointer<RowsHistory> m_history;
    QString m_name;
    std::set<int> m_rows;
    TableSelection m_selection;
};

} // namespace plib
