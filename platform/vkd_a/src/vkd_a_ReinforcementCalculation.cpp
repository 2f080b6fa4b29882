#include "vkd_a_ReinforcementCalculation.h"

#include "calculator/ReinforcementDialog.h"

#include <QPointer>
#include <QVariant>

namespace {
constexpr char DiameterProperty[] = "barDiameter";
}

void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int, float& value,
                                    float barDiameter)
{
    // The parent may be destroyed while the dialog is open, in which case it deletes the dialog.
    const bool offersDiameter = parent && parent->property(DiameterProperty).isValid();
    const QPointer<ReinforcementDialog> dialog(
        new ReinforcementDialog(parent, ZobHandle(index), value, barDiameter, offersDiameter));
    if (dialog->exec() == QDialog::Accepted && dialog) {
        value = dialog->area();
        if (offersDiameter)
            parent->setProperty(DiameterProperty, dialog->barDiameter());
    }
    delete dialog;
}
