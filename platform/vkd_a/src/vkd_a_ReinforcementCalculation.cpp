#include "vkd_a_ReinforcementCalculation.h"

#include "calculator/ReinforcementDialog.h"

#include <QPointer>

void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int, float& value,
                                    float barDiameter)
{
    // The parent may be destroyed while the dialog is open and deletes the dialog then.
    const QPointer<ReinforcementDialog> dialog(
        new ReinforcementDialog(parent, ZobHandle(index), value, barDiameter));
    if (dialog->exec() == QDialog::Accepted && dialog)
        value = dialog->area();
    delete dialog;
}
