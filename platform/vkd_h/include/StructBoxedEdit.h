#pragma once

#include "StructLineEdit.h"

/// What a labelled input field for a number is for. Without EmptyIsDefault an empty field is as
/// `edit` says.
struct StructBoxedEdit
{
    enum LabelPlace { LabelAbove = 0, LabelBeside = 1 };
    /// A bit of `edit.flags`: an emptied field gets `edit.emptied` when it is left.
    static constexpr int EmptyIsDefault = 0x100000;

    int labelPlace = LabelBeside;
    int reserved = 0; ///< 0 is to be passed
    QString label;    ///< names the quantity; a mnemonic in it leads to the field
    QString toolTip;
    QString whatsThis; ///< the longer explanation, at Shift+F1
    QString statusTip;
    StructLineEdit edit; ///< with the limits of what may be typed, and the value to start with
};
