#pragma once

#include <vkd_zob.h>

#include <QSet>
#include <QString>

namespace workbench {

/// What the project keeps of the graphical output: the state string of the page and the choices of
/// the host's own tabs.
struct OutputState
{
    QString page;             ///< empty until it was stored first
    int content = 0;          ///< entry of the group of contents
    QSet<int> leftOutNumbers; ///< load cases that are not checked in the table

    /// The state that lies in the project at this database index.
    static OutputState read(int index);
    /// The result is a VkdZobStatus.
    cd_error_t write(int index) const;
};

} // namespace workbench
