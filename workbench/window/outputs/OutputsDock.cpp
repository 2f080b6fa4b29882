#include "window/outputs/OutputsDock.h"

#include "window/outputs/OutputsPane.h"

namespace workbench {

OutputsDock::OutputsDock(OutputsPane* pane, QWidget* parent)
    : PageDock(QStringLiteral("OutputsDock"), parent)
    , m_pane(pane)
{
    setWidget(pane);
    connect(pane, &OutputsPane::filled, this, &PageDock::pageChanged);
}

QList<QAction*> OutputsDock::pageActions() const
{
    return m_pane->isFilled() ? QList<QAction*>{m_pane->undo, m_pane->redo} : QList<QAction*>();
}

} // namespace workbench
