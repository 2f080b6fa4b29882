#pragma once

#include "StructLineEdit.h"

/// The description of a labelled number field. `edit` decides about empty fields unless the flag
/// EmptyIsDefault is set.
struct StructBoxedEdit
{
    enum LabelPlace { LabelAbove = 0, LabelBeside = 1 };
    /// A bit of `edit.flags`: an empty field changes to `edit.emptied` when it loses the focus.
    static constexpr int EmptyIsDefault = 0x100000;

    int labelPlace = LabelBeside;
    int reserved = 0; ///< must be 0
    QString label;    ///< name of the quantity; its mnemonic focuses the field
    QString toolTip;
    QString whatsThis; ///< a longer explanation, shown by Shift+F1
    QString statusTip;
    StructLineEdit edit; ///< includes the limits and the initial value
};
