#pragma once

#include "project/output/OutputState.h"

#include <QStringList>
#include <QVector>

namespace workbench {

constexpr int LongestOutputName = 80;

/// Returns a number that no other output of this process has.
int newOutputId();

/// An output of a project, including its unsaved changes.
struct NamedOutput
{
    QString name; ///< empty if the project has only one output, and it has no name
    OutputState state;
    bool isStateChanged = false;
    QString savedName;
    OutputState savedState; ///< for a new output, its initial state
    int savedIndex = -1;    ///< -1 for an output that the project does not contain
    int id = newOutputId(); ///< identifies the output after it has been renamed or moved
    QByteArray steps = {};  ///< undo steps of the page while another output is shown
    QString unchanged = {}; ///< the saved state as text of the page; empty if it is unknown
};

/// The outputs of a project, of which there is always at least one, and the current output. The
/// operations change only this list; put() saves it. Earlier versions of the program support only
/// one output: they read the first one, and ignore and preserve the others. Names are unique,
/// ignoring case.
class OutputList
{
public:
    /// Creates a list with one output without a name.
    OutputList();

    /// Reads the list. If this fails, returns a list with one output and the reason in `status`.
    static OutputList read(ZobHandle project, VkdStatus* status = nullptr);
    /// Writes all outputs to the project in one transaction.
    VkdStatus put(ZobHandle project) const;
    /// Must be called after the outputs have been stored.
    void setStored();
    /// Must be called after the list has been read again. The current output stays current, and the
    /// outputs keep their identifiers. Outputs are matched by their names.
    void continueFrom(const OutputList& before);
    /// Specifies whether follow() keeps unchanged outputs that the project no longer contains.
    enum class Removed { Drop, Keep };
    /// Merges the changes that another program has stored. `project` is the list in the project.
    /// Unsaved changes and the current output are preserved, even if the project no longer contains
    /// the output. Outputs are matched by their saved names; new ones are appended.
    void follow(const OutputList& project, Removed removed);
    /// These functions return whether the list or any output has unsaved changes, or whether one
    /// output has unsaved changes.
    bool isChanged() const;
    bool isChanged(int index) const;

    int size() const { return m_outputs.size(); }
    /// Returns the name. An output without a name has a default name in the desktop's language.
    QString name(int index) const;
    QStringList names() const;
    /// Returns the names of the outputs that the project does not contain.
    QStringList unsavedNames() const;
    /// Returns the index of the output with this name, or -1.
    int indexOf(const QString& name) const;
    const NamedOutput& at(int index) const { return m_outputs[index]; }

    int currentIndex() const { return m_current; }
    void setCurrent(int index);
    const NamedOutput& current() const { return m_outputs[m_current]; }
    /// Replaces the state of the current output.
    void setState(const OutputState& state, bool isChanged);
    /// Stores the undo steps of the current output's page in memory.
    void setSteps(const QByteArray& steps);
    /// Stores the text with which the page of the current output compares its state.
    void setUnchanged(const QString& text) { m_outputs[m_current].unchanged = text; }
    /// Discards the changes to the state of the current output.
    void revert();

    /// These functions change the current output or its position. A new output is inserted after
    /// the current output and becomes the current output.
    void add(const QString& name, const OutputState& state);
    void rename(const QString& name);
    void move(int index);
    /// Removes the current output, unless it is the only one.
    void remove();

    const QVector<NamedOutput>& outputs() const { return m_outputs; }
    /// Replaces the outputs, of which there must be at least one. An output that was not in the
    /// list before counts as saved only if the project still contains it.
    void setOutputs(const QVector<NamedOutput>& outputs, int current);

    /// Returns a name for a new output.
    QString newName() const;
    /// Returns the name, with a number appended if an output already has this name.
    QString unusedName(const QString& name) const;
    /// Returns the reason why the current output cannot have this name, or an empty string.
    QString faultOfName(const QString& name) const;

private:
    static QString shownName(const QString& name, int index);
    static int indexOf(const QString& name, const QStringList& names);
    static int indexOfSaved(const NamedOutput& output, const QStringList& names);
    void appendNew(const OutputList& project);
    void nameAll();

    QVector<NamedOutput> m_outputs;
    int m_current = 0;
    QStringList m_storedNames;
};

} // namespace workbench
