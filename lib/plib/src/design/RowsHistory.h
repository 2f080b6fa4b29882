#pragma once

#include "history/StepStack.h"
#include "record/RowsChange.h"
#include "table/TableSelection.h"

#include <QPointer>

class DesignParameter;

namespace plib {

/// Provides undo and redo for the design page. It keeps a copy of the rows and compares it with the
/// current rows to find what a step has changed, so that the operations need no code for undo. The
/// object is a child of the page. Recording takes time only for the changed rows.
///
/// Reading and writing the project start a new history, because writing converts the rows to the
/// stored form.
class RowsHistory : public QObject
{
    Q_OBJECT

public:
    explicit RowsHistory(DesignParameter* page);

    /// Clears the history. The rows count as unmodified.
    void restart();
    /// Returns whether the rows differ from those that were read or written last.
    bool isModified() const { return m_stack.isModified(); }
    void setModified(bool isModified) { m_stack.setModified(isModified); }
    void record(const QString& name, const std::set<int>& rows,
                const TableSelection& selectedBefore);

Q_SIGNALS:
    void modifiedChanged(bool isModified);
    /// Emitted after each step, after undo and redo, and after restart().
    void rowsChanged();

private:
    class Step;
    void replace(const Step& step, bool isUndo);

    DesignParameter* m_page;
    DesignRowList m_known; ///< rows after the last step
    StepStack m_stack;
};

/// Records the changes that the user makes in one step, from construction to destruction of this
/// object. `rows` contains the indexes of the rows that the step may change, except rows that it
/// only moves.
class RecordedStep
{
public:
    RecordedStep(DesignParameter* page, RowsStep step, const std::set<int>& rows);
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
