#pragma once

#include "sheet/exportSheets.h"
#include "sheet/SheetPlanCache.h"
#include "window/output/PlotLines.h"

#include <vkd_language.h>

#include <QObject>

namespace workbench {

class OpenProject;
class OutputEditor;
class ScriptPane;
class SheetPreview;
class WindowMessages;

/// The script of the selection in the output dialog. The class updates the script pane and the
/// sheet preview, copies the script, and saves the script and the sheets as files.
class OutputScript : public QObject
{
    Q_OBJECT

public:
    /// The panes are not owned and must outlive the object.
    OutputScript(OpenProject* project, OutputEditor* output, WindowMessages* messages,
                 ScriptPane* pane, SheetPreview* sheets);

    /// Updates the script and the sheets. Does nothing if no project is open.
    void refresh();
    /// Shows a script without marking the lines that differ from the previous script.
    void showOther();
    /// Clears the script until refresh() is called.
    void clear();
    /// Sets whether the preview is visible to the user. A hidden preview is not updated.
    void setSheetsVisible(bool visible);

    void copy();
    void save();
    void exportSheets();

Q_SIGNALS:
    /// Emitted after each update. `isEmpty` is true if there is no script.
    void refreshed(bool isEmpty);

private:
    QString script();
    void setKeywords(vkd::Language language);
    QString proposedFile(const char* suffix) const;
    SheetPlan newSheetPlan();
    void refreshSheets();
    SheetExport writeSheets(const QString& path, QString* trouble);

    OpenProject* m_project;
    OutputEditor* m_output;
    WindowMessages* m_messages;
    ScriptPane* m_pane;
    SheetPreview* m_sheets;
    SheetPlanCache m_plans;
    PlotLines m_plots;
    bool m_areSheetsVisible = false;
};

} // namespace workbench
