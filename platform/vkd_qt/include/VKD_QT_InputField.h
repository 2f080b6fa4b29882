#pragma once

#include "vkd_qt_export.h"

#include <QObject>
#include <QString>

class QWidget;

/// The interface of an input field that can reject typed text. Dialogs can find such fields even if
/// their classes are defined in other libraries, because each class lists the interface in
/// Q_INTERFACES.
class VKD_QT_InputField
{
public:
    virtual ~VKD_QT_InputField() = default;

    /// Returns the reason why the current text is rejected, in the desktop language, or an empty
    /// string if the text is accepted.
    virtual QString refusal() const = 0;
    /// Moves the focus to the field and shows the reason why its text is rejected.
    virtual void showRefusal() = 0;
};
Q_DECLARE_INTERFACE(VKD_QT_InputField, "vkd.qt.InputField")

/// Finds the first field on `page` that rejects its text, selects the field's tab, moves the focus
/// to the field and shows the reason. Returns the field, or null if there is none. Skips fields
/// that are disabled or hidden, except fields that are hidden only because another tab is selected.
VKD_QT_EXPORT QWidget* vkd_qt_leadToRefusedField(QWidget* page);
