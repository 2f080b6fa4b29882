#pragma once

#include "sheet/exportSheets.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>

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
    /// the files that have already been saved are kept, and a message lists them.
    void exportSheets();

private:
    enum class Content { Scripts, Sheets };
    struct Job;
    struct Exported;

    std::optional<Job> prepare(const QString& title, Content content);
    bool generate(Job* job, Content content);
    bool mayReplace(const QString& title, const Job& job);
    Exported writeSheets(const Job& job);
    void saySaved(const QString& text, const Job& job);
    void complain(const WholeFiles& files);

    const OpenProject* m_project;
    OutputEditor* m_editor;
    WindowMessages* m_messages;
    SheetPreview* m_sheets;
};

} // namespace workbench
