#include "VKD_H_SecondaryGroupDialog.h"

#include <QEvent>

VKD_H_SecondaryGroupDialog::VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc,
                                                       const std::vector<int>& checked,
                                                       const std::vector<int>& usedElsewhere,
                                                       QWidget* parent)
    : VKD_H_GroupDialog(VKD_H_GroupKind::Secondary, doc, checked, usedElsewhere, parent,
                        "VKD_H_SecondaryGroupDialog")
{
    setWindowTitle(tr("Secondary Group Selection"));
}

void VKD_H_SecondaryGroupDialog::changeEvent(QEvent* event)
{
    VKD_H_GroupDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setWindowTitle(tr("Secondary Group Selection"));
}
