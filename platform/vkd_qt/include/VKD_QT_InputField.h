#pragma once

#include "vkd_qt_export.h"

#include <QObject>
#include <QString>

class QWidget;

/// The interface of an input field that can refuse a typed text. Dialogs find such fields in any
/// library, because each class lists the interface in Q_INTERFACES.
class VKD_QT_InputField
{
public:
    virtual ~VKD_QT_InputField() = default;

    /// Returns why the current text is refused, in the desktop's language; empty if it is accepted.
    virtual QString refusal() const = 0;
    /// Takes the focus and shows why the text is refused.
    virtual void showRefusal() = 0;
};
Q_DECLARE_INTERFACE(VKD_QT_InputField, "vkd.qt.InputField")

/// Finds the first field on `page` that refuses its text, selects its tab, focuses it and shows the
/// reason. Returns the field, or null if there is none. Disabled fields are skipped, and so are
/// hidden ones, except on other tabs.
VKD_QT_EXPORT QWidget* vkd_qt_leadToRefusedField(QWidget* page);
