#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TabDialog.h>

/// A dialog of pages that accepts no refused number: while a field's text is refused, OK leads to
/// the field's page and to the field instead. Users of this class link vkd_qt.
class VKD_H_EXPORT VKD_H_TabDialog : public VKD_QT_TabDialog
{
    Q_OBJECT

public:
    using VKD_QT_TabDialog::VKD_QT_TabDialog;

    void accept() override;
};
