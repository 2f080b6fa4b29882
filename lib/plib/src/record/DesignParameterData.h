#pragma once

#include <tagZOB_QUAD_RIM.h>

#include <vector>

class DesignParameterTable;
class VKD_A_BarDiameterData;
class VKD_H_ZOBDoc;
class VKD_QT_Dialog;

namespace plib {

/// A row of the design table: one set of parameters and the groups that it applies to.
struct DesignParameterRow
{
    const VKD_A_BarDiameterData* barData = nullptr; ///< not owned; for texts
    tagZOB_QUAD_RIM record{};                       ///< distances in the edited form
    /// Empty: no group named yet. Exactly -1: the remaining groups.
    std::vector<int> groups;
};

/// Returns whether the list represents all groups that no other row names. It must contain -1 and
/// nothing else.
bool isRemainingGroups(const std::vector<int>& groups);

/// The state of one design parameter page. It is separate from the page, so that the rules on rows
/// need no widget.
struct DesignParameterData
{
    int kindOfSystem = 0;
    VKD_H_ZOBDoc* doc = nullptr;       ///< group dialogs and bars; not owned
    VKD_H_ZOBDoc* designDoc = nullptr; ///< records and kind of system; not owned
    bool flagB = false;                ///< stored, never read
    bool flagA = false;
    bool entriesLoaded = false;
    VKD_QT_Dialog* dialog = nullptr;
    DesignParameterTable* table = nullptr;
    std::vector<DesignParameterRow> rows;
    const VKD_A_BarDiameterData* barData = nullptr;
};

} // namespace plib
