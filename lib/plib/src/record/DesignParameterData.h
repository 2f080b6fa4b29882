#pragma once

#include <tagZOB_QUAD_RIM.h>

#include <QVector>

#include <vector>

class DesignParameterTable;
class VKD_A_BarDiameterData;
class VKD_H_ZOBDoc;
class VKD_QT_Dialog;

namespace plib {

/// A row of the design table: one set of parameters and the groups to which it applies.
struct DesignParameterRow
{
    const VKD_A_BarDiameterData* barData = nullptr; ///< not owned; provides the names of bars
    tagZOB_QUAD_RIM record{};                       ///< distances in the edited form
    /// If empty, the row has no groups yet. If -1 is the only entry, the row is for the remaining
    /// groups.
    std::vector<int> groups;
};

/// Returns whether the list represents all groups that are not listed in any other row. Such a list
/// contains only -1.
bool isRemainingGroups(const std::vector<int>& groups);

/// The state of one design parameter page. The state is separate from the page, so that functions
/// that operate on rows do not need a widget.
struct DesignParameterData
{
    int kindOfSystem = 0;
    VKD_H_ZOBDoc* doc = nullptr;       ///< for group dialogs and bars; not owned
    VKD_H_ZOBDoc* designDoc = nullptr; ///< for records and the kind of system; not owned
    bool flagB = false;                ///< stored but never read
    bool flagA = false;
    bool entriesLoaded = false;
    VKD_QT_Dialog* dialog = nullptr;
    DesignParameterTable* table = nullptr;
    std::vector<DesignParameterRow> rows;
    const VKD_A_BarDiameterData* barData = nullptr;
};

} // namespace plib
