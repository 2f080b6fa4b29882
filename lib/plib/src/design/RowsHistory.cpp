#include "design/RowsHistory.h"

#include "design/DesignParameter.h"
#include "exchange/wholeRows.h"
#include "history/stepText.h"
#include "table/DesignParameterTable.h"

#include <QAction>
#include <QDataStream>
#include <QIODevice>

#include <utility>

namespace plib {

namespace {
constexpr std::size_t MostRows = 100000; // in all steps; roughly 30 MB
}

/// A change to the rows, and the selection before and after it.
class RowsHistory::Step : public HistoryStep
{
public:
    Step(RowsHistory* history, QStringList name, RowsChange change, const TableSelection& before,
         const TableSelection& after)
        : rows(std::move(change))
        , selectedBefore(before)
        , selectedAfter(after)
        , m_history(history)
        , m_name(std::move(name))
    {
    }

    /// Writes the step for readStep().
    void write(QDataStream& stream) const
    {
        stream << m_name << qint32(rows.first) << bytesOfWholeRows(rows.before)
               << bytesOfWholeRows(rows.after) << selectedBefore << selectedAfter;
    }

    QString name() const override { return stepText(m_name); }
    void undo() override { m_history->replace(*this, true); }
    void redo() override { m_history->replace(*this, false); }
    std::size_t size() const override { return rows.before.size() + rows.after.size(); }

    const RowsChange rows;
    const TableSelection selectedBefore;
    const TableSelection selectedAfter;

private:
    RowsHistory* m_history;
    QStringList m_name;
};

RowsHistory::RowsHistory(DesignParameter* page)
    : QObject(page)
    , m_page(page)
    , m_stack(page, MostRows, this)
{
    m_page->state().table->addActions(m_stack.actions()); // for the table's context menu
    connect(&m_stack, &StepStack::aboutToStep, this, [this] { m_page->finishEditing(); });
    connect(&m_stack, &StepStack::stepped, this, [this] {
        m_page->showNotice(QString()); // an old notice no longer applies
    });
    connect(&m_stack, &StepStack::modifiedChanged, this, &RowsHistory::modifiedChanged);
}

void RowsHistory::restart()
{
    m_known = m_page->state().rows;
    m_stack.clear();
    Q_EMIT rowsChanged();
}

QByteArray RowsHistory::steps() const
{
    const auto steps = m_stack.steps();
    if (steps.empty())
        return QByteArray();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << bytesOfWholeRows(m_known) << qint32(m_stack.doneSteps())
           << qint32(m_stack.cleanStep());
    for (const auto& step : steps)
        static_cast<const Step&>(*step).write(stream);
    return bytes;
}

bool RowsHistory::setSteps(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    QByteArray known;
    qint32 done = 0, clean = 0;
    stream >> known >> done >> clean;
    std::vector<std::shared_ptr<HistoryStep>> all;
    while (stream.status() == QDataStream::Ok && !stream.atEnd())
        all.push_back(readStep(stream));
    if (stream.status() != QDataStream::Ok || known != bytesOfWholeRows(m_known))
        return false;
    m_stack.setSteps(all, done, clean);
    return true;
}

/// Sets the status of the stream if the bytes are malformed.
std::shared_ptr<HistoryStep> RowsHistory::readStep(QDataStream& stream)
{
    QStringList name;
    qint32 first = 0;
    QByteArray before, after;
    TableSelection selectedBefore, selectedAfter;
    stream >> name >> first >> before >> after >> selectedBefore >> selectedAfter;
    const auto rowsBefore = wholeRowsOf(before, m_page->state().barData);
    const auto rowsAfter = wholeRowsOf(after, m_page->state().barData);
    if (!rowsBefore || !rowsAfter) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return nullptr;
    }
    return std::make_shared<Step>(this, name, RowsChange{first, *rowsBefore, *rowsAfter},
                                  selectedBefore, selectedAfter);
}

/// Compares the rows of the step and their neighbours, with which they may have been swapped.
void RowsHistory::record(const QStringList& name, const std::set<int>& rows,
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
    m_stack.push(
        std::make_shared<Step>(this, name, std::move(change), selectedBefore, selectedAfter));
    Q_EMIT rowsChanged();
}

void RowsHistory::replace(const Step& step, bool isUndo)
{
    const DesignRowList& from = isUndo ? step.rows.after : step.rows.before;
    const DesignRowList& to = isUndo ? step.rows.before : step.rows.after;
    replaceRows(m_known, step.rows.first, int(from.size()), to);
    m_page->replaceRows(step.rows.first, int(from.size()), to,
                        isUndo ? step.selectedBefore : step.selectedAfter);
    Q_EMIT rowsChanged();
}

RecordedStep::RecordedStep(DesignParameter* page, RowsStep step, const std::set<int>& rows)
    : RecordedStep(page, nameOf(step, rows), rows)
{
}

RecordedStep::RecordedStep(DesignParameter* page, const QStringList& name, std::set<int> rows)
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
