#pragma once

#include "vkd_qt_export.h"

#include <QDialog>

/// The base of the suite's dialogs. A page in such a dialog may ask for a detour: the dialog closes
/// with a result of the page's choice, its host lets the user do something else, and shows the same
/// dialog again. The dialog then tells its pages by isReOpen().
///
/// While a field refuses its text (VKD_QT_InputField.h), nothing accepts the dialog, neither a
/// button nor Return nor a shortcut: it leads to the field instead. It is rejected at any time.
/// Escape in a field whose text was changed brings the old text back; the next one leaves.
class VKD_QT_EXPORT VKD_QT_Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit VKD_QT_Dialog(QWidget* parent = nullptr, const char* name = nullptr,
                           Qt::WindowFlags flags = {});

    /// Closes the dialog for a detour; exec() returns `result`.
    virtual void callDone(int result);

    /// Closes the dialog, unless `result` is Accepted and a field of the shown dialog refuses its
    /// text.
    void done(int result) override;

Q_SIGNALS:
    /// The dialog is shown again after callDone() with this result. Not sent for a dialog that was
    /// closed in any other way in between.
    void isReOpen(int result);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_isLeaving = false; ///< within callDone(), before anything has closed the dialog
    bool m_isAway = false;
    int m_detour = 0;
};
