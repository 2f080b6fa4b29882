#pragma once

#include "StructLineEdit.h"

/// The description of a labelled number field. The flags of `edit` determine how empty fields are
/// handled, unless EmptyIsDefault is set.
struct StructBoxedEdit
{
    /// The place of the label relative to the field.
    enum LabelPlace { LabelAbove = 0, LabelBeside = 1 };
    /// A bit of `edit.flags`: when an empty field loses focus, its value changes to `edit.emptied`.
    static constexpr int EmptyIsDefault = 0x100000;

    int labelPlace = LabelBeside;
    int reserved = 0; ///< must be 0
    QString label;    ///< name of the quantity; its mnemonic moves the focus to the field
    QString toolTip;
    QString whatsThis; ///< longer explanation, shown by Shift+F1
    QString statusTip;
    StructLineEdit edit; ///< includes the limits and the initial value
};
