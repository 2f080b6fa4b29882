#pragma once

#include <LoadcaseInformation.h>
#include <vkd_zob.h>

#include <QSet>
#include <QString>

#include <vector>

namespace workbench {

/// What the project keeps of the graphical output: the state string of the page and the choices of
/// the host's own tabs.
struct OutputState
{
    /// Entries of the group of contents.
    enum Content { OfTheModel = 0, WithSolids = 1 };

    QString page;             ///< empty until it was stored first
    int content = OfTheModel; ///< entry of the group of contents
    QSet<int> leftOutNumbers; ///< load cases that are not checked in the table

    /// The state that lies in the project at this database index.
    static OutputState read(int index);
    /// The result is a VkdZobStatus.
    cd_error_t write(int index) const;

    /// The tag of the content that is there in any case with WithSolids.
    static QString solidsTag();
    /// The load cases of the project at this database index that the plots offer, by number. The
    /// table stands for plain ones alone; design combinations are always offered.
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> offeredRows(int index) const;
};

} // namespace workbench
