#include "window/output/PlotChoice.h"

#include "window/output/CameraRollback.h"

#include <AnimatorView.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <vkd_qt_xmlpart.h>

#include <QTreeWidget>

namespace workbench {

namespace {
const QString Plots = QStringLiteral("List_4"); // tag of the plots in the page's string
}

PlotChoice::PlotChoice(VKD_P_WidgetGraphicalOutput* page, AnimatorView* view)
    : m_page(page)
    , m_view(view)
    , m_tree(page->findChild<QTreeWidget*>())
{
}

void PlotChoice::setProposed()
{
    m_chosen.clear();
    m_shown = shown();
}

void PlotChoice::remember()
{
    const QString present = shown();
    if (present != m_shown)
        m_chosen = present;
    m_look = TreeViewState(m_tree);
}

void PlotChoice::giveBack()
{
    if (!m_chosen.isNull())
        show(m_chosen);
    m_shown = shown();
    m_look.restore(m_tree);
}

QString PlotChoice::shown() const
{
    const CameraRollback camera;
    return vkd_qt_readXMLpart(m_page->writeXMLstring(), 0, Plots);
}

/// Stores the view's camera before reading the string and restores the desktop's camera afterwards,
/// because reading a string makes the page's view use the stored camera.
void PlotChoice::show(const QString& plots)
{
    const CameraRollback camera;
    m_view->slotViewControl(AnimatorStoreCamera, 0.0);
    m_page->readXMLstring(vkd_qt_writeXMLpart(plots, Plots));
}

} // namespace workbench
