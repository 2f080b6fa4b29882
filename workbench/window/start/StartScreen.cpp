#include "window/start/StartScreen.h"

#include <QAction>
#include <QBoxLayout>
#include <QDockWidget>
#include <QMainWindow>

#include <utility>

namespace workbench {

namespace {
QList<QDockWidget*> docksOf(const QMainWindow* window)
{
    return window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
}
} // namespace

StartScreen::StartScreen(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
}

void StartScreen::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) == isShown)
        return;
    if (isShown)
        enter();
    else
        leave();
}

QByteArray StartScreen::dockState() const
{
    return m_isShown ? m_state : m_parts.window->saveState(m_parts.stateVersion);
}

void StartScreen::enter()
{
    m_state = m_parts.window->saveState(m_parts.stateVersion);
    for (QDockWidget* dock : docksOf(m_parts.window)) {
        dock->hide();
        dock->toggleViewAction()->setEnabled(false);
    }
    m_parts.model->hide();
    createPage();
    m_page->refresh();
    m_page->show();
    m_page->setFocus();
}

void StartScreen::leave()
{
    const bool hadFocus = m_page->isAncestorOf(m_parts.window->focusWidget());
    m_page->hide();
    m_parts.model->show();
    if (hadFocus)
        m_parts.model->setFocus();
    for (QDockWidget* dock : docksOf(m_parts.window))
        dock->toggleViewAction()->setEnabled(true);
    m_parts.window->restoreState(m_state, m_parts.stateVersion);
}

void StartScreen::createPage()
{
    if (m_page)
        return;
    QWidget* place = m_parts.model->parentWidget();
    m_page = new StartPage(m_parts.actions, place);
    static_cast<QBoxLayout*>(place->layout())->addWidget(m_page, 1);
    connect(m_page, &StartPage::projectChosen, this, &StartScreen::projectChosen);
}

} // namespace workbench
