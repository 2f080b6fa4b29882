#pragma once

#include "sheet/SheetPlan.h"

#include <vkd_language.h>

#include <QObject>

namespace workbench {

class OpenProject;
class OutputEditor;
class ScriptPane;
class SheetPreview;
class WindowMessages;

/// The script of the choice in the output dialog: updates its pane and the preview of its sheets,
/// copies the script and saves it and the sheets in files.
class OutputScript : public QObject
{
    Q_OBJECT

public:
    /// The panes are not owned and outlive the object.
    OutputScript(OpenProject* project, OutputEditor* output, WindowMessages* messages,
                 ScriptPane* pane, SheetPreview* sheets);

    /// Updates script and sheets. Without an open project nothing changes.
    void refresh();
    /// Shows a script without marking the lines that differ from the one before.
    void showOther();
    /// Clears the script until refresh() is called.
    void clear();
    /// Sets whether the user sees the preview. A hidden preview is not updated.
    void setSheetsVisible(bool visible);

    void copy();
    void save();
    void exportSheets();

Q_SIGNALS:
    /// Emitted after each update; `isEmpty` is true if there is no script.
    void refreshed(bool isEmpty);

private:
    QString script();
    void setKeywords(vkd::Language language);
    QString proposedFile(const char* suffix) const;
    SheetPlan newSheetPlan();
    void refreshSheets();

    OpenProject* m_project;
    OutputEditor* m_output;
    WindowMessages* m_messages;
    ScriptPane* m_pane;
    SheetPreview* m_sheets;
    bool m_areSheetsVisible = false;
};

} // namespace workbench
