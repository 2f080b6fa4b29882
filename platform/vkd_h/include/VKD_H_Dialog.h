#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_Dialog.h>

/// The base class of dialogs that contain pages; a page finds its dialog by this type. Users of
/// this class must link against vkd_qt.
class VKD_H_EXPORT VKD_H_Dialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    using VKD_QT_Dialog::VKD_QT_Dialog;
};
