#pragma once

#include "project/output/OutputListChange.h"

#include <QCoreApplication>
#include <QSet>
#include <QUndoStack>

namespace workbench {

/// The commands that change the list of outputs.
enum class OutputsStep { Add, Duplicate, Rename, Delete, Move, Copy };

/// The undo steps of the list of outputs. A step contains the difference between the lists before
/// and after a change, so that the commands need no code for undo. The page of each output has its
/// own undo steps. The number of steps and their total size are limited.
class OutputsHistory
{
    Q_DECLARE_TR_FUNCTIONS(workbench::OutputsHistory)

public:
    OutputsHistory();

    /// Adds a step for a change that the user has already made. `name` appears in the text of the
    /// step.
    void record(OutputsStep step, const QString& name, const OutputList& before,
                const OutputList& after);
    /// Clears the history if the list belongs to another project. Must be called for each new list.
    void follow(const OutputList& list);

    bool canUndo() const { return m_stack.canUndo(); }
    bool canRedo() const { return m_stack.canRedo(); }
    /// These functions return the texts of the actions in the current language.
    QString undoText() const;
    QString redoText() const;
    /// These functions return the identifier of the output that undo() or redo() makes current.
    int currentAfterUndo() const;
    int currentAfterRedo() const;
    void undo(OutputList* list);
    void redo(OutputList* list);

private:
    struct Step;
    class Command;
    const Step& stepAt(int index) const;
    void dropOldSteps();

    QUndoStack m_stack;
    OutputList* m_list = nullptr; ///< the list that is being changed by undo or redo
    QSet<int> m_known;            ///< identifiers in the list of the last call to follow()
};

} // namespace workbench
