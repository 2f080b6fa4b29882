#include "design/RowsHistory.h"

#include "design/DesignParameter.h"
#include "table/DesignParameterTable.h"

#include <QAction>
#include <QUndoCommand>

#include <utility>

namespace plib {

namespace {
constexpr int MostSteps = 500;
constexpr std::size_t MostRows = 100000; // in all steps; roughly 30 MB
} // namespace

/// A step, shared by the commands that restore it.
struct RecordedChange
{
    QString name;
    RowsChange rows;
    TableSelection selectedBefore;
    TableSelection selectedAfter;

    std::size_t size() const { return rows.before.size() + rows.after.size(); }
};

/// Undoes and redoes a step. Pushing a command calls redo(), which at that time has no effect,
/// because the user has already made the change.
class RowsHistory::Command : public QUndoCommand
{
public:
    Command(RowsHistory* history, std::shared_ptr<const RecordedChange> change)
        : QUndoCommand(change->name)
        , m_history(history)
        , m_change(std::move(change))
    {
    }

    const std::shared_ptr<const RecordedChange>& change() const { return m_change; }

    void undo() override { m_history->replace(*m_change, true); }
    void redo() override
    {
        if (std::exchange(m_isDone, false))
            return;
        m_history->replace(*m_change, false);
    }

private:
    RowsHistory* m_history;
    std::shared_ptr<const RecordedChange> m_change;
    bool m_isDone = true;
};

RowsHistory::RowsHistory(DesignParameter* page)
    : QObject(page)
    , m_page(page)
    , m_undo(new QAction(this))
    , m_redo(new QAction(this))
{
    m_stack.setUndoLimit(MostSteps);
    const auto prepare = [this](QAction* action, const char* name, const QList<QKeySequence>& keys,
                                void (QUndoStack::*step)()) {
        action->setObjectName(QLatin1String(name));
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, [this, step] {
            m_page->finishEditing(); // may be a separate undo step
            (m_stack.*step)();
        });
        m_page->addAction(action);
        m_page->state().table->addAction(action); // for its menu
    };
    prepare(m_undo, "undo", {Qt::CTRL + Qt::Key_Z}, &QUndoStack::undo);
    prepare(m_redo, "redo", {Qt::CTRL + Qt::SHIFT + Qt::Key_Z, Qt::CTRL + Qt::Key_Y},
            &QUndoStack::redo);
    connect(&m_stack, &QUndoStack::indexChanged, this, [this] {
        showSteps();
        m_page->showNotice(QString()); // was about an earlier step
    });
    connect(&m_stack, &QUndoStack::cleanChanged, this,
            [this](bool isClean) { Q_EMIT modifiedChanged(!isClean); });
    showSteps();
}

/// The commands are destroyed while the history still exists.
RowsHistory::~RowsHistory()
{
    m_stack.disconnect(this);
}

void RowsHistory::restart()
{
    m_known = m_page->state().rows;
    m_stack.clear();
    m_stack.setClean();
    showSteps();
    Q_EMIT rowsChanged();
}

void RowsHistory::setModified(bool isModified)
{
    isModified ? m_stack.resetClean() : m_stack.setClean();
}

void RowsHistory::showSteps()
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

/// Compares the rows of the step and their neighbours, with which they may have been swapped.
void RowsHistory::record(const QString& name, const std::set<int>& rows,
                         const TableSelection& selectedBefore)
{
    const DesignRowList& now = m_page->state().rows;
    const int first = rows.empty() ? 0 : *rows.begin() - 1;
    const bool hasSameCount = now.size() == m_known.size();
    const int below = rows.empty() || !hasSameCount ? 0 : int(now.size()) - *rows.rbegin() - 2;
    RowsChange change =
        changeBetween(m_known, now, std::size_t(qMax(first, 0)), std::size_t(qMax(below, 0)));
    if (change.isEmpty())
        return;
    replaceRows(m_known, change.first, int(change.before.size()), change.after);
    const TableSelection selectedAfter(*m_page->state().table);
    m_stack.push(new Command(this, std::make_shared<RecordedChange>(RecordedChange{
                                       name, std::move(change), selectedBefore, selectedAfter})));
    dropOldSteps();
    Q_EMIT rowsChanged();
}

/// Limits the memory. The stack can only be cleared as a whole, so the newest steps are pushed
/// again.
void RowsHistory::dropOldSteps()
{
    const auto changeAt = [this](int index) {
        return static_cast<const Command*>(m_stack.command(index))->change();
    };
    std::size_t size = 0;
    int kept = m_stack.count();
    while (kept > 0 && (size += changeAt(kept - 1)->size()) <= MostRows)
        --kept;
    if (kept == 0)
        return;
    std::vector<std::shared_ptr<const RecordedChange>> newest;
    for (int index = qMin(kept, m_stack.count() - 1); index < m_stack.count(); ++index)
        newest.push_back(changeAt(index));
    const int clean = m_stack.cleanIndex() - (m_stack.count() - int(newest.size()));
    {
        const QSignalBlocker silent(&m_stack); // whether the rows are modified does not change
        m_stack.clear();
        m_stack.resetClean();
        for (const auto& change : newest) {
            m_stack.push(new Command(this, change));
            if (m_stack.count() == clean)
                m_stack.setClean();
        }
    }
    showSteps();
}

void RowsHistory::replace(const RecordedChange& change, bool isUndo)
{
    const DesignRowList& from = isUndo ? change.rows.after : change.rows.before;
    const DesignRowList& to = isUndo ? change.rows.before : change.rows.after;
    replaceRows(m_known, change.rows.first, int(from.size()), to);
    m_page->replaceRows(change.rows.first, int(from.size()), to,
                        isUndo ? change.selectedBefore : change.selectedAfter);
    Q_EMIT rowsChanged();
}

RecordedStep::RecordedStep(DesignParameter* page, RowsStep step, std::set<int> rows)
    : RecordedStep(page, nameOf(step, rows), rows)
{
}

RecordedStep::RecordedStep(DesignParameter* page, const QString& name, std::set<int> rows)
    : m_history(page->findChild<RowsHistory*>(QString(), Qt::FindDirectChildrenOnly))
    , m_name(name)
    , m_rows(std::move(rows))
    , m_selection(*page->state().table)
{
}

RecordedStep::~RecordedStep()
{
    if (m_history)
        m_history->record(m_name, m_rows, m_selection);
}

} // namespace plib
