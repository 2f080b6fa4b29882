#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TabDialog.h>

/// A dialog of pages as pages look for it above them. Users of this class link vkd_qt.
class VKD_H_EXPORT VKD_H_TabDialog : public VKD_QT_TabDialog
{
    Q_OBJECT

public:
    using VKD_QT_TabDialog::VKD_QT_TabDialog;
};
