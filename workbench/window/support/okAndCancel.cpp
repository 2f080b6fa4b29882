#include "window/support/okAndCancel.h"

#include <VKD_QT_Ok.h>

VKD_QT_Ok* workbench::newOkAndCancel(QWidget* dialog)
{
    constexpr int OkAndCancel = 3;
    return new VKD_QT_Ok(dialog, OkAndCancel, "okayandcancelbutton");
}
