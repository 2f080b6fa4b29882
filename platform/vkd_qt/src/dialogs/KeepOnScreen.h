#pragma once

#include <QObject>
#include <QSize>

class QDialog;

/// Moves a dialog that grows beyond the screen back into it, so that its buttons stay visible. A
/// dialog grows if its contents change while it is open. Qt places the dialog only when it opens.
/// The user may still drag it partly off the screen.
class KeepOnScreen : public QObject
{
public:
    /// The dialog becomes the parent.
    explicit KeepOnScreen(QDialog* dialog);

    bool eventFilter(QObject* dialog, QEvent* event) override;

private:
    QDialog* m_dialog;
    QSize m_leastSize; ///< that the contents have required so far
};
