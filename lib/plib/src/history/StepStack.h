#pragma once

#include <QObject>
#include <QUndoStack>

#include <memory>
#include <vector>

class QAction;
class QWidget;

namespace plib {

/// A change that the user has made and that can be undone. A step stores the values before and
/// after the change.
class HistoryStep
{
public:
    virtual ~HistoryStep() = default;

    /// Returns the name in the current language.
    virtual QString name() const = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Returns the size of the step, in the unit of the stack's size limit.
    virtual std::size_t size() const = 0;
};

/// The undo and redo steps of a page, and the actions "undo" and "redo" with their shortcuts. The
/// number of steps and their total size are limited. The history of each page records the steps and
/// adds them to a stack. The actions are translated again after a language change.
class StepStack : public QObject
{
    Q_OBJECT

public:
    /// Adds the actions to the page. `mostSize` limits the total size of all steps. The stack is a
    /// member of `history` and also its QObject child, so that hosts find the actions among the
    /// descendants of the page.
    StepStack(QWidget* page, std::size_t mostSize, QObject* history);
    ~StepStack() override;

    /// Adds a step for a change that the user has already made.
    void push(const std::shared_ptr<HistoryStep>& step);
    /// Removes all steps. Afterwards, the page counts as unmodified.
    void clear();
    /// Returns all steps, including those that were undone.
    std::vector<std::shared_ptr<HistoryStep>> steps() const;
    /// Returns the number of steps that can be undone.
    int doneSteps() const { return m_stack.index(); }
    /// Returns the number of steps after which the page was unmodified, or -1 if there is none.
    int cleanStep() const { return m_stack.cleanIndex(); }
    /// Replaces the steps without carrying them out. The first `done` steps can be undone, and the
    /// others can be redone. `clean` is the result of cleanStep().
    void setSteps(const std::vector<std::shared_ptr<HistoryStep>>& steps, int done, int clean);
    bool isModified() const { return !m_stack.isClean(); }
    void setModified(bool isModified);

    QList<QAction*> actions() const { return {m_undo, m_redo}; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted before the user undoes or redoes a step.
    void aboutToStep();
    /// Emitted when a step has been added, undone or redone.
    void stepped();
    void modifiedChanged(bool isModified);

private:
    class Command;
    QAction* newAction(QWidget* page, const char* name, const QList<QKeySequence>& keys,
                       void (QUndoStack::*step)());
    const HistoryStep& stepAt(int index) const;
    void fill(const std::vector<std::shared_ptr<HistoryStep>>& steps, int done, int clean);
    void showSteps();
    void dropOldSteps();

    std::size_t m_mostSize;
    QUndoStack m_stack;
    QAction* m_undo;
    QAction* m_redo;
};

} // namespace plib
