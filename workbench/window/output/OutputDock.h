#pragma once

#include "window/support/PageDock.h"

#include <QPointer>

class QScrollArea;

namespace workbench {

class OutputDialog;

/// The dock with the graphical output of the open project. OutputEditor owns the dialog that the
/// dock shows; it also exists while the dock is closed, because it creates the script.
class OutputDock : public PageDock
{
    Q_OBJECT

public:
    explicit OutputDock(QWidget* parent);

    /// Shows a dialog, which is not owned and may be destroyed while it is shown. A null pointer
    /// removes the dialog, which stays a hidden child of the dock.
    void setDialog(OutputDialog* dialog);
    /// Returns the width of the page without scroll bars, including the frame of the dock.
    int widthOfPage() const;
    void setTexts();
    QList<QAction*> pageActions() const override;

private:
    QScrollArea* m_place;
    QPointer<OutputDialog> m_dialog;
};

} // namespace workbench
