#pragma once

#include <VKD_QT_OutlineStyle.h>

#include <QIcon>

namespace workbench {

/// The style of the window. It caches the icons of the buttons in the titles of docks: Qt requests
/// them dozens of times while the window starts, and other styles load them each time.
class WindowStyle : public VKD_QT_OutlineStyle
{
public:
    using VKD_QT_OutlineStyle::VKD_QT_OutlineStyle;

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    mutable QIcon m_close, m_float;
};

} // namespace workbench
