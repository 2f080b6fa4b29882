#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_Dialog.h>

/// A dialog as pages look for it above them. Users of this class link vkd_qt.
class VKD_H_EXPORT VKD_H_Dialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    using VKD_QT_Dialog::VKD_QT_Dialog;
};
