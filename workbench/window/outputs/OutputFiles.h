#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace workbench {

class OpenProject;
class OutputEditor;
class SheetPreview;
class WholeFiles;
class WindowMessages;

/// Saves the scripts or the sheets of all outputs, each in a file with the name of the output.
/// Outputs without plots are skipped.
class OutputFiles
{
    Q_DECLARE_TR_FUNCTIONS(workbench::OutputFiles)

public:
    /// The arguments are not owned.
    OutputFiles(const OpenProject* project, OutputEditor* editor, WindowMessages* messages,
                SheetPreview* sheets);

    /// Saves the scripts, either all of them or none; see WholeFiles.
    void saveScripts();
    /// Saves the sheets as PDF files, one after the other. If the user cancels or an error occurs,
    /// the files that have already been saved are kept.
    void exportSheets();

private:
    QStringList choosePaths(const QString& title, const QString& suffix);
    QStringList scripts();
    void complain(const WholeFiles& files);
    QString skipped(const QStringList& scripts) const;

    const OpenProject* m_project;
    OutputEditor* m_editor;
    WindowMessages* m_messages;
    SheetPreview* m_sheets;
};

} // namespace workbench
