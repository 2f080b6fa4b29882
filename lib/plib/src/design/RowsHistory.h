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
/// stored form. A page that replaces another page can continue with its steps if it has the same
/// rows.
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
    /// Returns the steps for another page with the same rows, or an empty array if there are none.
    QByteArray steps() const;
    /// Replaces the steps with those of another page. If its rows differ, or the bytes are
    /// malformed, does nothing and returns false.
    bool setSteps(const QByteArray& bytes);
    void record(const QStringList& name, const std::set<int>& rows,
                const TableSelection& selectedBefore);

Q_SIGNALS:
    void modifiedChanged(bool isModified);
    /// Emitted after each step, after undo and redo, and after restart().
    void rowsChanged();

private:
    class Step;
    std::shared_ptr<HistoryStep> readStep(QDataStream& stream);
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
    /// Records a step with a name of its own; see stepText().
    RecordedStep(DesignParameter* page, const QStringList& name, std::set<int> rows);
    ~RecordedStep();
    RecordedStep(const RecordedStep&) = delete;
    RecordedStep& operator=(const RecordedStep&) = delete;

private:
    QPointer<RowsHistory> m_history;
    QStringList m_name;
    std::set<int> m_rows;
    TableSelection m_selection;
};

} // namespace plib
