// The part of AnimatorView for the mouse and the keyboard.

#include "AnimatorView.h"

#include "view/GroupMarks.h"
#include "view/SceneView.h"

#include <vkd_qt_qt6.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

#include <cmath>

using namespace vkd::aniview;

namespace {
constexpr double DegreesToPixel = 0.4;
constexpr double DegreesToKey = 5.0;
constexpr double PixelsToKey = 40.0;
constexpr double ZoomToStep = 1.2; // per wheel notch or key press
} // namespace

/// The right mouse button also moves the model, so its menu is requested on release.
void AnimatorView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() != QContextMenuEvent::Mouse)
        Q_EMIT menuRequested(m_marks->hovered(), mapToGlobal(rect().center()));
}

void AnimatorView::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool shift = modifiers == Qt::ShiftModifier;
    if ((modifiers == Qt::NoModifier || shift) && !isEmpty() && moveByKey(event->key(), shift))
        return;
    QWidget::keyPressEvent(event);
}

/// While picking is enabled, the second click on a group undoes the first click and must not also
/// show the whole model.
void AnimatorView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (isPicking() && m_scene->groupAt(vkd_qt_position(*event)) != NoGroup) {
        mousePressEvent(event);
        return;
    }
    if (event->button() == Qt::LeftButton)
        slotViewControl(AnimatorShowAll, 0.0);
}

void AnimatorView::mouseMoveEvent(QMouseEvent* event)
{
    endLostDrag(*event);
    if (m_hand == Hand::Free) {
        hoverAt(vkd_qt_position(*event));
        return;
    }
    const int way = (event->pos() - m_pressed).manhattanLength();
    if (m_isClick && isHovering() && way < QApplication::startDragDistance())
        return;
    m_isClick = false;
    updateCursor();
    drag(event->pos() - m_last);
    m_last = event->pos();
}

void AnimatorView::mousePressEvent(QMouseEvent* event)
{
    endLostDrag(*event);
    const Qt::MouseButton button = event->button();
    const bool pans = button == Qt::RightButton || button == Qt::MiddleButton ||
                      event->modifiers() & Qt::ShiftModifier;
    if (m_hand != Hand::Free || isEmpty() || (button != Qt::LeftButton && !pans))
        return;
    m_hand = pans ? Hand::Panning : Hand::Turning;
    m_button = button;
    m_pressed = m_last = event->pos();
    m_isClick = true;
    updateCursor();
}

void AnimatorView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_hand == Hand::Free || event->button() != m_button)
        return;
    const bool isClick = m_isClick;
    const bool isTurning = m_hand == Hand::Turning;
    endDrag();
    const QPointer<AnimatorView> view(this); // slots of any signal may delete the view
    hoverAt(vkd_qt_position(*event));
    if (isClick && isTurning && view)
        click(event->pos());
    else if (isClick && event->button() == Qt::RightButton && view)
        Q_EMIT menuRequested(m_scene->groupAt(event->pos()), mapToGlobal(event->pos()));
}

void AnimatorView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep);
    event->setAccepted(!isEmpty());
    if (isEmpty() || notches == 0.0)
        return;
    m_scene->zoom(std::pow(ZoomToStep, qBound(-10.0, notches, 10.0)), event->position());
    moved();
}

void AnimatorView::drag(const QPoint& by)
{
    if (m_hand == Hand::Panning)
        m_scene->pan(by);
    else
        m_scene->turn(DegreesToPixel * by.x(), DegreesToPixel * by.y());
    moved();
}

void AnimatorView::endDrag()
{
    m_hand = Hand::Free;
    m_button = Qt::NoButton;
    updateCursor();
}

/// Ends a drag whose release event was sent to another window.
void AnimatorView::endLostDrag(const QMouseEvent& event)
{
    const bool isUp = !(event.buttons() & m_button);
    if (m_hand != Hand::Free && (isUp || event.button() == m_button))
        endDrag();
}

void AnimatorView::click(const QPoint& place)
{
    const int group = m_scene->groupAt(place);
    if (group == NoGroup)
        return;
    if (!isPicking()) {
        Q_EMIT groupClicked(group);
        return;
    }
    m_marks->toggle(group);
    showMarks();
    Q_EMIT pickedGroupsChanged();
}

void AnimatorView::hoverAt(const QPointF& place)
{
    if (isHovering())
        hover(rect().contains(place.toPoint()) ? m_scene->groupAt(place) : NoGroup);
}

void AnimatorView::hover(int group)
{
    if (!m_marks->setHovered(group))
        return;
    updateCursor();
    showMarks();
    Q_EMIT groupHovered(group);
}

bool AnimatorView::isHovering() const
{
    return isPicking() || m_hovers;
}

void AnimatorView::updateCursor()
{
    if (!isEnabled() || isEmpty())
        unsetCursor();
    else if (m_hand == Hand::Panning)
        setCursor(Qt::SizeAllCursor);
    else if (m_hand == Hand::Turning && !(isPicking() && m_isClick))
        setCursor(Qt::ClosedHandCursor);
    else if (isPicking())
        setCursor(m_marks->hovered() == NoGroup ? Qt::ArrowCursor : Qt::PointingHandCursor);
    else
        setCursor(Qt::OpenHandCursor);
}

bool AnimatorView::moveByKey(int key, bool shift)
{
    const QPointF middle = QRectF(rect()).center();
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: m_scene->zoom(ZoomToStep, middle); break;
    case Qt::Key_Minus: m_scene->zoom(1.0 / ZoomToStep, middle); break;
    case Qt::Key_Home: m_scene->showAll(); break;
    default: return turnOrPanByKey(key, shift);
    }
    moved();
    return true;
}

bool AnimatorView::turnOrPanByKey(int key, bool pan)
{
    QPointF way;
    switch (key) {
    case Qt::Key_Left: way = {-1.0, 0.0}; break;
    case Qt::Key_Right: way = {1.0, 0.0}; break;
    case Qt::Key_Up: way = {0.0, -1.0}; break;
    case Qt::Key_Down: way = {0.0, 1.0}; break;
    default: return false;
    }
    if (pan)
        m_scene->pan(PixelsToKey * way);
    else
        m_scene->turn(DegreesToKey * way.x(), DegreesToKey * way.y());
    moved();
    return true;
}
