#include "window/output/OutputDock.h"

#include "window/output/OutputDialog.h"
#include "window/support/HelpKey.h"

#include <QScrollArea>
#include <QScrollBar>

namespace workbench {

OutputDock::OutputDock(QWidget* parent)
    : PageDock(QStringLiteral("OutputDock"), parent)
    , m_place(new QScrollArea(this))
{
    setHelpTopic(this, "GRAV/OUTPUT");
    m_place->setWidgetResizable(true); // the page may be larger than the window
    m_place->setFrameShape(QFrame::NoFrame);
    m_place->setFocusPolicy(Qt::NoFocus);
    setWidget(m_place);
}

void OutputDock::setDialog(OutputDialog* dialog)
{
    if (QWidget* before = m_place->takeWidget()) {
        before->hide();
        before->setParent(this);
    }
    m_dialog = dialog;
    setFocusProxy(dialog);
    if (dialog) {
        m_place->setWidget(dialog);
        dialog->show();
    }
    Q_EMIT pageChanged();
}

QList<QAction*> OutputDock::pageActions() const
{
    return m_dialog ? m_dialog->actions() : QList<QAction*>();
}

int OutputDock::widthOfPage() const
{
    const int page = m_dialog ? m_dialog->minimumSizeHint().width() : 0;
    return page + m_place->verticalScrollBar()->sizeHint().width() + width() - m_place->width();
}

int OutputDock::heightOfPage() const
{
    return (m_dialog ? m_dialog->minimumSizeHint().height() : 0) + height() - m_place->height();
}

void OutputDock::setTexts()
{
    setTitle(tr("Graphical Output"));
}

} // namespace workbench
