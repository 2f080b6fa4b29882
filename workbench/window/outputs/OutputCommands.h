#pragma once

#include "window/outputs/OutputsHistory.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace workbench {

class OpenProject;
class OutputEditor;
struct OutputState;
class OutputScript;
class OutputsPane;
class SheetPreview;
class WindowMessages;

/// The parts of the main window that OutputCommands uses.
struct OutputParts
{
    const OpenProject* project;
    OutputEditor* editor;
    OutputScript* script;
    OutputsPane* pane;
    SheetPreview* sheets;
    WindowMessages* messages;
};

/// The commands for the list of outputs: new, duplicate, rename, delete, move, copy from another
/// project, undo, redo, and saving files for all outputs. The list in the pane follows the editor.
/// The commands do not change the project file.
class OutputCommands : public QObject
{
    Q_OBJECT

public:
    /// The parts are not owned and must outlive the object.
    explicit OutputCommands(const OutputParts& parts);

    /// Shows the outputs of the editor in the pane.
    void showList();

private:
    using Change = std::function<void(OutputList*)>;

    Change recorded(OutputsStep step, const QString& name, const Change& change);
    QString currentName() const;
    void showSteps();
    void showRefusedName();
    void step(int currentAfter, const Change& change);
    void undo();
    void redo();
    void choose(int output);
    void add();
    void duplicate();
    void nameNew();
    void endNaming(bool byKey);
    void rename(const QString& name);
    void editRefusedName();
    bool finishName();
    void remove();
    void move(int distance);
    void copyFromProject();
    void copyFrom(const QString& path);

    OutputParts m_parts;
    OutputsHistory m_history;
    bool m_isNaming = false; ///< whether the user has been asked to name a new output
    QString m_refusedName;   ///< the name in the open editor if it was refused, otherwise null
    int m_refusedId = 0;     ///< identifier of the output for which it was entered
    QTimer m_editRefused;    ///< opens the editor with the refused name again
    QTimer m_focusPlots;     ///< gives the focus to the plots after the user has named a new output
};

} // namespace workbench
