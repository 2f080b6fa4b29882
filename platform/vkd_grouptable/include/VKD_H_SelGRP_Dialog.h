#pragma once

#include "vkd_grouptable_export.h"

#include <VKD_H_GroupDialog.h>

class QPoint;

/// The modal dialog of the primary groups of a model. It can be left to pick groups in the 3D view,
/// which hands them over by way of the project.
class VKD_GROUPTABLE_EXPORT VKD_H_SelGRP_Dialog : public VKD_H_GroupDialog
{
    Q_OBJECT

public:
    /// What exec() answers, besides 0 if the user cancelled.
    enum Result {
        Confirmed = 1,
        PickOutside = 6 ///< the user wants to pick the groups in the 3D view
    };

    /// The database index of the scratch store. There the dialog leaves the groups that are checked
    /// when the user leaves it to pick, as a selection with which the view may begin.
    static constexpr int StartOfPicking = 0;

    /// `checked` is only read; see VKD_H_GroupDialog for both lists. The dialog moves to
    /// `position`, in coordinates of the screen, unless that is null. `entriesLoaded` and `key`,
    /// the first key of the caller's records, are part of the suite's interface and change nothing
    /// here: confirming no group at all is always allowed.
    VKD_H_SelGRP_Dialog(bool entriesLoaded, int key, VKD_H_ZOBDoc* doc, std::vector<int>& checked,
                        const std::vector<int>& usedElsewhere, QPoint* position = nullptr,
                        QWidget* parent = nullptr, const char* name = "VKD_H_SelGRP_Dialog");

    /// Delivers the groups that the 3D view left in the project at this database index, ascending.
    /// Returns 0, also for a selection of no groups, or -1, and the list as it was, if there is no
    /// selection or a damaged one.
    static int getAniSelectionFromZob(int index, std::vector<int>& groups);

    /// Leaves a selection in the project in place of the one before. Numbers below 0 are no groups:
    /// with one of them nothing is stored. False if the selection is not stored; the log says why.
    static bool putAniSelectionToZob(int index, const std::vector<int>& groups);

    /// Takes the selection out of the project. False, with a log line, if that fails.
    static bool removeAniSelectionFromZob(int index);
};
