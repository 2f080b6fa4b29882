#pragma once

#include "project/output/OutputList.h"

#include <QHash>
#include <QPair>

namespace workbench {

/// A change to the names, the order or the number of outputs, which can be undone and redone. The
/// plots and settings of outputs that both lists contain are not part of the change. Later changes
/// by other programs are preserved.
class OutputListChange
{
public:
    OutputListChange(const OutputList& before, const OutputList& after);

    bool isEmpty() const;
    void undo(OutputList* list);
    void redo(OutputList* list);
    /// These functions return the identifier of the output that undo() or redo() makes current.
    int currentAfterUndo() const { return m_before.current; }
    int currentAfterRedo() const { return m_after.current; }
    /// Returns the number of characters in the stored states.
    std::size_t size() const;

private:
    struct Order
    {
        explicit Order(const OutputList& list);
        QString nameOf(int id) const;

        QVector<QPair<int, QString>> names; ///< identifiers and names, in the order of the list
        int current;
    };

    void change(const Order& from, const Order& to, OutputList* list);
    void rename(const Order& from, const Order& to, QVector<NamedOutput>* outputs) const;

    Order m_before;
    Order m_after;
    QHash<int, NamedOutput> m_removed; ///< outputs that the list lacks at present, by identifier
};

} // namespace workbench
