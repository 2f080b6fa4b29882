#include "window/output/OutputDock.h"

#include "window/output/OutputDialog.h"
#include "window/support/HelpKey.h"

#include <QScrollArea>
#include <QScrollBar>

namespace workbench {

OutputDock::OutputDock(QWidget* parent)
    : AskingDock(QStringLiteral("OutputDock"), parent)
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
    if (!dialog)
        return;
    m_place->setWidget(dialog);
    dialog->show();
}

int OutputDock::widthOfPage() const
{
    const int page = m_dialog ? m_dialog->minimumSizeHint().width() : 0;
    return page + m_place->verticalScrollBar()->sizeHint().width() + width() - m_place->width();
}

void OutputDock::setTexts()
{
    setTitle(tr("Graphical Output"));
}

} // namespace workbench
