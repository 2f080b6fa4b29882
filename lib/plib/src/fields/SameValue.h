#pragma once

#include "dialogs/RecordDialog.h"

#include <QObject>

namespace plib {

class RowStrip;

/// Copies the value of a dialog's current field to the other fields of the same kind when the user
/// clicks a button in the strip of the dialog or presses Ctrl+Enter. The rows change only on OK.
/// The object is a child of the dialog.
class SameValue : public QObject
{
    Q_OBJECT

public:
    /// If the dialog edits several rows, an empty field may stand for different values and cannot
    /// be copied.
    SameValue(const RecordDialog& dialog, RowStrip* strip, bool areSeveralRows);

private:
    void copy();
    QString copied(const DialogField& from) const;

    RecordDialog m_dialog;
    RowStrip* m_strip;
    bool m_areSeveralRows;
};

} // namespace plib
