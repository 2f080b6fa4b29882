#pragma once

#include "vkd_qt_export.h"

#include <QObject>
#include <QString>

class QWidget;

/// A field of a dialog that may refuse what its user typed. Dialogs ask their fields by it,
/// whatever library these come from: a widget of it names it in Q_INTERFACES.
class VKD_QT_InputField
{
public:
    virtual ~VKD_QT_InputField() = default;

    /// Why the text that stands in the field is refused, in the language of the desktop; empty if
    /// it is not.
    virtual QString refusal() const = 0;
    /// Takes the focus and shows why the text is refused.
    virtual void showRefusal() = 0;
};
Q_DECLARE_INTERFACE(VKD_QT_InputField, "vkd.qt.InputField")

/// Leads the user to the first field on `page` whose text is refused: its tab comes forward, it has
/// the focus and shows its refusal. Null if there is none. Disabled fields do not count, nor do
/// hidden ones, unless on another tab.
VKD_QT_EXPORT QWidget* vkd_qt_leadToRefusedField(QWidget* page);
