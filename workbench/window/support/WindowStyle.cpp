#include "window/support/WindowStyle.h"

namespace workbench {

QIcon WindowStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const
{
    if (icon != SP_TitleBarCloseButton && icon != SP_TitleBarNormalButton)
        return VKD_QT_OutlineStyle::standardIcon(icon, option, widget);
    QIcon& cached = icon == SP_TitleBarCloseButton ? m_close : m_float;
    if (cached.isNull())
        cached = VKD_QT_OutlineStyle::standardIcon(icon, option, widget);
    return cached;
}

} // namespace workbench
