#include "window/outputs/OutputsHistory.h"

#include <QScopedValueRollback>
#include <QUndoCommand>

#include <memory>
#include <utility>
#include <vector>

namespace workbench {

namespace {
constexpr int MostSteps = 500;
constexpr std::size_t MostCharacters = 16000000; // in all steps together; 32 MB

/// The name of an output may contain an ampersand, which would mark a mnemonic in a menu.
QString shown(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

struct OutputsHistory::Step
{
    QString text() const
    {
        const QString shownName = name.isEmpty() ? OutputList().name(0) : name;
        switch (step) {
        case OutputsStep::Add: return tr("New Output \"%1\"").arg(shownName);
        case OutputsStep::Duplicate: return tr("Duplicate \"%1\"").arg(shownName);
        case OutputsStep::Rename: return tr("Rename \"%1\"").arg(shownName);
        case OutputsStep::Delete: return tr("Delete \"%1\"").arg(shownName);
        case OutputsStep::Move: return tr("Move \"%1\"").arg(shownName);
        case OutputsStep::Copy: return tr("Copy from \"%1\"").arg(shownName);
        }
        return QString();
    }

    OutputsStep step;
    QString name; ///< empty if the output has a default name, which depends on the language
    OutputListChange change;
};

/// Undoes and redoes a step. Pushing a command calls redo(), which must then have no effect,
/// because the user has already made the change.
class OutputsHistory::Command : public QUndoCommand
{
public:
    Command(OutputsHistory* history, std::shared_ptr<Step> step)
        : m_history(history)
        , m_step(std::move(step))
    {
    }

    const std::shared_ptr<Step>& step() const { return m_step; }

    void undo() override { m_step->change.undo(m_history->m_list); }
    void redo() override
    {
        if (m_history->m_list)
            m_step->change.redo(m_history->m_list);
    }

private:
    OutputsHistory* m_history;
    std::shared_ptr<Step> m_step;
};

OutputsHistory::OutputsHistory()
{
    m_stack.setUndoLimit(MostSteps);
}

const OutputsHistory::Step& OutputsHistory::stepAt(int index) const
{
    return *static_cast<const Command*>(m_stack.command(index))->step();
}

void OutputsHistory::record(OutputsStep step, const QString& name, const OutputList& before,
                            const OutputList& after)
{
    const OutputListChange change(before, after);
    if (change.isEmpty())
        return;
    const bool isDefault =
        before.current().name.isEmpty() && name == before.name(before.currentIndex());
    m_stack.push(new Command(
        this, std::make_shared<Step>(Step{step, isDefault ? QString() : name, change})));
    dropOldSteps();
}

/// A stack can only be cleared as a whole, so the newest steps are pushed again.
void OutputsHistory::dropOldSteps()
{
    std::size_t size = 0;
    int first = m_stack.count();
    while (first > 0 && (size += stepAt(first - 1).change.size()) <= MostCharacters)
        --first;
    if (first == 0)
        return;
    std::vector<std::shared_ptr<Step>> newest;
    for (int i = qMin(first, m_stack.count() - 1); i < m_stack.count(); ++i)
        newest.push_back(static_cast<const Command*>(m_stack.command(i))->step());
    m_stack.clear();
    for (const auto& step : newest)
        m_stack.push(new Command(this, step));
}

/// The lists of a project always have outputs in common, even after the project is reloaded.
void OutputsHistory::follow(const OutputList& list)
{
    QSet<int> ids;
    for (const NamedOutput& output : list.outputs())
        ids << output.id;
    if (!ids.intersects(m_known))
        m_stack.clear();
    m_known = ids;
}

QString OutputsHistory::undoText() const
{
    return canUndo() ? tr("&Undo %1").arg(shown(stepAt(m_stack.index() - 1).text())) : tr("&Undo");
}

QString OutputsHistory::redoText() const
{
    return canRedo() ? tr("Red&o %1").arg(shown(stepAt(m_stack.index()).text())) : tr("Red&o");
}

int OutputsHistory::currentAfterUndo() const
{
    return stepAt(m_stack.index() - 1).change.currentAfterUndo();
}

int OutputsHistory::currentAfterRedo() const
{
    return stepAt(m_stack.index()).change.currentAfterRedo();
}

void OutputsHistory::undo(OutputList* list)
{
    const QScopedValueRollback<OutputList*> changed(m_list, list);
    m_stack.undo();
}

void OutputsHistory::redo(OutputList* list)
{
    const QScopedValueRollback<OutputList*> changed(m_list, list);
    m_stack.redo();
}

} // namespace workbench
