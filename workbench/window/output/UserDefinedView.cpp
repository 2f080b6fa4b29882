#include "window/output/UserDefinedView.h"

#include <AnimatorView.h>
#include <vkd_dbo_camera.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_qt_xmlpart.h>

#include <QEvent>

namespace workbench {

namespace {
constexpr int UserDefined = 4; // a button of the group with the views
}

UserDefinedView::UserDefinedView(const QWidget* page, AnimatorView* view, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_view(view)
{
    view->installEventFilter(this);
}

bool UserDefinedView::isShown() const
{
    const auto views =
        m_page->findChild<VKD_QT_RadioButtonGroup*>(QStringLiteral("PerspectiveGroup"));
    return views && views->selectedButton() == UserDefined;
}

/// The view itself stores its camera only when the user switches to another view.
void UserDefinedView::store()
{
    if (isShown())
        m_view->slotViewControl(AnimatorStoreCamera, 0.0);
}

QString UserDefinedView::withCamera(QString page)
{
    const QString tag = QStringLiteral("Camera");
    const auto part = [&tag](const QString& camera) { return vkd_qt_writeXMLpart(camera, tag); };
    return page.replace(part(vkd_qt_readXMLpart(page, 0, tag)),
                        part(vkd::dbo::getAnimatorPerspektive(vkd::dbo::DesktopCamera,
                                                              vkd::dbo::PersistentCamera)));
}

bool UserDefinedView::eventFilter(QObject* watched, QEvent* event)
{
    const bool mayMove = event->type() == QEvent::MouseButtonRelease ||
                         event->type() == QEvent::KeyRelease || event->type() == QEvent::Wheel;
    if (mayMove && isShown())
        Q_EMIT moved();
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
