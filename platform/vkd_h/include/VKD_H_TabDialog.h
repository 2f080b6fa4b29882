#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TabDialog.h>

/// The base class of tab dialogs that contain pages; a page finds its dialog by this type. Users of
/// this class must link against vkd_qt.
class VKD_H_EXPORT VKD_H_TabDialog : public VKD_QT_TabDialog
{
    Q_OBJECT

public:
    using VKD_QT_TabDialog::VKD_QT_TabDialog;
};
