#pragma once

#include "window/support/PageDock.h"

namespace workbench {

class OutputsPane;

/// The dock with the list of outputs. It is a page dock, so that the Edit menu contains Undo and
/// Redo of the list.
class OutputsDock : public PageDock
{
    Q_OBJECT

public:
    OutputsDock(OutputsPane* pane, QWidget* parent);

    QList<QAction*> pageActions() const override;

private:
    OutputsPane* m_pane;
};

} // namespace workbench
