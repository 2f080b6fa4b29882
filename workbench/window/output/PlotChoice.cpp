#include "window/output/PlotChoice.h"

#include "window/output/CameraRollback.h"
#include "window/output/OfferedPlots.h"

#include <AnimatorView.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <vkd_qt_xmlpart.h>

#include <QCryptographicHash>
#include <QTreeWidget>

#include <utility>

namespace workbench {

namespace {
const QString Plots = QStringLiteral("List_4"); // tag of the plots in the page's string
constexpr QChar EndOfValue = u'\n';             // separates the values in stateText()

QString digest(const QString& plots)
{
    return QLatin1String(
        QCryptographicHash::hash(plots.toUtf8(), QCryptographicHash::Sha1).toHex());
}
} // namespace

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
    m_shown = digest(shownPlots());
}

/// A saved string with the proposed plots does not show that the user has chosen them.
void PlotChoice::setSaved(const QString& page)
{
    m_page->readXMLstring(page);
    const QString saved = vkd_qt_readXMLpart(page, 0, Plots);
    const QString proposed = std::exchange(m_shown, digest(shownPlots()));
    m_kept = KeptPlots(saved, OfferedPlots(*m_tree));
    if (m_shown != proposed || !m_kept.isEmpty())
        m_chosen = saved;
}

QString PlotChoice::page() const
{
    QString page = pageString();
    const QString plots = vkd_qt_readXMLpart(page, 0, Plots);
    if (const QString all = withKept(plots); all != plots)
        page.replace(vkd_qt_writeXMLpart(plots, Plots), vkd_qt_writeXMLpart(all, Plots));
    return page;
}

QString PlotChoice::chosenDigest() const
{
    return digest(withKept(shownPlots()));
}

void PlotChoice::apply(const QVariantMap& preset, PlotsOfPreset mode)
{
    const QString present = shownPlots();
    m_chosen = selectionWithPreset(preset, mode, present, withKept(present));
    showChosen();
    m_shown = digest(shownPlots());
}

int PlotChoice::absentPlots() const
{
    return m_kept.isEmpty() ? 0 : m_kept.absentPlots(OfferedPlots(*m_tree));
}

void PlotChoice::remember()
{
    const QString present = shownPlots();
    if (digest(present) != m_shown)
        m_chosen = withKept(present);
    m_look = TreeViewState(m_tree);
}

void PlotChoice::giveBack()
{
    showChosen();
    m_shown = digest(shownPlots());
    m_look.restore(m_tree);
}

/// The digest precedes the plots, so that an undo step contains no plots if they are unchanged.
QString PlotChoice::stateText() const
{
    return m_shown + EndOfValue + m_chosen;
}

void PlotChoice::restoreState(const QString& text)
{
    const int end = text.indexOf(EndOfValue);
    m_shown = text.left(end);
    m_chosen = text.mid(end + 1);
    showChosen();
    m_look.restore(m_tree);
}

QString PlotChoice::pageString() const
{
    const CameraRollback camera;
    return m_page->writeXMLstring();
}

QString PlotChoice::shownPlots() const
{
    return vkd_qt_readXMLpart(pageString(), 0, Plots);
}

QString PlotChoice::withKept(const QString& plots) const
{
    return m_kept.isEmpty() ? plots : m_kept.addedTo(plots, OfferedPlots(*m_tree));
}

/// Stores the view's camera before reading the string and restores the desktop's camera afterwards,
/// because reading a string makes the page's view use the stored camera.
void PlotChoice::showChosen()
{
    m_kept = KeptPlots();
    if (m_chosen.isEmpty())
        return;
    const CameraRollback camera;
    m_view->slotViewControl(AnimatorStoreCamera, 0.0);
    m_page->readXMLstring(vkd_qt_writeXMLpart(m_chosen, Plots));
    m_kept = KeptPlots(m_chosen, OfferedPlots(*m_tree));
}

} // namespace workbench
