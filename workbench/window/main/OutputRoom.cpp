#include "window/main/OutputRoom.h"

#include "window/output/OutputDock.h"
#include "window/support/resizeDocks.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {
constexpr int ModelLetters = 40; // minimum width of the model, in average character widths
}

OutputRoom::OutputRoom(const Widgets& widgets, QObject* owner)
    : QObject(owner)
    , m_widgets(widgets)
{
    m_widgets.window->installEventFilter(this);
    for (QWidget* message : qAsConst(m_widgets.messages))
        message->installEventFilter(this);
    const OutputDock* output = m_widgets.output;
    connect(output, &QDockWidget::visibilityChanged, this, &OutputRoom::setShown);
    connect(output, &QDockWidget::topLevelChanged, this, &OutputRoom::arrange);
    connect(output, &QDockWidget::dockLocationChanged, this, &OutputRoom::arrange);
}

/// If a message is shown while the centre of the window is hidden, it receives only
/// QEvent::ShowToParent.
bool OutputRoom::eventFilter(QObject* watched, QEvent* event)
{
    const bool isResized = watched == m_widgets.window && event->type() == QEvent::Resize;
    const bool isMessage = watched != m_widgets.window && (event->type() == QEvent::ShowToParent ||
                                                           event->type() == QEvent::HideToParent);
    const bool isModel = !m_widgets.window->centralWidget()->isHidden();
    if ((isResized || isMessage) && showsModel() != isModel)
        arrange();
    return false;
}

void OutputRoom::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown)
        return;
    if (isShown) {
        m_groupWidth = m_widgets.groups->isHidden() ? 0 : m_widgets.groups->width();
        m_scriptWidth = m_widgets.script->width();
    }
    arrange();
    if (!isShown)
        restore();
}

bool OutputRoom::isDocked() const
{
    return m_isShown && !m_widgets.output->isFloating();
}

bool OutputRoom::showsModel() const
{
    const QMainWindow* window = m_widgets.window;
    const bool isMessage = std::any_of(m_widgets.messages.begin(), m_widgets.messages.end(),
                                       [](const QWidget* message) { return !message->isHidden(); });
    const int room = window->width() - m_widgets.output->widthOfPage() - m_scriptWidth;
    return isMessage || !isDocked() ||
           room >= ModelLetters * window->fontMetrics().averageCharWidth();
}

/// In a narrow window, the script is made narrower so that the page fits.
void OutputRoom::arrange()
{
    QMainWindow* window = m_widgets.window;
    const bool isModel = showsModel();
    window->centralWidget()->setVisible(isModel);
    if (!isDocked())
        return;
    const int needed = m_widgets.output->widthOfPage();
    const int script = qMax(1, qMin(m_scriptWidth, window->width() - needed));
    resizeDocks(window, {m_widgets.output, m_widgets.script},
                {isModel ? needed : qMax(1, window->width() - script), script}, Qt::Horizontal);
    window->layout()->activate();
}

void OutputRoom::restore()
{
    if (m_groupWidth <= 0)
        return;
    resizeDocks(m_widgets.window, {m_widgets.groups, m_widgets.script},
                {m_groupWidth, qMax(1, m_scriptWidth)}, Qt::Horizontal);
    m_widgets.window->layout()->activate(); // a dock that starts to float is shown again at once
}

} // namespace workbench
