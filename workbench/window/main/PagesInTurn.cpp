#include "window/main/PagesInTurn.h"

#include "window/output/OutputDock.h"

#include <QAction>
#include <QMainWindow>

#include <utility>

namespace workbench {

PagesInTurn::PagesInTurn(QMainWindow* window, OutputDock* output, PageDock* design,
                         const QWidget* banner, QObject* owner)
    : QObject(owner)
    , m_window(window)
    , m_output(output)
    , m_design(design)
    , m_banner(banner)
{
    connect(output, &QDockWidget::visibilityChanged, this, [this](bool isShown) {
        m_isOutputShown = isShown;
        // The docks do not have their sizes yet.
        QMetaObject::invokeMethod(this, &PagesInTurn::arrange, Qt::QueuedConnection);
    });
    connect(design, &QDockWidget::visibilityChanged, this,
            [this](bool isShown) { m_isDesignHidden = m_isDesignHidden && !isShown; });
    connect(design, &PageDock::pageChanged, this, [this] { // another project has been opened
        m_isDesignHidden = m_isDesignHidden && !m_design->pageActions().isEmpty();
    });
}

/// The design dock cannot be shown while the start page replaces the docks.
void PagesInTurn::arrange()
{
    if (m_isOutputShown && isTooLow()) {
        m_isDesignHidden = true;
        m_design->hide();
    } else if (!m_isOutputShown && m_design->toggleViewAction()->isEnabled() &&
               std::exchange(m_isDesignHidden, false)) {
        m_design->show();
    }
}

bool PagesInTurn::isTooLow() const
{
    const auto isIn = [this](QDockWidget* dock, Qt::DockWidgetAreas areas) {
        return !dock->isFloating() && areas & m_window->dockWidgetArea(dock);
    };
    return m_design->isVisible() && m_banner->isHidden() &&
           isIn(m_design, Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea) &&
           isIn(m_output, Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea) &&
           m_output->height() < m_output->heightOfPage();
}

} // namespace workbench
