// The output page and the animator: view commands, first show.

#include "VKD_P_WidgetGraphicalOutput.h"
#include "WidgetGraphicalOutputData.h"
#include "WidgetGraphicalOutputEvent.h"

#include <AnimatorView.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QCoreApplication>
#include <QRadioButton>

using Page = VKD_P_WidgetGraphicalOutput;

namespace {
constexpr int UserDefinedView = 4;

} // namespace

WidgetGraphicalOutputEvent::~WidgetGraphicalOutputEvent() = default;

void VKD_P_WidgetGraphicalOutput::connectAnimator()
{
    if (data->viewGroup) {
        void (Page::*const slotsOfButtons[])(bool) = {&Page::slotBeobXY, &Page::slotBeobXZ,
                                                      &Page::slotBeobYZ, &Page::slotBeob3D,
                                                      &Page::slotBeobAni};
        for (int entry = 0; entry <= UserDefinedView; ++entry)
            connect(data->viewGroup->getRadioButton(entry), &QRadioButton::toggled, this,
                    slotsOfButtons[entry]);
    }
    AnimatorView* animator = data->animator;
    connect(this, &Page::signalBeobXY, animator, &AnimatorView::slotViewControl);
    connect(this, &Page::signalBeobYZ, animator, &AnimatorView::slotViewControl);
    // The one for X/Z is left out and this one made twice; it makes no difference, because the page
    // sends by the first signal alone.
    connect(this, &Page::signalBeobYZ, animator, &AnimatorView::slotViewControl);
    connect(this, &Page::signalBeob3D, animator, &AnimatorView::slotViewControl);
}

/// All commands go by the first signal, whatever the plane.
void VKD_P_WidgetGraphicalOutput::showFixedView(AnimatorViewControl control, bool on)
{
    if (!data->animator || !on)
        return;
    Q_EMIT signalBeobXY(control, 0.0);
    if (data->animator) // who listens may have done away with it
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

/// Leaving the user's view stores its camera; the next view disables the animator or not.
void VKD_P_WidgetGraphicalOutput::slotBeobAni(bool on)
{
    if (!data->animator)
        return;
    Q_EMIT signalBeobXY(on ? AnimatorTakeCamera : AnimatorStoreCamera, 0.0);
    if (on && data->animator)
        data->animator->setEnabled(true);
}

/// The view slots run on a change of the buttons alone, so the command for the view of a new page
/// is given once when its tab comes up.
void VKD_P_WidgetGraphicalOutput::slotCurrentChanged(QWidget* page)
{
    const QWidget* ancestor = this; // also across windows, where isAncestorOf() ends
    while (ancestor && ancestor != page)
        ancestor = ancestor->parentWidget();
    if (!data->firstShow || !ancestor)
        return;
    if (data->viewGroup && data->viewGroup->selectedButton() < UserDefinedView)
        QCoreApplication::postEvent(this, new WidgetGraphicalOutputEvent);
    data->firstShow = false;
}

void VKD_P_WidgetGraphicalOutput::customEvent(QEvent* event)
{
    const auto firstShow = dynamic_cast<WidgetGraphicalOutputEvent*>(event);
    if (!data->viewGroup || event->type() != QEvent::User || !firstShow ||
        firstShow->identifier() != WidgetGraphicalOutputEvent::FirstShow)
        return;
    switch (data->viewGroup->selectedButton()) {
    case 0: return slotBeobXY(true);
    case 1: return slotBeobXZ(true);
    case 2: return slotBeobYZ(true);
    case 3: return slotBeob3D(true);
    case UserDefinedView: return slotBeobAni(true);
    default: return;
    }
}
