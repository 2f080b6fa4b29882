#pragma once

namespace workbench {

class DesignEditor;
class OutputEditor;
class TextOutputEditor;

/// The unsaved changes in the docks and dialogs of the open project.
class UnsavedChanges
{
public:
    /// The arguments are not owned.
    UnsavedChanges(DesignEditor* design, OutputEditor* output, TextOutputEditor* textOutput);

    /// Returns whether there are unsaved changes.
    bool exist() const;
    /// Applies the input that the user is typing. If it is not accepted, shows the reason and
    /// returns false.
    bool finishEditing() const;
    /// Stores the changes in the project. Returns false if one of them could not be stored.
    bool store() const;
    /// Asks separately for each part whether its changes are to be stored. Returns false if the
    /// user cancels or storing fails.
    bool mayLeave() const;

private:
    DesignEditor* m_design;
    OutputEditor* m_output;
    TextOutputEditor* m_textOutput;
};

} // namespace workbench
