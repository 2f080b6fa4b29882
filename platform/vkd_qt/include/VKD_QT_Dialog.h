#pragma once

#include "vkd_qt_export.h"

#include <QDialog>

/// The base class of the suite's dialogs. A page in such a dialog may request a detour: the dialog
/// closes with a result chosen by the page, and its host lets the user do something else before it
/// shows the same dialog again. When the dialog is shown again, it emits isReOpen().
///
/// While a field rejects its text (VKD_QT_InputField.h), the dialog cannot be accepted by a button,
/// Return or a shortcut. Instead, the dialog moves the focus to the field. The user can always
/// cancel the dialog. Escape in a field with changed text restores the text; the next Escape closes
/// the dialog.
class VKD_QT_EXPORT VKD_QT_Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit VKD_QT_Dialog(QWidget* parent = nullptr, const char* name = nullptr,
                           Qt::WindowFlags flags = {});

    /// Closes the dialog for a detour; exec() returns `result`.
    virtual void callDone(int result);

    /// Closes the dialog. If `result` is Accepted and a field of the visible dialog rejects its
    /// text, moves the focus to that field instead.
    void done(int result) override;

Q_SIGNALS:
    /// Emitted when the dialog is shown again after callDone() with this result, unless it has been
    /// closed in another way in the meantime.
    void isReOpen(int result);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_isLeaving = false; ///< true from callDone() until the dialog is closed
    bool m_isAway = false;
    int m_detour = 0;
};
