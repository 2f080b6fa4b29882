#include "project/output/OutputListChange.h"

#include "project/unusedName.h"

#include <algorithm>

namespace workbench {

namespace {
QHash<int, NamedOutput> outputsById(const OutputList& list)
{
    QHash<int, NamedOutput> outputs;
    for (const NamedOutput& output : list.outputs())
        outputs.insert(output.id, output);
    return outputs;
}
} // namespace

OutputListChange::Order::Order(const OutputList& list)
    : current(list.current().id)
{
    for (const NamedOutput& output : list.outputs())
        names.append({output.id, output.name});
}

/// Returns a null string if the list does not contain the output.
QString OutputListChange::Order::nameOf(int id) const
{
    for (const auto& [other, name] : names)
        if (other == id)
            return name.isNull() ? QLatin1String("") : name;
    return QString();
}

OutputListChange::OutputListChange(const OutputList& before, const OutputList& after)
    : m_before(before)
    , m_after(after)
    , m_removed(outputsById(before))
{
    for (const NamedOutput& output : after.outputs())
        m_removed.remove(output.id);
}

bool OutputListChange::isEmpty() const
{
    return m_before.names == m_after.names;
}

void OutputListChange::undo(OutputList* list)
{
    change(m_after, m_before, list);
}

void OutputListChange::redo(OutputList* list)
{
    change(m_before, m_after, list);
}

std::size_t OutputListChange::size() const
{
    std::size_t size = 0;
    for (const NamedOutput& output : m_removed)
        size += std::size_t(output.state.page.size() + output.savedState.page.size()) +
                std::size_t(output.steps.size()) / sizeof(QChar);
    return size;
}

/// Skips outputs that another program has deleted in the meantime. Outputs that another program has
/// added follow the others.
void OutputListChange::change(const Order& from, const Order& to, OutputList* list)
{
    QHash<int, NamedOutput> present = outputsById(*list);
    QVector<NamedOutput> outputs;
    for (const auto& [id, name] : to.names)
        if (present.contains(id))
            outputs << present.take(id);
        else if (m_removed.contains(id))
            outputs << m_removed.take(id);
    for (const NamedOutput& output : list->outputs()) {
        if (!present.contains(output.id))
            continue;
        if (from.nameOf(output.id).isNull())
            outputs << output;
        else
            m_removed.insert(output.id, output);
    }
    if (outputs.isEmpty())
        return;
    rename(from, to, &outputs);
    const auto current =
        std::find_if(outputs.begin(), outputs.end(),
                     [&to](const NamedOutput& output) { return output.id == to.current; });
    list->setOutputs(outputs, current == outputs.end() ? list->currentIndex()
                                                       : int(current - outputs.begin()));
}

/// Sets the names that differ between the two orders. Another program may have stored an output
/// with the same name in the meantime. An output may lack a name only if it is the only one.
void OutputListChange::rename(const Order& from, const Order& to,
                              QVector<NamedOutput>* outputs) const
{
    for (NamedOutput& output : *outputs) {
        const QString name = to.nameOf(output.id);
        if (name.isNull() || name == from.nameOf(output.id) ||
            (name.isEmpty() && outputs->size() > 1))
            continue;
        output.name = unusedName(name, [&output, outputs](const QString& tried) {
            return std::any_of(outputs->begin(), outputs->end(), [&](const NamedOutput& other) {
                return other.id != output.id && other.name.compare(tried, Qt::CaseInsensitive) == 0;
            });
        });
    }
}

} // namespace workbench
