#include "VKD_H_SecondaryGroupDialog.h"

VKD_H_SecondaryGroupDialog::VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc,
                                                       const std::vector<int>& checked,
                                                       const std::vector<int>& usedElsewhere,
                                                       QWidget* parent)
    : VKD_H_GroupDialog(VKD_H_GroupKind::Secondary, doc, checked, usedElsewhere, parent,
                        "VKD_H_SecondaryGroupDialog")
{
    setWindowTitle(tr("Secondary Group Selection"));
}
