#include "window/output/PlotChoice.h"

#include "window/output/CameraRollback.h"
#include "window/output/OfferedPlots.h"

#include <AnimatorView.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <vkd_qt_xmlpart.h>

#include <QTreeWidget>

namespace workbench {

namespace {
const QString Plots = QStringLiteral("List_4"); // tag of the plots in the page's string
}

/// A selection text without lines would not change the plots that the catalogue proposes.
QString withoutPlots(QString page)
{
    const QString none = vkd_qt_writeXMLpart(QStringLiteral("\nUnchecked:-\n"), Plots);
    const QString plots = vkd_qt_readXMLpart(page, 0, Plots);
    return plots.isNull() ? page + none : page.replace(vkd_qt_writeXMLpart(plots, Plots), none);
}

PlotChoice::PlotChoice(VKD_P_WidgetGraphicalOutput* page, AnimatorView* view)
    : m_page(page)
    , m_view(view)
    , m_tree(page->findChild<QTreeWidget*>())
{
}

void PlotChoice::setProposed()
{
    m_kept = KeptPlots();
    m_chosen.clear();
    m_shown = shown();
}

void PlotChoice::setSaved(const QString& page)
{
    m_page->readXMLstring(page);
    m_kept = KeptPlots(vkd_qt_readXMLpart(page, 0, Plots), OfferedPlots(*m_tree));
}

QString PlotChoice::page() const
{
    QString page = pageString();
    const QString plots = vkd_qt_readXMLpart(page, 0, Plots);
    if (const QString all = withKept(plots); all != plots)
        page.replace(vkd_qt_writeXMLpart(plots, Plots), vkd_qt_writeXMLpart(all, Plots));
    return page;
}

int PlotChoice::absentPlots() const
{
    return m_kept.isEmpty() ? 0 : m_kept.absentPlots(OfferedPlots(*m_tree));
}

void PlotChoice::remember()
{
    const QString present = shown();
    if (present != m_shown)
        m_chosen = withKept(present);
    m_look = TreeViewState(m_tree);
}

void PlotChoice::giveBack()
{
    if (!m_chosen.isNull()) {
        show(m_chosen);
        m_kept = KeptPlots(m_chosen, OfferedPlots(*m_tree));
    }
    m_shown = shown();
    m_look.restore(m_tree);
}

QString PlotChoice::pageString() const
{
    const CameraRollback camera;
    return m_page->writeXMLstring();
}

QString PlotChoice::shown() const
{
    return vkd_qt_readXMLpart(pageString(), 0, Plots);
}

QString PlotChoice::withKept(const QString& plots) const
{
    return m_kept.isEmpty() ? plots : m_kept.addedTo(plots, OfferedPlots(*m_tree));
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
