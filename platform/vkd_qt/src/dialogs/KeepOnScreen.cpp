#include "dialogs/KeepOnScreen.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScreen>

namespace {
/// Returns the position nearest to `wanted` at which a window of this size is within the area. If
/// the window is larger than the area, its upper left corner is visible.
QPoint placeWithin(const QRect& area, const QSize& size, QPoint wanted)
{
    const QPoint last = area.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {qMax(area.left(), qMin(wanted.x(), last.x())),
            qMax(area.top(), qMin(wanted.y(), last.y()))};
}
} // namespace

KeepOnScreen::KeepOnScreen(QDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    dialog->installEventFilter(this);
}

/// The layout handles the request before the event filters do and may already have resized the
/// dialog.
bool KeepOnScreen::eventFilter(QObject* dialog, QEvent* event)
{
    if (event->type() != QEvent::LayoutRequest || !m_dialog->layout())
        return QObject::eventFilter(dialog, event);
    const QSize least = m_dialog->layout()->totalMinimumSize();
    // A dialog that is larger than its new minimum size has not grown; the user placed it.
    const QSize size = m_dialog->size();
    const bool isGrown = (least.width() > m_leastSize.width() && least.width() >= size.width()) ||
                         (least.height() > m_leastSize.height() && least.height() >= size.height());
    m_leastSize = least;
    if (isGrown && m_dialog->isVisible() && m_dialog->isWindow()) { // it may be embedded
        const QRect frame = m_dialog->frameGeometry();
        const QPoint place =
            placeWithin(m_dialog->screen()->availableGeometry(), frame.size(), frame.topLeft());
        if (place != frame.topLeft())
            m_dialog->move(place);
    }
    return QObject::eventFilter(dialog, event);
}
