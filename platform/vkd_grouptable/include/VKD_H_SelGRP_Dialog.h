#pragma once

#include "vkd_grouptable_export.h"

#include <VKD_H_GroupDialog.h>
#include <vkd_status.h>

class QPoint;

/// The modal dialog in which the user selects primary groups of a model. The user can leave the
/// dialog to pick groups in the 3D view, which passes them back through the project.
class VKD_GROUPTABLE_EXPORT VKD_H_SelGRP_Dialog : public VKD_H_GroupDialog
{
    Q_OBJECT

public:
    /// Results of exec(), in addition to 0 if the user cancelled.
    enum Result {
        Confirmed = 1,
        PickOutside = 6 ///< the user wants to pick the groups in the 3D view
    };

    /// The database index of the scratch store. When the user starts picking, the dialog stores the
    /// checked groups there as the initial selection of the view.
    static constexpr int StartOfPicking = 0;

    /// `checked` is only read; see VKD_H_GroupDialog for both lists. If `position`, in screen
    /// coordinates, is not null, the dialog moves there. `entriesLoaded` and `key`, the first key
    /// of the caller's records, belong to the suite's interface and are ignored. The user can
    /// always confirm an empty selection.
    VKD_H_SelGRP_Dialog(bool entriesLoaded, int key, VKD_H_ZOBDoc* doc, std::vector<int>& checked,
                        const std::vector<int>& usedElsewhere, QPoint* position = nullptr,
                        QWidget* parent = nullptr, const char* name = "VKD_H_SelGRP_Dialog");

    /// Reads the selection that the 3D view stored in the project with this database index, in
    /// ascending order. Returns 0, even for an empty selection. Returns -1 and does not change the
    /// list if there is no selection or if it is damaged.
    static int getAniSelectionFromZob(int index, std::vector<int>& groups);

    /// Replaces the selection stored in the project. If the list contains a negative number, which
    /// cannot be a group, nothing is stored, and the status code is VKD_ZOB_BAD_CALL.
    static VkdStatus putAniSelectionToZob(int index, const std::vector<int>& groups);

    /// Removes the selection from the project.
    static VkdStatus removeAniSelectionFromZob(int index);
};
