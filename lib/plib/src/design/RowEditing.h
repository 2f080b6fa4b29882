#pragma once

#include "dialogs/RecordDialog.h"
#include "record/RowsChange.h"

#include <QObject>
#include <QPointer>

#include <set>

class DesignParameter;

namespace plib {

class CommonFields;
class RowStrip;

/// Runs a dialog for the parameters of the current row, or of all selected rows if the current row
/// is one of them. The dialog of a single row can continue with the rows beside it; each row is an
/// undo step of its own. The dialog of several rows writes only the fields that the user changed,
/// to all rows in one step. Rows without design have no parameters and are left out.
class RowEditing : public QObject
{
    Q_OBJECT

public:
    RowEditing(DesignParameter* page, RowsStep name);

    /// Returns the record to show: the record of the row, or the common values of the rows. Returns
    /// null if there is no row to edit.
    tagZOB_QUAD_RIM* record();

    /// Shows the dialog, which was created with this record, and writes the input after OK.
    void run(const RecordDialog& dialog);

private:
    void showRow();
    void step(int direction);
    void write();
    void writeRow();
    void writeChanges();

    QPointer<DesignParameter> m_page;
    RowsStep m_name;
    std::set<int> m_rows;
    tagZOB_QUAD_RIM m_common{};
    RecordDialog m_dialog;
    std::vector<float> m_shown; ///< the values of the fields before the user changes them
    RowStrip* m_strip = nullptr;
    CommonFields* m_commonFields = nullptr; ///< only for several rows
};

} // namespace plib
