#include "history/StepStack.h"

#include <QAction>
#include <QEvent>
#include <QUndoCommand>
#include <QWidget>

#include <utility>

namespace plib {

namespace {
constexpr int MostSteps = 500;
}

/// Undoes and redoes a step. The first calls have no effect: pushing a command calls redo(), but
/// the user has already made the change.
class StepStack::Command : public QUndoCommand
{
public:
    explicit Command(std::shared_ptr<HistoryStep> step, int callsWithoutEffect)
        : m_step(std::move(step))
        , m_callsWithoutEffect(callsWithoutEffect)
    {
    }

    const std::shared_ptr<HistoryStep>& step() const { return m_step; }

    void undo() override
    {
        if (hasEffect())
            m_step->undo();
    }
    void redo() override
    {
        if (hasEffect())
            m_step->redo();
    }

private:
    bool hasEffect() { return m_callsWithoutEffect == 0 || m_callsWithoutEffect-- == 0; }

    std::shared_ptr<HistoryStep> m_step;
    int m_callsWithoutEffect;
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
    page->installEventFilter(this);
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
    m_stack.push(new Command(step, 1));
    dropOldSteps();
}

void StepStack::clear()
{
    m_stack.clear();
    m_stack.setClean();
    showSteps();
}

std::vector<std::shared_ptr<HistoryStep>> StepStack::steps() const
{
    std::vector<std::shared_ptr<HistoryStep>> steps;
    steps.reserve(std::size_t(m_stack.count()));
    for (int index = 0; index < m_stack.count(); ++index)
        steps.push_back(static_cast<const Command*>(m_stack.command(index))->step());
    return steps;
}

void StepStack::setSteps(const std::vector<std::shared_ptr<HistoryStep>>& steps, int done,
                         int clean)
{
    const bool wasModified = isModified();
    fill(steps, done, clean);
    if (isModified() != wasModified)
        Q_EMIT modifiedChanged(!wasModified);
}

/// Does not emit signals. The stack can mark only its current index as clean.
void StepStack::fill(const std::vector<std::shared_ptr<HistoryStep>>& steps, int done, int clean)
{
    {
        const QSignalBlocker silent(&m_stack);
        m_stack.clear();
        setModified(clean != 0);
        for (const auto& step : steps) {
            m_stack.push(new Command(step, m_stack.count() < done ? 1 : 2));
            if (m_stack.count() == clean)
                m_stack.setClean();
        }
        while (m_stack.index() > qMax(done, 0))
            m_stack.undo();
    }
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
    const int done = m_stack.index();
    m_undo->setText(m_stack.canUndo() ? tr("&Undo %1").arg(shown(stepAt(done - 1).name()))
                                      : tr("&Undo"));
    m_redo->setText(m_stack.canRedo() ? tr("&Redo %1").arg(shown(stepAt(done).name()))
                                      : tr("&Redo"));
}

const HistoryStep& StepStack::stepAt(int index) const
{
    return *static_cast<const Command*>(m_stack.command(index))->step();
}

bool StepStack::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showSteps();
    return QObject::eventFilter(watched, event);
}

/// Limits the memory. The stack can only be cleared as a whole, so the newest steps are pushed
/// again.
void StepStack::dropOldSteps()
{
    std::vector<std::shared_ptr<HistoryStep>> newest = steps();
    std::size_t size = 0;
    int kept = m_stack.count();
    while (kept > 0 && (size += newest[std::size_t(kept) - 1]->size()) <= m_mostSize)
        --kept;
    if (kept == 0)
        return;
    const int dropped = qMin(kept, m_stack.count() - 1);
    newest.erase(newest.begin(), newest.begin() + dropped);
    fill(newest, int(newest.size()), m_stack.cleanIndex() - dropped);
}

} // namespace plib
