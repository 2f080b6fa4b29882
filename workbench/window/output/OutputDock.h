#pragma once

#include "window/support/PageDock.h"

#include <QPointer>

class QScrollArea;

namespace workbench {

class OutputDialog;

/// The dock with the graphical output of the open project. OutputEditor owns the dialog that the
/// dock shows. The dialog creates the script, so it exists even while the dock is closed.
class OutputDock : public PageDock
{
    Q_OBJECT

public:
    explicit OutputDock(QWidget* parent);

    /// Shows a dialog, which is not owned and may be destroyed while it is shown. If the pointer is
    /// null, hides the current dialog, which remains a child of the dock.
    void setDialog(OutputDialog* dialog);
    /// Returns the width of the dock, including its frame, at which the page needs no horizontal
    /// scroll bar.
    int widthOfPage() const;
    /// Returns the height of the dock at which the page needs no vertical scroll bar.
    int heightOfPage() const;
    void setTexts();
    QList<QAction*> pageActions() const override;

private:
    QScrollArea* m_place;
    QPointer<OutputDialog> m_dialog;
};

} // namespace workbench
