#include "project/output/OutputList.h"

#include "project/dialogPages.h"
#include "project/putEntries.h"

#include <VKD_H_ProjectDialogPage.h>
#include <ZobTransaction.h>

namespace workbench {

int newOutputId()
{
    static int last = 0;
    return ++last;
}

namespace {
constexpr char NameEntry[] = "Name";
constexpr qint64 MostStepBytes = 64000000; // of all outputs together

QString savedName(const VKD_H_ProjectDialogPage& entries, int number)
{
    return entries.getEntry(OutputState::entryKey(NameEntry, number), QString()).simplified();
}

NamedOutput outputOf(const VKD_H_ProjectDialogPage& entries, int number)
{
    NamedOutput output;
    output.name = savedName(entries, number);
    output.state = OutputState::fromEntries(entries, number);
    return output;
}

/// Copies the saved version of an output, except for the parts that the user has changed.
void followSaved(NamedOutput* output, const NamedOutput& saved)
{
    if (output->name == output->savedName)
        output->name = saved.name;
    if (!output->isStateChanged)
        output->state = saved.state;
    output->savedName = saved.name;
    if (!(output->savedState == saved.state))
        output->unchanged.clear();
    output->savedState = saved.state;
}
} // namespace

OutputList::OutputList()
    : m_outputs(1)
{
    setStored();
}

/// Appends a number to a duplicate name, which only another program can have stored.
OutputList OutputList::read(ZobHandle project, VkdStatus* status)
{
    const VKD_H_ProjectDialogPage entries(project, OutputDialogPage);
    if (status)
        *status = entries.readStatus();
    OutputList list;
    list.m_outputs[0] = outputOf(entries, 1);
    for (int number = 2; !savedName(entries, number).isEmpty(); ++number) {
        NamedOutput output = outputOf(entries, number);
        output.name = list.unusedName(output.name);
        list.m_outputs << output;
    }
    list.setStored();
    return list;
}

VkdStatus OutputList::put(ZobHandle project) const
{
    ZobTransaction transaction(project);
    const VkdStatus stored =
        putEntries(project, OutputDialogPage, [this](VKD_H_ProjectDialogPage& entries) {
            for (int number = 1; number <= size(); ++number) {
                const NamedOutput& output = m_outputs[number - 1];
                output.state.setEntries(&entries, number);
                const QString nameKey = OutputState::entryKey(NameEntry, number);
                if (output.name.isEmpty())
                    entries.deleteEntry(nameKey);
                else
                    entries.setEntry(nameKey, output.name);
            }
            for (int number = size() + 1; !savedName(entries, number).isEmpty(); ++number) {
                OutputState::deleteEntries(&entries, number);
                entries.deleteEntry(OutputState::entryKey(NameEntry, number));
            }
        });
    return stored.isOk() ? transaction.commit() : transaction.rollback();
}

void OutputList::setStored()
{
    m_storedNames = names();
    for (int i = 0; i < size(); ++i) {
        NamedOutput& output = m_outputs[i];
        output.isStateChanged = false;
        output.savedName = output.name;
        output.savedState = output.state;
        output.savedIndex = i;
        output.unchanged.clear();
    }
}

void OutputList::continueFrom(const OutputList& before)
{
    setCurrent(indexOf(before.name(before.currentIndex())));
    for (int i = 0; i < before.size(); ++i)
        if (const int index = indexOf(before.name(i)); index >= 0) {
            m_outputs[index].id = before.at(i).id;
            m_outputs[index].steps = before.at(i).steps;
        }
}

/// Returns the index of the saved version of an output among these names, or -1. An output without
/// a name is the first one, even if another program has given it a name in the meantime.
int OutputList::indexOfSaved(const NamedOutput& output, const QStringList& names)
{
    if (output.savedIndex < 0)
        return -1;
    return output.savedName.isEmpty() ? 0 : indexOf(output.savedName, names);
}

void OutputList::follow(const OutputList& project, Removed removed)
{
    QVector<NamedOutput> outputs;
    const QStringList savedNames = project.names();
    int current = 0;
    for (int i = 0; i < size(); ++i) {
        NamedOutput output = m_outputs[i];
        const int saved = indexOfSaved(output, savedNames);
        const bool isUsers = i == m_current || isChanged(i);
        if (saved < 0 && !isUsers && removed == Removed::Drop)
            continue;
        output.savedIndex = saved;
        if (saved >= 0)
            followSaved(&output, project.at(saved));
        if (i == m_current)
            current = outputs.size();
        outputs << output;
    }
    m_outputs = outputs;
    m_current = current;
    appendNew(project);
    m_storedNames = savedNames;
}

/// Appends the outputs that the project did not contain before. They count as saved unless they
/// have to be renamed.
void OutputList::appendNew(const OutputList& project)
{
    QSet<int> known;
    for (const NamedOutput& output : qAsConst(m_outputs))
        known << output.savedIndex;
    for (int i = 0; i < project.size(); ++i) {
        const NamedOutput& added = project.at(i);
        if (known.contains(i) || m_storedNames.contains(project.name(i)))
            continue;
        nameAll();
        m_outputs << NamedOutput{
            unusedName(project.name(i)), added.state, false, added.name, added.state, i};
    }
}

bool OutputList::isChanged(int index) const
{
    const NamedOutput& output = m_outputs[index];
    return output.isStateChanged || output.savedIndex < 0 ||
           shownName(output.name, index) != shownName(output.savedName, index);
}

bool OutputList::isChanged() const
{
    bool changed = size() != m_storedNames.size();
    for (int i = 0; i < size(); ++i)
        changed = changed || isChanged(i) || m_outputs[i].savedIndex != i;
    return changed;
}

void OutputList::setCurrent(int index)
{
    m_current = qBound(0, index, size() - 1);
}

void OutputList::setState(const OutputState& state, bool isChanged)
{
    m_outputs[m_current].state = state;
    m_outputs[m_current].isStateChanged = isChanged;
}

/// Limits the memory for the undo steps. The current output always keeps its steps.
void OutputList::setSteps(const QByteArray& steps)
{
    qint64 size = 0;
    m_outputs[m_current].steps = steps;
    for (const NamedOutput& output : qAsConst(m_outputs))
        size += output.steps.size();
    for (int i = 0; size > MostStepBytes && i < m_outputs.size(); ++i)
        if (i != m_current)
            m_outputs[i].steps.clear();
}

void OutputList::revert()
{
    m_outputs[m_current].state = m_outputs[m_current].savedState;
    m_outputs[m_current].isStateChanged = false;
}

void OutputList::add(const QString& name, const OutputState& state)
{
    nameAll();
    m_outputs.insert(++m_current, {name.simplified(), state, false, QString(), state});
}

void OutputList::rename(const QString& name)
{
    m_outputs[m_current].name = name.simplified();
}

void OutputList::move(int index)
{
    const int to = qBound(0, index, size() - 1);
    m_outputs.move(m_current, to);
    m_current = to;
}

void OutputList::remove()
{
    if (size() == 1)
        return;
    m_outputs.remove(m_current);
    setCurrent(m_current);
}

void OutputList::setOutputs(const QVector<NamedOutput>& outputs, int current)
{
    QSet<int> present, taken; // identifiers, and indices of saved versions
    for (const NamedOutput& output : qAsConst(m_outputs)) {
        present << output.id;
        taken << output.savedIndex;
    }
    m_outputs = outputs;
    for (NamedOutput& output : m_outputs)
        if (!present.contains(output.id)) {
            const int index = indexOfSaved(output, m_storedNames);
            output.savedIndex = taken.contains(index) ? -1 : index;
        }
    if (size() > 1)
        nameAll();
    setCurrent(current);
}

} // namespace workbench
