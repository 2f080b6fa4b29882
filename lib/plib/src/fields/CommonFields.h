#pragma once

#include "exchange/patchRows.h"
#include "fields/dialogFields.h"
#include "record/commonRecord.h"

#include <QObject>

class VKD_QT_Dialog;

namespace plib {

/// Shows the common values of several rows in the fields of a dialog, and finds the fields that the
/// user has changed. A field in which the rows differ is empty and shows "several". As long as it
/// is empty, the rows keep their values; the Delete key in the empty field chooses "not set" for
/// all rows. The object is a child of the dialog.
class CommonFields : public QObject
{
    Q_OBJECT

public:
    /// The rows are copied.
    CommonFields(VKD_QT_Dialog* dialog, const DialogFields& fields, const DesignRowList& rows,
                 const std::set<int>& numbers);

    /// Returns the values of the changed fields.
    RowPatch changes() const;

    /// Returns the first row in which the changes would put a minimum above its maximum.
    std::optional<LimitFault> limitFault() const;
    /// Returns a sentence with the row and its limits.
    QString explain(const LimitFault& fault) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Shown
    {
        DialogField field;
        float value;
        bool isMixed;
        bool isCleared; ///< only if the field is mixed
    };

    void show(Shown* shown);
    void explainMixed(const Shown& shown);
    static void showPlaceholder(const Shown& shown);
    static bool isChanged(const Shown& shown);

    DesignRowList m_rows;
    std::set<int> m_numbers;
    std::vector<Shown> m_shown;
};

} // namespace plib
