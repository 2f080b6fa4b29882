#include "fields/unusedDistances.h"

#include "dialogs/dlgDistanceDirection.h"
#include "fields/FieldHint.h"

#include <QGroupBox>
#include <QLineEdit>

namespace plib {

void markUnusedDistances(dlgDistanceDirection& dialog)
{
    const QString reason = dlgDistanceDirection::tr(
        "In a plane system the layers have no distances. Values entered here are not stored.");
    for (const char* name : {"hio", "hiu", "hioq", "hiuq", "hioi", "hiui"}) {
        auto edit = dialog.findChild<QLineEdit*>(QLatin1String(name));
        if (!edit || !edit->placeholderText().isEmpty())
            continue; // the type of the record has no such field, or it is marked already
        edit->setPlaceholderText(dlgDistanceDirection::tr("not used"));
        new FieldHint(edit, reason);
    }
    if (auto box = dialog.findChild<QGroupBox*>(QStringLiteral("distance")))
        box->setToolTip(reason); // for the labels and the figure
}

} // namespace plib
