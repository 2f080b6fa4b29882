// The part of the output page that controls the animator: view commands and the initial view.

#include "output/WidgetGraphicalOutputData.h"
#include "output/WidgetGraphicalOutputEvent.h"
#include "VKD_P_WidgetGraphicalOutput.h"

#include <AnimatorView.h>

#include <QCoreApplication>
#include <QRadioButton>

using Page = VKD_P_WidgetGraphicalOutput;
using plib::OutputView;

WidgetGraphicalOutputEvent::~WidgetGraphicalOutputEvent() = default;

void VKD_P_WidgetGraphicalOutput::connectAnimator()
{
    void (Page::*const slotsOfButtons[])(bool) = {&Page::slotBeobXY, &Page::slotBeobXZ,
                                                  &Page::slotBeobYZ, &Page::slotBeob3D,
                                                  &Page::slotBeobAni};
    const QList<QRadioButton*> buttons = data->panel->viewButtons();
    for (int view = 0; view < buttons.size(); ++view)
        connect(buttons[view], &QRadioButton::toggled, this, slotsOfButtons[view]);
    AnimatorView* animator = data->animator;
    connect(this, &Page::signalBeobXY, animator, &AnimatorView::slotViewControl);
    connect(this, &Page::signalBeobYZ, animator, &AnimatorView::slotViewControl);
    // This signal is intentionally connected twice, and the signal for X/Z is not connected. This
    // has no effect, because the page emits only the signal for X/Y.
    connect(this, &Page::signalBeobYZ, animator, &AnimatorView::slotViewControl);
    connect(this, &Page::signalBeob3D, animator, &AnimatorView::slotViewControl);
}

/// Sends all commands through the signal for X/Y, regardless of the plane.
void VKD_P_WidgetGraphicalOutput::showFixedView(AnimatorViewControl control, bool on)
{
    if (!data->animator || !on)
        return;
    Q_EMIT signalBeobXY(control, 0.0);
    if (data->animator) // a connected slot may have deleted the animator
        data->animator->setEnabled(false);
}

void VKD_P_WidgetGraphicalOutput::slotBeobXY(bool on)
{
    showFixedView(AnimatorViewXY, on);
}

void VKD_P_WidgetGraphicalOutput::slotBeobXZ(bool on)
{
    showFixedView(AnimatorViewXZ, on);
}

void VKD_P_WidgetGraphicalOutput::slotBeobYZ(bool on)
{
    showFixedView(AnimatorViewYZ, on);
}

void VKD_P_WidgetGraphicalOutput::slotBeob3D(bool on)
{
    showFixedView(AnimatorStandardView, on);
}

/// Stores the camera when the user-defined view is unchecked. Does not disable the animator,
/// because the slot of the next view does this if necessary.
void VKD_P_WidgetGraphicalOutput::slotBeobAni(bool on)
{
    if (!data->animator)
        return;
    Q_EMIT signalBeobXY(on ? AnimatorTakeCamera : AnimatorStoreCamera, 0.0);
    if (on && data->animator)
        data->animator->setEnabled(true);
}

/// Sends the first view command. The view slots run only when a button changes, so the view of a
/// new page must be sent when its tab is shown for the first time.
void VKD_P_WidgetGraphicalOutput::slotCurrentChanged(QWidget* page)
{
    const QWidget* ancestor = this; // unlike isAncestorOf(), this loop crosses windows
    while (ancestor && ancestor != page)
        ancestor = ancestor->parentWidget();
    if (!data->firstShow || !ancestor)
        return;
    if (data->panel->showsFixedView())
        QCoreApplication::postEvent(this, new WidgetGraphicalOutputEvent);
    data->firstShow = false;
}

void VKD_P_WidgetGraphicalOutput::customEvent(QEvent* event)
{
    const auto firstShow = dynamic_cast<WidgetGraphicalOutputEvent*>(event);
    if (event->type() != QEvent::User || !firstShow ||
        firstShow->identifier() != WidgetGraphicalOutputEvent::FirstShow)
        return;
    switch (OutputView(data->panel->checkedView())) {
    case OutputView::PlaneXY: return slotBeobXY(true);
    case OutputView::PlaneXZ: return slotBeobXZ(true);
    case OutputView::PlaneYZ: return slotBeobYZ(true);
    case OutputView::Standard3D: return slotBeob3D(true);
    case OutputView::UserDefined: return slotBeobAni(true);
    default: return;
    }
}
