#pragma once

#include "dialogs/RecordDialog.h"

#include <QObject>

namespace plib {

class RowStrip;

/// Copies the value of the current field of a dialog to the other fields of its kind, with a button
/// in the strip of the dialog or with Ctrl+Enter. Only OK changes the rows. The object is a child
/// of the dialog.
class SameValue : public QObject
{
    Q_OBJECT

public:
    /// In a dialog of several rows, an empty field has no value that could be copied.
    SameValue(const RecordDialog& dialog, RowStrip* strip, bool areSeveralRows);

private:
    void copy();
    QString copied(const DialogField& from) const;

    RecordDialog m_dialog;
    RowStrip* m_strip;
    bool m_areSeveralRows;
};

} // namespace plib
