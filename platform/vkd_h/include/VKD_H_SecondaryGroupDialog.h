#pragma once

#include "VKD_H_GroupDialog.h"

/// The modal dialog of the secondary groups of a model. exec() answers 1 if the user confirmed, and
/// getChecked() then delivers packed names.
class VKD_H_EXPORT VKD_H_SecondaryGroupDialog : public VKD_H_GroupDialog
{
    Q_OBJECT

public:
    /// As VKD_H_GroupDialog's; both lists hold packed names.
    VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc, const std::vector<int>& checked,
                               const std::vector<int>& usedElsewhere, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
};
