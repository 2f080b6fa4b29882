#include "vkd_a_ReinforcementCalculation.h"

#include "ReinforcementDialog.h"

#include <QPointer>

void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int, float& value,
                                    float barDiameter)
{
    // The parent may end while the dialog is open, and takes the dialog with it.
    const QPointer<ReinforcementDialog> dialog(
        new ReinforcementDialog(parent, index, value, barDiameter));
    if (dialog->exec() == QDialog::Accepted && dialog)
        value = dialog->area();
    delete dialog;
}
