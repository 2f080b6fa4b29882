#include "history/StepStack.h"

#include <QAction>
#include <QUndoCommand>
#include <QWidget>

#include <utility>
#include <vector>

namespace plib {

namespace {
constexpr int MostSteps = 500;
}

/// Undoes and redoes a step. Pushing a command calls redo(), which at that time has no effect,
/// because the user has already made the change.
class StepStack::Command : public QUndoCommand
{
public:
    explicit Command(std::shared_ptr<HistoryStep> step)
        : QUndoCommand(step->name())
        , m_step(std::move(step))
    {
    }

    const std::shared_ptr<HistoryStep>& step() const { return m_step; }

    void undo() override { m_step->undo(); }
    void redo() override
    {
        if (!std::exchange(m_isDone, false))
            m_step->redo();
    }

private:
    std::shared_ptr<HistoryStep> m_step;
    bool m_isDone = true;
};

StepStack::StepStack(QWidget* page, std::size_t mostSize, QObject* history)
    : QObject(history)
    , m_mostSize(mostSize)
    , m_undo(newAction(page, "undo", {int(Qt::CTRL) | Qt::Key_Z}, &QUndoStack::undo))
    , m_redo(newAction(page, "redo",
                       {int(Qt::CTRL) | Qt::SHIFT | Qt::Key_Z, int(Qt::CTRL) | Qt::Key_Y},
                       &QUndoStack::redo))
{
    m_stack.setUndoLimit(MostSteps);
    connect(&m_stack, &QUndoStack::indexChanged, this, [this] {
        showSteps();
        Q_EMIT stepped();
    });
    connect(&m_stack, &QUndoStack::cleanChanged, this,
            [this](bool isClean) { Q_EMIT modifiedChanged(!isClean); });
    showSteps();
}

/// Destroying the commands must not emit signals.
StepStack::~StepStack()
{
    m_stack.disconnect(this);
}

QAction* StepStack::newAction(QWidget* page, const char* name, const QList<QKeySequence>& keys,
                              void (QUndoStack::*step)())
{
    auto action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, step] {
        Q_EMIT aboutToStep(); // may add a step
        (m_stack.*step)();
    });
    page->addAction(action);
    return action;
}

void StepStack::push(const std::shared_ptr<HistoryStep>& step)
{
    m_stack.push(new Command(step));
    dropOldSteps();
}

void StepStack::clear()
{
    m_stack.clear();
    m_stack.setClean();
    showSteps();
}

void StepStack::setModified(bool isModified)
{
    isModified ? m_stack.resetClean() : m_stack.setClean();
}

void StepStack::showSteps()
{
    m_undo->setEnabled(m_stack.canUndo());
    m_redo->setEnabled(m_stack.canRedo());
    const auto shown = [](QString name) {
        return name.replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    m_undo->setText(m_stack.canUndo() ? tr("&Undo %1").arg(shown(m_stack.undoText()))
                                      : tr("&Undo"));
    m_redo->setText(m_stack.canRedo() ? tr("&Redo %1").arg(shown(m_stack.redoText()))
                                      : tr("&Redo"));
}

/// Limits the memory. The stack can only be cleared as a whole, so the newest steps are pushed
/// again.
void StepStack::dropOldSteps()
{
    const auto stepAt = [this](int index) {
        return static_cast<const Command*>(m_stack.command(index))->step();
    };
    std::size_t size = 0;
    int kept = m_stack.count();
    while (kept > 0 && (size += stepAt(kept - 1)->size()) <= m_mostSize)
        --kept;
    if (kept == 0)
        return;
    std::vector<std::shared_ptr<HistoryStep>> newest;
    for (int index = qMin(kept, m_stack.count() - 1); index < m_stack.count(); ++index)
        newest.push_back(stepAt(index));
    const int clean = m_stack.cleanIndex() - (m_stack.count() - int(newest.size()));
    {
        const QSignalBlocker silent(&m_stack); // the page's modified state does not change
        m_stack.clear();
        if (clean != 0)
            m_stack.resetClean();
        for (const auto& step : newest) {
            m_stack.push(new Command(step));
            if (m_stack.count() == clean)
                m_stack.setClean();
        }
    }
    showSteps();
}

} // namespace plib
