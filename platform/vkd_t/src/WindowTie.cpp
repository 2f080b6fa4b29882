#include "WindowTie.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>

namespace {
QWidget* windowOf(QWidget* widget)
{
    return widget ? widget->window() : nullptr;
}

QWindow* nativeWindow(QWidget* window)
{
    if (!window)
        return nullptr;
    window->winId(); // makes it if need be
    return window->windowHandle();
}
} // namespace

WindowTie::WindowTie(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    m_window->installEventFilter(this);
}

void WindowTie::tieTo(QWidget* widget)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        setHost(modal->window());
    else if (windowOf(widget) != m_window)
        setHost(windowOf(widget));
}

bool WindowTie::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::WindowBlocked)
        QTimer::singleShot(0, this, &WindowTie::followModal); // the dialog is still being shown
    if (watched == m_host && event->type() == QEvent::Hide && m_next)
        setHost(m_next);
    return QObject::eventFilter(watched, event);
}

void WindowTie::setHost(QWidget* host)
{
    if (m_host) {
        m_host->removeEventFilter(this);
        disconnect(m_host, nullptr, this, nullptr);
    }
    m_host = host;
    m_next = host ? windowOf(host->parentWidget()) : nullptr;
    if (host) {
        host->installEventFilter(this);
        connect(host, &QObject::destroyed, this, &WindowTie::hostDestroyed);
    }
    nativeWindow(m_window)->setTransientParent(nativeWindow(host));
}

void WindowTie::followModal()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        setHost(modal->window());
}

void WindowTie::hostDestroyed()
{
    if (m_next)
        setHost(m_next);
    else
        m_window->close();
}
