#pragma once

#include "project/OpenProject.h"

#include <QCoreApplication>

namespace workbench {

class WindowMessages;

/// Reads and stores parts of the open project on behalf of the user: it waits for other programs,
/// asks before it replaces newer data, and shows failures.
class ProjectAccess
{
    Q_DECLARE_TR_FUNCTIONS(workbench::ProjectAccess)

public:
    /// The result of storing a part. Reload: the user wants the newer state of the project.
    enum class Stored { Yes, No, Reload };

    /// Neither is owned.
    ProjectAccess(OpenProject* project, WindowMessages* messages);

    /// Returns whether the project can be read now. Callers that read several things ask first,
    /// because each of the reads would wait for another program.
    bool canRead();
    /// Calls `work`, which returns a VkdZobStatus, see waitForStore(). A failure is shown with the
    /// path inserted into `sentence`. Returns whether it succeeded.
    bool run(const std::function<cd_error_t()>& work, const QString& sentence);
    /// Stores a part by `store`, which returns a VkdZobStatus or PartChanged. If another program
    /// has changed the part since it was read, the user decides.
    Stored store(const std::function<cd_error_t(SeenPart::Newer)>& store, const QString& sentence);
    /// Stores a part by `put` in the same way. Calls `reload` if the user wants the newer state.
    /// Returns whether the part is stored.
    bool storePart(ProjectPart part, const std::function<cd_error_t()>& put,
                   const QString& sentence, const std::function<void()>& reload);

private:
    OpenProject* m_project;
    WindowMessages* m_messages;
};

} // namespace workbench
