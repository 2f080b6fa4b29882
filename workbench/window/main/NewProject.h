#pragma once

#include "window/main/makeProjectFile.h"

#include <QCoreApplication>

namespace workbench {

class OpenProject;
class WindowMessages;

/// Creates the file of a new project from a model: asks for its name, shows the progress, and shows
/// an error message if the project cannot be created.
class NewProject
{
    Q_DECLARE_TR_FUNCTIONS(workbench::NewProject)

public:
    /// The project and the messages are not owned. `make` creates the file.
    NewProject(const OpenProject* project, WindowMessages* messages, const MakeProject& make);

    /// Asks for a model file. Returns an empty string if the user cancels.
    QString chooseModel() const;
    /// Creates a project from a sample model or a model file. Returns the path of the project, or
    /// an empty string if the user has cancelled or the project could not be created.
    QString create(const QString& model) const;

private:
    bool make(const QString& path, const QString& model) const;

    const OpenProject* m_project;
    WindowMessages* m_messages;
    MakeProject m_make;
};

} // namespace workbench
