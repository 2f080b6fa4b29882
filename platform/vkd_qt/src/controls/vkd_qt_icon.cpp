#include "vkd_qt_icon.h"

#include <vkd_qt_icon_named.h>

QIcon vkd_qt_icon(int number, int)
{
    switch (number) {
    case 2125: return vkd::qt::icon(QStringLiteral(":/icon/program/groups"));
    case 2126: return vkd::qt::icon(QStringLiteral(":/icon/program/secondary_groups"));
    default: return QIcon();
    }
}
