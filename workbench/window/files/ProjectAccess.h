#pragma once

#include "project/OpenProject.h"

#include <QCoreApplication>

namespace workbench {

class WindowMessages;

/// Reads and stores parts of the open project for the window: it waits for other programs, asks
/// before it overwrites newer data, and shows error messages.
class ProjectAccess
{
    Q_DECLARE_TR_FUNCTIONS(workbench::ProjectAccess)

public:
    /// The result of storing a part. Reload means that the user wants the newer state of the
    /// project.
    enum class Stored { Yes, No, Reload };

    /// Neither argument is owned.
    ProjectAccess(OpenProject* project, WindowMessages* messages);

    /// Returns whether the project can currently be read. Callers that read several parts should
    /// check this first, because each read would wait for another program.
    bool canRead();
    /// Calls `work`, which returns a VkdZobStatus, in a snapshot of the project (see
    /// waitForStore()). Shows an error if the project cannot be read. Returns whether `work`
    /// succeeded.
    bool read(const std::function<cd_error_t()>& work);
    /// Calls `work`, which returns a VkdZobStatus (see waitForStore()). An error is shown with the
    /// path inserted into `sentence`. Returns whether `work` succeeded.
    bool run(const std::function<cd_error_t()>& work, const QString& sentence);
    /// Stores a part with `store`, which returns a VkdZobStatus or PartChanged. If another program
    /// has changed the part since it was read, the user decides whether to replace it.
    Stored store(const std::function<cd_error_t(SeenPart::Newer)>& store, const QString& sentence);
    /// Stores a part with `put`, like store(). Calls `reload` if the user wants the newer state.
    /// Returns whether the part is stored.
    bool storePart(ProjectPart part, const std::function<cd_error_t()>& put,
                   const QString& sentence, const std::function<void()>& reload);

private:
    OpenProject* m_project;
    WindowMessages* m_messages;
};

} // namespace workbench
