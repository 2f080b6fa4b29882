#pragma once

#include "fields/dialogFields.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_InputField.h>

#include <functional>
#include <type_traits>

class dlgCrackControl;
class dlgReinforcement;

namespace plib {

/// A dialog for the parameters of a row, with the functions that all three such dialogs provide.
/// Their common base class is shared by all dialogs of the suite and does not declare these
/// functions.
struct RecordDialog
{
    VKD_QT_Dialog* window = nullptr;
    std::function<DialogFields()> fields;
    std::function<void(const tagZOB_QUAD_RIM&)> showRecord;
    std::function<void(tagZOB_QUAD_RIM*)> writeToRecord;
    std::function<bool()> mayAccept;
    /// Called after a record is shown, possibly in new fields. May be empty.
    std::function<void()> recordShown;
    /// Returns a remark on rows of this type. May be empty.
    std::function<QString(int type)> note;
};

template <class Dialog>
RecordDialog recordDialog(Dialog* dialog)
{
    RecordDialog functions;
    functions.window = dialog;
    functions.fields = [dialog] { return dialog->fields(); };
    functions.showRecord = [dialog](const tagZOB_QUAD_RIM& record) { dialog->showRecord(record); };
    functions.writeToRecord = [dialog](tagZOB_QUAD_RIM* record) { dialog->writeToRecord(record); };
    functions.mayAccept = [dialog] {
        if constexpr (std::is_same_v<Dialog, dlgReinforcement>)
            return dialog->mayAccept();
        else
            return !vkd_qt_leadToRefusedField(dialog);
    };
    if constexpr (std::is_same_v<Dialog, dlgCrackControl>)
        functions.note = &Dialog::note;
    return functions;
}

} // namespace plib
