#include "dialogs/PageTabs.h"

#include "VKD_QT_InputField.h"

#include <QKeyEvent>
#include <QTabBar>

PageTabs::PageTabs(QWidget* parent)
    : QTabWidget(parent)
{
    tabBar()->installEventFilter(this);
}

bool PageTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != tabBar())
        return QTabWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Wheel) {
        event->ignore(); // a scroll area around the tabs may scroll
        return true;
    }
    return leadsElsewhere(event) && isHeld();
}

/// Handles Ctrl+Tab, which the page propagates to its parent.
void PageTabs::keyPressEvent(QKeyEvent* event)
{
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (!isTab || !(event->modifiers() & Qt::ControlModifier) || !isHeld())
        QTabWidget::keyPressEvent(event);
}

bool PageTabs::leadsElsewhere(QEvent* event) const
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const int tab = tabBar()->tabAt(static_cast<QMouseEvent*>(event)->pos());
        return tab >= 0 && tab != currentIndex();
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Left || key == Qt::Key_Right;
    }
    case QEvent::Shortcut: return true;
    default: return false;
    }
}

bool PageTabs::isHeld()
{
    return currentWidget() && vkd_qt_leadToRefusedField(currentWidget());
}
