#pragma once

#include "VKD_H_GroupDialog.h"

/// The modal dialog in which the user selects secondary groups of a model. exec() returns 1 if the
/// user clicked OK. getChecked() provides packed names.
class VKD_H_EXPORT VKD_H_SecondaryGroupDialog : public VKD_H_GroupDialog
{
    Q_OBJECT

public:
    /// See VKD_H_GroupDialog; both lists contain packed names.
    VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc, const std::vector<int>& checked,
                               const std::vector<int>& usedElsewhere, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
};
