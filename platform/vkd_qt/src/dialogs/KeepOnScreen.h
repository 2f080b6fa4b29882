#pragma once

#include <QObject>
#include <QSize>

class QDialog;

/// Moves a dialog back onto the screen if it grows beyond the edge, so that its buttons stay
/// visible. A dialog may grow if its contents change while it is open, but Qt positions it only
/// when it opens. The user can still drag the dialog partly off the screen.
class KeepOnScreen : public QObject
{
public:
    /// The dialog becomes the parent of the object.
    explicit KeepOnScreen(QDialog* dialog);

    bool eventFilter(QObject* dialog, QEvent* event) override;

private:
    QDialog* m_dialog;
    QSize m_leastSize; ///< minimum size of the contents at the last request
};
