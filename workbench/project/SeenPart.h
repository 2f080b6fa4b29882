#pragma once

#include <vkd_zob.h>
#include <ZobHandle.h>

#include <QByteArray>

#include <functional>

namespace workbench {

/// The parts of a project, each of which is edited as a whole by a dialog.
enum class ProjectPart { Design, Output, TextOutput };

/// Returned instead of a VkdZobStatus if another program has changed the part since look().
constexpr cd_error_t PartChanged = -1;

/// Stores the state of a part of a project when a dialog reads the part, so that the dialog does
/// not overwrite a newer state written by another program. The state is stored as a digest of the
/// records; no lock is held.
class SeenPart
{
public:
    enum class Newer { Keep, Overwrite };

    explicit SeenPart(ProjectPart part);

    /// Stores the current state of the part in the project. Call it before reading the part, so
    /// that a change between the two calls is detected later. Returns a VkdZobStatus.
    cd_error_t look(ZobHandle project);
    /// Returns whether the state in the project has changed since look(), or false if the state
    /// cannot be read.
    bool isOutdated(ZobHandle project) const;
    /// Calls `put` in one transaction. `put` returns a VkdZobStatus; if the call fails, the
    /// transaction is rolled back and the status of `put` is returned. Returns PartChanged if the
    /// project contains a newer state and `newer` is Keep, otherwise a VkdZobStatus.
    cd_error_t store(ZobHandle project, const std::function<cd_error_t()>& put,
                     Newer newer = Newer::Keep);

private:
    ProjectPart m_part;
    QByteArray m_digest;
};

} // namespace workbench
